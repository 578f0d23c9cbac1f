// Where the focus goes when its user opens another page of the settings.
#include "settingsdialog/SettingsDialog.h"
#include "ui/ProgramWorld.h"

#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

constexpr int TABS = 1092;
constexpr int TOOLS_FIELD = 1041;
constexpr std::size_t EDITOR_TAB = 5;
constexpr int OTHER_EDITOR = 1014;

class PageFocusTest : public WindowTest {
 protected:
  wxWindow* control(std::size_t tab, int number) const { return top().children().at(tab)->windowOf(number); }

  ProgramWorld world_;
};

}  // namespace

TEST_F(PageFocusTest, ItIsOnTheFirstGroupOfThePageAndNotOnWhatWasCheckedLast) {
  steps.until("the settings show", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle(5);
  steps.then("look", [this] { EXPECT_EQ(wxWindow::FindFocus(), control(0, TOOLS_FIELD)); });
  steps.then("another page", [this] { choose(top(), TABS, EDITOR_TAB); });
  steps.settle(5);
  steps.then("look", [this] { EXPECT_EQ(wxWindow::FindFocus(), control(EDITOR_TAB, OTHER_EDITOR)); });
  steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
  SettingsDialog(world_.settings).runModal(0);
}

}  // namespace tarnwick::test
