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

std::string cleanedPath(const std::string& text) {
  const std::string trimmed = trim(text);
  if (!trimmed.starts_with('"')) return trimmed;
  // The last character goes whatever it is: a path with no closing quote loses it all the same.
  return trimmed.size() < 2 ? "" : trimmed.substr(1, trimmed.size() - 2);
}

}  // namespace tarnwick
