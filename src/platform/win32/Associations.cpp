#include "platform/Associations.h"

#include <windows.h>

#include <algorithm>
#include <cctype>

namespace tarnwick::platform {
namespace {

/// The text with the variables of the environment in it replaced.
std::string expanded(const std::string& text) {
  char buffer[1024];
  const DWORD size = ExpandEnvironmentStringsA(text.c_str(), buffer, sizeof buffer);
  return size > 0 && size <= sizeof buffer ? std::string(buffer) : text;
}

class Key {
 public:
  Key(HKEY root, const std::string& path) {
    if (RegOpenKeyExA(root, path.c_str(), 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~Key() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  /// Takes the key's unnamed text. False, and nothing taken, if there is none.
  bool readDefault(std::string& text) const {
    char buffer[1024];
    DWORD size = sizeof buffer;
    DWORD type = 0;
    if (key_ == nullptr) return false;
    if (RegQueryValueExA(key_, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size) != ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ)) {
      return false;
    }
    text.assign(buffer, std::find(buffer, buffer + size, '\0'));
    if (type == REG_EXPAND_SZ) text = expanded(text);
    return true;
  }

 private:
  HKEY key_ = nullptr;
};

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

std::string openCommand(const std::string& extension) {
  std::string text;
  // Where the class has no command, its name stays; nobody finds a program in that.
  if (Key(HKEY_CLASSES_ROOT, extension).readDefault(text) && !text.empty()) {
    Key(HKEY_CLASSES_ROOT, text + "\\shell\\open\\command").readDefault(text);
  }
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
