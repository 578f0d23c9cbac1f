#include "platform/FileSystem.h"
#include "process/ToolLog.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <thread>

namespace tarnwick {
namespace {

class LoggedPartsTest : public testing::Test {
 protected:
  void run(const std::string& said, FileMode mode) {
    log.open(mode);
    log.append(said.data(), said.size());
    log.close();
  }

  test::ScratchFolder folder;
  ToolLog log{folder.path()};
};

TEST_F(LoggedPartsTest, ItKnowsWhereEachRunBeginsAndInWhichFolder) {
  EXPECT_TRUE(log.parts().empty());
  EXPECT_EQ(log.runs(), 0);
  const std::string before = platform::currentDirectory();
  run("one\n", FileMode::Write);
  run("", FileMode::Append);
  ASSERT_TRUE(platform::changeDirectory(folder.path()));
  const std::string after = platform::currentDirectory();
  run("three\n", FileMode::Append);
  const auto parts = log.parts();
  ASSERT_EQ(parts.size(), 3u);
  EXPECT_EQ(parts[0].begin, 0u);
  EXPECT_EQ(parts[1].begin, 4u);
  EXPECT_EQ(parts[2].begin, 4u);
  EXPECT_EQ(parts[0].folder, before);
  EXPECT_EQ(parts[2].folder, after);
  EXPECT_NE(before, after);
  EXPECT_EQ(log.runs(), 3);
  run("four\n", FileMode::Write);
  ASSERT_EQ(log.parts().size(), 1u);
  EXPECT_EQ(log.parts()[0].begin, 0u);
  EXPECT_EQ(log.runs(), 4);
  platform::changeDirectory(before);
}

TEST_F(LoggedPartsTest, ItKnowsHowItsRunsHaveEnded) {
  log.noteEnd(RunEnd::Stopped);
  EXPECT_EQ(log.end(), RunEnd::ByItself) << "of no run at all";
  const auto runUntil = [this](RunEnd end, FileMode mode) {
    log.open(mode);
    log.noteEnd(end);
    log.close();
  };
  runUntil(RunEnd::BySignal, FileMode::Write);
  EXPECT_EQ(log.end(), RunEnd::BySignal);
  runUntil(RunEnd::ByItself, FileMode::Append);
  EXPECT_EQ(log.end(), RunEnd::BySignal) << "the command has not come through whole";
  runUntil(RunEnd::Stopped, FileMode::Append);
  EXPECT_EQ(log.end(), RunEnd::Stopped);
  ASSERT_EQ(log.parts().size(), 3u);
  EXPECT_EQ(log.parts()[0].end, RunEnd::BySignal);
  EXPECT_EQ(log.parts()[1].end, RunEnd::ByItself);
  log.noteEnd(RunEnd::BySignal);
  EXPECT_EQ(log.end(), RunEnd::Stopped) << "no run is on its way";
  runUntil(RunEnd::ByItself, FileMode::Write);
  EXPECT_EQ(log.end(), RunEnd::ByItself) << "a new log knows of none before";
}

TEST_F(LoggedPartsTest, NotesOfOursAreAPartWithoutCommand) {
  run("one\n", FileMode::Write);
  log.addNotes(FileMode::Append, {"a note", "another"});
  EXPECT_EQ(log.end(), RunEnd::ByItself);
  log.addNotes(FileMode::Append, {stoppedNote}, RunEnd::Stopped);
  std::string text = test::contentOf(log.path());
  std::erase(text, '\r');
  EXPECT_EQ(text, "one\n\n\na note\n\nanother\n\n\nStopped.\n");
  ASSERT_EQ(log.parts().size(), 3u);
  EXPECT_TRUE(log.parts()[0].hasCommand);
  EXPECT_FALSE(log.parts()[1].hasCommand);
  EXPECT_EQ(log.end(), RunEnd::Stopped);
}

TEST_F(LoggedPartsTest, ItKnowsHowLongItsRunsHaveTaken) {
  using std::chrono::milliseconds;
  log.open(FileMode::Write);
  std::this_thread::sleep_for(milliseconds(20));
  log.close();
  const auto first = log.elapsed();
  EXPECT_GE(first, milliseconds(20));
  std::this_thread::sleep_for(milliseconds(20));
  log.close();
  EXPECT_EQ(log.elapsed(), first) << "between the runs no time goes by";
  log.open(FileMode::Append);
  std::this_thread::sleep_for(milliseconds(20));
  log.close();
  EXPECT_GE(log.elapsed(), first + milliseconds(20));
  log.open(FileMode::Write);
  log.close();
  EXPECT_LT(log.elapsed(), first + milliseconds(20)) << "a new log counts anew";
}

}  // namespace
}  // namespace tarnwick
