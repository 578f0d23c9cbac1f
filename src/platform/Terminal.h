// The terminal that the program was started from, and the habits of the system's terminals.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Writes the text to our standard output; where we have none, to the console of whoever started us, if that has one.
/// False if it could not be written whole.
bool writeToTerminal(const std::string& text);

/// The control character that, sent as a line of its own, ends a program's input here; 0 where none does.
extern const char endOfInputMark;

}  // namespace tarnwick::platform
