#pragma once

#include <cstdio>

namespace tarnwick::platform {

/// A stream over the open file `descriptor` that drops each carriage return directly before a line feed; positions
/// count what is left. The stream owns the descriptor, and so does this function on failure. Null with `errno` on
/// failure.
std::FILE* openTextInput(int descriptor);

}  // namespace tarnwick::platform
