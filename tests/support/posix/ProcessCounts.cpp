#include "support/ProcessCounts.h"

#include "support/posix/ProcessTable.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace tarnwick::test {

namespace {

long entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace

long openHandles() {
  return entriesOf("/proc/self/fd");
}

long handlesLostPerConsole() {
  return 0;
}

long runningThreads() {
  return entriesOf("/proc/self/task");
}

long unreapedChildren() {
  long count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    const auto fields = processFields(name);
    if (fields.size() > 1 && fields[0] == "Z" && fields[1] == std::to_string(getpid())) ++count;
  }
  return count;
}

long long peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stoll(line.substr(6)) * 1024;
  }
  return 0;
}

void forgetPeakMemory() {
  std::ofstream("/proc/self/clear_refs") << '5';
}

}  // namespace tarnwick::test
