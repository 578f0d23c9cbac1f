// The platform's character set: where characters begin and end, and how wide they show.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick::platform {

/// How many bytes at the end of `bytes` are the beginning of a character that the next block will finish.
/// Always 0 where a character is one byte.
std::size_t unfinishedTail(std::string_view bytes);

/// The byte as the console classes it: the low 7 bits on Windows, the byte itself on Linux.
unsigned char consoleClass(char byte);

/// True for a byte that the console keeps as text.
bool isConsoleText(char byte);

/// True for a byte that is a character or a part of one, rather than a control code. So the console of today has it.
constexpr bool isText(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 32 && value != 127;
}

/// The bytes with whatever is no character of the set replaced by U+FFFD; unchanged where every byte is a character.
std::string validText(std::string_view bytes);

/// How many columns the text takes in a console.
std::size_t columnsOf(std::string_view text);

/// The count of bytes of the character that begins at `position`; at least 1.
std::size_t characterLength(std::string_view text, std::size_t position);

}  // namespace tarnwick::platform
