// The frame around the console's text: menus, accelerators, toolbar, closing.
#include "ui/ConsoleWindow.h"
#include "ui/ProgramAnew.h"
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

TEST_F(ConsoleFrameTest, TheConsoleOfTodayHasKeysOfItsOwn) {
  console.today = true;
  waitForFrame();
  press('C', wxMOD_CONTROL);
  press(WXK_INSERT, wxMOD_CONTROL);
  press('D', wxMOD_CONTROL);
  press('R', wxMOD_CONTROL);
  thenExpect({"command 32853", "command 57634", "command 32855", "command 32857"});
  press(WXK_PAUSE, wxMOD_CONTROL);
  thenExpect({"command 32856"});
  press(WXK_PAUSE);
  thenExpect({});
  press('F', wxMOD_CONTROL);
  press(WXK_F3);
  press(WXK_F3, wxMOD_SHIFT);
  thenExpect({"command 32858", "command 32859", "command 32860"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, TheKeysOfTheLettersSizeStandOnTheNumericKeypadToo) {
  console.today = true;
  waitForFrame();
  const Heard larger{"command 32861"}, smaller{"command 32862"}, usual{"command 32863"};
  for (const auto& [code, heard] : std::initializer_list<std::pair<int, Heard>>{
           {'=', larger}, {WXK_NUMPAD_ADD, larger}, {'-', smaller}, {WXK_NUMPAD_SUBTRACT, smaller}, {'0', usual}}) {
    press(code, wxMOD_CONTROL);
    thenExpect(heard);
  }
  // As plus is typed where it needs Shift.
  press('=', wxMOD_CONTROL | wxMOD_SHIFT);
  thenExpect(larger);
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, InTheClassicConsoleTheSameKeysAreTyped) {
  waitForFrame();
  press('D', wxMOD_CONTROL);
  press('R', wxMOD_CONTROL);
  thenExpect({"char <4>", "char <18>"});
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, AModifierAloneIsToldApartFromOtherKeys) {
  waitForFrame();
  press(WXK_SHIFT);
  press(WXK_CONTROL);
  steps.settle();
  steps.then("look", [this] { EXPECT_EQ(console.modifierKeys, 2); });
  press(WXK_INSERT);
  steps.then("look", [this] { EXPECT_EQ(console.modifierKeys, 2) << "another key"; });
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, SoIsAnAltPressedAlone) {
  if (onWindows()) GTEST_SKIP() << "it leads to the menus there, which keep the loop";
  waitForFrame();
  press(WXK_ALT);
  steps.settle();
  steps.then("look", [this] { EXPECT_EQ(console.modifierKeys, 1); });
  thenClose();
  play();
}

TEST_F(ConsoleFrameTest, TheViewCanGiveTheFrameAnotherTitle) {
  waitForFrame();
  steps.then("title", [this] {
    console.surface->setTitle("Greeter - ended with 1 after 2.3 s");
    EXPECT_EQ(frame()->GetTitle(), "Greeter - ended with 1 after 2.3 s");
  });
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

class ConsoleMenusTest : public ConsoleTest, public testing::WithParamInterface<bool> {};

TEST_P(ConsoleMenusTest, MenusAskWhatIsEnabledWhenTheyOpen) {
  console.today = GetParam();
  waitForFrame();
  steps.then("open the menu", [this] {
    console.disabled = {COMMAND_STOP_RECORDING, COMMAND_JDB_HELP, COMMAND_RUN_AGAIN};
    console.marked = {COMMAND_WRAP_LINES, COMMAND_COPY};
    wxMenuEvent open(wxEVT_MENU_OPEN, 0, frame()->GetMenuBar()->GetMenu(0));
    frame()->ProcessWindowEvent(open);
    wxMenuBar& bar = *frame()->GetMenuBar();
    EXPECT_EQ(bar.GetMenuCount(), console.menuBar().size());
    for (std::size_t i = 0; i < bar.GetMenuCount(); ++i) {
      const auto& described = console.menuBar()[i];
      EXPECT_EQ(bar.GetMenuLabel(i), ui::toWx(described.title));
      const auto& items = bar.GetMenu(i)->GetMenuItems();
      ASSERT_EQ(items.size(), described.items.size());
      for (std::size_t k = 0; k < items.size(); ++k) {
        EXPECT_EQ(items[k]->GetItemLabel(), ui::toWx(described.items[k].text));
        if (!items[k]->IsSeparator()) {
          EXPECT_EQ(items[k]->IsEnabled(), console.commandEnabled(described.items[k].command))
              << described.items[k].text;
          EXPECT_EQ(items[k]->IsCheckable(), described.items[k].isMark) << described.items[k].text;
          if (items[k]->IsCheckable()) {
            EXPECT_TRUE(items[k]->IsChecked());
          }
        }
      }
    }
  });
  thenClose();
  play();
}

INSTANTIATE_TEST_SUITE_P(BothWays, ConsoleMenusTest, testing::Bool());

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
  const Toolbar unknown = {{1, "one", ""}, {2, "two", "unheard of"}, {COMMAND_RUN, "run", "run"}};
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
