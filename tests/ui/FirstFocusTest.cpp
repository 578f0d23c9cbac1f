// Where the focus begins in a dialog that opens over the panel.
#include "app/TarnwickDlg.h"
#include "ui/ProgramWorld.h"

#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

struct Opening {
  std::string name;
  int button;
  std::size_t tab;
  int control;
};

std::ostream& operator<<(std::ostream& out, const Opening& opening) {
  return out << opening.name;
}

constexpr int SOURCE_FIELD = 1009;
constexpr int EDIT = 1007;

class FirstFocusTest : public WindowTest, public testing::WithParamInterface<Opening> {
 protected:
  FirstFocusTest() {
    writeFile(source(), "class A {}");
    world_.settings.saveDefaultConfiguration();
  }

  std::string source() const { return world_.scratch.file("A.java"); }
  ui::WxDialogWindow& panel() const { return *top().children().at(0); }
  ui::WxDialogWindow& bar() const { return *panel().children().at(3); }
  ui::WxDialogWindow& page() const { return *top().children().at(GetParam().tab); }

  void pressTheButton() {
    if (GetParam().button != EDIT) return press(bar(), GetParam().button);
    type(panel(), SOURCE_FIELD, '"' + source() + '"');
    press(panel(), EDIT);
  }

  ProgramWorld world_;
};

}  // namespace

TEST_P(FirstFocusTest, ItBeginsOnTheFirstControlOfThePageThatShows) {
  steps.until("the panel shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle(5);
  steps.then("press", [this] { pressTheButton(); });
  steps.until("the settings show", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
  steps.settle(10);
  steps.then("look", [this] {
    const wxWindow* const focus = wxWindow::FindFocus();
    EXPECT_EQ(focus, page().windowOf(GetParam().control)) << (focus ? focus->GetName().ToStdString() : "no focus");
  });
  steps.then("cancel", [this] { top().close(IDCANCEL_CONTROL); });
  steps.until("closed", [this] { return openDialogs() == 1; });
  steps.then("exit", [this] { top().close(IDOK_CONTROL); });
  TarnwickDlg(world_.settings).runModal();
}

INSTANTIATE_TEST_SUITE_P(Openings, FirstFocusTest,
                         testing::Values(Opening{"Settings", 1000, 0, 1041}, Opening{"Edit", EDIT, 5, 1014}),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
