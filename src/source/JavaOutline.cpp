#include "source/JavaOutline.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// The first version that starts main methods of the newer forms.
constexpr int newerMainsSince = 25;

}  // namespace

bool OutlineType::hasMain(int javaVersion) const {
  return main == MainMethod::Classic || (main == MainMethod::Newer && javaVersion >= newerMainsSince);
}

std::string JavaOutline::binaryName(const OutlineType& type) const {
  // Not kept in the type: names of types that are nested deep would fill the memory.
  std::vector<const OutlineType*> way = {&type};
  while (way.back()->parent) way.push_back(&types[*way.back()->parent]);
  std::string name;
  for (auto outer = way.rbegin(); outer != way.rend(); ++outer) name += (name.empty() ? "" : "$") + (*outer)->name;
  return name;
}

std::string JavaOutline::fullName(const OutlineType& type) const {
  return (package.empty() ? "" : package + '.') + binaryName(type);
}

const OutlineType* JavaOutline::find(std::string_view fullName) const {
  if (!package.empty()) {
    if (!fullName.starts_with(package) || fullName.substr(package.size(), 1) != ".") return nullptr;
    fullName.remove_prefix(package.size() + 1);
  }
  const auto found = std::find_if(types.begin(), types.end(), [&](const OutlineType& type) {
    return fullName.ends_with(type.name) && binaryName(type) == fullName;
  });
  return found == types.end() ? nullptr : &*found;
}

}  // namespace tarnwick
