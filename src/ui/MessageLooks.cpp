#include "ui/MessageLooks.h"

namespace tarnwick::ui {

std::size_t headlineLength(std::string_view text) {
  const auto end = text.find('\n');
  const auto next = text.find_first_not_of("\n ", end == std::string_view::npos ? text.size() : end);
  if (end == std::string_view::npos || next == std::string_view::npos) return 0;
  const bool goesOn = text[next] >= 'a' && text[next] <= 'z' && text[end + 1] != '\n';
  return goesOn ? 0 : end;
}

}  // namespace tarnwick::ui
