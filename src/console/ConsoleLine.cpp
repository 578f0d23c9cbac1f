#include "console/ConsoleLine.h"

#include "console/TextCells.h"
#include "platform/Characters.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarnwick {

namespace {

bool alike(const ConsoleSegment& segment, int kind, const TextStyle& style) {
  return segment.kind == kind && segment.style == style;
}

std::string blanks(int count) {
  return std::string(static_cast<std::size_t>(count), ' ');
}

}  // namespace

void ConsoleLine::append(std::string_view text, int kind, const TextStyle& style) {
  if (segments_.empty() || !alike(segments_.back(), kind, style)) segments_.push_back({kind, {}, 0, style});
  const int columns = static_cast<int>(platform::columnsOf(text));
  segments_.back().text.append(text);
  segments_.back().columns += columns;
  length_ += columns;
  bytes_ += text.size();
}

void ConsoleLine::append(ConsoleSegment segment) {
  if (!segments_.empty() && alike(segments_.back(), segment.kind, segment.style)) {
    return append(segment.text, segment.kind, segment.style);
  }
  length_ += segment.columns;
  bytes_ += segment.text.size();
  segments_.push_back(std::move(segment));
}

std::optional<ConsoleSegment> ConsoleLine::takeInput() {
  if (currentKind() != KIND_INPUT) return std::nullopt;
  ConsoleSegment input = std::move(segments_.back());
  segments_.pop_back();
  length_ -= input.columns;
  bytes_ -= input.text.size();
  return input;
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
  bytes_ += text.size();
  bytes_ -= last.text.size();
  last.text = text;
  last.columns = columns;
}

int ConsoleLine::overwrite(int column, std::string_view text, int kind, const TextStyle& style) {
  const int columns = static_cast<int>(platform::columnsOf(text));
  if (overwriteInPlace(column, columns, text, kind, style)) return column + columns;
  const int covered = std::min(column + columns, length_);
  const std::size_t first = cut(column);
  const std::size_t last = cut(covered);
  for (std::size_t i = first; i < last; ++i) bytes_ -= segments_[i].text.size();
  bytes_ += text.size();
  length_ += column + columns - covered;
  const auto begin = segments_.begin();
  segments_.erase(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(last));
  segments_.insert(segments_.begin() + static_cast<std::ptrdiff_t>(first),
                   ConsoleSegment{kind, std::string(text), columns, style});
  mergeWithNext(first);
  if (first > 0) mergeWithNext(first - 1);
  return column + columns;
}

// What a progress bar does again and again: as many plain letters as before, in the same segment.
bool ConsoleLine::overwriteInPlace(int column, int columns, std::string_view text, int kind, const TextStyle& style) {
  int start = length_;
  for (auto segment = segments_.rbegin(); segment != segments_.rend(); ++segment) {
    start -= segment->columns;
    if (start > column) continue;
    const bool plain = segment->text.size() == static_cast<std::size_t>(segment->columns) &&
                       text.size() == static_cast<std::size_t>(columns);
    if (!plain || !alike(*segment, kind, style) || column + columns > start + segment->columns) return false;
    segment->text.replace(static_cast<std::size_t>(column - start), text.size(), text);
    return true;
  }
  return false;
}

std::size_t ConsoleLine::cut(int column) {
  int start = length_;
  for (std::size_t i = segments_.size(); i > 0; --i) {
    if (start <= column) return i;
    ConsoleSegment& segment = segments_[i - 1];
    start -= segment.columns;
    if (start >= column) continue;
    const int place = column - start;
    const TextPlace left = characterAtColumn(segment.text, segment.columns, place);
    const std::size_t right = byteAtColumn(segment.text, segment.columns, place);
    const int rightColumn = static_cast<int>(platform::columnsOf(std::string_view(segment.text).substr(0, right)));
    ConsoleSegment rest{segment.kind, blanks(rightColumn - place) + segment.text.substr(right), segment.columns - place,
                        segment.style};
    // Where the border lies between two characters, both places are the same.
    const std::size_t before = segment.text.size();
    if (left.column < place) segment.text.resize(left.byte);
    if (left.column >= place) segment.text.resize(right);
    segment.text += blanks(left.column < place ? place - left.column : 0);
    segment.columns = place;
    bytes_ += segment.text.size() + rest.text.size();
    bytes_ -= before;
    segments_.insert(segments_.begin() + static_cast<std::ptrdiff_t>(i), std::move(rest));
    return i;
  }
  return 0;
}

void ConsoleLine::mergeWithNext(std::size_t segment) {
  if (segment + 1 >= segments_.size()) return;
  ConsoleSegment& left = segments_[segment];
  const ConsoleSegment& right = segments_[segment + 1];
  if (!alike(left, right.kind, right.style)) return;
  left.text += right.text;
  left.columns += right.columns;
  segments_.erase(segments_.begin() + static_cast<std::ptrdiff_t>(segment) + 1);
}

std::string ConsoleLine::text() const {
  std::string joined;
  for (const auto& segment : segments_) joined += segment.text;
  return joined;
}

std::size_t ConsoleLine::weight() const {
  return bytes_ + (segments_.empty() ? 0 : segments_.size() - 1) * sizeof(ConsoleSegment);
}

}  // namespace tarnwick
