#include "platform/posix/Descendants.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

struct Entry {
  pid_t process = 0;
  pid_t parent = 0;
  bool below = false;  ///< a descendant, for what is known so far
};

/// A machine with more processes than this has other troubles.
std::array<Entry, 65536> table;

/// The parent of a process, 0 for one that has gone.
pid_t parentOf(const char* process) {
  char path[64];
  std::snprintf(path, sizeof path, "/proc/%.20s/stat", process);
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return 0;
  char stat[512];
  const ssize_t count = read(file, stat, sizeof stat - 1);
  close(file);
  if (count <= 0) return 0;
  stat[count] = 0;
  // The program's name stands in brackets and may hold any of them; then come the state and the parent.
  const char* name = std::strrchr(stat, ')');
  return name && std::strlen(name) > 4 ? static_cast<pid_t>(std::atol(name + 4)) : 0;
}

std::size_t readTable() {
  DIR* const folder = opendir("/proc");
  if (!folder) return 0;
  std::size_t count = 0;
  while (const dirent* entry = readdir(folder)) {
    const char first = entry->d_name[0];
    if (first < '0' || first > '9' || count == table.size()) continue;
    table[count++] = {static_cast<pid_t>(std::atol(entry->d_name)), parentOf(entry->d_name), false};
  }
  closedir(folder);
  return count;
}

bool isBelow(pid_t process, std::size_t count) {
  if (process == getpid()) return true;
  for (std::size_t i = 0; i < count; ++i) {
    if (table[i].process == process) return table[i].below;
  }
  return false;
}

}  // namespace

void signalDescendants(int signal) {
  const std::size_t count = readTable();
  for (bool found = true; found;) {
    found = false;
    for (std::size_t i = 0; i < count; ++i) {
      if (table[i].below || !isBelow(table[i].parent, count)) continue;
      table[i].below = found = true;
    }
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (table[i].below) kill(table[i].process, signal);
  }
}

}  // namespace tarnwick::platform
