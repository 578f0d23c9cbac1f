// Every dialog of the program with its own rules and words, as its user meets it.
#include "dialogbase/ToolTipDlg.h"
#include "ui/DialogChecks.h"
#include "ui/RealDialogs.h"

#include <wx/button.h>
#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

class RealDialogsTest : public WindowTest, public testing::WithParamInterface<RealDialog> {
 protected:
  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() > 0 && top().dialog().IsActive(); });
    steps.settle(5);
  }

  /// The dialog is about to close: those that open after it close too.
  void thenCloseFollowers() {
    for (const auto& title : GetParam().followers) {
      steps.until("the next dialog shows",
                  [this, title] { return openDialogs() > 0 && top().dialog().IsActive() && top().title() == title; });
      steps.settle(3);
      steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
    }
  }

  void thenClose() {
    steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
    thenCloseFollowers();
  }

  int run() { return GetParam().run(world_); }

  ProgramWorld world_;
};

}  // namespace

TEST_P(RealDialogsTest, ShowsWhole) {
  waitForDialog();
  steps.then("look", [this] {
    shoot("dialog-" + GetParam().name);
    expectGoodLooks(top());
    expectFitsSmallScreen(top());
  });
  thenClose();
  run();
}

TEST_P(RealDialogsTest, EveryControlHasANameOfItsOwnForReadersOfTheScreen) {
  waitForDialog();
  steps.then("look", [this] { expectNames(top()); });
  thenClose();
  run();
}

TEST_P(RealDialogsTest, TabReachesEveryControlInTheOrderOfReading) {
  const auto reached = std::make_shared<Stops>();
  waitForDialog();
  walkByTab(steps, reached);
  steps.then("look", [this, reached] {
    expectAllReached(top(), *reached);
    expectReadingOrder(*reached);
  });
  thenClose();
  run();
}

TEST_P(RealDialogsTest, EscapeDoesWhatCancelDoes) {
  waitForDialog();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  thenCloseFollowers();
  const int result = run();
  if (result != NO_RESULT) {
    EXPECT_EQ(result, DIALOG_CANCEL);
  }
}

TEST_P(RealDialogsTest, TheDefaultButtonIsTheOneThatReturnPresses) {
  waitForDialog();
  steps.then("look", [this] {
    const wxWindow* const found = top().dialog().GetDefaultItem();
    if (GetParam().defaultButton != NO_DEFAULT) {
      EXPECT_EQ(found, top().windowOf(GetParam().defaultButton));
    } else if (found) {
      EXPECT_EQ(found, wxWindow::FindFocus()) << "only while it has the focus";
    }
  });
  thenClose();
  run();
}

INSTANTIATE_TEST_SUITE_P(Program, RealDialogsTest, testing::ValuesIn(allDialogs()),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
