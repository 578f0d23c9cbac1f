#include "source/TypePlaces.h"

namespace tarnwick {

void TypePlaces::add(const std::string& path, const JavaOutline& outline) {
  for (const OutlineType& type : outline.types) {
    if (type.parent) continue;
    std::vector<std::string>& sources = sources_[outline.fullName(type)];
    // One source may declare a type twice, wrongly.
    if (sources.empty() || sources.back() != path) sources.push_back(path);
  }
}

const std::vector<std::string>& TypePlaces::declaring(std::string_view fullName) const {
  static const std::vector<std::string> none;
  // A name may hold the character that also divides names.
  for (std::size_t end = fullName.size(); end != std::string_view::npos && end != 0;
       end = fullName.rfind('$', end - 1)) {
    const auto found = sources_.find(std::string(fullName.substr(0, end)));
    if (found != sources_.end()) return found->second;
  }
  return none;
}

}  // namespace tarnwick
