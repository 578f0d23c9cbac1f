#include "ui/Icons.h"

#include "ui/IconPixels.h"
#include "ui/ToolbarPixels.h"

#include <wx/icon.h>
#include <wx/image.h>

#include <map>

namespace tarnwick::ui {

namespace {

// Painted once for each size; the toolkit's own objects could not be kept beyond the toolkit's end.
const std::vector<std::uint8_t>& pixelsOf(int side) {
  static std::map<int, std::vector<std::uint8_t>> painted;
  auto& pixels = painted[side];
  if (pixels.empty()) pixels = iconPixels(side);
  return pixels;
}

wxBitmap bitmapOf(const std::vector<std::uint8_t>& pixels, int width, int height) {
  wxImage image(width, height);
  image.SetAlpha();
  for (int i = 0; i < width * height; ++i) {
    const auto* pixel = pixels.data() + static_cast<std::ptrdiff_t>(i) * 4;
    image.SetRGB(i % width, i / width, pixel[0], pixel[1], pixel[2]);
    image.SetAlpha(i % width, i / width, pixel[3]);
  }
  return wxBitmap(image);
}

}  // namespace

wxBitmap iconBitmap(int side) {
  return bitmapOf(pixelsOf(side), side, side);
}

wxBitmap toolbarBitmap(int command, double scale, bool dark) {
  const auto& shapes = toolbarIcon(command);
  if (shapes.empty()) return wxNullBitmap;
  return bitmapOf(toolbarPixels(shapes, scale, dark), toolbarPixelCount(toolbarIconWidth, scale),
                  toolbarPixelCount(toolbarIconHeight, scale));
}

wxIconBundle programIcons() {
  wxIconBundle icons;
  for (const int side : {16, 24, 32, 48, 64}) {
    wxIcon icon;
    icon.CopyFromBitmap(iconBitmap(side));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace tarnwick::ui
