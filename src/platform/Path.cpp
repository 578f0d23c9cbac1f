#include "platform/Path.h"

#include <cstddef>

namespace tarnwick::platform {

std::string foldExecutable(std::string value) {
  // Deliberate: the console's window is titled with the folded text and found again by exactly that title.
  for (std::size_t i = 0; i < value.size(); ++i) {
    char& c = value[i];
    if (i % 2 == 0 && c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (i % 2 == 1 && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return value;
}

}  // namespace tarnwick::platform
