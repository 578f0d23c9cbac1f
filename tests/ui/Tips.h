#pragma once

#include <wx/gdicmn.h>

#include <optional>

namespace tarnwick::test {

/// Where on the screen a tool tip of this program shows; nothing while none does.
std::optional<wxRect> shownTip();

}  // namespace tarnwick::test
