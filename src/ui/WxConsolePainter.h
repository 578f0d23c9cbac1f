#pragma once

#include "console/ConsoleSurface.h"

#include <wx/dc.h>

#include <string>

namespace tarnwick::ui {

/// Paints the console on a device whose origin is the document's.
class WxConsolePainter : public ConsolePainter {
 public:
  /// `exactAdvance`: the font's characters are exactly one cell wide each, so that a run can be drawn as one text.
  WxConsolePainter(wxDC& dc, const wxRect& clip, const Point& cell, bool exactAdvance);

  Rect clip() const override;
  void drawText(int x, int y, const std::string& text, Colour colour) override;
  void fill(const Rect& rect, Colour colour) override;
  void invert(const Rect& rect) override;

 private:
  void drawByCells(int x, int y, const std::string& text);
  /// How far below its top the text's letters stand.
  int baselineOf(const wxString& text) const;

  wxDC& dc_;
  wxRect clip_;
  Point cell_;
  bool exactAdvance_;
  int baseline_;  ///< of the console's own font
};

}  // namespace tarnwick::ui
