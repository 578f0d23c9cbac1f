#include "settings/Settings.h"

#include "base/ReplacingFile.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "resources/SettingsLayouts.h"
#include "settings/AlternateLocationDlg.h"
#include "settings/PageSnapshot.h"
#include "settings/PathRules.h"

namespace tarnwick {

namespace {

enum Control { REASON = 2003, TAB_CONTROL = 1092, SAVE_FILE = 1036, LOAD_FILE = 1037, ABOUT = 1038, HELP = 1168 };

/// Where the user's guide tells of each page, in the order of the tabs.
constexpr const char* helpAnchors[] = {"#configTab1", "#javacparameters",        "#javaparameters",
                                       "#jdbparams",  "#appletviewerparameters", "#editorparameters",
                                       "#paths"};

void prefixIfMissing(std::string& value, const std::string& prefix) {
  if (!value.empty() && value.compare(0, prefix.size(), prefix) != 0) value.insert(0, prefix);
}

}  // namespace

Settings::Settings(SettingsContext& context)
    : SettingsValues(context.mainWindow),
      TabbedDialog(context.desktop, SETTINGS_DIALOG, TAB_CONTROL),
      TagTable(tagRows.data(), context.program.version,
               [&context](const std::string& text) { context.desktop.message(text); }),
      context_(context),
      toolsPage_(context, tagRows.data()),
      javacPage_(context.desktop, tagRows.data()),
      javaPage_(context, tagRows.data(), toolsPage_, [this] { return editorChoice(); }),
      jdbPage_(context, tagRows.data()),
      appletviewerPage_(context.desktop, tagRows.data()),
      editorPage_(context.desktop, tagRows.data()),
      pathsPage_(context.desktop, tagRows.data()) {
  toolTips_ = {{IDOK_CONTROL, "Apply new settings and close this window"},
               {IDCANCEL_CONTROL, "Continue with the previously active settings"},
               {SAVE_FILE, "Save settings in a separate file"},
               {LOAD_FILE, "Load settings from a separate file"},
               {HELP, "Start HTML browser to display the Tarnwick user's guide"}};
  addTab("JDK tools", toolsPage_);
  addTab("javac", javacPage_);
  addTab("java", javaPage_);
  addTab("jdb", jdbPage_);
  addTab("appletviewer", appletviewerPage_);
  addTab("Sourcecode editor", editorPage_);
  addTab("Paths", pathsPage_);
  resetAll();
}

std::string Settings::configPath() const {
  return Filename(context_.program.configDirectory(), defaultConfigurationName).fullName();
}

void Settings::resetAll() {
  resetToDefaults(SETTINGS_DIALOG);
  // Its row says off, which is never applied: a row without an owner has its default from here.
  jarOpenAsZip = 1;
  panelLayout.value = LayoutValue::VERTICAL;
  windowPosition.setUndefined();
  lastJarArchive.clear();
  lastJarBaseFolder.clear();
  lastProjectFile.clear();
  fileviewTab = 0;
  recentProjects.fromString("");
  helpFile = context_.program.programDirectory + "usersguide.htm";
  // A configuration that could never be saved would be worse than a guide that must be looked for.
  if (holdsLineEnd(helpFile)) helpFile.clear();
  personalTemplates.fromString("");
  resetToDefaults(JAVADOC_DIALOG);
}

void Settings::readDefaultConfiguration(int& status) {
  const std::string besideProgram = Filename(context_.program.programDirectory, defaultConfigurationName).fullName();
  for (const auto& path : {configPath(), besideProgram}) {
    try {
      Tarnwickfile file(path, FileMode::Read);
      status = read(file);
      return;
    } catch (const Tarnwickfile::FileNotOpenE&) {
      status = READ_FILE_LOST;
    }
  }
}

const char* Settings::debugWithFastcodeWarning() {
  return "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
         "such as missing variables or relocated or missing code.";
}

void Settings::readConfiguration(int& status, Tarnwickfile& file) {
  status = read(file);
  if (javacDebug && javacFastcode) desktop_.message(debugWithFastcodeWarning());
}

void Settings::saveDefaultConfiguration(Tarnwickfile* file) {
  // The guide's location is kept from the file, whatever the live object holds: another run may have repaired it.
  Settings stored(context_);
  int status = 0;
  stored.readDefaultConfiguration(status);
  if (status == 0) helpFile = stored.helpFile;
  tarnwickVersion = context_.program.version;
  try {
    writeTo(file);
  } catch (const LineEndE& failure) {
    // Another folder would not help.
    if (file) throw;
    desktop_.message(failure.message + "\nCan't save configuration data in " + failure.file);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    recoverFromFailedSave(failure);
  }
}

void Settings::writeTo(Tarnwickfile* file) {
  if (file) {
    write(*file);
    return;
  }
  ReplacingFile fresh(configPath());
  write(fresh);
  fresh.commit();
}

void Settings::recoverFromFailedSave(const Tarnwickfile::FileNotOpenE& failure) {
  try {
    AlternateLocationDlg dialog(desktop_, context_.program, failure);
    if (dialog.runModal() != DIALOG_OK) throw Tarnwickfile::FileNotOpenE(failure);
    writeTo(nullptr);
    desktop_.message("The following environment variable definition has been created:\n\n" + dialog.definition() +
                     "\n\nThis definition remains effective until you terminate Tarnwick." +
                     "\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!");
  } catch (const Tarnwickfile::FileNotOpenE& further) {
    desktop_.message(further.message + "\nCan't save configuration data in " + further.file);
  }
}

void Settings::saveCurrent() {
  if (currentProject)
    currentProject->save();
  else
    saveDefaultConfiguration(nullptr);
}

void Settings::saveIfWindowMoved() {
  if (windowPosition.hasMoved()) saveCurrent();
}

std::string Settings::effectiveClasspath() const {
  if (classpathFromEnvironmentAlways) return "";
  if (!classpathFromEnvironmentNever) return classpath;
  // With "." given, java ignores the environment, as the user asked.
  return classpath.empty() ? "." : classpath;
}

void Settings::normaliseClasspath() {
  classpath = normalisedClasspath(classpath);
}

int Settings::runModal(int page, const std::string& reason) {
  initialPage_ = page;
  reason_ = reason;
  return desktop_.runDialog(settingsLayout(), *this);
}

void Settings::initialise(DialogWindow& window) {
  TabbedDialog::initialise(window);
  window.setText(REASON, reason_);
  window.show(REASON, !reason_.empty());
  if (currentProject) window.setTitle(window.title() + " for project " + currentProject->name());
}

void Settings::onCommand(int control) {
  switch (control) {
    case SAVE_FILE:
      return saveSeparately();
    case LOAD_FILE:
      return loadSeparate();
    case HELP:
      return context_.showHelp(helpAnchors[currentPage()]);
    case ABOUT:
      return context_.showAbout();
    default:
      return TabbedDialog::onCommand(control);
  }
}

void Settings::collectPages() {
  toolsPage_.storeToTags();
  javacPage_.storeToTags();
  prefixIfMissing(javacJOption, "-J");
  javaPage_.storeToTags();
  prefixIfMissing(javaProperty, "-D");
  jdbPage_.storeToTags();
  appletviewerPage_.storeToTags();
  prefixIfMissing(appletviewerJOption, "-J");
  editorPage_.storeToTags();
  pathsPage_.storeToTags();
  normaliseClasspath();
}

FileRequest Settings::separateFileRequest() const {
  FileRequest request;
  request.filter = "cfg file|*.cfg||";
  request.startFolder = Filename(configPath()).directory();
  request.name = "*.cfg";
  return request;
}

void Settings::saveSeparately() {
  // No warning about -g with -O here: a separate file does not touch the running settings. That is meant.
  tarnwickVersion = context_.program.version;
  FileRequest request = separateFileRequest();
  request.extension = ".cfg";
  request.confirmOverwrite = true;
  const auto chosen = desktop_.saveFile(request);
  if (!chosen) return;
  try {
    saveTo(*chosen);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't save configuration data.");
  }
}

void Settings::saveTo(const std::string& path) {
  ReplacingFile target(path);
  Tarnwickfile defaults(configPath(), FileMode::Read);
  // It may be the target too, and an open file is hard to replace on Windows.
  defaults.close();
  PageSnapshot live(*this);
  collectPages();
  write(target);
  target.commit();
  // What stands in the default configuration is what runs, unless a project's own values do.
  const bool isDefault =
      platform::sameFileName(platform::resolvedPath(target.name().fullName()), platform::resolvedPath(configPath()));
  if (isDefault && !currentProject) live.forget();
}

void Settings::loadSeparate() {
  FileRequest request = separateFileRequest();
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  try {
    loadFrom(*chosen);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't load configuration data.");
  }
}

void Settings::loadFrom(const std::string& path) {
  Tarnwickfile chosen(path, FileMode::Read);
  const Tarnwickfile defaults(configPath(), FileMode::Read);
  // The live values are not touched: they may be an open project's own, which stand in no other file.
  Settings loaded(context_);
  loaded.read(chosen);
  for (TabPage* page : std::initializer_list<TabPage*>{&toolsPage_, &javacPage_, &javaPage_, &jdbPage_,
                                                       &appletviewerPage_, &editorPage_, &pathsPage_}) {
    page->loadFrom(loaded.rows());
  }
}

void Settings::onOk() {
  collectPages();
  // After Cancel the dialog stays open; what was taken from the pages stays in the live object.
  if (javacDebug && javacFastcode && !desktop_.askOkCancel(debugWithFastcodeWarning())) return;
  saveCurrent();
  close(DIALOG_OK);
}

EditorChoice Settings::editorChoice() const {
  return {editWithNotepad != 0, displayWithNotepad != 0, editorTarget};
}

}  // namespace tarnwick
