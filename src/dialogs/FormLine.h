#pragma once

#include "resources/DialogLayout.h"

#include <vector>

namespace tarnwick {

/// A line of a form: what a field is for, the field, and the buttons that fill it.
DialogItem formLine(DialogItem caption, DialogItem field, std::vector<DialogItem> buttons = {});

}  // namespace tarnwick
