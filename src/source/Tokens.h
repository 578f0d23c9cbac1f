#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

/// What the scanner knows of Java's words; each value is the place of its word in `javaKeywords`.
enum class Token {
  Import,
  Package,
  Public,
  Interface,
  Class,
  Abstract,
  Final,
  Main,
  Static,
  Void,
  Implements,
  Extends,
  Other
};

/// The words, in the order of `Token`; any other text is `Token::Other`.
extern const std::span<const std::string_view> javaKeywords;

/// What ends a word besides white space. The dot is not in it, so that a qualified name is one word; nor are the angle
/// brackets.
inline constexpr std::string_view javaDelimiters = "(){}[]=!*+-/%&~^:;,";

/// A place in a statement's text: what stands from there to the end.
using Cursor = std::string_view;

/// Moves the cursor past white space.
void skipWhite(Cursor& cursor);

/// Skips white space and moves the cursor past one keyword, delimiter or other word. Case counts. The words of the
/// table hold neither white space nor delimiters.
Token nextToken(Cursor& cursor, std::span<const std::string_view> table, std::string_view delimiters);

/// Skips white space and takes the characters up to the next white space, delimiter or end; may be empty.
std::string nextWord(Cursor& cursor, std::string_view delimiters);

}  // namespace tarnwick
