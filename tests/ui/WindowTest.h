// What tests with real windows stand on: steps played under the program's own event loop, and a person's hands.
#pragma once

#include "dialogbase/Desktop.h"
#include "dialogbase/DialogWindow.h"
#include "resources/DialogLayout.h"
#include "ui/WxDesktop.h"
#include "ui/WxTopWindow.h"

#include <wx/image.h>
#include <wx/timer.h>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {

/// The desktop of the running test program.
ui::WxDesktop& desktop();
void setDesktop(ui::WxDesktop* desktop);

/// Steps that a test plays while windows are open. Each begins when the one before has begun and its condition holds;
/// a step that opens a dialog goes on waiting in it while the later steps are played.
class Steps : private wxTimer {
 public:
  Steps();
  ~Steps() override;

  /// Does something.
  void then(const std::string& name, std::function<void()> action);
  /// Waits until something is so.
  void until(const std::string& name, std::function<bool()> condition);
  /// Lets what is under way come to rest: some rounds of the event loop.
  void settle(int rounds = 3);
  bool done() const { return steps_.empty(); }

 private:
  struct Step {
    std::string name;
    std::function<void()> action;
    std::function<bool()> condition;
  };

  void Notify() override;
  /// Of the test's first window, as long as nothing has been played.
  void giveItTheKeyboard();

  std::deque<Step> steps_;
  bool begun_ = false;
  int waits_ = 0;
};

class WindowTest : public testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;

  /// The innermost open dialog; fails the test if there is none.
  ui::WxTopWindow& top() const;
  std::size_t openDialogs() const { return desktop().openDialogs().size(); }

  Steps steps;
};

/// Presses a button, check box or radio button as a person can: it must be there, shown and enabled, in the innermost
/// dialog.
void press(ui::WxDialogWindow& window, int control);
/// Types a text into a field in place of what it holds.
void type(ui::WxDialogWindow& window, int control, const std::string& text);
/// Chooses an entry of a combo box or list, or a tab.
void choose(ui::WxDialogWindow& window, int control, int index);
/// Presses a key with the keyboard; the window system delivers it to whatever has the focus.
void key(int code, int modifiers = 0);

/// Fails the test unless every control of the window and of its child windows can be seen whole: inside its parent,
/// over no other, its text not cut.
void expectGoodLooks(ui::WxDialogWindow& window);

/// True in a run of this program that is to see the windows with larger letters or pixels.
bool isScaledRun();

/// Fails the test if the dialog is too large for a small screen, whose desktop has a panel. Of a scaled run nothing is
/// asked: it needs a larger screen.
void expectFitsSmallScreen(ui::WxTopWindow& window);

/// Tells that the test is alive while it waits for something slow.
void signOfLife();

/// What the screen shows there.
wxImage screen(const wxRect& area);

/// Writes what the screen shows to the folder that the environment's TARNWICK_SHOTS names, if it names one.
void shoot(const std::string& name);

}  // namespace tarnwick::test
