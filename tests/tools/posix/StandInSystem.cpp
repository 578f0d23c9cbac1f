#include "../StandInSystem.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarnwick::test {

void useBinaryStreams() {}

std::string workingFolder() {
  return std::filesystem::current_path().string();
}

bool hasConsoleWindow() {
  return false;
}

int startCopy(const std::string& argument) {
  std::string name = "stand-in";
  std::string word = argument;
  char* words[] = {name.data(), word.data(), nullptr};
  pid_t process = 0;
  return posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, words, environ) == 0 ? process : 0;
}

int startOrphan(const std::string& argument) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return 0;
  const pid_t between = fork();
  if (between == 0) {
    setsid();
    const int process = startCopy(argument);
    _exit(write(ends[1], &process, sizeof process) == sizeof process ? 0 : 1);
  }
  int process = 0;
  close(ends[1]);
  if (read(ends[0], &process, sizeof process) != sizeof process) process = 0;
  close(ends[0]);
  waitpid(between, nullptr, 0);
  return process;
}

void onRequestToEnd(void (*work)()) {
  sigset_t request;
  sigemptyset(&request);
  sigaddset(&request, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &request, nullptr);
  std::thread([request, work] {
    int signal = 0;
    sigwait(&request, &signal);
    work();
    _exit(0);
  }).detach();
}

}  // namespace tarnwick::test
