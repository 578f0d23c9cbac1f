#pragma once

#include <wx/bitmap.h>
#include <wx/iconbndl.h>

namespace tarnwick::ui {

/// The program's picture in one size.
wxBitmap iconBitmap(int side);

/// The program's icon in all sizes that window systems ask for.
wxIconBundle programIcons();

/// The picture of a toolbar's command, not `IsOk` if there is none; `dark` is the ground that it stands on.
wxBitmap toolbarBitmap(int command, double scale, bool dark);

}  // namespace tarnwick::ui
