#include "tools/JavaLauncher.h"

#include "platform/Path.h"
#include "process/Subprocess.h"
#include "settings/OptionList.h"
#include "settings/PathRules.h"

namespace tarnwick {

namespace {

std::string toolPath(const Settings& settings, const std::string& tool) {
  return settings.javaPath + platform::toolFileName(tool);
}

std::string switchText(const std::string& name, const std::string& value) {
  return "\\/" + name + "=" + value + "\\/";
}

class ArgumentList {
 public:
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
  ArgumentList list;
  list.add("Tarnwick");
  list.add(switchText("DEFAULTDIR", file.name().directory()));
  list.add(switchText("EXEFILE", toolPath(settings, run.tool)));
  list.add(switchText("TITLE", className));
  list.add(switchText("CFG", settings.currentProject ? settings.currentProject->quotedPath() : settings.configPath()));
  list.addIf(run.debugging, "\\/JDEBUG\\/");
  list.add("\\/RUN=");
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
  list.add(className);
  return list.take();
}

void buildAndLaunch(Settings& settings, FileForSubprocess& file, const JavaRun& run) {
  Desktop& desktop = settings.context().desktop;
  if (settings.javaPath.empty()) settings.runModal(0);
  if (settings.javaPath.empty()) {
    desktop.message(platform::localText("No path to javac.exe and other tools available from settings"));
    return;
  }
  try {
    Tarnwickfile probe(toolPath(settings, run.tool), FileMode::Read);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop.message("Can't access the JDK tool " + failure.file + "\n" + failure.message +
                    "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
    return;
  }
  DetachedSubprocess copy(desktop, settings.context().log, settings.context().program.programPath);
  for (const auto& argument : relaunchArguments(settings, file, run)) copy.addArg(argument);
  copy.run(&file, FileMode::Write);
}

void runJava(Settings& settings, FileForSubprocess& file, const char* classpath) {
  JavaRun run;
  run.extraOption = settings.javaVerbose ? "-verbose" : nullptr;
  run.classpath = classpath;
  buildAndLaunch(settings, file, run);
}

}  // namespace tarnwick
