#include "app/MessagesPaint.h"

#include "console/TextCells.h"

#include <algorithm>

namespace tarnwick {

namespace {

using LineKind = MessagesText::LineKind;

/// The letter that tells a kind apart for those, too, who can't tell colours apart.
const char* markOf(LineKind kind) {
  if (kind == LineKind::Error) return "E";
  if (kind == LineKind::Warning) return "W";
  return kind == LineKind::Note ? "i" : nullptr;
}

Colour markColour(LineKind kind, const MessageColours& colours) {
  if (kind == LineKind::Error) return colours.error;
  return kind == LineKind::Warning ? colours.warning : colours.note;
}

Colour textColour(LineKind kind, const MessageColours& colours) {
  if (kind == LineKind::Error) return colours.error;
  if (kind == LineKind::Warning) return colours.warning;
  return kind == LineKind::Command ? colours.dimmed : colours.text;
}

/// A line may be long: only what is seen is handed on.
void paintLine(ConsolePainter& painter, const MessagesText::Line& line, const ConsoleGrid& grid, int y,
               const MessageColours& colours) {
  if (const char* const mark = markOf(line.kind)) {
    painter.fill({grid.x(0), y + 1, grid.x(messageGutter - 1), y + grid.charHeight - 1},
                 markColour(line.kind, colours));
    painter.drawText(grid.x(0) + grid.charWidth / 2, y, mark, colours.ground);
  }
  const Rect clip = painter.clip();
  const int first = std::max((clip.left - ConsoleGrid::leftMargin) / grid.charWidth - 1 - messageGutter, 0);
  const int last = std::min((clip.right - ConsoleGrid::leftMargin) / grid.charWidth + 2, line.columns);
  if (first >= last) return;
  const TextPlace start = characterAtColumn(line.text, line.columns, first);
  const std::size_t end = byteAtColumn(line.text, line.columns, last);
  painter.drawText(grid.x(messageGutter + start.column), y, line.text.substr(start.byte, end - start.byte),
                   textColour(line.kind, colours));
}

}  // namespace

const MessageColours& messageColours(bool dark) {
  static const MessageColours onLight{{255, 255, 255}, {0, 0, 0},    {100, 100, 100}, {226, 236, 250},
                                      {176, 0, 32},    {138, 80, 0}, {0, 92, 150}};
  static const MessageColours onDark{{30, 30, 30},    {222, 222, 222}, {170, 170, 170}, {48, 58, 74},
                                     {255, 128, 128}, {240, 190, 90},  {120, 190, 250}};
  return dark ? onDark : onLight;
}

void paintMessages(ConsolePainter& painter, const MessagesText& text, const ConsoleGrid& grid,
                   const MessageColours& colours, std::optional<std::size_t> current) {
  const Rect clip = painter.clip();
  painter.fill(clip, colours.ground);
  if (current && *current < text.messages.size()) {
    const ToolMessage& message = text.messages[*current];
    const int bottom = grid.y(static_cast<int>(message.lastLine) + 1);
    painter.fill({clip.left, grid.y(static_cast<int>(message.logLine)), clip.right, bottom}, colours.current);
  }
  if (text.lines.empty()) painter.drawText(grid.x(messageGutter), grid.y(0), noMessagesYet, colours.dimmed);
  const int first = std::max(clip.top / grid.charHeight, 0);
  const int last = std::min(clip.bottom / grid.charHeight + 1, static_cast<int>(text.lines.size()));
  for (int line = first; line < last; ++line) {
    paintLine(painter, text.lines[static_cast<std::size_t>(line)], grid, grid.y(line), colours);
  }
}

}  // namespace tarnwick
