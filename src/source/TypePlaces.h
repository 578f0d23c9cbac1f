#pragma once

#include "source/JavaOutline.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnwick {

/// Which sources declare a class.
class TypePlaces {
 public:
  void add(const std::string& path, const JavaOutline& outline);

  /// The sources that declare the class of that full name, in the order in which they were added; none if nobody does.
  /// A member, a local or an anonymous class, as in "a.b.Outer$Inner$1", is where its type at the top is.
  const std::vector<std::string>& declaring(std::string_view fullName) const;

 private:
  std::unordered_map<std::string, std::vector<std::string>> sources_;  ///< of types at the top
};

}  // namespace tarnwick
