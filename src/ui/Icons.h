#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

#include <string>

namespace tarnwick::ui {

/// The program's picture, as large as `side` on a screen of the usual fineness, and sharp on any.
wxBitmapBundle programPicture(int side);

/// The program's icon in all sizes that window systems ask for.
wxIconBundle programIcons();

/// The picture of a toolbar's button by the name of its drawing; not `IsOk` if there is none. `dark` is the ground that
/// it stands on.
wxBitmapBundle toolbarPicture(const std::string& name, bool dark);

/// How large these pictures are on a screen of the usual fineness.
wxSize toolbarPictureSize();

/// Where a button's picture stands: a gap keeps it from words.
enum class PictureRoom { Alone, BesideWords };

/// The picture of a button of the panel by the name of its drawing; likewise.
wxBitmapBundle buttonPicture(const std::string& name, bool dark, PictureRoom room);

/// How large these are.
wxSize buttonPictureSize(PictureRoom room);

}  // namespace tarnwick::ui
