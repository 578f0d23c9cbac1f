#pragma once

#include "support/TestProgram.h"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace tarnwick::test {

/// A device to save to. The superuser could replace the system's own by a plain file, and would, were a save at fault:
/// he gets one of the test's. Whoever else cannot harm the system's, and uses that.
class OwnDevice {
 public:
  /// The memory device with this number: 3 takes everything, 7 is full. `name` is the system's name for it.
  OwnDevice(const std::string& name, unsigned int number)
      : path_(::geteuid() == 0 ? scratch_.file(name) : "/dev/" + name) {
    if (::geteuid() == 0) ::mknod(path_.c_str(), S_IFCHR | 0666, ::makedev(1, number));
    const int descriptor = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
    usable_ = descriptor >= 0 && ::close(descriptor) == 0;
  }

  /// False where no device can be made or opened: the test must be skipped there.
  bool isUsable() const { return usable_; }
  const std::string& path() const { return path_; }

 private:
  ScratchFolder scratch_;
  std::string path_;
  bool usable_ = false;
};

/// Why a test is skipped where an OwnDevice is not usable.
inline constexpr char noOwnDevice[] = "the superuser can make no device here, and the system's own are not put at risk";

}  // namespace tarnwick::test
