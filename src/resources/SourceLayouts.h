// The layouts of the dialogs about sources.
#pragma once

#include "resources/DialogLayout.h"

namespace tarnwick {

/// 204: the warning before a source with several public types is split.
const DialogLayout& portabilityWarningLayout();

}  // namespace tarnwick
