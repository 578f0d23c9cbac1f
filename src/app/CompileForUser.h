// What both panels do alike when they compile.
#pragma once

#include "source/Compiler.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

/// The compiler, which asks the user before it splits a source. Asks for the tools' folder where it is unknown. Throws
/// as Compiler does.
Compiler compilerForUser(Settings& settings, const std::optional<std::string>& classpath);

/// Whether the tool had something to say. What went wrong with its run is shown before.
bool hasSaid(const Settings& settings, const RunResult& result);

/// How a command of the user's to compile has ended.
struct CompileEnd {
  bool wasClean = false;  ///< it came to its end, and the compiler had nothing to say
  std::string
      refused{};  ///< the path of the source that the classic way of reading has refused; empty if there is none
};

/// Compiles, then sounds and shows the log as the settings say, and does what comes `afterwards`. `compile` tells
/// whether `javac` had something to say. Shows failures itself.
CompileEnd compileForUser(const Settings& settings, const std::function<bool()>& compile,
                          const std::function<void()>& afterwards);

}  // namespace tarnwick
