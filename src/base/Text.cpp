#include "base/Text.h"

#include <algorithm>

namespace tarnwick {

namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr std::string_view lineEnds = "\r\n";

}  // namespace

bool isWhite(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string trimLeft(const std::string& text) {
  return std::string(std::find_if_not(text.begin(), text.end(), isWhite), text.end());
}

std::string trimRight(const std::string& text) {
  return std::string(text.begin(), std::find_if_not(text.rbegin(), text.rend(), isWhite).base());
}

std::string trim(const std::string& text) {
  return trimLeft(trimRight(text));
}

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), lower);
  return text;
}

std::string upperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), upper);
  return text;
}

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

std::string quotedIfBlank(const std::string& text) {
  // A blank in the first place does not count.
  return text.find(' ', 1) == std::string::npos ? text : '"' + text + '"';
}

bool holdsLineEnd(std::string_view text) {
  return text.find_first_of(lineEnds) != std::string_view::npos;
}

std::string onOneLine(const std::string& text) {
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // The two characters of one line end are one blank.
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    line += holdsLineEnd({&text[i], 1}) ? ' ' : text[i];
  }
  return line;
}

std::string pathsOnOneLine(const std::string& list) {
  if (!holdsLineEnd(list)) return list;
  std::string paths;
  for (std::size_t begin = 0; begin < list.size();) {
    const auto end = std::min(list.find_first_of(lineEnds, begin), list.size());
    std::string line = trim(list.substr(begin, end - begin));
    begin = end + 1;
    // Where a line brings a separator of its own there is one all the same.
    if (!paths.empty()) line.erase(0, line.find_first_not_of(';'));
    if (line.empty()) continue;
    if (!paths.empty() && !paths.ends_with(';')) paths += ';';
    paths += line;
  }
  return paths;
}

std::string cleanedPath(const std::string& text) {
  const std::string trimmed = trim(text);
  if (!trimmed.starts_with('"')) return trimmed;
  // The last character goes whatever it is: a path with no closing quote loses it all the same.
  return trimmed.size() < 2 ? "" : trimmed.substr(1, trimmed.size() - 2);
}

}  // namespace tarnwick
