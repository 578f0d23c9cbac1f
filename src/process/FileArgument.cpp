#include "process/FileArgument.h"

#include "platform/Path.h"

#include <string_view>

namespace tarnwick {

std::string fileArgument(const std::string& path) {
  // A command line swallows blanks in front. "+" is how editors are told a line or a command.
  const auto first = path.find_first_not_of(" \t");
  const bool misleads = first != std::string::npos && std::string_view("@-+").find(path[first]) != std::string::npos;
  return misleads ? std::string(".") + platform::folderSeparator + path : path;
}

}  // namespace tarnwick
