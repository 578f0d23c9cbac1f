#include "source/Compiler.h"

#include "platform/Path.h"
#include "platform/Process.h"
#include "process/FileArgument.h"
#include "settings/OptionList.h"
#include "source/PortabilityWarningDlg.h"

#include <utility>

namespace tarnwick {

namespace {

std::string compilerPath(const Settings& settings) {
  return settings.javaPath + platform::toolFileName("javac");
}

std::string noToolsFolder() {
  return platform::localText("No path to javac.exe and other tools available from settings");
}

/// The declared JDK version decides which warning options exist; of a version that is none of those known, none. Each
/// has a blank behind it.
std::string warningOptions(const Settings& settings) {
  const int version = OptionList(javacVersionOptions, settings.javacMyJdkVersion).currentIndex();
  std::string options;
  const auto add = [&options](int on, const char* option) {
    if (on) options += option;
  };
  if (version == 2) {
    add(!(settings.javacWarnConversion || settings.javacWarnPath || settings.javacWarnSerialize ||
          settings.javacWarnFinally || settings.javacWarnSwitch),
        "-Xlint:none ");
    add(settings.javacWarnConversion, "-Xlint:unchecked ");
    add(settings.javacWarnPath, "-Xlint:path ");
    add(settings.javacWarnSerialize, "-Xlint:serial ");
    add(settings.javacWarnFinally, "-Xlint:finally ");
    add(settings.javacWarnSwitch, "-Xlint:fallthrough ");
    return options;
  }
  if (version == 1) add(settings.javacXswitchcheck, "-Xswitchcheck ");
  if (version == 0 || version == 1) add(settings.javacNowarn, "-nowarn ");
  return options;
}

/// Adds a file to what the compiler is given.
void addFile(FileForSubprocess& source, const std::string& name) {
  source.args().push_back(platform::commandWord(fileArgument(name)));
}

}  // namespace

std::optional<std::string> compilerClasspath(const Settings& settings, const char* alternativeClasspath) {
  if (alternativeClasspath) return alternativeClasspath;
  const std::string classpath = settings.effectiveClasspath();
  return classpath.empty() ? std::nullopt : std::optional(classpath);
}

std::vector<std::string> javacArguments(const Settings& settings, const std::optional<std::string>& classpath) {
  using platform::commandLineList;
  std::vector<std::string> arguments = {
      "javac",
      warningOptions(settings),
      OptionList(javacSourceOptions, settings.javacSourceOption).option(),
      OptionList(javacTargetOptions, settings.javacTargetSpec).option(),
      "-d",
      settings.javacDestination.empty() ? "." : settings.javacDestination,
  };
  const auto add = [&arguments](bool when, const std::string& text) {
    if (when) arguments.push_back(text);
  };
  add(settings.javacDebug, "-g");
  add(settings.javacFastcode, "-O");
  add(settings.javacVerbose, "-verbose");
  add(!settings.javacJOption.empty(), settings.javacJOption);
  add(settings.javacDeprecation, "-deprecation");
  add(!settings.sourcepath.empty(), "-sourcepath");
  add(!settings.sourcepath.empty(), commandLineList(settings.sourcepath));
  if (classpath) arguments.push_back("-classpath " + commandLineList(*classpath));
  add(!settings.bootpath.empty(), "-bootclasspath " + commandLineList(settings.bootpath));
  add(!settings.extdirs.empty(), "-extdirs " + commandLineList(settings.extdirs));
  return arguments;
}

Compiler::Compiler(Settings& settings, const char* alternativeClasspath)
    : settings_(settings), tool_(settings.context().desktop, settings.context().log, compilerPath(settings)) {
  // Meant so: a class path that is changed in the dialog counts from the next command on.
  const auto classpath = compilerClasspath(settings, alternativeClasspath);
  if (settings.javaPath.empty()) settings.runModal(0);
  if (settings.javaPath.empty()) throw CannotCompileE(noToolsFolder());
  tool_.reset(compilerPath(settings));
  checkTool();
  for (const auto& argument : javacArguments(settings, classpath)) tool_.addArg(argument);
}

void Compiler::checkTool() const {
  try {
    Tarnwickfile probe(tool_.executable(), FileMode::Read);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw Tarnwickfile::FileNotOpenE("Can't access compiler " + failure.file + "\n" + failure.message +
                                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?",
                                     failure.file);
  }
}

bool Compiler::maySplit() {
  bool& warn = settings_.context().warnAboutSplitting;
  if (!warn) return true;
  PortabilityWarningDlg warning(settings_.context().desktop);
  const bool goOn = warning.runModal() == DIALOG_OK;
  warn = !goOn || !warning.staysAway();
  return goOn;
}

bool Compiler::compile(FileForSubprocess& source, FileMode logMode) {
  if (settings_.javaPath.empty()) throw CannotCompileE(noToolsFolder());
  // Once for a batch: its sources share them, and a failure need not be told for each.
  if (!std::exchange(saved_, true)) settings_.saveCurrent();
  source.args().clear();
  SourceSplitter splitter(source, [this] { return maySplit(); });
  splitter.run();
  for (const auto& name : splitter.fileNames()) addFile(source, name);
  if (source.args().empty()) addFile(source, source.name().fullName());
  // The pieces live until the tool has ended.
  return tool_.run(&source, logMode);
}

}  // namespace tarnwick
