#include "settings/PageSnapshot.h"

namespace tarnwick {

PageSnapshot::PageSnapshot(SettingsValues& values)
    : position_(values.windowPosition), place_(values.windowPosition.place()) {
  for (const auto& row : values.tagRows) {
    if (row.owner != SETTINGS_DIALOG || row.page == 0) continue;
    if (row.kind == TAG_STRING)
      kept_.push_back({&row, *static_cast<const std::string*>(row.variable), 0});
    else if (row.kind == TAG_STRINGABLE)
      kept_.push_back({&row, static_cast<StringableM*>(row.variable)->toString(), 0});
    else
      kept_.push_back({&row, "", *static_cast<const int*>(row.variable)});
  }
}

PageSnapshot::~PageSnapshot() {
  for (const auto& kept : kept_) {
    if (kept.row->kind == TAG_STRING)
      *static_cast<std::string*>(kept.row->variable) = kept.text;
    else if (kept.row->kind == TAG_STRINGABLE)
      static_cast<StringableM*>(kept.row->variable)->fromString(kept.text);
    else
      *static_cast<int*>(kept.row->variable) = kept.number;
  }
  position_.setPlace(place_);
}

void PageSnapshot::forget() {
  kept_.clear();
  place_ = position_.place();
}

}  // namespace tarnwick
