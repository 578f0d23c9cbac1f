#include "dialogbase/DirDialog.h"

#include "base/Text.h"
#include "dialogbase/Desktop.h"

namespace tarnwick {

std::string DirDialog::browse() {
  const auto chosen = desktop_.browseFolder(root_);
  if (!chosen) return "";
  if (chosen->empty()) {
    desktop_.message("Can't access folder.");
    return "";
  }
  return chosen->front() == '"' ? *chosen : quotedIfBlank(*chosen);
}

}  // namespace tarnwick
