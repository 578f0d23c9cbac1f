#include "resources/ButtonOrder.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// Where an item stands from the left where agreeing comes last.
int rank(const DialogItem& item) {
  if (item.isDefault) return 4;
  if (item.agrees) return 3;
  if (item.control == IDCANCEL_CONTROL) return 2;
  return item.kind == ItemKind::Space ? 1 : 0;
}

}  // namespace

std::vector<DialogItem> inOrderOf(ButtonCustom custom, const std::vector<DialogItem>& closingRow) {
  std::vector<DialogItem> ordered = closingRow;
  if (custom == ButtonCustom::AffirmativeLast) {
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const DialogItem& one, const DialogItem& other) { return rank(one) < rank(other); });
  }
  return ordered;
}

}  // namespace tarnwick
