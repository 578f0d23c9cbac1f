#include "platform/FileNames.h"

#include <climits>
#include <cstddef>

namespace tarnwick::platform {

namespace {

constexpr std::size_t longestPath = PATH_MAX - 1;  // with the end mark that counts
constexpr std::size_t longestName = NAME_MAX;

bool hasLongName(const std::string& path) {
  std::size_t begin = 0;
  for (;;) {
    const auto end = path.find('/', begin);
    if ((end == std::string::npos ? path.size() : end) - begin > longestName) return true;
    if (end == std::string::npos) return false;
    begin = end + 1;
  }
}

}  // namespace

std::string whyNoFile(const std::string& path) {
  if (path.size() > longestPath) {
    return "The system takes no path of more than " + std::to_string(longestPath) + " bytes.";
  }
  if (hasLongName(path)) {
    return "The system takes no name of more than " + std::to_string(longestName) + " bytes in a path.";
  }
  return "";
}

std::string fileNameOf(const std::string& utf8) {
  return utf8;
}

}  // namespace tarnwick::platform
