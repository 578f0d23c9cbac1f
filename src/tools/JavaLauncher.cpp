#include "tools/JavaLauncher.h"

#include "platform/Path.h"
#include "process/Subprocess.h"
#include "settings/OptionList.h"
#include "settings/PathRules.h"
#include "tools/Relaunch.h"

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

void addPaths(ArgumentList& list, const Settings& settings, const JavaRun& run) {
  using platform::commandLineList;
  if (run.classpath)
    list.add("-classpath " + commandLineList(run.classpath));
  else
    list.addValue("-classpath ", commandLineList(settings.effectiveClasspath()));
  if (run.sourcepath) list.add("-sourcepath " + commandLineList(run.sourcepath));
  list.addValue("-Xbootclasspath:", commandLineList(settings.bootpath));
}

/// A class's name that `java`, which `jdb` hands it on to, would take for an option or for a file of options. "@@"
/// stands for a name that begins with "@". For one that begins with "-" there is no form that finds the class, but none
/// that is taken for an option either.
std::string classArgument(const std::string& name) {
  std::string argument = name;
  // What the command line swallows in front of the name.
  const auto first = name.find_first_not_of(" \t\"");
  if (first == std::string::npos) return argument;
  if (name[first] == '@') return argument.insert(first, 1, '@');
  return name[first] == '-' ? "./" + name : argument;
}

void addAssertions(ArgumentList& list, const Settings& settings) {
  list.addValue("", assertionOptions(settings.javaAssertEnable, "-ea:"));
  list.addValue("", assertionOptions(settings.javaAssertDisable, "-da:"));
  list.addIf(settings.javaSystemAssertEnable, "-enablesystemassertions");
  list.addIf(settings.javaSystemAssertDisable, "-disablesystemassertions");
}

}  // namespace

std::vector<std::string> relaunchArguments(const Settings& settings, const FileForSubprocess& file,
                                           const JavaRun& run) {
  const std::string className = file.name().baseName();
  const std::string& profile = settings.javaXrunhprof;
  ArgumentList list(relaunchSwitches(settings, file, run.tool, run.debugging));
  list.addIf(settings.javaXfuture, "-Xfuture");
  list.addIf(settings.javaXprof, "-Xprof");
  list.addIf(settings.javaJniValidate, "-Xcheck:jni");
  list.addValue(profile.compare(0, 1, ":") == 0 ? "-Xrunhprof" : "-Xrunhprof:", profile);
  addPaths(list, settings, run);
  list.addValue("-Xms", settings.javaXms);
  list.addValue("-Xmx", settings.javaXmx);
  list.addValue("-Xss", settings.javaXss);
  list.addValue("", settings.javaProperty);
  list.addValue("", OptionList(garbageCollectorOptions, settings.javaGarbageCollector).option());
  if (!run.debugging) addAssertions(list, settings);
  if (run.extraOption) list.add(run.extraOption);
  list.add(classArgument(className));
  return list.take();
}

void buildAndLaunch(Settings& settings, FileForSubprocess& file, const JavaRun& run) {
  if (!relaunchReady(settings, run.tool)) return;
  const auto& context = settings.context();
  DetachedSubprocess copy(context.desktop, context.log, context.program.programPath);
  for (const auto& argument : relaunchArguments(settings, file, run)) copy.addArg(argument);
  copy.run(&file, FileMode::Write);
}

void runJava(Settings& settings, FileForSubprocess& file, const char* classpath) {
  JavaRun run;
  run.extraOption = settings.javaVerbose ? "-verbose" : nullptr;
  run.classpath = classpath;
  buildAndLaunch(settings, file, run);
}

void runJdb(Settings& settings, FileForSubprocess& file, const char* classpath, const char* sourcepath) {
  JavaRun run;
  run.tool = "jdb";
  run.debugging = true;
  run.extraOption = settings.jdbLaunch ? "-launch" : nullptr;
  run.classpath = classpath;
  run.sourcepath = sourcepath;
  buildAndLaunch(settings, file, run);
}

}  // namespace tarnwick
