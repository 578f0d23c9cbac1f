#include "source/Compiler.h"

#include "base/FileForSubprocess.h"
#include "base/PackageRoot.h"
#include "base/ProgramInfo.h"
#include "base/TempFile.h"
#include "platform/FileArgument.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/ToolLog.h"
#include "resources/SystemWords.h"
#include "settings/OptionList.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "source/JavaOutline.h"
#include "source/PrivatePieces.h"
#include "source/SourceSplitter.h"
#include "source/SourceText.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <deque>
#include <utility>

namespace tarnwick {

namespace {

std::string compilerPath(const Settings& settings) {
  return settings.javaPath + platform::toolFileName("javac");
}

std::string noToolsFolder() {
  return inSystemWords("No path to javac.exe and other tools available from settings");
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

/// As `javac` reads it in such a file: in quotes a backslash takes what follows as it stands.
std::string quotedForArgumentFile(const std::string& name) {
  std::string text = "\"";
  for (const char c : name) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + '"';
}

void writeArgumentFile(TempFile& list, const std::vector<std::string>& names) {
  const auto demand = [&list](bool done) {
    if (!done) throw Tarnwickfile::FileNotOpenE(std::strerror(errno), list.name().fullName());
  };
  try {
    list.openTemp(FileMode::Write);
    for (const auto& name : names)
      demand(std::fputs((quotedForArgumentFile(platform::fileArgument(name)) + '\n').c_str(), list.stream()) != EOF);
    demand(std::fflush(list.stream()) == 0);
    list.close();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw Compiler::CannotCompileE(failure.message + "\nCan't write the list of sources " + failure.file);
  }
}

/// What the log's first line shows of the sources.
std::string shownNames(const std::vector<std::string>& names) {
  constexpr std::size_t most = 20;
  std::string text;
  for (std::size_t i = 0; i < std::min(most, names.size()); ++i) text += (i > 0 ? " " : "") + names[i];
  return names.size() > most ? text + " ... (" + std::to_string(names.size()) + " files)" : text;
}

}  // namespace

std::optional<std::string> compilerClasspath(const Settings& settings) {
  const std::string classpath = settings.effectiveClasspath();
  return classpath.empty() ? std::nullopt : std::optional(classpath);
}

std::vector<std::string> javacArguments(const Settings& settings, const std::optional<std::string>& classpath) {
  return javacArguments(settings, pathsAsSet(settings, classpath));
}

std::vector<std::string> javacArguments(const Settings& settings, const CompilerPaths& paths) {
  using platform::commandLineList;
  std::vector<std::string> arguments = {
      "javac",
      warningOptions(settings),
      OptionList(javacSourceOptions, settings.javacSourceOption).option(),
      OptionList(javacTargetOptions, settings.javacTargetSpec).option(),
      "-d",
      paths.destination,
  };
  const auto add = [&arguments](bool when, const std::string& text) {
    if (when) arguments.push_back(text);
  };
  add(settings.javacDebug, "-g");
  add(settings.javacFastcode, "-O");
  add(settings.javacVerbose, "-verbose");
  add(!settings.javacJOption.empty(), settings.javacJOption);
  add(settings.javacDeprecation, "-deprecation");
  add(paths.onlyGiven, "-implicit:none");
  add(!paths.sourcepath.empty(), "-sourcepath");
  add(!paths.sourcepath.empty(), commandLineList(paths.sourcepath));
  if (paths.classpath) arguments.push_back("-classpath " + commandLineList(*paths.classpath));
  add(!settings.bootpath.empty(), "-bootclasspath " + commandLineList(settings.bootpath));
  add(!settings.extdirs.empty(), "-extdirs " + commandLineList(settings.extdirs));
  // Last, so that the user's own word counts.
  add(!settings.javacOptions.empty(), settings.javacOptions);
  return arguments;
}

struct Compiler::GatheredSources {
  explicit GatheredSources(std::string configurationFolder) : folder(std::move(configurationFolder)) {}

  /// Types of the same name in two packages have pieces of one name.
  PrivatePieces& folderFor(const std::vector<TypePiece>& wanted);

