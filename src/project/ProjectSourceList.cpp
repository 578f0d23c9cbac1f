#include "project/ProjectSourceList.h"

#include "base/Text.h"
#include "base/TokenString.h"
#include "platform/Path.h"

#include <algorithm>

namespace tarnwick {

std::string ProjectSourceList::toString() {
  TokenString names;
  for (const auto& source : sources_) names.add(source->name().nameWithExtension());
  return names.toString();
}

void ProjectSourceList::fromString(const std::string& text) {
  clear();
  TokenString names;
  try {
    names.fromString(text);
  } catch (const InvalidDataE&) {
    desktop_.message("Can't open project files:\nInvalid project context data");
    return;
  }
  int missing = 0;
  for (int i = 0; i < names.count(); ++i) {
    const std::string name = trimLeft(names.element(i));
    if (name.empty()) continue;
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
