#include "settingsdialog/ToolsPage.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "dialogbase/DirDialog.h"
#include "platform/Path.h"
#include "platform/SystemVersion.h"
#include "process/ShortcutMaker.h"
#include "resources/SystemWords.h"
#include "settings/SettingsContext.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsLayouts.h"

#include <algorithm>

namespace tarnwick {

namespace {

enum Control {
  FOLDER = 1041,
  BROWSE = 1006,
  WITH_NOTEPAD = 1017,
  WITH_EDITOR = 1018,
  WATCH_RUNS = 2120,
  STATUS_LINE = 2150,
  WITHOUT_CONSOLE = 2170,
  ON_DESKTOP = 1204,
  IN_STARTMENU = 1205,
  FOUND_LABEL = 2001,
  FOUND_JDKS = 2002,
  IN_MESSAGES = 2111,
};

}  // namespace

ToolsPage::ToolsPage(SettingsContext& context, const TagRow* rows)
    : TabPage(context.desktop, TOOLS_PAGE, SETTINGS_DIALOG, toolsPageLayout()), context_(context) {
  tags_ = rows;
  bindings_ = {{FOLDER, &folder_}};
  toolTips_ = {
      {FOLDER, inSystemWords("Folder containing the file javac.exe (created by the installation of the JDK)")},
      {BROWSE, inSystemWords("Locate the file javac.exe in the JDK installation folder")},
      {WITH_NOTEPAD, inSystemWords("Display compiler (and other) diagnostics with the Windows Notepad")},
      {WITH_EDITOR, "Display compiler (and other) diagnostics with the editor you defined for editing source files"},
      {IN_MESSAGES,
       "Display compiler (and other) diagnostics in a window of Tarnwick's own that stays open. A double click on a "
       "message opens your editor there; F4 leads to the next one."},
      {WATCH_RUNS,
       "When a tool has run for a second, a small window tells which, on what and for how long. \"Stop\" there, or "
       "Escape, ends it with all that it has started."},
      {STATUS_LINE,
       "A line at the foot of the panel tells what runs, how the last run has ended, the open project and the "
       "configuration. A press on it opens the messages window."},
      {WITHOUT_CONSOLE,
       "No black window comes up, and takes the keyboard, while a tool runs. Programs started with \"java\" and "
       "\"jdb\" "
       "keep theirs, minimised."},
      {ON_DESKTOP, inSystemWords("Create an icon on the Windows desktop. A double click on it will start Tarnwick.")},
      {IN_STARTMENU, inSystemWords("Create an entry in the Windows startmenu tree that will start Tarnwick.")},
      {FOUND_JDKS, "JDKs found on this computer, the newest first. Choose one to use its tools."},
  };
}

void ToolsPage::initialise(DialogWindow& window) {
  jdks_.clear();
  TabPage::initialise(window);
  offerJdks();
  // Elsewhere such programs have no windows.
  showControl(WITHOUT_CONSOLE, platform::isWindowsDesktop());
}

void ToolsPage::offerJdks() {
  jdks_ = context_.installedJdks();
  const bool several = jdks_.size() > 1;
  showControl(FOUND_LABEL, several);
  showControl(FOUND_JDKS, several);
  std::vector<std::string> entries;
  for (const auto& jdk : jdks_) {
    entries.push_back((jdk.version.empty() ? "" : "JDK " + jdk.version + "   ") + jdk.toolsFolder);
  }
  window()->setEntries(FOUND_JDKS, entries);
  markJdk();
}

void ToolsPage::markJdk() {
  const std::string folder = toolsFolder();
  const auto named = std::find_if(jdks_.begin(), jdks_.end(),
                                  [&](const Jdk& jdk) { return platform::sameFileName(jdk.toolsFolder, folder); });
  window()->select(FOUND_JDKS, named == jdks_.end() ? -1 : static_cast<int>(named - jdks_.begin()));
}

void ToolsPage::onTextChanged(int control) {
  if (control == FOLDER) markJdk();
}

void ToolsPage::onSelectionChanged(int control) {
  const int chosen = control == FOUND_JDKS ? window()->selection(FOUND_JDKS) : -1;
  if (chosen >= 0) setText(FOLDER, jdks_.at(static_cast<std::size_t>(chosen)).toolsFolder);
}

void ToolsPage::updateControls() {
  TabPage::updateControls();
  if (!initialised()) return;
  window()->setChecked(inMessages_ ? IN_MESSAGES : withNotepad_ ? WITH_NOTEPAD : WITH_EDITOR, true);
  markJdk();
}

void ToolsPage::setCheck(int control, bool on) {
  if (control != WITH_NOTEPAD && control != IN_MESSAGES) return TabPage::setCheck(control, on);
  updateVariables();
  (control == WITH_NOTEPAD ? withNotepad_ : inMessages_) = on;
  updateControls();
}

bool ToolsPage::getCheck(int control) const {
  if (control == WITH_NOTEPAD) return withNotepad_;
  return control == IN_MESSAGES ? inMessages_ : TabPage::getCheck(control);
}

void ToolsPage::onCommand(int control) {
  // Beside the messages' window Notepad or the editor stays chosen, for what has to be shown elsewhere.
  if (control == IN_MESSAGES || control == WITH_NOTEPAD || control == WITH_EDITOR)
    setCheck(IN_MESSAGES, control == IN_MESSAGES);
  if (control == WITH_NOTEPAD || control == WITH_EDITOR) setCheck(WITH_NOTEPAD, control == WITH_NOTEPAD);
  if (control == BROWSE) browse();
  if (control == ON_DESKTOP) placeShortcut(nullptr);
  if (control == IN_STARTMENU) placeInStartMenu();
}

void ToolsPage::placeInStartMenu() {
  const std::string folder = DirDialog(desktop_, startMenuFolder(context_.shortcutShells)).browse();
  if (!folder.empty()) placeShortcut(&folder);
}

void ToolsPage::placeShortcut(const std::string* folder) {
  const auto mayOverwrite = [this](const std::string& question) { return desktop_.askYesNo(question); };
  try {
    ShortcutMaker maker(context_.shortcutShells, shortcutToProgram(context_.program));
    if (folder)
      maker.makeIn(*folder, mayOverwrite);
    else
      maker.makeOnDesktop(mayOverwrite);
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
}

std::string ToolsPage::getText(int control) const {
  const std::string text = TabPage::getText(control);
  if (control != FOLDER) return text;
  const std::string folder = trimRight(text);
  return platform::endsInSeparator(folder) ? folder : folder + platform::folderSeparator;
}

std::string ToolsPage::toolsFolder() const {
  return getText(FOLDER);
}

void ToolsPage::browse() {
  FileRequest request;
  request.filter = inSystemWords("javac.exe|javac.exe|all files|*.*||");
  request.startFolder = platform::startFolder("C:\\");
  request.name = platform::toolFileName("javac");
  request.mustExist = true;
  if (const auto chosen = desktop_.openFile(request)) setText(FOLDER, Filename(*chosen).directory());
}

}  // namespace tarnwick
