#pragma once

#include "console/TextStyle.h"

#include <string>

namespace tarnwick {

/// Who wrote a piece of the console's text.
enum TextKind {
  KIND_NONE = 0,      ///< a line with nothing in it yet
  KIND_INPUT = 1,     ///< the user
  KIND_OUTPUT = 2,    ///< the child's standard output
  KIND_ERROR = 3,     ///< the child's standard error
  KIND_BANNER = 4,    ///< the program itself, when the child has ended
  KIND_DEBUGGER = 5,  ///< a debugger beside the child, in either of its outputs
};

/// A run of text of one kind and style within a line.
struct ConsoleSegment {
  int kind = KIND_NONE;
  std::string text;
  int columns = 0;  ///< how many cells the text takes; kept, since measuring a long line again and again would be slow
  TextStyle style = {};
};

}  // namespace tarnwick
