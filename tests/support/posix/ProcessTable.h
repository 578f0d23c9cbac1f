#pragma once

#include <string>
#include <vector>

namespace tarnwick::test {

/// The fields of a process's line in the system's table, from its state on; empty for a process that has gone.
std::vector<std::string> processFields(const std::string& process);

}  // namespace tarnwick::test
