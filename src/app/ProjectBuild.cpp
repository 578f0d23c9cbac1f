#include "app/ProjectBuild.h"

#include "base/Text.h"
#include "dialogbase/RunSteps.h"
#include "process/ToolLog.h"
#include "settings/PathRules.h"
#include "settings/SettingsContext.h"
#include "source/TypeIndex.h"

#include <algorithm>
#include <set>
#include <vector>

namespace tarnwick {

namespace {

/// Sources that go to one run of the compiler.
struct Batch {
  explicit Batch(std::string sourcesRoot) : root(std::move(sourcesRoot)) {}

  bool takes(const JavaSourcefile& source, const std::string& sourcesRoot) const {
    return names.size() < mostSources && root == sourcesRoot &&
           std::none_of(source.types().begin(), source.types().end(),
                        [&](const auto& type) { return types.contains(fullName(source, *type)); });
  }
  void add(const JavaSourcefile& source) {
    names.push_back(source.name().fullName());
    for (const auto& type : source.types()) types.insert(fullName(source, *type));
  }

  static std::string fullName(const JavaSourcefile& source, const SourceType& type) {
    return source.package() + '.' + type.name;
  }

  /// Where there are more, a second run costs next to nothing.
  static constexpr std::size_t mostSources = 20000;
  std::string root;  ///< where the run's classes go; empty where that is one place for all
  std::vector<std::string> names;
  std::set<std::string> types;
};

/// The sources in as few batches as can be: a compiler that meets a type twice writes nothing at all, and it has one
/// place to write to.
std::vector<Batch> batchesOf(const Settings& settings, const std::vector<const JavaSourcefile*>& sources) {
  const bool byRoots = settings.newerJava && classesFollowPackages(settings.javacDestination);
  std::vector<Batch> batches;
  for (const auto* source : sources) {
    const std::string root = byRoots ? source->root() : "";
    auto batch =
        std::find_if(batches.begin(), batches.end(), [&](const Batch& one) { return one.takes(*source, root); });
    if (batch == batches.end()) batch = batches.insert(batches.end(), Batch(root));
    batch->add(*source);
  }
  return batches;
}

/// The compiler's runs of one command, whose user may stop it in one of them or between two.
class CompileRuns {
 public:
  CompileRuns(const Settings& settings, std::size_t runs) : settings_(settings), steps_(desktopOf(settings), runs) {}

  /// False if the user wants no more of them.
  bool next() {
    if (isStopped_ || steps_.next()) return !isStopped_;
    settings_.context().log.addNotes(logMode_, {stoppedNote}, RunEnd::Stopped);
    isStopped_ = came_.said = true;
    return false;
  }
  /// The one that comes next adds to the log of those before.
  FileMode logMode() const { return logMode_; }
  void take(const RunResult& result) {
    takeRun(settings_, result, came_);
    isStopped_ = result.end == RunEnd::Stopped;
    logMode_ = FileMode::Append;
  }
  const CompilerRuns& came() const { return came_; }

 private:
  static Desktop& desktopOf(const Settings& settings) { return settings.context().desktop; }

  const Settings& settings_;
  RunSteps steps_;
  FileMode logMode_ = FileMode::Write;
  CompilerRuns came_;
  bool isStopped_ = false;
};

// Deliberate: asked from the last to the first; a run may make others current.
CompilerRuns compileEach(const Settings& settings, const ProjectContext& project, bool all, Compiler& compiler) {
  const TypeIndex index(project.collectClasses(ProjectContext::ALL_TYPES));
  CompileRuns runs(settings, project.sources.size());
  for (std::size_t i = project.sources.size(); i-- > 0 && runs.next();) {
    const JavaSourcefile& source = project.sources[i];
    if (!all && source.isUpToDate(index, settings.javacDestination, project.folderNoSlash())) continue;
    FileForSubprocess file(source.name().fullName());
    runs.take(compiler.compile(file, runs.logMode()));
  }
  return runs.came();
}

CompilerRuns compileTogether(const Settings& settings, const ProjectContext& project, bool all, Compiler& compiler) {
  const TypeIndex index(project.collectClasses(ProjectContext::ALL_TYPES));
  std::vector<const JavaSourcefile*> stale;
  for (std::size_t i = project.sources.size(); i-- > 0;) {
    const JavaSourcefile& source = project.sources[i];
    if (all || !source.isUpToDate(index, settings.javacDestination, project.folderNoSlash())) stale.push_back(&source);
  }
  const auto batches = batchesOf(settings, stale);
  CompileRuns runs(settings, batches.size());
  for (const auto& batch : batches) {
    if (!runs.next()) break;
    runs.take(compiler.compileTogether(batch.names, runs.logMode()));
  }
  return runs.came();
}

CompilerRuns compileSources(Settings& settings, ProjectContext& project, bool all, SettingsSaved saved) {
  Compiler compiler = compilerForUser(settings, quotedPaths(project.runClasspath()));
  if (saved == SettingsSaved::JustNow) compiler.takeSettingsForSaved();
  project.update();
  if (settings.newerJava) compiler.knowProject(project.folderNoSlash(), project.sourceRoots());
  return settings.javacOneRun ? compileTogether(settings, project, all, compiler)
                              : compileEach(settings, project, all, compiler);
}

}  // namespace

CompileEnd compileProject(Settings& settings, ProjectContext& project, bool all, SettingsSaved saved) {
  return compileForUser(
      settings, [&] { return compileSources(settings, project, all, saved); }, [&] { project.update(); });
}

void completeRunTarget(const Settings& settings, const ProjectContext& project, FileForSubprocess& target) {
  const std::string name = project.fullNameOf(target.name().nameWithExtension());
  const std::string& destination = settings.javacDestination;
  target.setName(classFolder(destination, project.folderNoSlash()), name);
  // Deliberate: so "." gives a relative path in the end.
  const bool inProject = trim(destination).empty() || trim(destination) == ".";
  if (inProject && !destination.empty()) target.setName(destination, name);
  target.setName(target.name().fullName() + ".class");
}

}  // namespace tarnwick
