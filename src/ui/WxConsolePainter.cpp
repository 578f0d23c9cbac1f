#include "ui/WxConsolePainter.h"

#include "platform/Characters.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <algorithm>
#include <string_view>

namespace tarnwick::ui {

namespace {

// No letter of any language has more. With thousands, as broken programs may write, the toolkit is busy for minutes.
constexpr int mostMarks = 16;

bool isAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
}

}  // namespace

WxConsolePainter::WxConsolePainter(wxDC& dc, const wxRect& clip, const Point& cell, bool exactAdvance)
    : dc_(dc), clip_(clip), cell_(cell), exactAdvance_(exactAdvance), baseline_(baselineOf("M")) {}

Rect WxConsolePainter::clip() const {
  return {clip_.x, clip_.y, clip_.x + clip_.width, clip_.y + clip_.height};
}

void WxConsolePainter::drawText(int x, int y, const std::string& text, Colour colour) {
  if (text.empty() || y + cell_.y <= clip_.y || y >= clip_.y + clip_.height || x >= clip_.x + clip_.width) return;
  dc_.SetTextForeground(wxColour(colour.red, colour.green, colour.blue));
  if (exactAdvance_ && isAscii(text)) {
    dc_.DrawText(toWx(text), x, y);
  } else {
    drawByCells(x, y, text);
  }
}

// Characters that the font has to borrow from another are not exactly one or two cells wide, nor as high as a cell:
// each goes to its place, on the line on which the others stand.
void WxConsolePainter::drawByCells(int x, int y, const std::string& text) {
  for (std::size_t at = 0; at < text.size() && x < clip_.x + clip_.width;) {
    std::size_t length = platform::characterLength(text, at);
    std::string character = text.substr(at, length);
    const auto columns = static_cast<int>(platform::columnsOf(character));
    // What takes no column of its own is drawn on the character before it.
    for (int marks = 0; at + length < text.size(); ++marks) {
      const std::size_t next = platform::characterLength(text, at + length);
      const std::string_view mark = std::string_view(text).substr(at + length, next);
      if (platform::columnsOf(mark) != 0) break;
      if (marks < mostMarks) character += mark;
      length += next;
    }
    if (x + columns * cell_.x > clip_.x) {
      const wxString shown = toWx(platform::validText(character));
      dc_.DrawText(shown, x, y + baseline_ - baselineOf(shown));
    }
    x += columns * cell_.x;
    at += length;
  }
}

int WxConsolePainter::baselineOf(const wxString& text) const {
  wxCoord width = 0, height = 0, descent = 0;
  dc_.GetTextExtent(text, &width, &height, &descent);
  return height - descent;
}

void WxConsolePainter::fill(const Rect& rect, Colour colour) {
  const wxRect area = wxRect(rect.left, rect.top, rect.width(), rect.height()).Intersect(clip_);
  if (area.IsEmpty()) return;
  dc_.SetPen(*wxTRANSPARENT_PEN);
  dc_.SetBrush(wxBrush(wxColour(colour.red, colour.green, colour.blue)));
  dc_.DrawRectangle(area);
}

void WxConsolePainter::invert(const Rect& rect) {
  const wxRect area = wxRect(rect.left, rect.top, rect.width(), rect.height()).Intersect(clip_);
  if (!area.IsEmpty()) invertColours(dc_, area);
}

}  // namespace tarnwick::ui
