#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// Where a source looks for the types that it names.
struct NameScope {
  std::string package;               ///< empty for the unnamed package
  std::vector<std::string> imports;  ///< as in "a.B" and "a.*"
};

/// The full names, as in "a.b.Outer$Inner", that a type's name may stand for in a source; whichever of them is known
/// first is meant. `name` is as a class file bears it, or has its package before it.
std::vector<std::string> possibleNames(const std::string& name, const NameScope& scope);

}  // namespace tarnwick
