#include "dialogbase/DirDialog.h"

#include "base/Text.h"

namespace tarnwick {

std::string DirDialog::browse() {
  const auto chosen = desktop_.browseFolder();
  if (!chosen) return "";
  if (chosen->empty()) {
    desktop_.message("Can't access folder.");
    return "";
  }
  return chosen->front() == '"' ? *chosen : quotedIfBlank(*chosen);
}

}  // namespace tarnwick
