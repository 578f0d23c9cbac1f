#include "platform/UrlPath.h"

#include <cctype>
#include <string_view>

namespace tarnwick::platform {

std::string percentEncoded(const std::string& bytes) {
  static const char digits[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain =
        byte < 128 && (std::isalnum(byte) != 0 || std::string_view("/-._~").find(c) != std::string_view::npos);
    if (plain)
      text += c;
    else
      text += {'%', digits[byte >> 4], digits[byte & 15]};
  }
  return text;
}

}  // namespace tarnwick::platform
