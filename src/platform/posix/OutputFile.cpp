#include "platform/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace tarnwick::platform {

void neverWait(std::FILE* stream) {
  const int descriptor = ::fileno(stream);
  const int flags = ::fcntl(descriptor, F_GETFL);
  if (flags >= 0) ::fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
}

bool isStillThere(std::FILE* stream) {
  struct stat status {};
  // A file of which nothing can be known tells its fault itself, when it is written to.
  return ::fstat(::fileno(stream), &status) != 0 || status.st_nlink > 0;
}

}  // namespace tarnwick::platform
