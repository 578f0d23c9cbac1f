#include "project/ProjectSourceList.h"

#include "base/RelativeName.h"
#include "base/Text.h"
#include "base/TokenString.h"
#include "dialogbase/Desktop.h"
#include "platform/Path.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

#include <algorithm>

namespace tarnwick {

namespace {

bool liesOutside(const std::string& name, bool takesFolders) {
  return !leadsDown(name) || (!takesFolders && relativeName(name).find('/') != std::string::npos);
}

}  // namespace

std::string ProjectSourceList::toString() {
  TokenString names;
  std::size_t source = 0;
  const auto addSources = [&](std::size_t end) {
    for (; source < std::min(end, sources_.size()); ++source) names.add(sources_[source].name);
  };
  for (const auto& outside : outside_) {
    addSources(outside.sourcesBefore);
    names.add(outside.name);
  }
  addSources(sources_.size());
  return names.toString();
}

void ProjectSourceList::fromString(const std::string& text) {
  clear();
  outside_.clear();
  takesFolders_ = settings_.newerJava != 0;
  TokenString names;
  try {
    names.fromString(text);
  } catch (const InvalidDataE&) {
    settings_.context().tell("Can't open project files:\nInvalid project context data");
    return;
  }
  take(names.elements());
}

void ProjectSourceList::followSettings() {
  if (takesFolders_ != (settings_.newerJava != 0)) fromString(toString());
}

void ProjectSourceList::take(const std::vector<std::string>& names) {
  int missing = 0;
  for (const auto& element : names) {
    const std::string name = trimLeft(element);
    if (name.empty()) continue;
    if (liesOutside(name, takesFolders_)) {
      outside_.push_back({element, sources_.size()});
      continue;
    }
    try {
      add(name);
    } catch (const Tarnwickfile::FileNotOpenE&) {
      ++missing;
    }
  }
  // Deliberate: always in the plural.
  if (missing > 0) {
    settings_.context().tell(std::to_string(missing) + " source files belonging to the project could not be opened.");
  }
  if (!outside_.empty()) tellOutside();
}

void ProjectSourceList::tellOutside() const {
  constexpr std::size_t most = 10;
  std::string text =
      "A project's sources lie in its folder. These names lead elsewhere and are not used,\nbut stay in "
      "the project file:\n";
  for (std::size_t i = 0; i < std::min(most, outside_.size()); ++i) text += '\n' + trimLeft(outside_[i].name);
  if (outside_.size() > most) text += "\n...";
  settings_.context().tell(text);
}

void ProjectSourceList::add(const std::string& name) {
  // Opening it is the test whether it is there. No source stays open.
  auto file = std::make_unique<JavaSourcefile>(projectFile_.name().directory(), localName(name), FileMode::Read);
  file->close();
  sources_.push_back({relativeName(name), std::move(file)});
}

bool ProjectSourceList::holds(const std::string& name) const {
  return std::any_of(sources_.begin(), sources_.end(),
                     [&name](const auto& source) { return platform::sameFileName(source.name, name); });
}

}  // namespace tarnwick
