#include "dialogs/FormLine.h"

namespace tarnwick {

DialogItem formLine(DialogItem caption, DialogItem field, std::vector<DialogItem> buttons) {
  std::vector<DialogItem> items = {std::move(caption), std::move(field).stretched()};
  for (auto& item : buttons) items.push_back(std::move(item));
  return layout::row(std::move(items));
}

}  // namespace tarnwick
