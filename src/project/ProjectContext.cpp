#include "project/ProjectContext.h"

#include "base/ReplacingFile.h"
#include "base/Text.h"
#include "base/TokenString.h"
#include "dialogbase/WaitCursor.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/PathRules.h"
#include "source/Compiler.h"
#include "source/PieceFolder.h"

#include <algorithm>

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

ProjectValues::ProjectValues(Desktop& desktop, const std::string& path, FileMode mode)
    : file(wholePath(path), mode),
      sources(desktop, file),
      projectRows{{{"PROJECT_SOURCES", TAG_STRINGABLE, static_cast<StringableM*>(&sources), nullptr, 0, 0, 0, 0},
                   {"PROJECT_HTMLFILE", TAG_STRING, &htmlFile, nullptr, 0, 0, 0, 0},
                   {"CLASS_WITH_MAIN", TAG_STRING, &mainClass, nullptr, 0, 0, 0, 0},
                   {"PROJECT_MULTIMAIN", TAG_BOOL, &multiMain, nullptr, 0, 0, 0, 0},
                   {"", TAG_END, nullptr, nullptr, 0, 0, 0, 0}}} {
  file.close();
}

ProjectContext::ProjectContext(Settings& settings, const std::string& path, bool create)
    // What a new project takes the place of stays whole until the new one is saved.
    : ProjectValues(settings.context().desktop, path, create ? FileMode::Append : FileMode::Read),
      TagTable(projectRows.data(), settings.context().program.version,
               [&settings](const std::string& text) { settings.context().desktop.message(text); }),
      settings_(settings) {
  int status = 0;
  if (settings_.currentProject)
    forgetProjectValues(settings_);
  else
    settings_.readDefaultConfiguration(status);
  settings_.lastProjectFile = quotedPath();
  settings_.saveDefaultConfiguration(nullptr);
  if (!create) load();
}

void ProjectContext::load() {
  Desktop& desktop = settings_.context().desktop;
  // A source that is set aside would otherwise count as one that has gone.
  PieceFolder::putBackLeftOvers(folder());
  try {
    file.open(FileMode::Read);
    // Each table meets the other's tags as unknown ones.
    int status = 0;
    settings_.readConfiguration(status, file);
    status |= read(file);
    if (status & READ_FAILURE_MASK)
      desktop.message("Unable to fully establish project environment.\nCheck settings and project files!");
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop.message(failure.message + "\nCan't read settings for project.");
  }
  file.close();
}

void ProjectContext::save() {
  try {
    ReplacingFile fresh(file.name().fullName());
    settings_.saveDefaultConfiguration(&fresh);
    write(fresh);
    fresh.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    settings_.context().desktop.message(failure.message + "\nCan't save settings for project.");
  }
}

void ProjectContext::update() {
  const WaitCursor hourglass(settings_.context().desktop);
  // Compiles nothing: it makes sure that the tools' folder is known, and asks for it.
  const Compiler compiler(settings_, nullptr);
  findMainClass();
  findWhetherUpToDate();
}

void ProjectContext::findMainClass() {
  const JavaSourcefile* found = nullptr;
  if (!multiMain) mainClass.clear();
  for (std::size_t i = sources.size(); i-- > 0;) {
    JavaSourcefile& source = sources[i];
    if (!source.isCurrent()) source.analyse();
    const std::string here = multiMain ? "" : source.mainClass();
    if (here.empty()) continue;
    if (found) {
      mainClass.clear();
      throw JavaSourcefile::MultiplePublicStaticVoidMainE(
          "Files " + found->name().quotedNameWithExtension() + "\nand " + source.name().quotedNameWithExtension() +
          "\nboth have \"public static void main\" methods."
          "\n\nEdit source files to resolve conflict"
          "\nor switch to Tarnwick's fileview"
          "\nor press Files button and allow multiple classes with a main method.");
    }
    found = &source;
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

std::string ProjectContext::runClasspath() const {
  return addToPathList(settings_.effectiveClasspath(), classFolder(settings_.javacDestination, folderNoSlash()));
}

std::string ProjectContext::derivedSourcepath() const {
  bool fits = true;
  const std::string root = packageRoot(mainClass, folderNoSlash(), fits);
  if (!fits) {
    settings_.context().desktop.message(
        "Warning: Unable to properly create sourcepath!\nCheck directory structure and package definitions.");
  }
  return addToPathList(settings_.sourcepath, root);
}

}  // namespace tarnwick
