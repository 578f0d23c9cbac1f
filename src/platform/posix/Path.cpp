#include "platform/Path.h"

#include "platform/FileSystem.h"
#include "platform/UrlPath.h"

#include <algorithm>

namespace tarnwick::platform {

const char folderSeparator = '/';
const char brokenBar[] = "\xC2\xA6";

PathParts splitPath(const std::string& path) {
  PathParts parts;
  const auto slash = path.rfind('/');
  const auto nameStart = slash == std::string::npos ? 0 : slash + 1;
  parts.folder = path.substr(0, nameStart);
  const std::string name = path.substr(nameStart);
  const auto dot = name.rfind('.');
  parts.base = name.substr(0, dot);
  if (dot != std::string::npos) parts.extension = name.substr(dot);
  return parts;
}

bool endsInSeparator(const std::string& path) {
  return path.ends_with('/');
}

std::string toolFileName(const std::string& tool) {
  return tool == "javaw" ? "java" : tool;
}

bool sameFileName(const std::string& left, const std::string& right) {
  return left == right;
}

std::string commandLineList(const std::string& list) {
  std::string result = list;
  std::replace(result.begin(), result.end(), ';', ':');
  return result;
}

std::string storedList(const std::string& typed) {
  std::string result = typed;
  std::replace(result.begin(), result.end(), ':', ';');
  return result;
}

std::string keptExecutable(const std::string& value) {
  return value;
}

std::string startFolder(const std::string&) {
  return homeFolder();
}

std::string rawCommandLine(int argc, char** argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) line += ' ';
    line += argv[i];
  }
  return line;
}

std::string documentAddress(const std::string& path, const std::string& anchor) {
  return "file://" + urlPath(absolutePath(path)) + anchor;
}

}  // namespace tarnwick::platform