  std::string folder;
  std::vector<std::string> names;
  std::string root;                    ///< where the packages begin; known in the newer way
  std::vector<std::string> misplaced;  ///< what is told of sources whose folders are not named as their packages
  std::deque<SourceSplitter> splitters;
  std::deque<PrivatePieces> pieces;
};

Compiler::Compiler(Settings& settings, const std::optional<std::string>& classpath, SplitQuestion maySplit)
    : settings_(settings),
      maySplit_(std::move(maySplit)),
      tool_(settings.context().desktop, settings.context().log, compilerPath(settings)) {
  if (settings.javaPath.empty()) throw CannotCompileE(noToolsFolder());
  checkTool();
  tellTool(pathsAsSet(settings, classpath));
}

void Compiler::tellTool(const CompilerPaths& paths) {
  tool_.reset(compilerPath(settings_));
  for (const auto& argument : javacArguments(settings_, paths)) tool_.addArg(argument);
}

void Compiler::show(const std::string& sources, std::size_t count) {
  settings_.context().onRunBegins("javac " + sources, count);
  if (settings_.toolsWithoutConsole) tool_.withoutConsole();
  if (settings_.watchRuns) tool_.showWhileItRuns(sources);
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

void Compiler::takeSettingsForSaved() {
  saved_ = settings_.content();
}

void Compiler::saveSettings() {
  // The sources of a batch share them: they are saved again only if something has changed meanwhile, and a failure is
  // not told for each.
  if (saved_ == settings_.content()) return;
  settings_.saveCurrent();
  saved_ = settings_.content();
}

RunResult Compiler::compile(FileForSubprocess& source, FileMode logMode) {
  beginRun();
  // The pieces live until the tool has ended.
  GatheredSources gathered(settings_.context().program.configDirectory());
  gather(source.name(), gathered);
  show(source.name().nameWithExtension(), 1);
  source.args().clear();
  for (const auto& name : gathered.names) source.args().push_back(platform::fileWord(name));
  return run(source, gathered, logMode);
}

RunResult Compiler::compileTogether(const std::vector<std::string>& sources, FileMode logMode) {
  beginRun();
  const std::string folder = settings_.context().program.configDirectory();
  GatheredSources gathered(folder);
  for (const auto& path : sources) gather(Filename(path), gathered);
  TempFile list("Tarnwick_javac_list", folder);
  writeArgumentFile(list, gathered.names);
  const std::string word = platform::commandWord("@" + list.name().fullName());
  tool_.replaceInLog(word, shownNames(gathered.names));
  show(
      sources.size() == 1 ? Filename(sources.front()).nameWithExtension() : std::to_string(sources.size()) + " sources",
      sources.size());
  FileForSubprocess first(sources.front());
  first.args() = {word};
  return run(first, gathered, logMode);
}

RunResult Compiler::run(const FileForSubprocess& first, const GatheredSources& gathered, FileMode logMode) {
  if (!settings_.newerJava) return tool_.run(&first, logMode);
  SourcePlaces places = project_;
  if (places.folder.empty()) places.folder = first.name().directoryNoSlash();
  places.root = gathered.root;
  std::erase_if(places.otherRoots, [&](const auto& root) { return platform::sameFileName(root, places.root); });
  tellTool(pathsFor(settings_, places));
  FileForSubprocess here(places.folder, first.name().nameWithExtension());
  here.args() = first.args();
  RunResult result = tool_.run(&here, logMode);
  try {
    if (tellMisplaced(gathered.misplaced)) result.said = true;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw Tarnwickfile::FileNotOpenE(behind(result.failures, failure.message), failure.file);
  }
  return result;
}

bool Compiler::tellMisplaced(const std::vector<std::string>& notes) {
  if (notes.empty()) return false;
  settings_.context().log.addNotes(FileMode::Append, notes);
  return true;
}

void Compiler::beginRun() {
  if (settings_.javaPath.empty()) throw CannotCompileE(noToolsFolder());
  saveSettings();
  tool_.replaceNothingInLog();
}

void Compiler::gather(const Filename& source, GatheredSources& gathered) {
  if (settings_.newerJava) return gatherNewer(source, gathered);
  try {
    auto& splitter = gathered.splitters.emplace_back(source, maySplit_);
    splitter.run();
    for (const auto& name : splitter.fileNames()) gathered.names.push_back(name);
    if (splitter.fileNames().empty()) gathered.names.push_back(source.fullName());
  } catch (const CannotCompileE& failure) {
    throw RefusedE(failure, source.fullName());
  }
}

PrivatePieces& Compiler::GatheredSources::folderFor(const std::vector<TypePiece>& wanted) {
  const auto free = std::find_if(pieces.begin(), pieces.end(), [&](const auto& one) { return one.canTake(wanted); });
  return free == pieces.end() ? pieces.emplace_back(folder) : *free;
}

void Compiler::findRoot(const Filename& source, const JavaOutline& outline, GatheredSources& gathered) const {
  const std::string& package = outline.package;
  const std::string folder = source.directoryNoSlash();
  gathered.root = rootOfSource(source, package);
  const bool makesClasses = !outline.types.empty() || outline.packageIsAnnotated;
  const bool isMisplaced = makesClasses && !rootOfPackage(folder, package);
  if (!isMisplaced || !classesFollowPackages(settings_.javacDestination)) return;
  gathered.misplaced.push_back(source.fullName() + " is of the package " + package +
                               ", but its folder is not named so. Its classes go to " +
                               Filename(folder, foldersOfPackage(package)).fullName());
}

void Compiler::gatherNewer(const Filename& source, GatheredSources& gathered) {
  try {
    const std::string text = sourceText(source.fullName());
    const JavaOutline outline = outlineOfFile(text, source.baseName());
    findRoot(source, outline, gathered);
    if (!wantsSplitting(outline)) return gathered.names.push_back(source.fullName());
    if (!maySplit_()) throw DontWantToSplitE{};
    const auto pieces = piecesOf(text, outline);
    for (const auto& path : gathered.folderFor(pieces).write(pieces)) {
      gathered.names.push_back(path);
      tool_.replaceInLog(path, source.fullName());
    }
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw CannotCompileE(failure.message + "\nCan't process file " + failure.file);
  }
}

}  // namespace tarnwick
