#include "resources/Drawings.h"

#include "resources/DrawingTexts.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

namespace {

struct Shade {
  const char* light;
  const char* dark;
};

const Shade shades[] = {
    {"#3c3c41", "#e1e1e1"},  // ink: whatever stands out from the ground
    {"#148c2d", "#5acd69"}, {"#cd1e1e", "#ff695f"}, {"#195abe", "#6eafff"},
    {"#d77d00", "#ffbe50"}, {"#ffffff", "#141414"},  // what lies upon another colour
};

}  // namespace

std::string drawing(const std::string& name) {
  const auto found =
      std::find_if(drawingTexts.begin(), drawingTexts.end(), [&](const auto& each) { return each.name == name; });
  return found == drawingTexts.end() ? "" : std::string(found->text);
}

std::string onDarkGround(std::string drawing) {
  // One colour's name never turns into another's that is still to come: all places are looked at once.
  for (auto at = drawing.find('#'); at != std::string::npos; at = drawing.find('#', at + 1)) {
    const auto found = std::find_if(std::begin(shades), std::end(shades),
                                    [&](const Shade& shade) { return drawing.compare(at, 7, shade.light) == 0; });
    if (found != std::end(shades)) drawing.replace(at, 7, found->dark);
  }
  return drawing;
}

}  // namespace tarnwick
