#include "project/SortedNames.h"

#include "base/Text.h"

#include <algorithm>

namespace tarnwick {

void sortNames(std::vector<std::string>& names) {
  std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
    const std::string lowerLeft = lowerCase(left);
    const std::string lowerRight = lowerCase(right);
    return lowerLeft != lowerRight ? lowerLeft < lowerRight : left < right;
  });
}

}  // namespace tarnwick
