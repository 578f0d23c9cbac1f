#pragma once

#include "console/ConsoleSegment.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One line of the console: segments, of which no two neighbours are of one kind and style.
class ConsoleLine {
 public:
  /// Adds to the last segment, or begins a new one if that is of another kind or style. An empty text, too, begins one.
  void append(std::string_view text, int kind, const TextStyle& style = {});

  /// Writes over what stands from this column on, and beyond the line's end. Of a character that is covered in part
  /// blanks are left. Gives the column behind the text.
  int overwrite(int column, std::string_view text, int kind, const TextStyle& style);

  /// The last segment's text, null for a line without one; `kindOut` takes `currentKind`.
  const std::string* lastSegment(int& kindOut) const;

  /// Replaces the last segment if the user typed it; a line without segments gets the text as typed. Does nothing for
  /// any other kind.
  void replaceLast(std::string_view text);

  /// Takes the last segment off if the user typed it.
  std::optional<ConsoleSegment> takeInput();
  /// Puts a segment at the end.
  void append(ConsoleSegment segment);

  const std::vector<ConsoleSegment>& segments() const { return segments_; }
  int currentKind() const { return segments_.empty() ? int{KIND_NONE} : segments_.back().kind; }
  /// Columns of all segments.
  int length() const { return length_; }
  /// The segments' texts in one.
  std::string text() const;
  /// What the line takes of memory: its bytes, and what each further segment costs.
  std::size_t weight() const;

 private:
  bool overwriteInPlace(int column, int columns, std::string_view text, int kind, const TextStyle& style);
  /// Makes a border between segments at the column, which is within the line. Gives the segment behind it.
  std::size_t cut(int column);
  void mergeWithNext(std::size_t segment);

  std::vector<ConsoleSegment> segments_;
  int length_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace tarnwick
