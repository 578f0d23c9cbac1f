// Small operations on byte strings, in the "C" locale.
#pragma once

#include "platform/Path.h"

#include <string>
#include <string_view>

namespace tarnwick {

/// White space as the standard library's `isspace` knows it in the "C" locale.
bool isWhite(char c);

/// The text without white space at its beginning, at its end, or at both.
std::string trimLeft(const std::string& text);
std::string trimRight(const std::string& text);
std::string trim(const std::string& text);

/// The text with the letters A to Z in one case; all other bytes stay.
std::string lowerCase(std::string text);
std::string upperCase(std::string text);

/// Equality without regard to case of the letters A to Z.
bool equalsIgnoringCase(std::string_view left, std::string_view right);

/// The text in double quotes if a blank stands in it at a position above 0.
std::string quotedIfBlank(const std::string& text);

/// The text without white space at both ends; if it then begins with a double quote, its first and last characters
/// are removed, whatever the last one is.
std::string cleanedPath(const std::string& text);

/// True if something in the text would end a line of a file.
bool holdsLineEnd(std::string_view text);

/// The text on one line: each line end counts as a blank.
std::string onOneLine(const std::string& text);

/// A list of paths on one line: what stood on a line of its own is an element. Empty lines leave nothing behind.
std::string pathsOnOneLine(const std::string& list);

/// The folding of an executable's name; where it is applied is the platform's matter.
using platform::foldExecutable;

}  // namespace tarnwick
