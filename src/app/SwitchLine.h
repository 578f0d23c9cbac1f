#pragma once

#include <cstddef>
#include <string>

namespace tarnwick {

/// One switch of a command line: "\/NAME=value\/".
struct Switch {
  std::string name;
  std::string value;
  std::size_t start = 0;  ///< where the search began: whatever stands before the opening mark belongs to the switch
};

/// Finds the next switch from `cursor` on and moves the cursor behind its closing mark. A switch without a closing mark
/// runs to the end of the line and leaves the cursor beyond it. False if there is none.
bool nextSwitch(const std::string& line, std::size_t& cursor, Switch& found);

}  // namespace tarnwick
