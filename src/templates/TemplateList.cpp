#include "templates/TemplateList.h"

#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "settings/SettingsContext.h"
#include "templates/BuiltInTemplates.h"

#include <algorithm>

namespace tarnwick {

TemplateList::TemplateList(Settings& settings)
    : live_(settings), stored_(settings.context()), desktop_(settings.context().desktop) {
  int status = 0;  // whatever it is: without a configuration there are no templates of the user's
  stored_.readDefaultConfiguration(status);
}

void TemplateList::build() {
  rows_ = builtInTemplates();
  addStored();
  store();
}

void TemplateList::addPersonal(const std::string& description, const std::string& path) {
  TokenString pair;
  pair.add(description);
  pair.add(path);
  stored_.personalTemplates.add(pair.toString());
  build();
}

void TemplateList::addStored() {
  try {
    for (const auto& element : stored_.personalTemplates.elements()) {
      const TokenString pair(element, ';', ']');
      add(pair.element(0), pair.element(1));
    }
  } catch (const TokenString::OutOfBoundsE&) {
    // A damaged entry ends the walk; what was added so far stands.
  } catch (const StringableM::InvalidDataE&) {
  }
}

void TemplateList::add(const std::string& description, const std::string& path) {
  const std::string label = trim(description);
  if (!canBeRead(path) && !keepsMissing(label, path)) return;
  const auto same =
      std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return equalsIgnoringCase(row.label, label); });
  if (same != rows_.end())
    *same = {label, USER_DEFINED, path};
  else if (rows_.size() < mostTemplates)
    rows_.push_back({label, USER_DEFINED, path});
  else
    desktop_.message("Too many template entries. Entry rejected.");
}

bool TemplateList::keepsMissing(const std::string& description, const std::string& path) {
  return !desktop_.askYesNo("Can't access file " + path + " for template " + description +
                            ". Remove template from list?");
}

void TemplateList::store() {
  TokenString kept;
  for (const auto& row : rows_) {
    if (row.kind != USER_DEFINED) continue;
    TokenString pair;
    pair.add(row.label);
    pair.add(row.option);
    kept.add(pair.toString());
  }
  try {
    stored_.personalTemplates.fromString(kept.toString());
    stored_.saveDefaultConfiguration();
    live_.personalTemplates.fromString(kept.toString());
  } catch (const StringableM::InvalidDataE&) {
    // The list in the dialog is good all the same.
  }
}

std::vector<std::string> TemplateList::labels() const {
  std::vector<std::string> labels;
  for (const auto& row : rows_) labels.push_back(row.label);
  return labels;
}

const TemplateList::Row* TemplateList::rowOf(const std::string& label) const {
  const auto shown = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.label == label; });
  if (shown == rows_.end()) return nullptr;
  return &*std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.option == shown->option; });
}

}  // namespace tarnwick
