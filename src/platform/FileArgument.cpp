#include "platform/FileArgument.h"

#include "platform/Path.h"
#include "platform/Process.h"

#include <string_view>

namespace tarnwick::platform {

std::string fileArgument(const std::string& name) {
  // A command line swallows blanks in front. "+" is how editors are told a line or a command.
  const auto first = name.find_first_not_of(" \t");
  const bool misleads = first != std::string::npos && std::string_view("@-+").find(name[first]) != std::string::npos;
  return misleads ? std::string(".") + folderSeparator + name : name;
}

std::string fileWord(const std::string& name) {
  const std::string plain = fileArgument(name);
  const std::string word = commandWord(plain);
  // Elsewhere a blank in the first place does not count, but in a list of names it would be lost.
  return word == plain && plain.starts_with(' ') ? '"' + plain + '"' : word;
}

}  // namespace tarnwick::platform
