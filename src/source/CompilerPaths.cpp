#include "source/CompilerPaths.h"

#include "base/Filename.h"
#include "platform/FileArgument.h"
#include "platform/Path.h"
#include "settings/Classpaths.h"
#include "settings/JdkDiscovery.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"

namespace tarnwick {

namespace {

/// The first JDK whose compiler can be told to make classes of the given sources alone.
constexpr int onlyGivenSince = 6;

/// Folders behind a list that stands on a command line, each once.
class FolderList {
 public:
  explicit FolderList(std::string list) : list_(std::move(list)) {}
  void add(const std::string& folder) {
    if (folder.empty()) return;
    for (const auto& known : added_)
      if (platform::sameFileName(known, folder)) return;
    added_.push_back(folder);
    list_ += (list_.empty() ? "" : ";") + Filename(folder).quoted();
  }
  const std::string& text() const { return list_; }

 private:
  std::string list_;
  std::vector<std::string> added_;
};

}  // namespace

CompilerPaths pathsAsSet(const Settings& settings, const std::optional<std::string>& classpath) {
  return {settings.javacDestination.empty() ? "." : settings.javacDestination, settings.sourcepath, classpath};
}

CompilerPaths pathsFor(const Settings& settings, const SourcePlaces& places) {
  const bool followPackages = classesFollowPackages(settings.javacDestination);
  const auto fromHere = [&](const std::string& folder) {
    return platform::sameFileName(folder, places.folder) ? "." : folder;
  };
  FolderList classes(usersClasspath(settings));
  FolderList sources(settings.sourcepath);
  if (!followPackages) classes.add(classFolder(settings.javacDestination, places.folder));
  std::vector<std::string> roots = {places.root};
  roots.insert(roots.end(), places.otherRoots.begin(), places.otherRoots.end());
  for (const auto& root : roots) {
    classes.add(fromHere(root));
    // Where there is no such path the compiler looks for sources on the class path.
    if (!settings.sourcepath.empty()) sources.add(fromHere(root));
  }
  classes.add(fromHere(places.lastPlace));
  CompilerPaths paths = pathsAsSet(settings, classes.text());
  paths.sourcepath = sources.text();
  if (!followPackages) return paths;
  paths.destination = platform::fileWord(fromHere(places.root));
  paths.onlyGiven = !places.otherRoots.empty() && jdkVersion(settings.javaPath) >= onlyGivenSince;
  return paths;
}

}  // namespace tarnwick
