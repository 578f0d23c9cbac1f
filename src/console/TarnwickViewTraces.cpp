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
  const int line = (at.y + scroll.y) / grid.charHeight;
  std::optional<ConsoleLine> found;
  {
    const TextGuard guard(screen_.lock());
    const TarnwickDoc& document = screen_.document;
    if (x < 0 || line >= document.lineCount()) return std::nullopt;
    found = document.lines()[static_cast<std::size_t>(line)];
    place.line = document.linesGone() + static_cast<std::uint64_t>(line);
  }
  auto trace = traceLinkAt(*found, x / grid.charWidth);
  if (trace) place.columns = trace->columns;
  return trace;
}

Rect TarnwickView::underlineOf(const PointedPlace& place) const {
  const std::uint64_t gone = screen_.document.linesGone();
  if (place.line < gone) return {};
  const int bottom = screen_.grid.y(static_cast<int>(place.line - gone) + 1);
  return {screen_.grid.x(place.columns.start), bottom - 2, screen_.grid.x(place.columns.end), bottom - 1};
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
    surface_->invalidate(underlineOf(*changed));
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
