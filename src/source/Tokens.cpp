#include "source/Tokens.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarnwick {

namespace {

constexpr std::array<std::string_view, 12> keywords = {"import", "package",  "public",     "interface",
                                                       "class",  "abstract", "final",      "main",
                                                       "static", "void",     "implements", "extends"};

/// A set of characters, white space and delimiters, for a quick look.
constexpr std::array<bool, 256> endsOf(std::string_view delimiters) {
  std::array<bool, 256> ends{};
  for (const char c : delimiters) ends[static_cast<unsigned char>(c)] = true;
  for (const char c : std::string_view(" \t\n\v\f\r")) ends[static_cast<unsigned char>(c)] = true;
  return ends;
}

constexpr auto javaEnds = endsOf(javaDelimiters);

std::size_t lengthOfWord(Cursor cursor, const std::array<bool, 256>& ends) {
  const auto end =
      std::find_if(cursor.begin(), cursor.end(), [&](char c) { return ends[static_cast<unsigned char>(c)]; });
  return static_cast<std::size_t>(end - cursor.begin());
}

std::string_view takeWord(Cursor& cursor, std::string_view delimiters) {
  const std::size_t length =
      delimiters == javaDelimiters ? lengthOfWord(cursor, javaEnds) : lengthOfWord(cursor, endsOf(delimiters));
  const auto word = cursor.substr(0, length);
  cursor.remove_prefix(length);
  return word;
}

}  // namespace

const std::span<const std::string_view> javaKeywords = keywords;

void skipWhite(Cursor& cursor) {
  while (!cursor.empty() && isWhite(cursor.front())) cursor.remove_prefix(1);
}

Token nextToken(Cursor& cursor, std::span<const std::string_view> table, std::string_view delimiters) {
  skipWhite(cursor);
  const std::string_view word = takeWord(cursor, delimiters);
  if (word.empty() && !cursor.empty()) cursor.remove_prefix(1);
  const auto row = std::find(table.begin(), table.end(), word);
  return row == table.end() ? Token::Other : static_cast<Token>(row - table.begin());
}

std::string nextWord(Cursor& cursor, std::string_view delimiters) {
  skipWhite(cursor);
  return std::string(takeWord(cursor, delimiters));
}

}  // namespace tarnwick
