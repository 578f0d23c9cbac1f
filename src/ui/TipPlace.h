#pragma once

class wxWindow;

namespace tarnwick::ui {

/// From now on the control's tool tip stands below it, or above where there is no room, never over what it tells of.
/// For controls of one line or two: the tip of a long list belongs near the mouse.
void keepTipBeside(wxWindow& control);

}  // namespace tarnwick::ui
