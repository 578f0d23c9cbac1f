#include "tools/JavaLauncher.h"

#include "base/ProgramInfo.h"
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
  if (run.sourcepath) list.add("-sourcepath " + commandLineList(*run.sourcepath));
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

/// Says what there is to know before the run. False if there can be none.
bool tellOfTarget(const Settings& settings, const Filename& file, const JavaRun& run) {
  const RunTarget target = runTargetOf(settings, file, run.tool);
  if (!target.warning.empty()) settings.context().desktop.message(target.warning);
  if (!run.debugging || !target.isArchive) return true;
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
  const RunTarget target = runTargetOf(settings, file.name(), run.tool);
  const std::string& profile = settings.javaXrunhprof;
  ArgumentList list(relaunchSwitches(settings, file, run.tool, run.debugging));
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
  if (!run.debugging) addAssertions(list, settings);
  list.addValue("", run.extraOption);
  list.addValue("", run.debugging ? debuggerOptions(settings.javaOptions) : settings.javaOptions);
  list.add(target.words);
  return list.take();
}

void buildAndLaunch(Settings& settings, const FileForSubprocess& file, const JavaRun& run) {
  if (!relaunchReady(settings, run.tool) || !tellOfTarget(settings, file.name(), run)) return;
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
  run.extraOption = settings.jdbLaunch ? "-launch" : "";
  run.classpath = classpath;
  run.sourcepath = sourcepath;
  buildAndLaunch(settings, file, run);
}

}  // namespace tarnwick
