#include "dialogs/ShortcutDlg.h"

#include "base/ProgramInfo.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "dialogs/DialogRules.h"
#include "dialogs/ShortcutLayout.h"
#include "platform/Path.h"
#include "project/ProjectContext.h"
#include "resources/DialogLayout.h"
#include "resources/SystemWords.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsDialog.h"
#include "tools/ShortcutTexts.h"

namespace tarnwick {

namespace {

using Control = ShortcutControls;

/// The settings dialog's page of `java`, counted from 0.
constexpr int javaPageIndex = 2;

std::vector<ToolTip> shortcutToolTips() {
  return {
      {Control::APPLICATION, inSystemWords(".class or .jar file to be represented by a Windows shortcut")},
      {Control::BROWSE_APPLICATION, inSystemWords("Locate class or jar file to be represented by a Windows shortcut")},
      {Control::NAME, "Name to be used for shortcut to java application"},
      {Control::DESCRIPTION, "Description of shortcut (will appear in tooltip)"},
      {Control::ON_DESKTOP, "Create an icon on the desktop that can be used to start your java application"},
      {Control::IN_STARTMENU,
       inSystemWords("Create an entry for your java application in the Windows startbutton menu")},
      {Control::STARTMENU_FOLDER,
       inSystemWords("Folder location corresponding to a lower level popup menu for the Windows startbutton")},
      {Control::BROWSE_STARTMENU,
       inSystemWords("Find the folder location corresponding to a lower level popup menu for the Windows startbutton")},
      {Control::IN_FOLDER,
       inSystemWords("Create a Windows shortcut to your java application in a folder of your choice")},
      {Control::FOLDER, "Folder location where a shortcut to your java application will be placed"},
      {Control::BROWSE_FOLDER, "Find the folder location where a shortcut to your java application will be placed"},
      {Control::UNDER_CONTROL,
       "Execute java application under Tarnwick's control (with a text window for system streams)"},
      {Control::WITHOUT_CONTROL, "Execute java application without Tarnwick (no text window for system streams)"},
      {Control::SETTINGS, "Set java execution options"},
      {Control::CREATE, "Create shortcut to java application"},
      {Control::CLOSE, "Close this window without further action"},
  };
}

/// What the project runs, as the dialog offers it: in the newer way its class file, which tells its name itself.
std::string applicationOf(const Settings& settings, const ProjectContext& project) {
  const std::string file = settings.newerJava ? project.classFileOf(project.mainClass) : "";
  if (!file.empty()) return file;
  // Deliberate: of a class in a package the name is taken apart like a file's, so that the package stands for it.
  return project.folder() + project.mainClass;
}

}  // namespace

ShortcutDlg::ShortcutDlg(Settings& settings)
    : ToolTipDlg(settings.context().desktop, shortcutLayout().resource, 0), settings_(settings) {
  toolTips_ = shortcutToolTips();
}

int ShortcutDlg::runModal() {
  return desktop_.runDialog(shortcutLayout(), *this);
}

void ShortcutDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  setCheck(Control::UNDER_CONTROL, false);
  setCheck(Control::WITHOUT_CONTROL, false);
  refresh();
  const auto* project = openProject(settings_);
  if (project == nullptr || project->mainClass.empty()) return;
  setFieldText(Control::APPLICATION, quotedIfBlank(applicationOf(settings_, *project)));
  applicationChanged();
}

void ShortcutDlg::onCommand(int control) {
  switch (control) {
    case Control::BROWSE_APPLICATION:
      return browseApplication();
    case Control::BROWSE_STARTMENU:
      return browse(Control::STARTMENU_FOLDER, startMenuFolder(settings_.context().shortcutShells));
    case Control::BROWSE_FOLDER:
      return browse(Control::FOLDER, "");
    case Control::ON_DESKTOP:
    case Control::IN_STARTMENU:
    case Control::IN_FOLDER:
      return refresh();
    case Control::UNDER_CONTROL:
      return executionClicked(Control::UNDER_CONTROL, Control::WITHOUT_CONTROL);
    case Control::WITHOUT_CONTROL:
      return executionClicked(Control::WITHOUT_CONTROL, Control::UNDER_CONTROL);
    case Control::SETTINGS:
      SettingsDialog(settings_).runModal(javaPageIndex);
      return;
    case Control::HELP:
      return settings_.context().showHelp("#shortcut");
    default:
      return ToolTipDlg::onCommand(control);
  }
}

