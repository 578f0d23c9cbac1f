#pragma once

#include "app/ConsoleFrameHost.h"

#include <functional>

namespace tarnwick {
class Desktop;
}

namespace tarnwick::ui {

/// Starts the window toolkit, runs `program` and gives its result as the process's exit code. Without a display: one
/// line on standard error, and 1.
int runProgram(int argc, char** argv, std::function<int(Desktop&, ConsoleFrameHost&)> program);

}  // namespace tarnwick::ui
