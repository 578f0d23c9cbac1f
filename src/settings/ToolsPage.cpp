#include "settings/ToolsPage.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Path.h"
#include "resources/SettingsLayouts.h"
#include "settings/SettingsValues.h"

namespace tarnwick {

namespace {

enum Control {
  FOLDER = 1041,
  BROWSE = 1006,
  WITH_NOTEPAD = 1017,
  WITH_EDITOR = 1018,
  ON_DESKTOP = 1204,
  IN_STARTMENU = 1205,
};

}  // namespace

ToolsPage::ToolsPage(Desktop& desktop, const TagRow* rows)
    : TabPage(desktop, TOOLS_PAGE, SETTINGS_DIALOG, toolsPageLayout()) {
  tags_ = rows;
  bindings_ = {{WITH_NOTEPAD, &withNotepad_, BIND_CHECK}, {FOLDER, &folder_, BIND_TEXT}};
  toolTips_ = {
      {FOLDER, platform::localText("Folder containing the file javac.exe (created by the installation of the JDK)")},
      {BROWSE, platform::localText("Locate the file javac.exe in the JDK installation folder")},
      {WITH_NOTEPAD, "Display compiler (and other) diagnostics with the Windows Notepad"},
      {WITH_EDITOR, "Display compiler (and other) diagnostics with the editor you defined for editing source files"},
      {ON_DESKTOP, "Create an icon on the Windows desktop. A double click on it will start Tarnwick."},
      {IN_STARTMENU, "Create an entry in the Windows startmenu tree that will start Tarnwick."},
  };
}

void ToolsPage::initialise(DialogWindow& window) {
  TabPage::initialise(window);
  // Shortcuts are not there yet.
  enableControl(ON_DESKTOP, false);
  enableControl(IN_STARTMENU, false);
}

void ToolsPage::updateControls() {
  TabPage::updateControls();
  if (initialised()) window()->setChecked(withNotepad_ ? WITH_NOTEPAD : WITH_EDITOR, true);
}

void ToolsPage::onCommand(int control) {
  if (control == WITH_NOTEPAD) setCheck(WITH_NOTEPAD, 1);
  if (control == WITH_EDITOR) setCheck(WITH_NOTEPAD, 0);
  if (control == BROWSE) browse();
}

std::string ToolsPage::getText(int control) const {
  const std::string text = TabPage::getText(control);
  if (control != FOLDER) return text;
  const std::string folder = trimRight(text);
  return platform::endsInSeparator(folder) ? folder : folder + platform::folderSeparator;
}

void ToolsPage::browse() {
  FileRequest request;
  request.filter = platform::localText("javac.exe|javac.exe|all files|*.*||");
  request.startFolder = platform::startFolder("C:\\");
  request.name = platform::toolFileName("javac");
  request.mustExist = true;
  if (const auto chosen = desktop_.openFile(request)) setText(FOLDER, Filename(*chosen).directory());
}

}  // namespace tarnwick
