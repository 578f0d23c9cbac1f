// How the console's text looks: its letters, their sizes and its colours. The letters of the messages' window are the
// same.
#pragma once

#include "console/ConsoleSurface.h"
#include "console/StyledColours.h"

namespace tarnwick {

/// What of the look is the user's choice, and is remembered.
struct TextLook {
  int letters = 0;         ///< their size in points; 0 for the usual one
  bool wrapLines = false;  ///< long lines are broken at the window's width
  bool operator==(const TextLook&) const = default;
};

/// Where it is known, this font reads better than what the system picks of those whose letters are all of one width.
inline constexpr const char* preferredLetters = "Consolas";
/// The usual size is that of the desktop's own letters, but no smaller than this.
inline constexpr int leastUsualLetters = 10;

/// What the console of today leaves free above the text and right of it, in pixels; at the left the grid itself does.
inline constexpr int textMargin = 4;

inline constexpr int smallestLetters = 6;
inline constexpr int largestLetters = 36;

/// The colours of the text on one ground. Each can be read on what it stands on.
struct ConsolePalette {
  Colour ground;
  Colour typed;
  Colour output;
  Colour error;
  Colour debugger;
  StyledColours banner;
  StyledColours mark;  ///< what the search has found
  Colour link;         ///< under a place that a click opens

  /// The colours of a kind of text that has no style of its own.
  StyledColours of(int kind) const;
};

/// The classic console's, whatever the desktop's colours are.
extern const ConsolePalette classicPalette;
/// Those of the console of today, on light desktops and on dark ones.
extern const ConsolePalette lightPalette;
extern const ConsolePalette darkPalette;

/// The size that is so many steps larger, or smaller, as far as there is one.
int steppedLetters(int points, int steps);

/// The same for the size of a look, where `usual` is the usual one.
int steppedLetters(int letters, int steps, int usual);

}  // namespace tarnwick
