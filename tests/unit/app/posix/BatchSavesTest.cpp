// How often a compile of a whole project goes to the disk for its settings.
#include "../../project/ProjectFixture.h"
#include "app/ProjectBuild.h"

#include <map>
#include <sys/inotify.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

/// Counts what is done to the files of a folder while the object lives.
class FolderWatch {
 public:
  explicit FolderWatch(const std::string& folder) : queue_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    // The closes keep two opens in a row from being told as one.
    EXPECT_GE(inotify_add_watch(queue_, folder.c_str(), IN_OPEN | IN_CLOSE | IN_MOVED_TO), 0);
  }
  ~FolderWatch() { ::close(queue_); }
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  int opened(const std::string& name) { return count(name, IN_OPEN); }
  /// How often a fresh file took the place of this one.
  int replaced(const std::string& name) { return count(name, IN_MOVED_TO); }

 private:
  int count(const std::string& name, std::uint32_t what) {
    read();
    return counts_[{name, what}];
  }
  void read() {
    alignas(inotify_event) char buffer[16384];
    for (ssize_t size; (size = ::read(queue_, buffer, sizeof buffer)) > 0;) {
      for (char* at = buffer; at < buffer + size;) {
        const auto* const event = reinterpret_cast<const inotify_event*>(at);
        if (event->len) ++counts_[{event->name, event->mask}];
        at += sizeof(inotify_event) + event->len;
      }
    }
  }

  int queue_;
  std::map<std::pair<std::string, std::uint32_t>, int> counts_;
};

class BatchSavesTest : public ProjectFixture {
 protected:
  ProjectContext& openThree() {
    for (const char* name : {"A", "B", "C"})
      makeSource(std::string(name) + ".java", "class " + std::string(name) + " { }");
    return openWith("A.java;B.java;C.java");
  }

  std::size_t compiled() const {
    const std::string record = contentOf(scratch_.file("record"));
    std::size_t runs = 0;
    for (auto at = record.find("\n-d\n"); at != std::string::npos; at = record.find("\n-d\n", at + 1)) ++runs;
    return runs + (record.starts_with("-d\n") ? 1 : 0);
  }

  void expectOneSave(ProjectContext& project, std::size_t runs) {
    FolderWatch projects(folder());
    FolderWatch configuration(configFolder());
    compileProject(settings(), project, true);
    EXPECT_EQ(compiled(), runs);
    EXPECT_EQ(projects.replaced("my project.twp"), 1);
    EXPECT_EQ(configuration.replaced(defaultConfigurationName), 0) << "what is saved is the project";
    EXPECT_GE(configuration.opened(defaultConfigurationName), 1) << "the guide's place is taken from there";
    EXPECT_LE(configuration.opened(defaultConfigurationName), 2);
  }
};

TEST_F(BatchSavesTest, ThreeSourcesAreSavedForOnceAndTheConfigurationIsHardlyRead) {
  expectOneSave(openThree(), 3);
}

TEST_F(BatchSavesTest, SoAreThreeSourcesOfOneRun) {
  ProjectContext& project = openThree();
  settings().newerJava = settings().javacOneRun = true;
  expectOneSave(project, 1);
}

}  // namespace
}  // namespace tarnwick::test
