#pragma once

#include "support/TestProgram.h"

#include <fcntl.h>
#include <string>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::test {

/// While it lives, this thread opens files as somebody who may not do everything: for the superuser no file is closed.
/// Whoever is no superuser stays who he is.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(static_cast<uid_t>(::setfsuid(nobody))) {}
  ~OrdinaryUser() { ::setfsuid(before_); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  /// False where even then a file opens that nobody may read: a test of permissions must be skipped there.
  static bool isBound() {
    const ScratchFolder scratch;
    const std::string path = scratch.file("closed");
    writeFile(path, "");
    if (::chmod(scratch.path().c_str(), 0755) != 0 || ::chmod(path.c_str(), 0) != 0) return false;
    const OrdinaryUser user;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return true;
    ::close(descriptor);
    return false;
  }

 private:
  static constexpr uid_t nobody = 65534;
  uid_t before_;
};

/// Why a test is skipped where OrdinaryUser is not bound.
inline constexpr char permissionsBindNobody[] = "this process may open every file, and may not act as another user";

}  // namespace tarnwick::test
