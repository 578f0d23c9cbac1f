#include "Property.h"

#include <cstdio>
#include <cstdlib>

namespace tarnwick::fuzz {

namespace {

/// In quotes, with whatever is not plain ASCII as a number.
std::string shown(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    char number[8];
    std::snprintf(number, sizeof number, "\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
    result += c >= ' ' && c < '\x7f' ? std::string(1, c) : std::string(number);
  }
  return result + '"';
}

}  // namespace

std::string textOf(const std::uint8_t* data, std::size_t size) {
  return std::string(data, data + size);
}

void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "Broken: %s\n", rule);
  std::abort();
}

void requireSame(const std::string& found, const std::string& expected, const char* rule) {
  if (found == expected) return;
  std::fprintf(stderr, "found    %s\nexpected %s\n", shown(found).c_str(), shown(expected).c_str());
  require(false, rule);
}

}  // namespace tarnwick::fuzz