void ShortcutDlg::onTextChanged(int control) {
  if (control == Control::APPLICATION) applicationChanged();
  if (control == Control::NAME) nameChanged();
  if (control == Control::FOLDER) refresh();
}

bool ShortcutDlg::holdsSomething(int field) const {
  return !trim(getText(field)).empty();
}

void ShortcutDlg::refresh() {
  const bool inStartMenu = getCheck(Control::IN_STARTMENU);
  const bool inFolder = getCheck(Control::IN_FOLDER);
  const int places = (getCheck(Control::ON_DESKTOP) ? 1 : 0) + (inStartMenu ? 1 : 0) + (inFolder ? 1 : 0);
  for (const int control : {Control::STARTMENU_FOLDER, Control::BROWSE_STARTMENU}) enableControl(control, inStartMenu);
  for (const int control : {Control::FOLDER, Control::BROWSE_FOLDER}) enableControl(control, inFolder);
  const std::string label = places < 2 ? "Create Shortcut" : "Create Shortcuts";
  if (getText(Control::CREATE) != label) setText(Control::CREATE, label);
  const bool executes = getCheck(Control::UNDER_CONTROL) || getCheck(Control::WITHOUT_CONTROL);
  enableControl(Control::CREATE, places > 0 && executes && holdsSomething(Control::APPLICATION) &&
                                     holdsSomething(Control::NAME) && (!inFolder || holdsSomething(Control::FOLDER)));
}

void ShortcutDlg::executionClicked(int box, int other) {
  setCheck(other, !getCheck(box));
  refresh();
}

const FileForSubprocess& ShortcutDlg::application() {
  application_.takeTyped(getText(Control::APPLICATION));
  return application_;
}

void ShortcutDlg::applicationChanged() {
  if (!nameEdited_) setText(Control::NAME, application().name().baseName());
  refresh();
}

void ShortcutDlg::nameChanged() {
  if (getText(Control::NAME) != application().name().baseName()) nameEdited_ = true;
  refresh();
}

std::string ShortcutDlg::startFolder() const {
  if (const auto* project = openProject(settings_)) return project->folder();
  for (const auto* file : {&settings_.fileviewClass, &settings_.fileviewSource}) {
    const std::string folder = file->name().directory();
    if (!folder.empty()) return folder;
  }
  return platform::startFolder("C:");
}

void ShortcutDlg::browseApplication() {
  FileRequest request;
  request.filter = "java class files and archives|*.class;*.jar||";
  request.startFolder = startFolder();
  request.name = "*.class;*.jar";
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  setFieldText(Control::APPLICATION, quotedIfBlank(*chosen));
  applicationChanged();
}

void ShortcutDlg::browse(int field, const std::string& root) {
  if (browseFolder(desktop_, *this, field, root)) refresh();
}

platform::Shortcut ShortcutDlg::gathered() {
  const bool underControl = getCheck(Control::UNDER_CONTROL);
  const FileForSubprocess& run = application();
  const ShortcutTexts texts =
      underControl ? shortcutUnderControl(settings_, run) : shortcutWithoutControl(settings_, run);
  platform::Shortcut shortcut;
  shortcut.name = getText(Control::NAME);
  shortcut.target = texts.target;
  shortcut.arguments = texts.arguments;
  // A console reads its command line as one text.
  shortcut.oneArgument = underControl;
  shortcut.description = getText(Control::DESCRIPTION);
  shortcut.workingFolder = texts.workingFolder;
  shortcut.picture = settings_.context().program.programPath;
  return shortcut;
}

void ShortcutDlg::makeLinks(ShortcutMaker& maker) {
  const auto mayOverwrite = [this](const std::string& question) { return desktop_.askYesNo(question); };
  const auto tell = [this](ShortcutResult result) {
    if (result == ShortcutResult::Truncated) desktop_.message(truncatedArguments());
  };
  if (getCheck(Control::ON_DESKTOP)) tell(maker.makeOnDesktop(mayOverwrite));
  if (getCheck(Control::IN_STARTMENU)) tell(maker.makeInStartMenu(getText(Control::STARTMENU_FOLDER), mayOverwrite));
  if (getCheck(Control::IN_FOLDER)) tell(maker.makeIn(getText(Control::FOLDER), mayOverwrite));
}

void ShortcutDlg::onOk() {
  try {
    ShortcutMaker maker(settings_.context().shortcutShells, gathered());
    makeLinks(maker);
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
}

}  // namespace tarnwick
