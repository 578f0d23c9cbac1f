// The small button in a field's end, and what drops down from it.
#pragma once

#include <functional>
#include <vector>

class wxString;
class wxTextCtrl;

namespace tarnwick::ui {

/// To be called once, before the button first shows.
void prepareDropButton(wxTextCtrl& field, const std::function<void()>& pressed);

/// The field's place and size stay as they are. The keyboard passes the button by.
void showDropButton(wxTextCtrl& field, bool on);

/// Lets the user choose one of the labels in a menu below the field, which is as wide at least. `chosen` hears of it,
/// perhaps later; of a menu that was left it hears nothing.
void openDropMenu(wxTextCtrl& field, const std::vector<wxString>& labels, bool byKey,
                  const std::function<void(int)>& chosen);

}  // namespace tarnwick::ui
