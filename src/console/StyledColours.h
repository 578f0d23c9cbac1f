// The colours in which styled text is painted.
#pragma once

#include "console/ConsoleSurface.h"
#include "console/TextStyle.h"

namespace tarnwick {

struct StyledColours {
  Colour ink;
  Colour ground;
  bool operator==(const StyledColours&) const = default;
};

/// The colours of a style for text that shows in `ink` on `ground` where it has no style. Where the style says anything
/// about colours, the ink keeps its distance from the ground: what a program takes for a dark ground can be read too.
StyledColours coloursOf(const TextStyle& style, const StyledColours& plain);

/// The colour of this code, which is not `plain`.
Colour colourOfCode(TextStyle::Code code);

/// How far two colours stand apart for the eye: from 1 for the same to 21 for black and white.
double contrast(Colour one, Colour other);

}  // namespace tarnwick
