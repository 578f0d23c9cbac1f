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

/// What the compiler's runs of one command came to.
struct CompilerRuns {
  bool said = false;    ///< there was something to say
  bool failed = false;  ///< one went wrong in itself, as where the compiler can't be started; its user has been told
};

/// Adds what came of another run. What went wrong with it is shown.
void takeRun(const Settings& settings, const RunResult& result, CompilerRuns& runs);

/// How a command of the user's to compile has ended.
struct CompileEnd {
  bool wasClean = false;  ///< it came to its end, and neither the compiler nor the system had anything to say
  std::string
      refused{};  ///< the path of the source that the classic way of reading has refused; empty if there is none
};

/// Compiles, then sounds and shows the log as the settings say, and does what comes `afterwards`. `compile` tells
/// what came of it. Shows failures itself.
CompileEnd compileForUser(const Settings& settings, const std::function<CompilerRuns()>& compile,
                          const std::function<void()>& afterwards);

}  // namespace tarnwick
