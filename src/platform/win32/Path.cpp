#include "platform/Path.h"

#include "platform/win32/CommandLine.h"

#include <windows.h>

#include <cstddef>

namespace tarnwick::platform {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

/// The place behind the last separator from `start` on. A backslash may be the second half of a two-byte character.
std::size_t behindLastSeparator(const std::string& path, std::size_t start) {
  std::size_t behind = start;
  for (std::size_t i = start; i < path.size(); ++i) {
    if (IsDBCSLeadByte(static_cast<BYTE>(path[i])) && i + 1 < path.size())
      ++i;
    else if (isSeparator(path[i]))
      behind = i + 1;
  }
  return behind;
}

std::string upperCaseName(std::string name) {
  CharUpperBuffA(name.data(), static_cast<DWORD>(name.size()));
  return name;
}

}  // namespace

const char folderSeparator = '\\';
// The same in all the European sets.
const char brokenBar[] = "\xA6";

PathParts splitPath(const std::string& path) {
  PathParts parts;
  const std::size_t driveEnd = path.size() > 1 && path[1] == ':' ? 2 : 0;
  const std::size_t nameStart = behindLastSeparator(path, driveEnd);
  parts.drive = path.substr(0, driveEnd);
  parts.folder = path.substr(driveEnd, nameStart - driveEnd);
  const std::string name = path.substr(nameStart);
  const auto dot = name.rfind('.');
  parts.base = name.substr(0, dot);
  if (dot != std::string::npos) parts.extension = name.substr(dot);
  return parts;
}

bool endsInSeparator(const std::string& path) {
  return !path.empty() && behindLastSeparator(path, 0) == path.size();
}

std::string toolFileName(const std::string& tool) {
  return tool + ".exe";
}

bool sameFileName(const std::string& left, const std::string& right) {
  return upperCaseName(left) == upperCaseName(right);
}

std::string commandLineList(const std::string& list) {
  return list;
}

std::string storedList(const std::string& typed) {
  return typed;
}

std::string keptExecutable(const std::string& value) {
  return foldExecutable(value);
}

std::string startFolder(const std::string& windowsFolder) {
  return windowsFolder;
}

std::string withoutProgramName(const std::string& commandLine) {
  std::size_t end = 0;
  bool quoted = false;
  for (; end < commandLine.size() && (quoted || !isBlank(commandLine[end])); ++end)
    if (commandLine[end] == '"') quoted = !quoted;
  while (end < commandLine.size() && isBlank(commandLine[end])) ++end;
  return commandLine.substr(end);
}

std::string rawCommandLine(int, char**) {
  return withoutProgramName(GetCommandLineA());
}

std::string documentAddress(const std::string& path, const std::string& anchor) {
  return path + anchor;
}

}  // namespace tarnwick::platform
