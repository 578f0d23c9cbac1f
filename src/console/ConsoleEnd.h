// How a program in the console has ended, and how the window's title tells it.
#pragma once

#include <chrono>
#include <string>

namespace tarnwick {

struct ConsoleEnd {
  bool stopped = false;  ///< by the user
  std::string cause;     ///< the system's word for the signal that ended it; empty if it ended by itself
  int code = 0;
  std::chrono::milliseconds time{0};  ///< for which it ran
};

/// "Greeter - ended with 1 after 2.3 s".
std::string titleAtEnd(const std::string& title, const ConsoleEnd& end);

}  // namespace tarnwick
