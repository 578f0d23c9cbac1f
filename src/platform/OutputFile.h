// Files that the user has chosen for output, which may be anything that has a name.
#pragma once

#include <cstdio>

namespace tarnwick::platform {

/// From here on a write fails with EAGAIN instead of waiting for whoever is at the other end of a pipe.
void neverWait(std::FILE* stream);

/// False once the file has been removed, or another one has been put in its place: what is written then is lost.
bool isStillThere(std::FILE* stream);

}  // namespace tarnwick::platform
