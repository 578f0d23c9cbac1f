#include "ui/Icons.h"

#include "resources/Drawings.h"

#include <wx/icon.h>

namespace tarnwick::ui {

namespace {

wxBitmapBundle pictureOf(const std::string& drawing, const wxSize& size) {
  if (drawing.empty()) return {};
  return wxBitmapBundle::FromSVG(reinterpret_cast<const wxByte*>(drawing.data()), drawing.size(), size);
}

}  // namespace

wxBitmapBundle programPicture(int side) {
  return pictureOf(drawing("tarnwick"), {side, side});
}

wxBitmapBundle toolbarPicture(const std::string& name, bool dark) {
  const std::string text = drawing("toolbar/" + name);
  return pictureOf(dark ? onDarkGround(text) : text, toolbarPictureSize());
}

wxSize toolbarPictureSize() {
  return {16, 15};
}

wxIconBundle programIcons() {
  const wxBitmapBundle picture = programPicture(48);
  wxIconBundle icons;
  for (const int side : {16, 24, 32, 48, 64}) {
    wxIcon icon;
    icon.CopyFromBitmap(picture.GetBitmap({side, side}));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace tarnwick::ui
