#include "settings/LayoutValue.h"

#include "base/Text.h"

namespace tarnwick {

namespace {
const char* const names[] = {"VERTICAL", "HORIZONTAL", "FLAT"};
}

std::string LayoutValue::toString() {
  return value >= 0 && value < 3 ? names[value] : names[VERTICAL];
}

void LayoutValue::fromString(const std::string& text) {
  value = VERTICAL;
  for (int i = 0; i < 3; ++i) {
    if (equalsIgnoringCase(text, names[i])) value = i;
  }
}

}  // namespace tarnwick
