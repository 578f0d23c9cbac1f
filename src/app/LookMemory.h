// How the user wants the console's text to look, and that of the messages' window. It stands in a file of its own
// beside the default configuration: the panel saves that one whole, from what it has in memory, and would undo what a
// console has written there.
#pragma once

#include "console/ConsoleLooks.h"

namespace tarnwick {

struct ProgramInfo;

/// The file's name.
extern const char lookFileName[];

/// What was remembered last; what is usual if that can't be read or makes no sense.
TextLook rememberedLook(const ProgramInfo& program);

/// Remembers it for the windows that open from now on. If it can't be written, it is not remembered.
void rememberLook(const ProgramInfo& program, const TextLook& look);

/// Remembers what has changed between the two, and leaves the rest to those who have changed that meanwhile.
void rememberChange(const ProgramInfo& program, const TextLook& before, const TextLook& now);

}  // namespace tarnwick
