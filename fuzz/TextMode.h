#pragma once

#include <string>

namespace tarnwick::fuzz {

/// What text mode makes of the bytes of a file: the carriage return before a line feed goes.
std::string asText(const std::string& bytes);

}  // namespace tarnwick::fuzz
