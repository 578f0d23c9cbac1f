#pragma once

#include <wx/bitmap.h>
#include <wx/iconbndl.h>

namespace tarnwick::ui {

/// The program's picture in one size.
wxBitmap iconBitmap(int side);

/// The program's icon in all sizes that window systems ask for.
wxIconBundle programIcons();

}  // namespace tarnwick::ui
