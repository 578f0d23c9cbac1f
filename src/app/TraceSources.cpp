#include "app/TraceSources.h"

#include "app/TarnwickDlg.h"
#include "base/PackageRoot.h"
#include "base/RelativeName.h"
#include "base/TagRow.h"
#include "base/TagTable.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "base/TokenString.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "settings/Classpaths.h"
#include "settings/Settings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace tarnwick {
namespace {

using Names = std::vector<std::string>;

/// The names of sources in a project's file; none if it can't be read, which nobody asked about.
Names sourcesOf(const std::string& projectFile) {
  std::string text;
  const std::array<TagRow, 2> rows{{{"PROJECT_SOURCES", &text, nullptr, 0, 0, 0, 0}, endOfRows}};
  try {
    Tarnwickfile file(projectFile, FileMode::Read);
    TagTable(rows.data(), "", [](const std::string&) {}).read(file);
    TokenString names;
    names.fromString(text);
    return names.elements();
  } catch (const Tarnwickfile::FileNotOpenE&) {
    return {};
  } catch (const StringableM::InvalidDataE&) {
    return {};
  }
}

/// The paths of a list with ";" between them.
Names pathsIn(const std::string& list) {
  Names paths;
  for (std::size_t start = 0; start <= list.size();) {
    const std::size_t end = std::min(list.find(';', start), list.size());
    const std::string path = cleanedPath(list.substr(start, end - start));
    if (!path.empty()) paths.push_back(path);
    start = end + 1;
  }
  return paths;
}

/// The paths that `java` or `jdb` is given, with ";" between them.
struct GivenPaths {
  std::string sources;
  std::string classes;
};

/// Of several options of a kind the last counts, and what stands behind the class is the program's own.
GivenPaths givenPaths(const Names& arguments) {
  const auto isOne = [](const std::string& word, std::initializer_list<const char*> options) {
    return std::find(options.begin(), options.end(), word) != options.end();
  };
  GivenPaths given;
  for (std::size_t i = 0; i < arguments.size() && arguments[i].starts_with('-'); ++i) {
    const std::string& word = arguments[i];
    const std::string value = i + 1 < arguments.size() ? platform::storedList(arguments[i + 1]) : "";
    constexpr std::string_view joined = "--class-path=";
    if (word.starts_with(joined)) given.classes = platform::storedList(word.substr(joined.size()));
    if (isOne(word, {"-classpath", "-cp", "--class-path"})) given.classes = value;
    if (word == "-sourcepath") given.sources = value;
    if (isOne(word, {"-jar", "-m", "--module"})) break;
    if (isOne(word, {"-classpath", "-cp", "--class-path", "-sourcepath", "-p", "--module-path", "--upgrade-module-path",
                     "--add-modules", "--limit-modules", "--add-exports", "--add-opens", "--add-reads"}))
      ++i;
  }
  return given;
}

/// Files, each once, whatever way leads to it.
class FoundFiles {
 public:
  void addIfThere(const Filename& file) {
    if (!platform::isFile(file.fullName())) return;
    const std::string target = platform::resolvedPath(file.fullName());
    const auto isSame = [&target](const std::string& other) { return platform::sameFileName(other, target); };
    if (std::any_of(targets_.begin(), targets_.end(), isSame)) return;
    targets_.push_back(target);
    files_.push_back(file.fullName());
  }
  bool empty() const { return files_.empty(); }
  Names take() { return std::move(files_); }

 private:
  Names files_;
  Names targets_;
};

void addOfProject(FoundFiles& found, const TraceFolders& folders, const TraceLink& trace, bool inPackage) {
  for (const auto& name : folders.sources) {
    if (!leadsDown(name)) continue;
    const Filename source(folders.projectFolder, localName(name));
    if (!platform::sameFileName(source.nameWithExtension(), trace.file)) continue;
    if (!inPackage || rootOfPackage(source.directoryNoSlash(), trace.package)) found.addIfThere(source);
  }
}

}  // namespace

TraceFolders traceFolders(const Settings& settings, const std::string& configFile, const std::string& runArguments) {
  TraceFolders folders;
  folders.startFolder = platform::currentDirectory();
  const Filename config(configFile);
  if (isProjectFile(config)) {
    folders.projectFolder = Filename(platform::absolutePath(config.fullName())).directoryNoSlash();
    for (const auto& name : sourcesOf(config.fullName())) folders.sources.push_back(trimLeft(name));
  }
  const GivenPaths given = givenPaths(platform::splitCommandText(runArguments));
  for (const auto& list : {given.sources, settings.sourcepath, given.classes, usersClasspath(settings)}) {
    for (const auto& path : pathsIn(list)) folders.roots.push_back(platform::absolutePath(path));
  }
  folders.roots.push_back(folders.startFolder);
  return folders;
}

std::vector<std::string> traceSources(const TraceFolders& folders, const TraceLink& trace) {
  const std::string inPackage =
      localName((trace.package.empty() ? "" : foldersOfPackage(trace.package) + '/') + trace.file);
  FoundFiles found;
  addOfProject(found, folders, trace, true);
  for (const auto& root : folders.roots) found.addIfThere(Filename(root, inPackage));
  // The program may begin within its packages.
  if (const auto root = rootOfPackage(folders.startFolder, trace.package)) found.addIfThere(Filename(*root, inPackage));
  if (found.empty()) addOfProject(found, folders, trace, false);
  if (!found.empty()) return found.take();
  for (const auto& root : folders.roots) found.addIfThere(Filename(root, trace.file));
  return found.take();
}

}  // namespace tarnwick
