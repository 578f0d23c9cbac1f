#include "tools/ManifestClassPath.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/UrlPath.h"

#include <array>
#include <vector>

namespace tarnwick {

namespace {

const std::string fileScheme = "file:";

bool isUrl(const std::string& word) {
  return equalsIgnoringCase(word.substr(0, fileScheme.size()), fileScheme);
}

bool separates(char c, const std::string& word) {
  // Where ":" separates paths, that of a URL does not.
  if (c == ':' && isUrl(word + c) && word.size() < fileScheme.size()) return false;
  return isWhite(c) || platform::storedList(std::string(1, c)) == ";";
}

std::vector<std::string> elementsOf(const std::string& list) {
  std::vector<std::string> elements(1);
  bool quoted = false;
  for (const char c : list) {
    if (c == '"')
      quoted = !quoted;
    else if (quoted || !separates(c, elements.back()))
      elements.back() += c;
    else if (!elements.back().empty())
      elements.emplace_back();
  }
  if (elements.back().empty()) elements.pop_back();
  return elements;
}

bool isAbsolute(const std::string& path) {
  const auto parts = platform::splitPath(path);
  return !parts.drive.empty() || platform::endsInSeparator(parts.folder.substr(0, 1));
}

std::string withSeparator(const std::string& folder) {
  return folder.empty() || platform::endsInSeparator(folder) ? folder : folder + platform::folderSeparator;
}

/// The path with the links in its folder followed.
std::string resolved(const std::string& path) {
  const Filename file(platform::absolutePath(path));
  return withSeparator(platform::resolvedPath(file.directory())) + file.nameWithExtension();
}

std::string urlOf(const std::string& path, const std::string& archiveFolder) {
  if (!isAbsolute(path)) return platform::urlPath(path);
  const std::string whole = platform::absolutePath(path);
  const std::string folder = withSeparator(platform::absolutePath(archiveFolder));
  const std::array<std::pair<std::string, std::string>, 2> sights = {
      {{whole, folder}, {resolved(whole), resolved(folder)}}};
  for (const auto& [seen, from] : sights) {
    if (platform::sameFileName(withSeparator(seen), from)) return "./";
    if (platform::sameFileName(seen.substr(0, from.size()), from)) return platform::urlPath(seen.substr(from.size()));
  }
  return fileScheme + platform::urlPath(whole);
}

/// Java takes what does not end in "/" for an archive.
std::string withFolderMark(const std::string& url, bool isFolder) {
  return isFolder && !url.ends_with('/') ? url + '/' : url;
}

}  // namespace

std::string manifestClassPath(const std::string& list, const std::string& archiveFolder) {
  std::string urls;
  for (const auto& element : elementsOf(list)) {
    if (!urls.empty()) urls += ' ';
    if (isUrl(element)) {
      urls += element;
      continue;
    }
    const std::string place = isAbsolute(element) ? element : withSeparator(archiveFolder) + element;
    urls += withFolderMark(urlOf(element, archiveFolder), platform::isFolder(place));
  }
  return urls;
}

std::string continuedLines(const std::string& lines) {
  // With its line end a line has 72 bytes at most; the blank that begins a continuation is one of them.
  constexpr std::size_t longest = 71;
  std::string result;
  std::size_t length = 0;
  for (const char c : lines) {
    if (c == '\n') {
      length = 0;
    } else if (length++ == longest) {
      result += "\n ";
      length = 2;
    }
    result += c;
  }
  return result;
}

}  // namespace tarnwick
