#include "base/PackageRoot.h"

#include "platform/Path.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {

namespace {

std::string withoutLastSeparators(std::string path) {
  const std::size_t least = platform::splitPath(path).drive.size() + 1;
  while (path.size() > least && platform::endsInSeparator(path)) path.pop_back();
  return path;
}

/// How much of the path names a computer and what it shares, as in "\\computer\share"; no package is named so.
std::size_t sizeOfShare(const std::string& path) {
  const auto separates = [&path](std::size_t at) { return platform::endsInSeparator(path.substr(at, 1)); };
  if (path.size() < 3 || !separates(0) || !separates(1)) return 0;
  std::size_t names = 0;
  std::size_t end = 2;
  for (; end < path.size() && names < 2; ++end)
    if (separates(end)) ++names;
  return end;
}

/// Takes the last name off the path; nothing if there is none.
std::optional<std::string> takeLastName(std::string& path) {
  for (std::size_t leaving = 0;;) {
    const auto parts = platform::splitPath(withoutLastSeparators(path));
    const std::string name = parts.base + parts.extension;
    if (name.empty()) return std::nullopt;
    path = parts.drive + parts.folder;
    if (name == ".") continue;
    if (name == "..")
      ++leaving;
    else if (leaving > 0)
      --leaving;
    else
      return name;
  }
}

}  // namespace

std::optional<std::string> rootOfPackage(const std::string& folder, const std::string& package) {
  if (package.starts_with('.')) return std::nullopt;
  std::string root = folder;
  for (std::string left = package; !left.empty();) {
    const auto point = left.rfind('.');
    const std::string expected = point == std::string::npos ? left : left.substr(point + 1);
    const auto name = takeLastName(root);
    if (!name || !platform::sameFileName(*name, expected)) return std::nullopt;
    left.erase(point == std::string::npos ? 0 : point);
  }
  if (root.size() < std::min(sizeOfShare(folder), folder.size())) return std::nullopt;
  if (root.size() == platform::splitPath(root).drive.size()) root += '.';
  return withoutLastSeparators(root);
}

std::string rootOfSource(const Filename& source, const std::string& package) {
  const std::string folder = source.directoryNoSlash();
  const auto root = rootOfPackage(folder, package);
  return root ? *root : rootOfPackage(folder, "").value_or(folder);
}

std::string foldersOfPackage(const std::string& package) {
  std::string folders = package;
  std::replace(folders.begin(), folders.end(), '.', platform::folderSeparator);
  return folders;
}

}  // namespace tarnwick
