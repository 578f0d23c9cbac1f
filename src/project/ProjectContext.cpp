#include "project/ProjectContext.h"

#include "base/PackageRoot.h"
#include "base/ProgramInfo.h"
#include "base/ReplacingFile.h"
#include "base/TagRow.h"
#include "base/Text.h"
#include "base/TokenString.h"
#include "dialogbase/WaitCursor.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/Classpaths.h"
#include "settings/PathRules.h"
#include "settings/SettingsContext.h"
#include "source/Compiler.h"
#include "source/JavaReading.h"
#include "source/PieceFolder.h"
#include "source/TypeIndex.h"

#include <algorithm>
#include <optional>
#include <set>

namespace tarnwick {

namespace {

std::string wholePath(const std::string& path) {
  return platform::absolutePath(Filename(path).fullName());
}

}  // namespace

void forgetProjectValues(Settings& settings) {
  settings.resetAll();
  for (auto* file : {&settings.fileviewSource, &settings.fileviewClass, &settings.fileviewHtml}) {
    file->reset(false);
    file->setLastFolder("");
  }
  settings.windowPosition.refreshFromWindow();
  int status = 0;
  settings.readDefaultConfiguration(status);
}

std::string packageRoot(const std::string& qualifiedName, std::string folder, bool& fits) {
  std::string package = '.' + qualifiedName;
  package.erase(package.rfind('.'));
  fits = true;
  while (!package.empty()) {
    const auto point = package.rfind('.');
    const auto separator = folder.rfind(platform::folderSeparator);
    fits = point != std::string::npos && separator != std::string::npos &&
           platform::sameFileName(package.substr(point + 1), folder.substr(separator + 1));
    if (!fits) break;
    package.erase(point);
    folder.erase(separator);
  }
  // Where paths begin with a separator, that alone is the topmost folder.
  return folder.empty() ? std::string(1, platform::folderSeparator) : folder;
}

bool allUpToDate(const ProjectSourceList& sources, const TypeIndex& index, const std::string& destination,
                 const std::string& projectFolder) {
  for (std::size_t i = sources.size(); i-- > 0;)
    if (!sources[i].isUpToDate(index, destination, projectFolder)) return false;
  return true;
}

std::string addToPathList(const std::string& list, const std::string& entry) {
  TokenString paths;
  try {
    paths.fromString(list);
  } catch (const StringableM::InvalidDataE&) {
    return list;
  }
  const auto known = paths.elements();
  const auto isEntry = [&entry](const std::string& path) { return platform::sameFileName(path, entry); };
  if (std::any_of(known.begin(), known.end(), isEntry)) return list;
  paths.add(entry);
  return paths.toString();
}

std::string quotedPaths(const std::string& list) {
  TokenString paths;
  try {
    paths.fromString(list);
  } catch (const StringableM::InvalidDataE&) {
    return list;
  }
  std::string text;
  for (const auto& path : paths.elements()) text += ';' + Filename(path).quoted();
  return text.empty() ? text : text.substr(1);
}

ProjectValues::ProjectValues(const Settings& settings, const std::string& path)
    : file(Tarnwickfile::unopened(wholePath(path), FileMode::Read)),
      sources(settings, file),
      projectRows{{"PROJECT_SOURCES", &sources, nullptr, 0, 0, 0, 0},
                  {"PROJECT_HTMLFILE", &htmlFile, nullptr, 0, 0, 0, 0},
                  {"CLASS_WITH_MAIN", &mainClass, nullptr, 0, 0, 0, 0},
                  {"PROJECT_MULTIMAIN", &multiMain, nullptr, 0, 0, 0, 0},
                  {"CLASS_WITH_MAIN_SOURCE", &mainSource, nullptr, 0, 0, 0, 0, true},
                  endOfRows} {}

ProjectValues::~ProjectValues() = default;

ProjectContext::ProjectContext(Settings& settings, const std::string& path)
    : ProjectValues(settings, path),
      TagTable(projectRows.data(), settings.context().program.version,
               [&settings](const std::string& text) { settings.context().tell(text); }),
      settings_(settings) {}

ProjectContext::~ProjectContext() = default;

std::unique_ptr<ProjectContext> openedProject(Settings& settings, const std::string& path, bool create) {
  auto project = std::make_unique<ProjectContext>(settings, path);
  // What a new project takes the place of stays whole until the new one is saved.
  project->file.open(create ? FileMode::Append : FileMode::Read);
  project->file.close();
  int status = 0;
  if (settings.currentProject)
    forgetProjectValues(settings);
  else
    settings.readDefaultConfiguration(status);
  settings.lastProjectFile = project->quotedPath();
  settings.saveDefaultConfiguration();
  if (!create) project->load();
  return project;
}

ProjectContext* openProject(const Settings& settings) {
  return settings.currentProject ? settings.currentProject->context() : nullptr;
}

void ProjectContext::tell(const std::string& text) const {
  settings_.context().tell(text);
}

void ProjectContext::load() {
  // A source that is set aside would otherwise count as one that has gone.
  PieceFolder::putBackLeftOvers(folder());
  try {
    file.open(FileMode::Read);
    // Each table meets the other's tags as unknown ones.
    int status = 0;
    settings_.readConfiguration(status, file);
    status |= read(file);
    if (status & READ_FAILURE_MASK)
      tell("Unable to fully establish project environment.\nCheck settings and project files!");
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    tell(failure.message + "\nCan't read settings for project.");
  }
  file.close();
}

void ProjectContext::save() {
  try {
    ReplacingFile fresh(file.name().fullName());
    settings_.saveInto(fresh);
    write(fresh);
    fresh.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    tell(failure.message + "\nCan't save settings for project.");
  }
}

void ProjectContext::update() {
  const WaitCursor hourglass(settings_.context().desktop);
  // Compiles nothing: it throws where there is no compiler.
  const Compiler compiler(settings_, std::nullopt);
  sources.followSettings();
  findMainClass();
  findWhetherUpToDate();
}

void ProjectContext::findMainClass() {
  std::optional<std::size_t> found;
  const JavaReading reading = javaReading(settings_);
  if (!multiMain) {
    mainClass.clear();
    mainSource.clear();
  }
  for (std::size_t i = sources.size(); i-- > 0;) {
    JavaSourcefile& source = sources[i];
    if (!source.isCurrent(reading)) source.analyse(reading);
    const std::string here = multiMain ? "" : source.mainClass();
    if (here.empty()) continue;
    if (found) {
      mainClass.clear();
      throw JavaSourcefile::MultiplePublicStaticVoidMainE(
          "Files " + shownNameOf(*found) + "\nand " + shownNameOf(i) +
          "\nboth have \"public static void main\" methods."
          "\n\nEdit source files to resolve conflict"
          "\nor switch to Tarnwick's fileview"
          "\nor press Files button and allow multiple classes with a main method.");
    }
    found = i;
    mainClass = here;
  }
}

void ProjectContext::findWhetherUpToDate() {
  const TypeIndex index(collectClasses(ALL_TYPES));
  upToDate_ = !sources.empty() && allUpToDate(sources, index, settings_.javacDestination, folderNoSlash());
}

std::vector<ClassRef> ProjectContext::collectClasses(int types) const {
  std::vector<ClassRef> found;
  for (std::size_t i = sources.size(); i-- > 0;) {
    const JavaSourcefile& source = sources[i];
    if (types & CLASSES) {
      for (const auto& type : source.classes()) found.push_back({*type, source});
    }
    if (types & INTERFACES) {
      for (const auto& type : source.interfaces()) found.push_back({*type, source});
    }
  }
  return found;
}

std::string ProjectContext::shownNameOf(std::size_t source) const {
  return quotedIfBlank(sources.nameOf(source));
}

std::string ProjectContext::nameOfSource(const JavaSourcefile& source) const {
  for (std::size_t i = 0; i < sources.size(); ++i)
    if (&sources[i] == &source) return sources.nameOf(i);
  return "";
}

std::vector<const JavaSourcefile*> ProjectContext::declaring(const std::string& fullName) const {
  std::vector<const JavaSourcefile*> found;
  for (const auto& [type, source] : collectClasses(ALL_TYPES))
    if (source.indexedName(type) == fullName) found.push_back(&source);
  const bool mayBePicked = fullName == mainClass;
  std::stable_partition(found.begin(), found.end(),
                        [&](const auto* source) { return mayBePicked && nameOfSource(*source) == mainSource; });
  return found;
}

std::vector<std::string> ProjectContext::sourceRoots(const std::string& running) const {
  std::vector<std::string> roots;
  if (!settings_.newerJava) return roots;
  std::set<std::string> known;
  const auto add = [&](const std::string& root) {
    if (known.insert(root).second) roots.push_back(root);
  };
  if (!running.empty())
    for (const auto* source : declaring(running)) add(source->root());
  for (std::size_t i = 0; i < sources.size(); ++i) add(sources[i].root());
  return roots;
}

std::string ProjectContext::fullNameOf(const std::string& name) const {
  if (!settings_.newerJava) return name;
  std::set<std::string> found;
  for (const auto& [type, source] : collectClasses(ALL_TYPES)) {
    const std::string fullName = source.indexedName(type);
    if (type.name == name) found.insert(fullName);
  }
  return found.size() == 1 ? *found.begin() : name;
}

std::string ProjectContext::classFileOf(const std::string& name) const {
  const std::string fullName = fullNameOf(name);
  std::vector<std::string> folders;
  if (classesFollowPackages(settings_.javacDestination)) folders = sourceRoots(fullName);
  folders.push_back(classFolder(settings_.javacDestination, folderNoSlash()));
  for (const auto& folder : folders) {
    const Filename file(folder, foldersOfPackage(fullName) + ".class");
    if (platform::isFile(file.fullName())) return file.fullName();
  }
  return "";
}

std::string ProjectContext::runClasspath(const std::string& running) const {
  const std::string classes = classFolder(settings_.javacDestination, folderNoSlash());
  if (!settings_.newerJava) return addToPathList(settings_.effectiveClasspath(), classes);
  std::string paths = usersClasspath(settings_);
  if (!classesFollowPackages(settings_.javacDestination)) paths = addToPathList(paths, classes);
  for (const auto& root : sourceRoots(running)) paths = addToPathList(paths, root);
  return addToPathList(paths, folderNoSlash());
}

std::string ProjectContext::derivedSourcepath(const std::string& running) const {
  if (settings_.newerJava) {
    std::string paths = settings_.sourcepath;
    for (const auto& root : sourceRoots(running)) paths = addToPathList(paths, root);
    return paths;
  }
  bool fits = true;
  const std::string root = packageRoot(mainClass, folderNoSlash(), fits);
  if (!fits) {
    tell("Warning: Unable to properly create sourcepath!\nCheck directory structure and package definitions.");
  }
  return addToPathList(settings_.sourcepath, root);
}

}  // namespace tarnwick
