#pragma once

#include <functional>
#include <vector>

class wxRect;
class wxString;
class wxWindow;

namespace tarnwick::ui {

/// Lets the user choose one of the labels in a menu below the area, which is as wide at least. `chosen` hears of it,
/// perhaps later; of a menu that was left it hears nothing. The area is in the window's client coordinates.
void openMenu(wxWindow& window, const wxRect& area, const std::vector<wxString>& labels, bool byKey,
              const std::function<void(int)>& chosen);

}  // namespace tarnwick::ui
