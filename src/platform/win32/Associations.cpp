#include "platform/Associations.h"

#include "platform/win32/Registry.h"

#include <cctype>

namespace tarnwick::platform {
namespace {

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

std::string openCommand(const std::string& extension) {
  std::string text;
  // Where the class has no command, its name stays; nobody finds a program in that.
  if (readDefaultValue(HKEY_CLASSES_ROOT, {extension}, text) && !text.empty())
    readDefaultValue(HKEY_CLASSES_ROOT, {text, "shell", "open", "command"}, text);
  return text;
}

bool splitOpenCommand(const std::string& commandText, std::string& program, std::string& arguments) {
  const auto backslash = commandText.rfind('\\');
  if (backslash == std::string::npos) return false;
  std::size_t length = 4;
  auto end = lower(commandText).find(".exe ", backslash);
  if (end == std::string::npos) {
    // The quoted form is looked for as the text stands; in capitals it is not found.
    length = 5;
    end = commandText.find(".exe\" ", backslash);
  }
  if (end == std::string::npos) return false;
  program = commandText.substr(0, end + length);
  arguments = commandText.substr(end + length + 1);
  return true;
}

std::vector<std::vector<std::string>> plainTextEditors() {
  return {{"Notepad"}};
}

}  // namespace tarnwick::platform
