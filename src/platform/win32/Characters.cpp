#include "platform/Characters.h"

namespace tarnwick::platform {

std::size_t unfinishedTail(std::string_view) {
  return 0;
}

unsigned char consoleClass(char byte) {
  return static_cast<unsigned char>(byte & 0x7F);
}

bool isConsoleText(char byte) {
  // The low 7 bits decide, as the console has always done: 0xA0 counts as a blank, 0x8A as a line feed.
  const unsigned char value = consoleClass(byte);
  return value >= 32 && value <= 126;
}

std::string validText(std::string_view bytes) {
  return std::string(bytes);
}

std::size_t columnsOf(std::string_view text) {
  return text.size();
}

std::size_t characterLength(std::string_view, std::size_t) {
  return 1;
}

}  // namespace tarnwick::platform
