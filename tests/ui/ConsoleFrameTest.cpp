// The frame around the console's text: menus, accelerators, toolbar, closing.
#include "ui/ConsoleWindow.h"
#include "ui/Text.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

namespace tarnwick::test {

namespace {

class ConsoleFrameTest : public ConsoleTest {};

}  // namespace

TEST_F(ConsoleFrameTest, AcceleratorsRunTheirCommandsAndTypeNothing) {
  waitForFrame();
  press('A', wxMOD_CONTROL);
  press('C', wxMOD_CONTROL);
  press(WXK_INSERT, wxMOD_CONTROL);
  press('V', wxMOD_CONTROL);
  press(WXK_INSERT, wxMOD_SHIFT);
  press(WXK_DELETE, wxMOD_SHIFT);
  thenExpect({"command 57642", "command 57634", "command 57634", "command 57637", "command 57637", "command 57635"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, TheAcceleratorOfADisabledCommandDoesNothing) {
  console.disabled = {COMMAND_COPY};
  waitForFrame();
  press('C', wxMOD_CONTROL);
  thenExpect({});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, ShiftDeleteIsNoDelete) {
  console.disabled = {COMMAND_CUT};
  waitForFrame();
  press(WXK_DELETE, wxMOD_SHIFT);
  press('x');
  thenExpect({"char x"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, MenusAskWhatIsEnabledWhenTheyOpen) {
  waitForFrame();
  steps.then("open the menu", [this] {
    console.disabled = {COMMAND_STOP_RECORDING, COMMAND_JDB_HELP};
    wxMenuEvent open(wxEVT_MENU_OPEN, 0, frame()->GetMenuBar()->GetMenu(0));
    frame()->ProcessWindowEvent(open);
    wxMenuBar& bar = *frame()->GetMenuBar();
    EXPECT_EQ(bar.GetMenuCount(), consoleMenuBar().size());
    for (std::size_t i = 0; i < bar.GetMenuCount(); ++i) {
      const auto& described = consoleMenuBar()[i];
      EXPECT_EQ(bar.GetMenuLabel(i), ui::toWx(described.title));
      const auto& items = bar.GetMenu(i)->GetMenuItems();
      ASSERT_EQ(items.size(), described.items.size());
      for (std::size_t k = 0; k < items.size(); ++k) {
        EXPECT_EQ(items[k]->GetItemLabel(), ui::toWx(described.items[k].text));
        if (!items[k]->IsSeparator()) {
          EXPECT_EQ(items[k]->IsEnabled(), console.commandEnabled(described.items[k].command))
              << described.items[k].text;
        }
      }
    }
  });
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, ThereIsNoToolbarWhereNoneIsAskedFor) {
  waitForFrame();
  steps.then("look", [this] { EXPECT_EQ(frame()->GetToolBar(), nullptr); });
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, TheDebuggersToolbarShowsAllButtonsWithTheirTips) {
  console.buttons = &debuggerToolbar();
  waitForFrame();
  steps.settle(10);
  steps.then("look", [this] {
    shoot("console-toolbar");
    wxToolBar* const bar = frame()->GetToolBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->GetToolsCount(), debuggerToolbar().size());
    for (std::size_t i = 0; i < debuggerToolbar().size(); ++i) {
      const auto* tool = bar->GetToolByPos(static_cast<int>(i));
      const ToolbarButton& described = debuggerToolbar()[i];
      EXPECT_EQ(tool->IsSeparator(), described.command == 0);
      if (described.command == 0) continue;
      EXPECT_EQ(tool->GetShortHelp(), ui::toWx(described.toolTip));
      EXPECT_EQ(tool->GetLongHelp(), ui::toWx(described.toolTip));
      EXPECT_TRUE(tool->IsEnabled()) << described.toolTip;
      EXPECT_TRUE(tool->GetNormalBitmap().IsOk()) << described.toolTip;
    }
    EXPECT_GE(frame()->GetClientSize().x, bar->GetBestSize().x) << "no button is cut off";
  });
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, AButtonWithoutAPictureWorksAllTheSame) {
  const Toolbar unknown = {{1, "one"}, {2, "two"}, {COMMAND_RUN, "run"}};
  console.buttons = &unknown;
  waitForFrame();
  steps.then("press", [this] {
    wxToolBar* const bar = frame()->GetToolBar();
    ASSERT_EQ(bar->GetToolsCount(), 3U);
    wxCommandEvent pressed(wxEVT_TOOL, bar->GetToolByPos(1)->GetId());
    bar->ProcessWindowEvent(pressed);
  });
  thenExpect({"command 2"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, APressedButtonRunsItsCommandAndTheKeysGoOnBeingTyped) {
  console.buttons = &debuggerToolbar();
  waitForFrame();
  steps.then("press", [this] {
    wxToolBar* const bar = frame()->GetToolBar();
    wxCommandEvent pressed(wxEVT_TOOL, bar->GetToolByPos(0)->GetId());
    bar->ProcessWindowEvent(pressed);
  });
  press('x');
  thenExpect({"command 32796", "char x"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, AChosenMenuItemRunsItsCommand) {
  waitForFrame();
  steps.then("choose", [this] {
    const auto* item = frame()->GetMenuBar()->GetMenu(0)->FindItemByPosition(0);
    wxCommandEvent chosen(wxEVT_MENU, item->GetId());
    frame()->ProcessWindowEvent(chosen);
  });
  thenExpect({"command 32771"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, TheCloseBoxClosesTheConsole) {
  waitForFrame();
  steps.then("close box", [this] { frame()->Close(); });
  play();
  EXPECT_EQ(console.heard, Heard{"closed"});
}

TEST_F(ConsoleFrameTest, AConsoleThatIsToCloseWaitsForItsMessageBox) {
  waitForFrame();
  steps.then("message", [] { desktop().message("WriteFile error to jStdin"); });
  steps.settle(20);
  steps.then("close", [this] {
    console.heard.clear();
    console.surface->close();
  });
  steps.settle(10);
  steps.then("it waits", [this] {
    EXPECT_EQ(console.heard, Heard{});
    key(WXK_RETURN);
  });
  play();
  EXPECT_EQ(console.heard, Heard{"closed"});
}

}  // namespace tarnwick::test
