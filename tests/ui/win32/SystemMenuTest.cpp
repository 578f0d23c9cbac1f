// The real system menu of the panel, which no double has.
#include "app/AboutDlg.h"
#include "app/TarnwickDlg.h"
#include "ui/NativeLoop.h"
#include "ui/ProgramWorld.h"

#include <windows.h>
#include <wx/dialog.h>

#include <array>

namespace tarnwick::test {

namespace {

class SystemMenuTest : public WindowTest {
 protected:
  SystemMenuTest() {
    world_.context.showAbout = [this] { AboutDlg(desktop(), world_.program).runModal(); };
    world_.settings.saveDefaultConfiguration();
  }

  HWND panel() const { return static_cast<HWND>(desktop().openDialogs().front()->dialog().GetHandle()); }

  void waitForPanel() {
    steps.until("the panel shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle(5);
  }

  void thenCloseTheAboutDialog() {
    steps.until("About", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
    steps.then("look", [this] { EXPECT_EQ(top().title(), "About Tarnwick"); });
    steps.then("close it", [this] { top().close(DIALOG_OK); });
    steps.until("it has gone", [this] { return openDialogs() == 1; });
  }

  void run() {
    steps.then("exit", [this] { top().close(DIALOG_OK); });
    TarnwickDlg(world_.settings).runModal();
  }

  ProgramWorld world_;
};

bool isMenuOpen() {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  // Wine does not tell which kind of menu it is.
  return GetGUIThreadInfo(GetCurrentThreadId(), &state) && (state.flags & (GUI_SYSTEMMENUMODE | GUI_INMENUMODE)) != 0;
}

}  // namespace

TEST_F(SystemMenuTest, ItsLastEntryIsTheCommandOfTheAboutDialog) {
  waitForPanel();
  steps.then("look", [this] {
    const HMENU menu = GetSystemMenu(panel(), FALSE);
    const int count = GetMenuItemCount(menu);
    std::array<wchar_t, 100> label{};
    GetMenuStringW(menu, static_cast<UINT>(count - 1), label.data(), static_cast<int>(label.size()), MF_BYPOSITION);
    EXPECT_STREQ(label.data(), L"About Tarnwick ..");
    EXPECT_EQ(GetMenuItemID(menu, count - 1), 16U);
    EXPECT_NE(GetMenuState(menu, static_cast<UINT>(count - 2), MF_BYPOSITION) & MF_SEPARATOR, 0U);
  });
  run();
}

TEST_F(SystemMenuTest, ThatEntryChosenByTheKeyboardOpensTheAboutDialog) {
  const ui::NativeLoop posted;  // the menu has the system's own event loop
  waitForPanel();
  steps.then("open the menu", [this] { PostMessageW(panel(), WM_SYSCOMMAND, SC_KEYMENU, ' '); });
  steps.until("the menu", isMenuOpen);
  steps.then("to its last entry", [] { key(WXK_UP); });
  steps.settle();
  steps.then("Return", [] { key(WXK_RETURN); });
  thenCloseTheAboutDialog();
  run();
}

TEST_F(SystemMenuTest, TheFourBitsThatTheSystemKeepsForItselfDoNotMatter) {
  waitForPanel();
  steps.then("choose", [this] { PostMessageW(panel(), WM_SYSCOMMAND, 16 | 0xF, 0); });
  thenCloseTheAboutDialog();
  run();
}

}  // namespace tarnwick::test
