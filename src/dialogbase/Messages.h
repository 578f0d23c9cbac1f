#pragma once

#include "dialogbase/Desktop.h"

#include <string>
#include <vector>

namespace tarnwick {

/// Shows the texts one after the other, such as what went wrong below.
inline void showEach(Desktop& desktop, const std::vector<std::string>& texts) {
  for (const auto& text : texts) desktop.message(text);
}

}  // namespace tarnwick
