#include "console/TraceLink.h"

#include "platform/Characters.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarnwick {
namespace {

// A line may be a million characters long, and it is looked at for each move of the mouse.
constexpr std::size_t longestName = 500;
constexpr std::size_t longestNumber = 16;

/// The last of these characters before a place, unless it stands too far away.
std::size_t lastBefore(std::string_view text, std::size_t at, char wanted) {
  const std::size_t from = at - std::min(at, longestName);
  const std::size_t found = text.substr(from, at - from).rfind(wanted);
  return found == std::string_view::npos ? found : from + found;
}

/// Without its last part; empty if it has but one.
std::string_view withoutLastPart(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : name.substr(0, dot);
}

/// The package of the method that a text ends with, as in "at java.base/java.util.ArrayList.get".
std::string_view packageOf(std::string_view text) {
  text = text.substr(0, text.find_last_not_of(" \t") + 1);
  text.remove_prefix(text.find_last_of(" \t") + 1);
  // Behind "$$" a slash belongs to the name of a hidden class.
  const std::size_t slash = text.rfind('/', text.find("$$"));
  if (slash != std::string_view::npos) text.remove_prefix(slash + 1);
  return withoutLastPart(withoutLastPart(text));
}

/// A number, whose thousands a debugger parts with a sign of the user's language; nothing for any other text.
std::optional<int> lineNumber(std::string_view text) {
  constexpr std::size_t longestSign = 3;
  constexpr std::string_view notASign = ":;-abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  constexpr std::size_t mostDigits = 9;
  const auto digitsAt = [text](std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9') ++end;
    return end - at;
  };
  std::string digits(text.substr(0, digitsAt(0)));
  for (std::size_t at = digits.size(); at < text.size();) {
    const std::size_t group = text.find_first_of("0123456789", at);
    if (group == std::string_view::npos || group - at > longestSign || digitsAt(group) != 3) return std::nullopt;
    // A column behind the line, or a word, is no such sign.
    if (text.substr(at, group - at).find_first_of(notASign) != std::string_view::npos) return std::nullopt;
    digits += text.substr(group, 3);
    at = group + 3;
  }
  if (digits.empty() || digits.size() > mostDigits) return std::nullopt;
  const int number = std::stoi(digits);
  return number > 0 ? std::optional<int>(number) : std::nullopt;
}

/// Counts the columns of a text's beginning, from place to place.
struct Measured {
  std::string_view text;
  std::size_t place = 0;
  int columns = 0;

  int columnsTo(std::size_t next) {
    columns += static_cast<int>(platform::columnsOf(text.substr(place, next - place)));
    place = next;
    return columns;
  }
};

}  // namespace

std::optional<TraceLink> traceLinkAt(const ConsoleLine& line, int column) {
  constexpr std::string_view ending = ".java:";
  const std::string whole = line.text();
  const std::string_view text = whole;
  Measured measured{text};
  for (std::size_t at = text.find(ending); at != std::string_view::npos; at = text.find(ending, at + 1)) {
    const std::size_t start = at + ending.size();
    const std::string_view behind = text.substr(start, longestNumber + 1);
    const std::size_t size = behind.find(')');
    const std::size_t bracket = lastBefore(text, at, '(');
    if (size == std::string_view::npos || bracket == std::string_view::npos) continue;
    const std::string_view name = text.substr(bracket + 1, start - bracket - 2);
    const auto number = lineNumber(behind.substr(0, size));
    if (!number || at == bracket + 1 || name.find_first_of("/\\:\")") != std::string_view::npos) continue;
    const int first = measured.columnsTo(bracket + 1);
    const int end = measured.columnsTo(start + size);
    if (first > column) return std::nullopt;
    if (column >= end) continue;
    const std::size_t from = bracket - std::min(bracket, longestName);
    return TraceLink{
        std::string(name), *number, std::string(packageOf(text.substr(from, bracket - from))), {first, end}};
  }
  return std::nullopt;
}

}  // namespace tarnwick
