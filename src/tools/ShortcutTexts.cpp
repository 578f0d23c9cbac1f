#include "tools/ShortcutTexts.h"

#include "base/ProgramInfo.h"
#include "base/Text.h"
#include "platform/FileArgument.h"
#include "platform/Path.h"
#include "settings/OptionList.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"
#include "tools/RunTarget.h"

#include <optional>

namespace tarnwick {

namespace {

std::string valueOption(const std::string& prefix, const std::string& value) {
  return value.empty() ? "" : prefix + value + ' ';
}

std::string profileOption(const std::string& value) {
  return valueOption(value.starts_with(':') ? "-Xrunhprof" : "-Xrunhprof:", value);
}

std::string javaOptions(const Settings& settings, const std::string& classpath) {
  const std::string collector = OptionList(garbageCollectorOptions, settings.javaGarbageCollector).option();
  std::string text;
  if (settings.javaXfuture) text += "-Xfuture ";
  if (settings.javaXprof) text += "-Xprof ";
  if (settings.javaJniValidate) text += "-Xcheck:jni ";
  text += profileOption(settings.javaXrunhprof);
  text += valueOption("-classpath ", platform::commandLineList(classpath));
  // Deliberate: of these four the name alone, without the value and without a blank behind it.
  if (!settings.bootpath.empty()) text += "-Xbootclasspath:";
  if (!settings.javaXms.empty()) text += "-Xms";
  if (!settings.javaXmx.empty()) text += "-Xmx";
  if (!settings.javaXss.empty()) text += "-Xss";
  text += valueOption("", settings.javaProperty);
  text += valueOption("", collector);
  text += valueOption("", assertionOptions(settings.javaAssertEnable, "-ea:"));
  text += valueOption("", assertionOptions(settings.javaAssertDisable, "-da:"));
  if (settings.javaSystemAssertEnable) text += "-enablesystemassertions ";
  if (settings.javaSystemAssertDisable) text += "-disablesystemassertions ";
  if (settings.javaVerbose) text += "-verbose ";
  text += valueOption("", settings.javaOptions);
  return text;
}

/// The application as `java` is told it, and the user's own arguments behind it.
std::string applicationAndArguments(const RunTarget& target, const FileForSubprocess& application) {
  const Filename& file = application.name();
  // Archives have always been told from classes here.
  const bool isArchive = lowerCase(file.extension()) == ".jar";
  std::string text = isArchive ? "-jar " + platform::fileWord(file.nameWithExtension()) : target.words;
  for (const auto& argument : application.args()) text += ' ' + argument;
  return text;
}

std::string allBehind(const std::string& beginning, const Settings& settings, const FileForSubprocess& application) {
  const RunTarget target = runTargetOf(settings, application.name(), "java");
  const auto classpath = runClasspath(settings, std::nullopt, target, application.name());
  return trimLeft(beginning + javaOptions(settings, classpath.value_or("")) +
                  applicationAndArguments(target, application));
}

}  // namespace

ShortcutTexts shortcutUnderControl(const Settings& settings, const FileForSubprocess& application) {
  const ProgramInfo& program = settings.context().program;
  const std::string folder = application.name().directory();
  const std::string tool = jdkToolPath(settings, "java");
  const std::string configuration = Filename(relaunchConfiguration(settings)).fullName();
  for (const auto& path : {tool, configuration, folder}) refuseSwitchMark(path);
  const std::string switches = ' ' + switchText("EXEFILE", tool) + ' ' +
                               switchText("TITLE", application.name().baseName()) + ' ' +
                               switchText("CFG", configuration) + ' ' + switchText("DEFAULTDIR", folder) + runSwitch;
  return {Filename(program.programPath).quoted(), allBehind(switches, settings, application), program.programDirectory};
}

ShortcutTexts shortcutWithoutControl(const Settings& settings, const FileForSubprocess& application) {
  return {jdkToolPath(settings, "javaw"), allBehind("", settings, application), application.name().directory()};
}

}  // namespace tarnwick
