#include "console/TextSearch.h"

#include "base/Text.h"
#include "platform/Characters.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string_view>

namespace tarnwick {
namespace {

int columnsOf(std::string_view text) {
  return static_cast<int>(platform::columnsOf(text));
}

}  // namespace

void TextSearch::lookFor(const std::string& text) {
  text_ = text;
  wanted_ = lowerCase(text);
  found_ = false;
}

std::vector<ColumnRange> TextSearch::hitsIn(const ConsoleLine& line) const {
  std::vector<ColumnRange> hits;
  if (!active()) return hits;
  const std::string text = lowerCase(line.text());
  std::size_t measured = 0;
  int column = 0;
  for (std::size_t at = text.find(wanted_); at != std::string::npos; at = text.find(wanted_, measured)) {
    const int first = column + columnsOf(std::string_view(text).substr(measured, at - measured));
    measured = at + wanted_.size();
    column = first + columnsOf(wanted_);
    hits.push_back({first, column});
  }
  return hits;
}

std::optional<ColumnRange> TextSearch::nearest(const ConsoleLine& line, int column, bool back) const {
  const auto hits = hitsIn(line);
  if (back) {
    const auto hit = std::find_if(hits.rbegin(), hits.rend(), [column](const auto& one) { return one.start < column; });
    return hit == hits.rend() ? std::nullopt : std::optional(*hit);
  }
  const auto hit = std::find_if(hits.begin(), hits.end(), [column](const auto& one) { return one.start > column; });
  return hit == hits.end() ? std::nullopt : std::optional(*hit);
}

std::optional<TextSearch::Hit> TextSearch::step(const TarnwickDoc& document, bool back) {
  if (!active()) return std::nullopt;
  constexpr int farRight = std::numeric_limits<int>::max();
  const int count = document.lineCount();
  const std::uint64_t gone = document.linesGone();
  // Newest first: what has just been written is what one wants to find.
  int line = count - 1;
  int column = farRight;
  if (!found_) {
    back = true;
  } else if (line_ >= gone) {
    line = static_cast<int>(line_ - gone);
    column = column_;
  } else if (!back) {
    line = 0;
    column = -1;
  }
  // The line where it begins comes once more at last, for what stands on its other side.
  for (int tries = 0; tries <= count; ++tries) {
    if (const auto hit = nearest(document.lines()[static_cast<std::size_t>(line)], column, back)) {
      found_ = true;
      line_ = gone + static_cast<std::uint64_t>(line);
      column_ = hit->start;
      return Hit{line, hit->start, hit->end};
    }
    line = (line + (back ? count - 1 : 1)) % count;
    column = back ? farRight : -1;
  }
  return std::nullopt;
}

}  // namespace tarnwick
