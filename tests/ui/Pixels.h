// What a window shows, pixel by pixel.
#pragma once

#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

namespace tarnwick::test {

/// How many pixels of the rectangle are of a kind.
inline int countIn(const wxImage& picture, const wxRect& rect, bool (*isKind)(int red, int green, int blue)) {
  int count = 0;
  for (int y = rect.y; y < rect.y + rect.height; ++y) {
    for (int x = rect.x; x < rect.x + rect.width; ++x) {
      if (isKind(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y))) ++count;
    }
  }
  return count;
}

// Letters have soft edges, so their ink is told by its tone.
inline bool isReddish(int r, int g, int b) {
  return r - g > 40 && r - b > 40;
}
inline bool isCyanish(int r, int g, int b) {
  return g - r > 40 && b - r > 40;
}
inline bool isWhite(int r, int g, int b) {
  return r == 255 && g == 255 && b == 255;
}
inline bool isBlack(int r, int g, int b) {
  return r == 0 && g == 0 && b == 0;
}

/// What a window's own device shows.
inline wxImage pictureOf(wxWindow& window) {
  const wxSize size = window.GetClientSize();
  wxClientDC device(&window);
  wxBitmap bitmap(size.x, size.y, 24);
  wxMemoryDC memory(bitmap);
  memory.Blit(0, 0, size.x, size.y, &device, 0, 0);
  memory.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage();
}

}  // namespace tarnwick::test
