// Real tools that their user stops.
#include "base/Tarnwickfile.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>

namespace tarnwick {
namespace {

/// Stops what it shows as soon as it may.
class ImpatientDesktop : public test::ScriptedDesktop {
 public:
  std::function<bool()> mayStop;
  void whileBusy(const BusyWork& busy) override {
    std::thread worker(busy.work);
    EXPECT_TRUE(test::waitUntil(mayStop));
    busy.stop();
    worker.join();
  }
};

class StoppedToolTest : public testing::Test {
 protected:
  /// A tool that writes its process number to a file when it is ready, and does this.
  std::string tool(const std::string& script) {
    const std::string path = folder_.file("javac");
    test::writeFile(path, "#!/bin/sh\n" + script);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
  }

  RunResult run(const std::string& script) {
    Subprocess process(desktop_, log_, tool(script));
    process.addArg("javac");
    process.showWhileItRuns("A.java");
    desktop_.mayStop = [this] { return std::filesystem::exists(folder_.file("ready")); };
    return process.run(nullptr, FileMode::Write);
  }

  std::string quoted(const std::string& name) const { return '"' + folder_.file(name) + '"'; }
  std::string ready() const {
    return "echo $$ >" + quoted("new") + "; mv " + quoted("new") + ' ' + quoted("ready") + '\n';
  }
  bool isGone() const {
    const std::string number = test::contentOf(folder_.file("ready"));
    return !std::filesystem::exists("/proc/" + number.substr(0, number.find('\n')));
  }

  test::ScratchFolder folder_;
  ImpatientDesktop desktop_;
  ToolLog log_{folder_.path()};
};

TEST_F(StoppedToolTest, NobodyIsToldOfTheSignalThatHeSentHimself) {
  const RunResult result = run("echo at work\n" + ready() + "while :; do sleep 1; done\n");
  EXPECT_EQ(result.end, RunEnd::Stopped);
  EXPECT_EQ(test::contentOf(log_.path()), "\n\njavac\n\nat work\n\nStopped.\n");
  EXPECT_TRUE(isGone());
}

TEST_F(StoppedToolTest, OneThatIgnoresItGoesTooWithWhatItStarted) {
  const RunResult result = run("trap '' TERM INT HUP\nsetsid sleep 600 & child=$!\necho $child >" + quoted("child") +
                               "\n" + ready() + "while :; do sleep 1; done\n");
  EXPECT_EQ(result.end, RunEnd::Stopped);
  EXPECT_TRUE(isGone());
  const std::string child = test::contentOf(folder_.file("child"));
  const std::string number = child.substr(0, child.find('\n'));
  EXPECT_TRUE(test::waitUntil([&] { return !std::filesystem::exists("/proc/" + number); })) << number;
}

}  // namespace
}  // namespace tarnwick
