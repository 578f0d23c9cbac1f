// The layouts of the dialogs about sources.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// 204: the warning before a source with several public types is split.
const DialogLayout& portabilityWarningLayout();

}  // namespace tarnwick
