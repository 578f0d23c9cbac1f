#include "dialogs/JavadocRoots.h"

#include "base/PackageRoot.h"
#include "base/Tarnwickfile.h"
#include "dialogs/DialogRules.h"
#include "platform/FileSystem.h"
#include "project/ProjectContext.h"
#include "settings/Classpaths.h"
#include "settings/Settings.h"
#include "source/JavaOutline.h"
#include "source/SourceText.h"

#include <algorithm>
#include <optional>

namespace tarnwick {

namespace {

std::optional<std::string> rootOf(const std::string& name) {
  const Filename path(platform::absolutePath(Filename(name).fullName()));
  if (!platform::isFile(path.fullName())) return std::nullopt;
  try {
    return rootOfSource(path, outlineOfFile(sourceText(path.fullName()), path.baseName()).package);
  } catch (const Tarnwickfile::FileNotOpenE&) {
    return std::nullopt;
  }
}

}  // namespace

void addRootsOfSources(JavadocRun& run, const Settings& settings, const std::vector<std::string>& names) {
  if (!settings.newerJava) return;
  std::vector<std::string> roots;
  for (const auto& name : names) {
    const auto root = rootOf(name);
    if (root && std::find(roots.begin(), roots.end(), *root) == roots.end()) roots.push_back(*root);
  }
  const auto* project = openProject(settings);
  for (const auto& root : project ? project->sourceRoots() : std::vector<std::string>())
    if (std::find(roots.begin(), roots.end(), root) == roots.end()) roots.push_back(root);
  // Whatever is given takes the place of the environment's.
  if (run.classPath.empty() && !roots.empty()) run.classPath = usersClasspath(settings);
  for (const auto& root : roots) {
    const std::string element = Filename(root).quoted();
    run.classPath += (run.classPath.empty() ? "" : ";") + element;
    // Where there is no such path the tool looks for sources on the class path.
    if (!run.sourcePath.empty()) run.sourcePath += ';' + element;
  }
}

}  // namespace tarnwick
