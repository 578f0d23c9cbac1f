#include "../AppFixture.h"
#include "support/Children.h"
#include "support/posix/XdgFolders.h"

#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <string>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tarnwick::test {
namespace {

/// A pipe with a name, whose content comes only when it has been opened a number of times, and whose name is gone then.
class VanishingFile {
 public:
  VanishingFile(const std::string& path, int opens, const std::string& content) : path_(path) {
    EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
    // With both ends here, nobody waits when it is opened.
    pipe_ = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    watch_ = ::inotify_init1(IN_CLOEXEC);
    // The closing is watched so that two openings are never told as one.
    EXPECT_GE(::inotify_add_watch(watch_, path.c_str(), IN_OPEN | IN_CLOSE), 0);
    thread_ = std::thread([this, opens, content] {
      waitForOpens(opens);
      ::unlink(path_.c_str());
      EXPECT_EQ(::write(pipe_, content.data(), content.size()), static_cast<ssize_t>(content.size()));
    });
  }
  ~VanishingFile() {
    thread_.join();
    ::close(watch_);
    ::close(pipe_);
  }
  VanishingFile(const VanishingFile&) = delete;
  VanishingFile& operator=(const VanishingFile&) = delete;

 private:
  void waitForOpens(int opens) {
    constexpr int mostMilliseconds = 20000;
    pollfd ready{watch_, POLLIN, 0};
    while (opens > 0 && ::poll(&ready, 1, mostMilliseconds) == 1) {
      alignas(inotify_event) char events[4096];
      const ssize_t size = ::read(watch_, events, sizeof events);
      for (ssize_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(events + at);
        if (event->mask & IN_OPEN) --opens;
        at += static_cast<ssize_t>(sizeof *event + event->len);
      }
    }
    EXPECT_EQ(opens, 0) << "opened less often than that";
  }

  std::string path_;
  int pipe_ = -1;
  int watch_ = -1;
  std::thread thread_;
};

using PosixTarnwickAppTest = AppFixture;

TEST_F(PosixTarnwickAppTest, AConfigurationThatCannotBeReopenedForALongLineIsTold) {
  const std::string path = userFolder() + "own.cfg";
  // Opened by its switch, for the application, and by the reading; the fourth time would be for the long line.
  const VanishingFile file(path, 3, "REM " + std::string(400, 'x') + "\n");
  desktop_.expectMessage("Encountered problems reading the configuration");
  EXPECT_EQ(app().run(cfg(path)), 1);
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(PosixTarnwickAppTest, TheExecutablesNameKeepsItsCase) {
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=/opt/Java/bin/java\\/"));
  EXPECT_EQ(app().exeFile(), "/opt/Java/bin/java");
}

TEST_F(PosixTarnwickAppTest, TheOpenerOfArchivesIsLookedUpAtConstruction) {
  const XdgFolders xdg(userFolder());
  const std::string programs = userFolder() + "programs/";
  std::filesystem::create_directory(programs);
  std::filesystem::copy_file(StandInScript::tool("jar"), programs + "unpacker");
  const ScopedEnvironment path("PATH", programs);
  // Asked in a fresh process: the system keeps its answers for the life of one.
  const auto known = [&] {
    return outputOf(platform::resolvedPath(standInFolder() + "launch_probe"), "zip " + programFolder() + "tarnwick");
  };
  EXPECT_EQ(known(), "\n") << "nothing opens archives here";
  xdg.addApplication("unpacker", "unpacker -x %f", "application/zip;");
  EXPECT_EQ(known(), "unpacker -x %f\n");
}

}  // namespace
}  // namespace tarnwick::test
