#pragma once

#include "base/Tarnwickexception.h"

namespace tarnwick {

/// Thrown where the system has no thread left.
struct NoThreadE : Tarnwickexception {
  NoThreadE() : Tarnwickexception("Tarnwick Internal error: Thread creation (subprocess) failed.\n") {}
};

}  // namespace tarnwick
