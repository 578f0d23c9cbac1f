#include "settings/Settings.h"

#include "base/ReplacingFile.h"
#include "resources/SettingsLayouts.h"
#include "settings/AlternateLocationDlg.h"
#include "settings/PathRules.h"

namespace tarnwick {

namespace {

constexpr int TAB_CONTROL = 1092;

std::string defaultConfigurationPath(const ProgramInfo& program) {
  return Filename(program.configDirectory(), defaultConfigurationName).fullName();
}

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
      configPath_(defaultConfigurationPath(context.program)),
      toolsPage_(context.desktop, tagRows.data()) {
  toolTips_ = {{IDOK_CONTROL, "Apply new settings and close this window"},
               {IDCANCEL_CONTROL, "Continue with the previously active settings"},
               {1036, "Save settings in a separate file"},
               {1037, "Load settings from a separate file"},
               {1168, "Start HTML browser to display the Tarnwick user's guide"}};
  addTab("JDK tools", toolsPage_);
  resetAll();
}

void Settings::resetAll() {
  resetToDefaults(SETTINGS_DIALOG);
  jarOpenAsZip = 1;
  panelLayout.value = LayoutValue::VERTICAL;
  windowPosition.setUndefined();
  lastJarArchive.clear();
  lastJarBaseFolder.clear();
  lastProjectFile.clear();
  fileviewTab = 0;
  recentProjects.fromString("");
  helpFile = context_.program.programDirectory + "usersguide.htm";
  personalTemplates.fromString("");
  resetToDefaults(JAVADOC_DIALOG);
}

void Settings::readDefaultConfiguration(int& status) {
  const std::string besideProgram = Filename(context_.program.programDirectory, defaultConfigurationName).fullName();
  for (const auto& path : {configPath_, besideProgram}) {
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
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    recoverFromFailedSave(failure);
  }
}

void Settings::writeTo(Tarnwickfile* file) {
  if (file) {
    write(*file);
    return;
  }
  ReplacingFile fresh(configPath_);
  write(fresh);
  fresh.commit();
}

void Settings::recoverFromFailedSave(const Tarnwickfile::FileNotOpenE& failure) {
  try {
    AlternateLocationDlg dialog(desktop_, context_.program, failure);
    if (dialog.runModal() != DIALOG_OK) throw Tarnwickfile::FileNotOpenE(failure);
    configPath_ = defaultConfigurationPath(context_.program);
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

int Settings::runModal(int page) {
  initialPage_ = page;
  return desktop_.runDialog(settingsLayout(), *this);
}

void Settings::initialise(DialogWindow& window) {
  TabbedDialog::initialise(window);
  if (currentProject) window.setTitle(window.title() + " for project " + currentProject->name());
  // Separate configurations, the guide and the About dialog are not there yet.
  for (const int control : {1036, 1037, 1038, 1168}) enableControl(control, false);
}

void Settings::collectPages() {
  toolsPage_.storeToTags();
  prefixIfMissing(javacJOption, "-J");
  prefixIfMissing(javaProperty, "-D");
  prefixIfMissing(appletviewerJOption, "-J");
  normaliseClasspath();
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
