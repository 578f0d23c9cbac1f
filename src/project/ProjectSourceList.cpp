#include "project/ProjectSourceList.h"

#include "base/Text.h"
#include "base/TokenString.h"
#include "platform/Path.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// True for a name with a folder. "./X.java" is just another way to write "X.java".
bool liesOutside(std::string name) {
  while (name.size() > 2 && name.front() == '.' && platform::endsInSeparator(name.substr(0, 2))) name.erase(0, 2);
  return !Filename(name).directory().empty();
}

}  // namespace

std::string ProjectSourceList::toString() {
  TokenString names;
  std::size_t source = 0;
  const auto addSources = [&](std::size_t end) {
    for (; source < std::min(end, sources_.size()); ++source) names.add(sources_[source]->name().nameWithExtension());
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
  TokenString names;
  try {
    names.fromString(text);
  } catch (const InvalidDataE&) {
    desktop_.message("Can't open project files:\nInvalid project context data");
    return;
  }
  take(names.elements());
}

void ProjectSourceList::take(const std::vector<std::string>& names) {
  int missing = 0;
  for (const auto& element : names) {
    const std::string name = trimLeft(element);
    if (name.empty()) continue;
    if (liesOutside(name)) {
      outside_.push_back({element, sources_.size()});
      continue;
    }
    try {
      add(name);
    } catch (const Tarnwickfile::FileNotOpenE&) {
      ++missing;
    }
  }
  // Always in the plural, which is meant.
  if (missing > 0) {
    desktop_.message(std::to_string(missing) + " source files belonging to the project could not be opened.");
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
  desktop_.message(text);
}

void ProjectSourceList::add(const std::string& name) {
  // Opening it is the test whether it is there. No source stays open.
  auto source = std::make_unique<JavaSourcefile>(projectFile_.name().directory(), name, FileMode::Read);
  source->close();
  sources_.push_back(std::move(source));
}

bool ProjectSourceList::holds(const std::string& name) const {
  return std::any_of(sources_.begin(), sources_.end(), [&name](const auto& source) {
    return platform::sameFileName(source->name().nameWithExtension(), name);
  });
}

}  // namespace tarnwick
