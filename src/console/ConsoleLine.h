#pragma once

#include "console/ConsoleSegment.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One line of the console: segments that alternate in kind.
class ConsoleLine {
 public:
  /// Adds to the last segment, or begins a new one if that is of another kind. An empty text, too, begins one.
  void append(std::string_view text, int kind);

  /// The last segment's text, null for a line without one; `kindOut` takes `currentKind`.
  const std::string* lastSegment(int& kindOut) const;

  /// Replaces the last segment if the user typed it; a line without segments gets the text as typed. Does nothing for
  /// any other kind.
  void replaceLast(std::string_view text);

  const std::vector<ConsoleSegment>& segments() const { return segments_; }
  int currentKind() const { return segments_.empty() ? int{KIND_NONE} : segments_.back().kind; }
  /// Columns of all segments.
  int length() const { return length_; }
  /// The segments' texts in one.
  std::string text() const;

 private:
  std::vector<ConsoleSegment> segments_;
  int length_ = 0;
};

}  // namespace tarnwick
