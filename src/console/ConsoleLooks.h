// How the console's text looks: its letters and their sizes. Those of the messages' window are the same.
#pragma once

namespace tarnwick {

/// What of the look is the user's choice, and is remembered.
struct TextLook {
  int letters = 0;  ///< their size in points; 0 for the usual one
  bool operator==(const TextLook&) const = default;
};

/// Where it is known, this font reads better than what the system picks of those whose letters are all of one width.
inline constexpr const char* preferredLetters = "Consolas";
/// The usual size is that of the desktop's own letters, but no smaller than this.
inline constexpr int leastUsualLetters = 10;

inline constexpr int smallestLetters = 6;
inline constexpr int largestLetters = 36;

/// The size that is so many steps larger, or smaller, as far as there is one.
int steppedLetters(int points, int steps);

/// The same for the size of a look, where `usual` is the usual one.
int steppedLetters(int letters, int steps, int usual);

}  // namespace tarnwick
