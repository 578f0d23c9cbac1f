#include "settings/Settings.h"

#include "base/DataFile.h"
#include "base/LineEndE.h"
#include "base/ProgramInfo.h"
#include "base/ReplacingFile.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "settings/EditorChoice.h"
#include "settings/OpenProject.h"
#include "settings/PathRules.h"
#include "settings/SettingsContext.h"
#include "settings/SettingsResources.h"

namespace tarnwick {

Settings::Settings(SettingsContext& context)
    : SettingsValues(context.mainWindow),
      TagTable(firstRow(), context.program.version, [&context](const std::string& text) { context.tell(text); }),
      context_(context) {
  resetAll();
}

Settings::~Settings() = default;

std::string Settings::configPath() const {
  return Filename(context_.program.configDirectory(), defaultConfigurationName).fullName();
}

void Settings::resetAll() {
  resetToDefaults(SETTINGS_DIALOG);
  // Its row says off, which is never applied: a row without an owner has its default from here.
  jarOpenAsZip = true;
  panelLayout.value = LayoutValue::VERTICAL;
  windowPosition.setUndefined();
  lastJarArchive.clear();
  lastJarBaseFolder.clear();
  lastProjectFile.clear();
  fileviewTab = 0;
  for (auto* list : {&recentProjects, &lastSources, &lastClasses, &lastPages}) list->fromString("");
  helpFile = dataFile(context_.program, "usersguide.htm");
  // A configuration that could never be saved would be worse than a guide that must be looked for.
  if (holdsLineEnd(helpFile)) helpFile.clear();
  personalTemplates.fromString("");
  resetToDefaults(JAVADOC_DIALOG);
}

void Settings::readDefaultConfiguration(int& status) {
  const std::string besideProgram = Filename(context_.program.programDirectory, defaultConfigurationName).fullName();
  for (const auto& path : {configPath(), besideProgram}) {
    try {
      Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
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
  if (javacDebug && javacFastcode) context_.tell(debugWithFastcodeWarning());
}

void Settings::prepareToSave() {
  // The guide's location is kept from the file, whatever the live object holds: another run may have repaired it.
  Settings stored(context_);
  int status = 0;
  stored.readDefaultConfiguration(status);
  if (status == 0) helpFile = stored.helpFile;
  tarnwickVersion = context_.program.version;
}

void Settings::writeDefaultConfiguration() {
  ReplacingFile fresh(configPath());
  write(fresh);
  fresh.commit();
}

void Settings::tellFailedSave(const FileNotOpenE& failure) {
  context_.onSaveFailed(failure, [this] { writeDefaultConfiguration(); });
}

void Settings::saveDefaultConfiguration() {
  prepareToSave();
  try {
    writeDefaultConfiguration();
  } catch (const LineEndE& failure) {
    // Another folder would not help.
    context_.tell(failure.message + "\nCan't save configuration data in " + failure.file);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    tellFailedSave(failure);
  }
}

void Settings::saveInto(Tarnwickfile& file) {
  prepareToSave();
  try {
    write(file);
  } catch (const LineEndE&) {
    throw;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    tellFailedSave(failure);
  }
}

void Settings::saveCurrent() {
  if (currentProject)
    currentProject->save();
  else
    saveDefaultConfiguration();
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

EditorChoice Settings::editorChoice() const {
  EditorChoice choice{editWithNotepad != 0, displayWithNotepad != 0, editorTarget, editorPlace};
  if (displayMessages) choice.showMessages = context_.showMessages;
  return choice;
}

}  // namespace tarnwick
