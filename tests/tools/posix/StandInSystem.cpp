#include "../StandInSystem.h"

#include <filesystem>
#include <spawn.h>
#include <unistd.h>

namespace tarnwick::test {

void useBinaryStreams() {}

std::string workingFolder() {
  return std::filesystem::current_path().string();
}

int startCopy(const std::string& argument) {
  std::string name = "stand-in";
  std::string word = argument;
  char* words[] = {name.data(), word.data(), nullptr};
  pid_t process = 0;
  return posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, words, environ) == 0 ? process : 0;
}

}  // namespace tarnwick::test
