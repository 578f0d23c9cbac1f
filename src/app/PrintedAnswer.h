#pragma once

#include <optional>
#include <string>

namespace tarnwick {

struct ProgramInfo;

/// What the program prints instead of opening a window, for a command line of "--version" or "--help" alone; nothing
/// for any other.
std::optional<std::string> printedAnswer(const std::string& commandLine, const ProgramInfo& program);

}  // namespace tarnwick
