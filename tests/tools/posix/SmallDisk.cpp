// Saves configurations on disks that are full, and tells what became of the file. The disks are mounted on FOLDER, for
// this process alone: they are gone with it.
//
//   FOLDER space      no byte is free
//   FOLDER names      no new file can be made
//
// "skipped: REASON" where this process may not mount; otherwise the messages to the user, each behind "message: ",
// which configuration is there ("holds: a", "b" or "neither"), and the names in the folder ("name: NAME").
#include "../SavingRun.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sched.h>
#include <set>
#include <sys/mount.h>
#include <unistd.h>

namespace {

using tarnwick::test::SavingRun;

void writeWhole(const char* path, const std::string& text) {
  std::ofstream(path) << text;
}

/// Enters a mount name space of its own; without the right to, in a user name space of its own.
bool enterOwnNames() {
  if (::geteuid() == 0) return ::unshare(CLONE_NEWNS) == 0;
  const std::string user = std::to_string(::geteuid());
  const std::string group = std::to_string(::getegid());
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  writeWhole("/proc/self/setgroups", "deny");
  writeWhole("/proc/self/uid_map", "0 " + user + " 1");
  writeWhole("/proc/self/gid_map", "0 " + group + " 1");
  return true;
}

bool mountDisk(const std::string& folder, const char* options) {
  return enterOwnNames() && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("small disk", folder.c_str(), "tmpfs", 0, options) == 0;
}

std::string contentOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// Takes what is left of the disk. Gives the file's path.
std::string fill(const std::string& folder) {
  const std::string path = folder + "filler";
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT, 0666);
  const std::string block(512, 'f');
  while (::write(file, block.data(), block.size()) > 0) {
  }
  ::close(file);
  return path;
}

/// Takes the names that are left, as empty files. Gives the last one's path.
std::string takeNames(const std::string& folder) {
  std::filesystem::create_directory(folder + "names");
  std::string last;
  for (int i = 0;; ++i) {
    const std::string path = folder + "names/" + std::to_string(i);
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT, 0666);
    if (file < 0) return last;
    ::close(file);
    last = path;
  }
}

void tell(const std::string& folder, const std::string& a, const std::string& b) {
  const std::string held = contentOf(folder + tarnwick::defaultConfigurationName);
  std::cout << "holds: " << (held == a ? "a" : held == b ? "b" : "neither") << '\n';
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename().string());
  for (const auto& name : names) std::cout << "name: " << name << '\n';
}

void saveOnFullDisk(const std::string& folder, bool space) {
  SavingRun run(folder.substr(0, folder.size() - 1));
  const std::string file = folder + tarnwick::defaultConfigurationName;
  run.save('a');
  const std::string a = contentOf(file);
  run.save('b');
  const std::string b = contentOf(file);
  const std::string taken = space ? fill(folder) : takeNames(folder);
  for (int i = 0; i < 3; ++i) run.save('a');
  tell(folder, a, b);
  std::filesystem::remove(taken);
  run.save('a');
  tell(folder, a, b);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 1;
  const bool space = std::string(argv[2]) == "space";
  if (!mountDisk(argv[1], space ? "size=64k" : "size=1m,nr_inodes=20")) {
    std::cout << "skipped: " << std::strerror(errno) << '\n';
    return 0;
  }
  saveOnFullDisk(std::string(argv[1]) + '/', space);
  return 0;
}
