// Tells what the system would start, as seen by a process that has never asked before:
//
//   open EXTENSION                                          the association's command text
//   editors                                                 the plain-text editors, one a line, words with "|" between
//   runapp EXTENSION FILE EXTRA                             starts the association's program; the result
//   showlog FOLDER EDITNOTEPAD DISPLAYNOTEPAD TARGET        shows a log that lies in FOLDER; the log's path
//   edit EDITNOTEPAD FILE TARGET [LINE COLUMN [PATTERN]]    opens FILE for editing; the result and the working folder
//   register PROGRAM                                        makes it the opener of project files
//   trash FILE                                              puts a copy into the trash; the result
//   browse ADDRESS PLACE                                    shows the address in the browser
//   shortcutfolders                                         the desktop and the start menu
//   shortcut PROGRAM FILE                                   writes a shortcut to the program
//   zip PROGRAM                                             command text of what Tarnwick, as PROGRAM, has for archives
//
// Messages to the user follow, each behind "message: ".
#include "app/TarnwickApp.h"
#include "app/UsersGuide.h"
#include "platform/Associations.h"
#include "platform/FileSystem.h"
#include "platform/ProjectType.h"
#include "platform/Shortcuts.h"
#include "platform/Trash.h"
#include "process/EditorLaunch.h"
#include "process/ToolLog.h"
#include "process/WinApp.h"
#include "settings/EditorChoice.h"
#include "support/QuietDesktop.h"
#include "support/Shown.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

void printEditors() {
  for (const auto& editor : tarnwick::platform::plainTextEditors()) {
    for (std::size_t i = 0; i < editor.size(); ++i) std::cout << (i == 0 ? "" : "|") << editor[i];
    std::cout << '\n';
  }
}

void showLogOf(tarnwick::Desktop& desktop, const std::vector<std::string>& words) {
  tarnwick::ToolLog log(words.at(1));
  log.open(tarnwick::FileMode::Write);
  log.append("said\n", 5);
  log.close();
  tarnwick::EditorChoice choice;
  choice.editWithNotepad = words.at(2) == "1";
  choice.displayWithNotepad = words.at(3) == "1";
  choice.target = words.size() > 4 ? words[4] : "";
  std::cout << log.path() << std::endl;
  tarnwick::showEach(desktop, tarnwick::showLog(log, choice));
}

void edit(tarnwick::Desktop& desktop, const std::vector<std::string>& words) {
  tarnwick::EditorChoice choice;
  choice.editWithNotepad = words.at(1) == "1";
  choice.target = words.at(3);
  if (words.size() > 6) choice.placePattern = words[6];
  const tarnwick::EditorPlace place =
      words.size() > 5 ? tarnwick::EditorPlace{std::stoi(words[4]), std::stoi(words[5])} : tarnwick::EditorPlace{};
  const auto result = tarnwick::openEditor({[&choice] { return choice; }, [] { return false; }}, words.at(2), place);
  const bool done = tarnwick::test::shown(desktop, result);
  std::cout << done << ' ' << tarnwick::platform::currentDirectory() << std::endl;
}

/// Shows no console: none is asked for.
struct NoConsole : tarnwick::ConsoleFrameHost {
  void runConsoleFrame(tarnwick::ConsoleFrame&) override {}
};

void printZipApplication(tarnwick::Desktop& desktop, const std::string& program) {
  NoConsole host;
  const tarnwick::TarnwickApp app(desktop, host, program);
  std::cout << app.zipApplication().commandText() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  tarnwick::platform::prepareProcess();
  const std::vector<std::string> words(argv + 1, argv + argc);
  tarnwick::test::QuietDesktop desktop;
  if (words.at(0) == "open") std::cout << tarnwick::platform::openCommand(words.at(1)) << '\n';
  if (words.at(0) == "editors") printEditors();
  if (words.at(0) == "runapp") {
    const auto result = tarnwick::WinApp(words.at(1)).runApp(words.at(2).c_str(), words.at(3).c_str(), 0);
    std::cout << tarnwick::test::shown(desktop, result) << '\n';
  }
  if (words.at(0) == "trash") std::cout << tarnwick::platform::copyToTrash(words.at(1)) << '\n';
  if (words.at(0) == "register") tarnwick::platform::registerProjectType(words.at(1));
  if (words.at(0) == "browse") tarnwick::openInBrowser(desktop, words.at(1), words.at(2));
  if (words.at(0) == "shortcut") {
    tarnwick::platform::Shortcut shortcut;
    shortcut.target = words.at(1);
    std::cout << tarnwick::platform::openShortcutShell()->write(shortcut, words.at(2)) << '\n';
  }
  if (words.at(0) == "shortcutfolders") {
    const auto shell = tarnwick::platform::openShortcutShell();
    std::cout << shell->desktopFolder() << '\n' << shell->startMenuFolder() << '\n';
  }
  if (words.at(0) == "zip") printZipApplication(desktop, words.at(1));
  if (words.at(0) == "edit") edit(desktop, words);
  if (words.at(0) == "showlog") showLogOf(desktop, words);
  for (const auto& message : desktop.messages) std::cout << "message: " << message << '\n';
  return 0;
}
