// What the build writes of the drawings' files.
#pragma once

#include <string_view>
#include <vector>

namespace tarnwick {

struct DrawingText {
  std::string_view name;
  std::string_view text;
};

extern const std::vector<DrawingText> drawingTexts;

}  // namespace tarnwick
