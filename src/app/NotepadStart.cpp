#include "app/NotepadStart.h"

#include <charconv>
#include <string_view>

namespace tarnwick {

namespace {

/// Takes a number from 1 on off the text's beginning; 0 if there is none.
int takeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || number < 1) return 0;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

/// Understands "+12" and "+12:5"; tells if it was one of the two.
bool takePlace(std::string_view text, NotepadStart& start) {
  if (!text.starts_with('+')) return false;
  text.remove_prefix(1);
  const int line = takeNumber(text);
  int column = 0;
  if (line > 0 && text.starts_with(':')) {
    text.remove_prefix(1);
    column = takeNumber(text);
    if (column == 0) return false;
  }
  if (line == 0 || !text.empty()) return false;
  start.line = line;
  start.column = column;
  return true;
}

}  // namespace

NotepadStart notepadStart(const std::vector<std::string>& arguments) {
  NotepadStart start;
  if (arguments.empty()) return start;
  const bool placed = arguments.size() > 1 && takePlace(arguments[0], start);
  start.path = arguments[placed ? 1 : 0];
  return start;
}

}  // namespace tarnwick
