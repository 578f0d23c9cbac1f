#include "console/ConsoleLine.h"

#include "platform/Characters.h"

namespace tarnwick {

void ConsoleLine::append(std::string_view text, int kind) {
  if (segments_.empty() || kind != segments_.back().kind) segments_.push_back({kind, {}, 0});
  const int columns = static_cast<int>(platform::columnsOf(text));
  segments_.back().text.append(text);
  segments_.back().columns += columns;
  length_ += columns;
}

const std::string* ConsoleLine::lastSegment(int& kindOut) const {
  kindOut = currentKind();
  return segments_.empty() ? nullptr : &segments_.back().text;
}

void ConsoleLine::replaceLast(std::string_view text) {
  if (segments_.empty()) return append(text, KIND_INPUT);
  ConsoleSegment& last = segments_.back();
  if (last.kind != KIND_INPUT) return;
  const int columns = static_cast<int>(platform::columnsOf(text));
  length_ += columns - last.columns;
  last.text = text;
  last.columns = columns;
}

std::string ConsoleLine::text() const {
  std::string joined;
  for (const auto& segment : segments_) joined += segment.text;
  return joined;
}

}  // namespace tarnwick
