#include "platform/FileNames.h"

#include "platform/FileSystem.h"

#include <windows.h>

namespace tarnwick::platform {

namespace {

constexpr int longestPath = MAX_PATH - 1;

int charactersIn(const std::string& text) {
  return MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
}

/// The whole path of a file; of one that is too long the system may make none.
std::string wholePath(const std::string& path) {
  const std::string whole = absolutePath(path);
  const bool isWhole = whole != path || path.starts_with('\\') || path.find(':') == 1;
  return isWhole ? whole : currentDirectory() + '\\' + path;
}

}  // namespace

std::string whyNoFile(const std::string& path) {
  const std::string devices = "\\\\?\\";
  if (path.find('?', path.starts_with(devices) ? devices.size() : 0) != std::string::npos) {
    return "No file's name holds a \"?\". It may stand for a letter that is not in the character set which Windows "
           "gives "
           "to this program.";
  }
  if (charactersIn(wholePath(path)) <= longestPath) return "";
  return "Windows takes no path of more than " + std::to_string(longestPath) + " characters from this program.";
}

std::string fileNameOf(const std::string& utf8) {
  if (GetACP() == CP_UTF8) return utf8;
  const int length = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), length, wide.data(), length)));
  const int units = static_cast<int>(wide.size());
  // In the two-byte sets a character takes no more than two.
  std::string name(2 * wide.size(), '\0');
  BOOL isIncomplete = FALSE;
  const int used = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), units, name.data(),
                                       static_cast<int>(name.size()), nullptr, &isIncomplete);
  name.resize(static_cast<std::size_t>(used));
  return name.empty() || isIncomplete ? utf8 : name;
}

}  // namespace tarnwick::platform
