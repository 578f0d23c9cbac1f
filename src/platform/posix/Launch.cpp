#include "platform/posix/Launch.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

class FileActions {
 public:
  FileActions() { posix_spawn_file_actions_init(&actions_); }
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;

  void use(int ours, int theirs) {
    if (ours >= 0) posix_spawn_file_actions_adddup2(&actions_, ours, theirs);
  }
  void nothingToRead() { posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0); }
  void closeAllOthers() { posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1); }
  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

class Attributes {
 public:
  Attributes(bool ownSession, pid_t group) {
    posix_spawnattr_init(&attributes_);
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    posix_spawnattr_setpgroup(&attributes_, group);
    const int place = ownSession ? POSIX_SPAWN_SETSID : POSIX_SPAWN_SETPGROUP;
    posix_spawnattr_setflags(&attributes_, static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | place));
  }
  ~Attributes() { posix_spawnattr_destroy(&attributes_); }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;

  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_;
};

}  // namespace

SystemError systemError(const std::string& label, int code) {
  return {label, code, std::generic_category().message(code)};
}

int launch(const Launch& what, pid_t& process) {
  FileActions actions;
  if (what.input < 0) actions.nothingToRead();
  actions.use(what.input, STDIN_FILENO);
  actions.use(what.output, STDOUT_FILENO);
  actions.use(what.error, STDERR_FILENO);
  actions.closeAllOthers();
  const Attributes attributes(what.ownSession, what.group);

  std::vector<char*> words;
  for (const auto& argument : what.arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  const auto spawn = what.searchPath ? posix_spawnp : posix_spawn;
  return spawn(&process, what.executable.c_str(), actions.get(), attributes.get(), words.data(), environ);
}

void reapLater(pid_t process) {
  int status = 0;
  if (waitpid(process, &status, WNOHANG) != 0) return;
  try {
    std::thread([process] {
      int ignored = 0;
      while (waitpid(process, &ignored, 0) < 0 && errno == EINTR) {
      }
    }).detach();
  } catch (const std::system_error&) {
    // No thread to be had: the process then stays in the system's table until we end.
  }
}

}  // namespace tarnwick::platform
