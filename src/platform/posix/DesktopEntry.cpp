#include "platform/posix/DesktopEntry.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <string_view>

namespace tarnwick::platform {

std::string execWord(const std::string& text) {
  std::string word;
  for (const char c : text) {
    if (std::string_view("\"`$\\").find(c) != std::string_view::npos) word += '\\';
    if (c == '%') word += '%';
    word += c;
  }
  return '"' + word + '"';
}

std::string execLine(const std::string& program, const std::vector<std::string>& arguments) {
  // The system would look for the first word without making one of its two percent signs.
  std::string line = (program.find('%') == std::string::npos ? "" : "env ") + execWord(program);
  for (const auto& argument : arguments) line += ' ' + execWord(argument);
  return line;
}

std::string drawingOf(const std::string& program, const std::string& kind, const std::string& name) {
  const std::string folder = splitPath(program).folder;
  const std::string file = name + ".svg";
  for (const std::string& path : {folder + file, folder + "../share/icons/hicolor/scalable/" + kind + '/' + file})
    if (isFile(path)) return resolvedPath(path);
  return "";
}

std::string programPicture(const std::string& program) {
  const std::string drawing = drawingOf(program, "apps", "tarnwick");
  return drawing.empty() ? "tarnwick" : drawing;
}

}  // namespace tarnwick::platform
