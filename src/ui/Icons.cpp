#include "ui/Icons.h"

#include "ui/IconPixels.h"

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

}  // namespace

wxBitmap iconBitmap(int side) {
  wxImage image(side, side);
  image.SetAlpha();
  const auto& pixels = pixelsOf(side);
  for (int i = 0; i < side * side; ++i) {
    const auto* pixel = pixels.data() + static_cast<std::ptrdiff_t>(i) * 4;
    image.SetRGB(i % side, i / side, pixel[0], pixel[1], pixel[2]);
    image.SetAlpha(i % side, i / side, pixel[3]);
  }
  return wxBitmap(image);
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
