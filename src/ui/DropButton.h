// The small button in a field's end.
#pragma once

#include <functional>

class wxTextCtrl;

namespace tarnwick::ui {

/// To be called once, before the button first shows.
void prepareDropButton(wxTextCtrl& field, const std::function<void()>& pressed);

/// The field's place and size stay as they are. The keyboard passes the button by.
void showDropButton(wxTextCtrl& field, bool on);

}  // namespace tarnwick::ui
