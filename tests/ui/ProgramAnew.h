// Runs of this test program in processes of their own.
#pragma once

#include "dialogbase/DialogWindow.h"
#include "platform/FileSystem.h"

#include <cstdlib>
#include <string>

namespace tarnwick::test {

/// Where an instance of this program stands that is started with "--stand FILE".
constexpr Point instancePlace{123, 87};

inline bool onWindows() {
  return platform::environment("OS").value_or("") == "Windows_NT";
}

/// Runs this program anew with the arguments; what it writes goes to a file. Gives the exit code. `launcher` is a
/// command that runs others.
inline int runAnew(const std::string& arguments, const std::string& output, const std::string& launcher = "") {
  std::string command = launcher + "\"" + platform::executablePath() + "\" " + arguments + " >\"" + output + "\" 2>&1";
  if (onWindows()) command = "\"" + command + "\"";  // its shell takes off the outermost quotes
  const int status = std::system(command.c_str());
  return onWindows() ? status : (status >> 8) & 0xFF;
}

}  // namespace tarnwick::test
