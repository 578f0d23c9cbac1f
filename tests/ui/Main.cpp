#include "base/Tarnwickexception.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "ui/RunProgram.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <wx/dialog.h>
#include <wx/settings.h>
#include <wx/uiaction.h>

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
  const int timer = desktop.startTimer(200, [] { wxUIActionSimulator().Char(WXK_RETURN); });
  desktop.message("A message before any window");
  test::Recorder rules;
  rules.onPress[IDOK_CONTROL] = [&rules] { rules.window->close(IDOK_CONTROL); };
  desktop.runDialog(test::smallLayout("Before the main dialog"), rules);
  desktop.runMainDialog(test::smallLayout("Main"), rules);
  desktop.stopTimer(timer);
  return result;
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
    const int timer = desktop.startTimer(200, [] { wxUIActionSimulator().Char(WXK_RETURN); });
    static_cast<void>(timer);
    throw Tarnwickexception("thrown by the program");
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string which = argc == 3 ? argv[1] : "";
  const std::set<std::string> small = {"--exit-code", "--dialogs", "--throw", "--letter-height", "--dark-theme"};
  if (small.count(which) == 0) return runAll(argc, argv);
  const int result = std::atoi(argv[2]);
  return ui::runProgram(
      argc, argv, [which, result](Desktop& desktop, ConsoleFrameHost&) { return runSmall(which, result, desktop); });
}
