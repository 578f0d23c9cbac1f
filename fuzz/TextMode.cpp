#include "TextMode.h"

namespace tarnwick::fuzz {

std::string asText(const std::string& bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    if (bytes[i] != '\r' || i + 1 == bytes.size() || bytes[i + 1] != '\n') text += bytes[i];
  return text;
}

}  // namespace tarnwick::fuzz
