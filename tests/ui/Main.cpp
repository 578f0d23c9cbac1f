#include "base/Tarnwickexception.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "ui/KeysOfProgram.h"
#include "ui/ProgramAnew.h"
#include "ui/RunProgram.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <wx/dialog.h>
#include <wx/settings.h>

#include <cstdlib>
#include <set>
#include <string>

namespace {

using namespace tarnwick;

int runAll(int argc, char** argv) {
  return ui::runProgram(argc, argv, [argc, argv](Desktop& desktop, ConsoleFrameHost&) {
    test::setDesktop(&dynamic_cast<ui::WxDesktop&>(desktop));
    return test::runTests(argc, argv);
  });
}

/// A program that shows a message, a dialog and a main dialog, each of which Return closes.
int showDialogs(Desktop& desktop, int result) {
  const int timer = desktop.startTimer(200, [] { test::pressReturn(); });
  desktop.message("A message before any window");
  test::Recorder rules;
  rules.onPress[IDOK_CONTROL] = [&rules] { rules.window->close(IDOK_CONTROL); };
  desktop.runDialog(test::smallLayout("Before the main dialog"), rules);
  desktop.runMainDialog(test::smallLayout("Main"), rules);
  desktop.stopTimer(timer);
  return result;
}

/// A program whose main dialog stands at `instancePlace` until `file` is deleted, which it makes when it shows. Gives 1
/// if it does not come to stand there.
int standUntilDeleted(ui::WxDesktop& desktop, const std::string& file) {
  test::Recorder rules;
  rules.onInitialise = [](DialogWindow& window) { window.moveTo(test::instancePlace); };
  bool stood = false;
  int left = 300;
  const int timer = desktop.startTimer(50, [&] {
    if (desktop.openDialogs().empty()) return;
    auto& window = *desktop.openDialogs().back();
    // Once it is active, the window manager counts it among its windows.
    const bool stands = window.position() == test::instancePlace && window.dialog().IsActive();
    if (!stood && stands) test::writeFile(file, "");
    stood = stood || stands;
    if ((stood && !platform::isFile(file)) || --left == 0) rules.window->close(1);
  });
  desktop.runMainDialog(test::smallLayout("Another instance"), rules);
  desktop.stopTimer(timer);
  return stood ? 0 : 1;
}

/// How high letters are on the screen.
int letterHeight() {
  const wxDialog window(nullptr, wxID_ANY, "Letters");
  return static_cast<int>(window.GetCharHeight() * window.GetContentScaleFactor());
}

/// Small programs of their own, for the tests of what a process gives back.
int runSmall(const std::string& which, int result, Desktop& desktop) {
  if (which == "--dialogs") return showDialogs(desktop, result);
  if (which == "--letter-height") return letterHeight();
  if (which == "--dark-theme") return wxSystemSettings::GetAppearance().IsUsingDarkBackground() ? 1 : 0;
  if (which == "--throw") {
    const int timer = desktop.startTimer(200, [] { test::pressReturn(); });
    static_cast<void>(timer);
    throw Tarnwickexception("thrown by the program");
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string which = argc == 3 ? argv[1] : "";
  if (which == "--stand") {
    return ui::runProgram(argc, argv, [argv](Desktop& desktop, ConsoleFrameHost&) {
      return standUntilDeleted(dynamic_cast<ui::WxDesktop&>(desktop), argv[2]);
    });
  }
  const std::set<std::string> small = {"--exit-code", "--dialogs", "--throw", "--letter-height", "--dark-theme"};
  if (small.count(which) == 0) return runAll(argc, argv);
  const int result = std::atoi(argv[2]);
  return ui::runProgram(
      argc, argv, [which, result](Desktop& desktop, ConsoleFrameHost&) { return runSmall(which, result, desktop); });
}
