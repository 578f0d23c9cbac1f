#include "settings/ToolsPage.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Path.h"
#include "resources/SettingsLayouts.h"
#include "settings/SettingsValues.h"

#include <algorithm>

namespace tarnwick {

namespace {

enum Control {
  FOLDER = 1041,
  BROWSE = 1006,
  WITH_NOTEPAD = 1017,
  WITH_EDITOR = 1018,
  ON_DESKTOP = 1204,
  IN_STARTMENU = 1205,
  FOUND_LABEL = 2001,
  FOUND_JDKS = 2002,
};

}  // namespace

ToolsPage::ToolsPage(SettingsContext& context, const TagRow* rows)
    : TabPage(context.desktop, TOOLS_PAGE, SETTINGS_DIALOG, toolsPageLayout()), context_(context) {
  tags_ = rows;
  bindings_ = {{WITH_NOTEPAD, &withNotepad_, BIND_CHECK}, {FOLDER, &folder_, BIND_TEXT}};
  toolTips_ = {
      {FOLDER, platform::localText("Folder containing the file javac.exe (created by the installation of the JDK)")},
      {BROWSE, platform::localText("Locate the file javac.exe in the JDK installation folder")},
      {WITH_NOTEPAD, "Display compiler (and other) diagnostics with the Windows Notepad"},
      {WITH_EDITOR, "Display compiler (and other) diagnostics with the editor you defined for editing source files"},
      {ON_DESKTOP, "Create an icon on the Windows desktop. A double click on it will start Tarnwick."},
      {IN_STARTMENU, "Create an entry in the Windows startmenu tree that will start Tarnwick."},
      {FOUND_JDKS, "JDKs found on this computer, the newest first. Choose one to use its tools."},
  };
}

void ToolsPage::initialise(DialogWindow& window) {
  jdks_.clear();
  TabPage::initialise(window);
  offerJdks();
  // Shortcuts are not there yet.
  enableControl(ON_DESKTOP, false);
  enableControl(IN_STARTMENU, false);
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
  window()->setChecked(withNotepad_ ? WITH_NOTEPAD : WITH_EDITOR, true);
  markJdk();
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

std::string ToolsPage::toolsFolder() const {
  return getText(FOLDER);
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
