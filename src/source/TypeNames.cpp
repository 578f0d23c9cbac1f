#include "source/TypeNames.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// "a.b.C" is "a.b.C", "a.b$C" or "a$b$C": the text does not tell where the packages end.
void addSpellings(std::string name, const std::string& member, std::vector<std::string>& names) {
  for (auto point = name.size(); point != std::string::npos; point = name.rfind('.')) {
    if (point < name.size()) name[point] = '$';
    names.push_back(name + member);
  }
}

bool isOnDemand(const std::string& import) {
  return import.ends_with(".*");
}

}  // namespace

std::vector<std::string> possibleNames(const std::string& name, const NameScope& scope) {
  std::vector<std::string> names;
  const auto end = std::min(name.find_first_of(".$"), name.size());
  const std::string first = name.substr(0, end);
  std::string member = name.substr(end);
  std::replace(member.begin(), member.end(), '.', '$');
  for (const auto& import : scope.imports)
    if (import.ends_with('.' + first)) addSpellings(import, member, names);
  names.push_back((scope.package.empty() ? "" : scope.package + '.') + first + member);
  for (const auto& import : scope.imports)
    if (isOnDemand(import)) addSpellings(import.substr(0, import.size() - 1) + first, member, names);
  if (name.find('.') != std::string::npos) addSpellings(name, "", names);
  return names;
}

}  // namespace tarnwick
