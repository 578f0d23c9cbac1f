#include "platform/Characters.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <wchar.h>

namespace tarnwick::platform {

namespace {

unsigned char byteAt(std::string_view text, std::size_t position) {
  return static_cast<unsigned char>(text[position]);
}

/// How long the character is that a byte begins; 0 for a byte that begins none.
std::size_t lengthByFirst(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

/// False for overlong forms, surrogates and what lies above U+10FFFF.
bool secondFits(unsigned char first, unsigned char second) {
  const unsigned char low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
  const unsigned char high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
  return second >= low && second <= high;
}

/// How many bytes from the front belong to one character, which may be cut at the end of `text`.
std::size_t matchingBytes(std::string_view text) {
  const unsigned char first = byteAt(text, 0);
  const std::size_t length = lengthByFirst(first);
  std::size_t count = std::min<std::size_t>(length, 1);
  while (count > 0 && count < length && count < text.size()) {
    const unsigned char next = byteAt(text, count);
    if (count == 1 ? !secondFits(first, next) : (next & 0xC0) != 0x80) break;
    ++count;
  }
  return count;
}

/// How many bytes from the front are characters of their own. Nearly all text is of these, so they are passed over in
/// words.
std::size_t plainPrefix(std::string_view text) {
  constexpr std::uint64_t highBits = 0x8080808080808080U;
  std::size_t count = 0;
  for (std::uint64_t word = 0; text.size() - count >= sizeof word; count += sizeof word) {
    std::memcpy(&word, text.data() + count, sizeof word);
    if (word & highBits) break;
  }
  while (count < text.size() && byteAt(text, count) < 0x80) ++count;
  return count;
}

/// The length of the whole character at the front; 0 if there is none.
std::size_t wholeCharacter(std::string_view text) {
  const std::size_t matching = matchingBytes(text);
  return matching == lengthByFirst(byteAt(text, 0)) ? matching : 0;
}

wchar_t codeOf(std::string_view character) {
  if (character.size() == 1) return static_cast<wchar_t>(byteAt(character, 0));
  wchar_t code = byteAt(character, 0) & (0xFF >> (character.size() + 1));
  for (std::size_t i = 1; i < character.size(); ++i) code = (code << 6) | (byteAt(character, i) & 0x3F);
  return code;
}

}  // namespace

std::size_t unfinishedTail(std::string_view bytes) {
  for (std::size_t tail = 1; tail <= 3 && tail <= bytes.size(); ++tail) {
    const std::string_view end = bytes.substr(bytes.size() - tail);
    const std::size_t length = lengthByFirst(byteAt(end, 0));
    if (length > tail && matchingBytes(end) == tail) return tail;
  }
  return 0;
}

unsigned char consoleClass(char byte) {
  return static_cast<unsigned char>(byte);
}

bool isConsoleText(char byte) {
  const unsigned char value = consoleClass(byte);
  return value >= 128 || (value >= 32 && value <= 126);
}

std::string validText(std::string_view bytes) {
  const char replacement[] = "\xEF\xBF\xBD";
  std::string text;
  text.reserve(bytes.size());
  for (;;) {
    const std::size_t plain = plainPrefix(bytes);
    text += bytes.substr(0, plain);
    bytes.remove_prefix(plain);
    if (bytes.empty()) return text;
    const std::size_t length = wholeCharacter(bytes);
    if (length == 0)
      text += replacement;
    else
      text += bytes.substr(0, length);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
}

std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  for (;;) {
    const std::size_t plain = plainPrefix(text);
    columns += plain;
    text.remove_prefix(plain);
    if (text.empty()) return columns;
    const std::size_t length = wholeCharacter(text);
    // A byte that is no character shows as one replacement character; so does what the locale cannot print.
    const int width = length > 0 ? ::wcwidth(codeOf(text.substr(0, length))) : 1;
    columns += width < 0 ? 1 : static_cast<std::size_t>(width);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
}

std::size_t characterLength(std::string_view text, std::size_t position) {
  if (position >= text.size()) return 1;
  return std::max<std::size_t>(wholeCharacter(text.substr(position)), 1);
}

}  // namespace tarnwick::platform
