#include "settingsdialog/PageSnapshot.h"

#include "base/StringableM.h"
#include "base/TagRow.h"
#include "settings/SettingsResources.h"

namespace tarnwick {

namespace {

/// What gives the variable the value back that it has now.
std::function<void()> keeping(const TagVariable& variable) {
  using Kept = std::function<void()>;
  return std::visit(Overloaded{[](StringableM* value) -> Kept {
                                 return [value, text = value->toString()] { value->fromString(text); };
                               },
                               [](std::monostate) -> Kept { return [] {}; },
                               [](auto* value) -> Kept { return [value, before = *value] { *value = before; }; }},
                    variable);
}

}  // namespace

PageSnapshot::PageSnapshot(SettingsValues& values)
    : position_(values.windowPosition), place_(values.windowPosition.place()) {
  for (const auto& row : values.tagRows)
    if (row.owner == SETTINGS_DIALOG && row.page != 0) kept_.push_back(keeping(row.variable));
}

PageSnapshot::~PageSnapshot() {
  for (const auto& giveBack : kept_) giveBack();
  position_.setPlace(place_);
}

void PageSnapshot::forget() {
  kept_.clear();
  place_ = position_.place();
}

}  // namespace tarnwick
