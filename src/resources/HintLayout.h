#pragma once

#include "resources/DialogLayout.h"

namespace tarnwick {

/// The console's hint about quick copying: the program's icon and four lines, without buttons or caption.
DialogLayout hintLayout();

}  // namespace tarnwick
