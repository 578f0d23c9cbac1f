#include "tools/JavaLauncher.h"

#include "base/ProgramInfo.h"
#include "base/Tarnwickexception.h"
#include "dialogbase/Messages.h"
#include "platform/Path.h"
#include "process/Subprocess.h"
#include "settings/OptionList.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"
#include "tools/RunTarget.h"

#include <string_view>

namespace tarnwick {

namespace {

class ArgumentList {
 public:
  explicit ArgumentList(std::vector<std::string> first) : arguments_(std::move(first)) {}
  void add(const std::string& text) { arguments_.push_back(text); }
  void addIf(bool when, const std::string& text) {
    if (when) add(text);
  }
  /// The prefix and the value, unless the value is empty.
  void addValue(const std::string& prefix, const std::string& value) { addIf(!value.empty(), prefix + value); }
  std::vector<std::string> take() { return std::move(arguments_); }

 private:
  std::vector<std::string> arguments_;
};

void addPaths(ArgumentList& list, const Settings& settings, const JavaRun& run,
              const std::optional<std::string>& classpath) {
  using platform::commandLineList;
  if (classpath) list.add("-classpath " + commandLineList(*classpath));
  // Only a debugger asks for sources.
  if (run.sourcepath && !run.ownStreams) list.add("-sourcepath " + commandLineList(*run.sourcepath));
  list.addValue("-Xbootclasspath:", commandLineList(settings.bootpath));
}

/// Words that `jdb` hands on to the program's `java` by itself.
bool handsOnItself(std::string_view words) {
  return words.starts_with("-X") || words.starts_with("-D") || words.starts_with("-v");
}

void addAssertions(ArgumentList& list, const Settings& settings) {
  list.addValue("", assertionOptions(settings.javaAssertEnable, "-ea:"));
  list.addValue("", assertionOptions(settings.javaAssertDisable, "-da:"));
  list.addIf(settings.javaSystemAssertEnable, "-enablesystemassertions");
  list.addIf(settings.javaSystemAssertDisable, "-disablesystemassertions");
}

/// The source path as `jdb` is told it where it has a command line of its own; empty for none.
std::string debuggersSourcepath(const JavaRun& run) {
  const std::string list = run.ownStreams ? platform::commandLineList(run.sourcepath.value_or("")) : "";
  return list.empty() ? list : "-sourcepath " + list;
}

std::vector<std::string> switchesOf(const Settings& settings, const FileForSubprocess& file, const JavaRun& run) {
  std::vector<std::string> switches = relaunchSwitches(settings, file, run.tool, run.debugging);
  if (!run.ownStreams) return switches;
  std::vector<std::string> more = {switchText("PROGRAM", jdkToolPath(settings, "java"))};
  if (const std::string option = debuggersSourcepath(run); !option.empty())
    more.push_back(switchText("JDBOPTIONS", option));
  // Behind RUN nothing is a switch any more.
  switches.insert(switches.end() - 1, more.begin(), more.end());
  return switches;
}

/// True if the tools of the run are there and can be told what they are to be told. Shows why not.
bool runReady(Settings& settings, const JavaRun& run) {
  if (!relaunchReady(settings, run.tool)) return false;
  if (!run.ownStreams) return true;
  try {
    refuseSwitchMark(platform::commandLineList(run.sourcepath.value_or("")));
  } catch (const Tarnwickexception& failure) {
    settings.context().desktop.message(failure.message);
    return false;
  }
  return jdkToolReady(settings, "java");
}

/// Who takes the class's name and the options.
std::string runnerOf(const JavaRun& run) {
  return run.ownStreams ? "java" : run.tool;
}

/// Says what there is to know before the run. False if there can be none.
bool tellOfTarget(const Settings& settings, const Filename& file, const JavaRun& run) {
  const RunTarget target = runTargetOf(settings, file, runnerOf(run));
  if (!target.warning.empty()) settings.context().desktop.message(target.warning);
  if (!run.debugging || run.ownStreams || !target.isArchive) return true;
  settings.context().desktop.message("jdb can't run an archive: " + file.nameWithExtension() +
                                     "\nChoose the class file of the program's main class.");
  return false;
}

}  // namespace

std::string debuggerOptions(const std::string& options) {
  std::string text;
  bool inQuotes = false;
  bool inWord = false;
  for (std::size_t i = 0; i < options.size(); ++i) {
    const char c = options[i];
    const bool separates = !inQuotes && (c == ' ' || c == '\t');
    if (!separates && !inWord && !handsOnItself(std::string_view(options).substr(i))) text += "-R";
    inWord = !separates;
    if (c == '"') inQuotes = !inQuotes;
    text += c;
  }
  return text;
}

std::vector<std::string> relaunchArguments(const Settings& settings, const FileForSubprocess& file,
                                           const JavaRun& run) {
  const RunTarget target = runTargetOf(settings, file.name(), runnerOf(run));
  const bool forDebugger = run.debugging && !run.ownStreams;
  const std::string& profile = settings.javaXrunhprof;
  ArgumentList list(switchesOf(settings, file, run));
  list.addIf(settings.javaXfuture, "-Xfuture");
  list.addIf(settings.javaXprof, "-Xprof");
  list.addIf(settings.javaJniValidate, "-Xcheck:jni");
  list.addValue(profile.compare(0, 1, ":") == 0 ? "-Xrunhprof" : "-Xrunhprof:", profile);
  addPaths(list, settings, run, runClasspath(settings, run.classpath, target, file.name()));
  list.addValue("-Xms", settings.javaXms);
  list.addValue("-Xmx", settings.javaXmx);
  list.addValue("-Xss", settings.javaXss);
  list.addValue("", settings.javaProperty);
  list.addValue("", OptionList(garbageCollectorOptions, settings.javaGarbageCollector).option());
  if (!forDebugger) addAssertions(list, settings);
  list.addValue("", run.extraOption);
  list.addValue("", forDebugger ? debuggerOptions(settings.javaOptions) : settings.javaOptions);
  list.add(target.words);
  return list.take();
}

void buildAndLaunch(Settings& settings, const FileForSubprocess& file, const JavaRun& run) {
  if (!runReady(settings, run) || !tellOfTarget(settings, file.name(), run)) return;
  const auto& context = settings.context();
  DetachedSubprocess copy(context.desktop, context.log, context.program.programPath);
  for (const auto& argument : relaunchArguments(settings, file, run)) copy.addArg(argument);
  showEach(context.desktop, copy.start(file).failures);
}

void runJava(Settings& settings, const FileForSubprocess& file, const std::optional<std::string>& classpath) {
  JavaRun run;
  run.extraOption = settings.javaVerbose ? "-verbose" : "";
  run.classpath = classpath;
  buildAndLaunch(settings, file, run);
}

void runJdb(Settings& settings, const FileForSubprocess& file, const std::optional<std::string>& classpath,
            const std::optional<std::string>& sourcepath) {
  JavaRun run;
  run.tool = "jdb";
  run.debugging = true;
  run.ownStreams = settings.jdbOwnStreams;
  // The program that jdb takes hold of has been launched.
  run.extraOption = settings.jdbLaunch && !run.ownStreams ? "-launch" : "";
  run.classpath = classpath;
  run.sourcepath = sourcepath;
  buildAndLaunch(settings, file, run);
}

}  // namespace tarnwick
