#include "project/ProjectBuild.h"

#include "base/Text.h"
#include "process/EditorLaunch.h"
#include "settings/PathRules.h"
#include "source/Compiler.h"

namespace tarnwick {

namespace {

/// True if `javac` had something to say of any source.
bool compileSources(Settings& settings, ProjectContext& project, bool all) {
  Compiler compiler(settings, quotedPaths(project.runClasspath()).c_str());
  project.update();
  const TypeIndex index(project.collectClasses(ProjectContext::ALL_TYPES));
  bool failed = false;
  FileMode logMode = FileMode::Write;
  // From the last to the first, which is meant.
  for (std::size_t i = project.sources.size(); i-- > 0;) {
    const JavaSourcefile& source = project.sources[i];
    if (!all && source.isUpToDate(index, settings.javacDestination, project.folderNoSlash())) continue;
    FileForSubprocess file(source.name().fullName());
    if (compiler.compile(file, logMode)) failed = true;
    logMode = FileMode::Append;
  }
  return failed;
}

}  // namespace

void compileProject(Settings& settings, ProjectContext& project, bool all) {
  Desktop& desktop = settings.context().desktop;
  try {
    if (compileSources(settings, project, all)) {
      if (settings.javacSoundOnError) desktop.alert(AlertSound::Exclamation);
      showLog(desktop, settings.context().log, settings.editorChoice());
    } else if (settings.javacSoundOnSuccess) {
      desktop.alert(AlertSound::Asterisk);
    }
    project.update();
  } catch (const Compiler::DontWantToSplitE&) {
    // The user has said so; there is nothing to tell.
  } catch (const Tarnwickexception& failure) {
    desktop.message(failure.message);
  }
}

void completeRunTarget(const Settings& settings, const ProjectContext& project, FileForSubprocess& target) {
  const std::string name = target.name().nameWithExtension();
  const std::string& destination = settings.javacDestination;
  target.setName(classFolder(destination, project.folderNoSlash()), name);
  // Deliberate: so "." gives a relative path in the end.
  const bool inProject = trim(destination).empty() || trim(destination) == ".";
  if (inProject && !destination.empty()) target.setName(destination, name);
  target.setName(target.name().fullName() + ".class");
}

}  // namespace tarnwick
