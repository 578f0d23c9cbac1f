#pragma once

#include "console/ConsoleGrid.h"
#include "console/TarnwickDoc.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// Looks for words in a console's text, without regard to the case of the letters A to Z. What reads the text wants the
/// text lock held.
class TextSearch {
 public:
  /// The place of a hit: its line in the document as it stands, and its columns.
  struct Hit {
    int line = 0;
    int first = 0;
    int last = 0;
    bool operator==(const Hit&) const = default;
  };

  /// Nothing to look for if it is empty. The next hit is then the last one of the text.
  void lookFor(const std::string& text);
  bool active() const { return !wanted_.empty(); }
  const std::string& text() const { return text_; }

  /// The columns of all hits in the line, from left to right.
  std::vector<ColumnRange> hitsIn(const ConsoleLine& line) const;

  /// The hit before the last one that was found, or behind it; beyond the first or last hit it goes on at the other
  /// end. None if there is no hit at all.
  std::optional<Hit> step(const TarnwickDoc& document, bool back);

 private:
  /// The hit in this line that is next to the column in this direction.
  std::optional<ColumnRange> nearest(const ConsoleLine& line, int column, bool back) const;

  std::string text_;
  std::string wanted_;  ///< in small letters
  // The last hit's place. Lines are counted from the first there ever was, since those at the top fall off.
  bool found_ = false;
  std::uint64_t line_ = 0;
  int column_ = 0;
};

}  // namespace tarnwick
