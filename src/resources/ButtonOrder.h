// The order of the buttons that end a dialog. Each system has its custom.
#pragma once

#include "resources/DialogLayout.h"

#include <vector>

namespace tarnwick {

enum class ButtonCustom {
  AffirmativeFirst,  ///< OK, Cancel, Help: layouts are written so
  AffirmativeLast,   ///< Help on the left; Cancel and OK at the right edge
};

/// What stands in a row of buttons that end a dialog, as the custom wants it. The default button is the affirmative one
/// of all that agree, the standard number tells Cancel, and whatever else there is neither agrees nor declines.
std::vector<DialogItem> inOrderOf(ButtonCustom custom, const std::vector<DialogItem>& closingRow);

}  // namespace tarnwick
