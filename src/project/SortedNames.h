#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// Names as a sorted list shows them: without regard to case.
void sortNames(std::vector<std::string>& names);

}  // namespace tarnwick
