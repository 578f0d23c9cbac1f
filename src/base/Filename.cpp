#include "base/Filename.h"

#include "base/Text.h"
#include "platform/Path.h"

namespace tarnwick {

namespace {

std::string joined(const std::string& folder, const std::string& file) {
  std::string path = cleanedPath(folder);
  if (!path.empty() && !platform::endsInSeparator(path)) path += platform::folderSeparator;
  return path + cleanedPath(file);
}

}  // namespace

Filename::Filename(const std::string& path) : path_(cleanedPath(path)) {}

Filename::Filename(const std::string& folder, const std::string& file) : Filename(joined(folder, file)) {}

std::string Filename::quoted() const {
  return quotedIfBlank(path_);
}

std::string Filename::directory() const {
  const auto parts = platform::splitPath(path_);
  return parts.drive + parts.folder;
}

std::string Filename::directoryNoSlash() const {
  std::string folder = directory();
  // A lone separator is the root, which has no other name.
  if (folder.size() > 1 && platform::endsInSeparator(folder)) folder.pop_back();
  return folder;
}

std::string Filename::quotedDirectory() const {
  return quotedIfBlank(directory());
}

std::string Filename::quotedDirectoryNoSlash() const {
  return quotedIfBlank(directoryNoSlash());
}

std::string Filename::nameWithExtension() const {
  const auto parts = platform::splitPath(path_);
  return parts.base + parts.extension;
}

std::string Filename::quotedNameWithExtension() const {
  return quotedIfBlank(nameWithExtension());
}

std::string Filename::alwaysQuotedName() const {
  return '"' + nameWithExtension() + '"';
}

std::string Filename::baseName() const {
  return platform::splitPath(path_).base;
}

std::string Filename::quotedBaseName() const {
  return quotedIfBlank(baseName());
}

std::string Filename::extension() const {
  return platform::splitPath(path_).extension;
}

}  // namespace tarnwick
