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

// The gap is a part of the picture: not every toolkit leaves one that can be told.
wxBitmapBundle buttonPicture(const std::string& name, bool dark, PictureRoom room) {
  std::string text = drawing("buttons/" + name);
  const std::string view = "width=\"16\" height=\"16\" viewBox=\"0 0 16 16\"";
  const auto at = text.find(view);
  if (at == std::string::npos) return {};
  const std::string width = std::to_string(buttonPictureSize(room).x);
  text.replace(at, view.size(), "width=\"" + width + "\" height=\"16\" viewBox=\"0 0 " + width + " 16\"");
  return pictureOf(dark ? onDarkGround(text) : text, buttonPictureSize(room));
}

wxSize buttonPictureSize(PictureRoom room) {
  return {room == PictureRoom::BesideWords ? 20 : 16, 16};
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
