// The places of stack traces, which only the console of today opens.
#include "console/ConsolePaint.h"
#include "console/TarnwickView.h"

#include <cstddef>

namespace tarnwick {

std::optional<TraceLink> TarnwickView::traceUnder(const Point& at, PointedPlace& place) {
  const ConsoleGrid& grid = screen_.grid;
  if (!screen_.today || !openTrace_ || !surface_ || !grid.known() || at.x < 0 || at.y < 0) return std::nullopt;
  const Point scroll = surface_->scrollPosition();
  const int x = at.x + scroll.x - ConsoleGrid::leftMargin;
  ConsoleCell row;
  std::optional<ConsoleLine> found;
  {
    const TextGuard guard(screen_.lock());
    const TarnwickDoc& document = screen_.document;
    row = screen_.rows.at((at.y + scroll.y) / grid.charHeight);
    if (x < 0 || row.line >= document.lineCount()) return std::nullopt;
    if (screen_.rows.broken() && x / grid.charWidth >= screen_.rows.width()) return std::nullopt;
    found = document.lines()[static_cast<std::size_t>(row.line)];
    place.line = document.linesGone() + static_cast<std::uint64_t>(row.line);
  }
  auto trace = traceLinkAt(*found, row.column + x / grid.charWidth);
  if (trace) place.columns = trace->columns;
  return trace;
}

std::vector<Rect> TarnwickView::underlinesOf(const PointedPlace& place) const {
  const std::uint64_t gone = screen_.document.linesGone();
  if (place.line < gone) return {};
  const int line = static_cast<int>(place.line - gone);
  const ConsoleGrid& grid = screen_.grid;
  const ConsoleCell first = screen_.rows.shown({place.columns.start, line}, false);
  const ConsoleCell last = screen_.rows.shown({place.columns.end, line}, true);
  std::vector<Rect> lines;
  for (int row = first.line; row <= last.line; ++row) {
    const int left = row == first.line ? first.column : 0;
    const int right = row == last.line ? last.column : screen_.rows.width();
    const int bottom = grid.y(row + 1);
    lines.push_back({grid.x(left), bottom - 2, grid.x(right), bottom - 1});
  }
  return lines;
}

void TarnwickView::pointAt(const MouseState& mouse) {
  PointedPlace place;
  const bool isPlace = mouse.control && traceUnder(mouse.at, place);
  pointAt(isPlace ? std::optional(place) : std::nullopt);
}

void TarnwickView::pointAt(const std::optional<PointedPlace>& place) {
  if (!surface_ || place == pointed_) return;
  if (place.has_value() != pointed_.has_value()) surface_->showHand(place.has_value());
  for (const auto& changed : {std::exchange(pointed_, place), place}) {
    if (!changed) continue;
    const TextGuard guard(screen_.lock());
    for (const auto& line : underlinesOf(*changed)) surface_->invalidate(line);
  }
}

void TarnwickView::openTraceUnder(const Point& at) {
  PointedPlace place;
  const auto trace = traceUnder(at, place);
  if (!trace) return;
  pointAt(std::nullopt);
  openTrace_(*trace);
}

}  // namespace tarnwick
