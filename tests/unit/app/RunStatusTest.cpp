#include "app/RunStatus.h"
#include "support/SettingsFixture.h"

namespace tarnwick::test {
namespace {

class RunStatusTest : public SettingsFixture {
 protected:
  /// What a tool's run leaves in the log.
  void run(const std::string& said, FileMode mode = FileMode::Write, RunEnd end = RunEnd::ByItself) {
    log_.open(mode);
    const std::string all = said.empty() ? "" : "\n\njavac x\n\n" + said;
    log_.append(all.data(), all.size());
    log_.noteEnd(end);
    log_.close();
  }
  RunStatus status_{log_};
};

TEST_F(RunStatusTest, WhatRunsIsToldAndThenHowManySourcesWereCompiled) {
  EXPECT_EQ(status_.text(), "");
  status_.begins("javac B.java", 1);
  EXPECT_EQ(status_.text(), "javac B.java ...");
  run("");
  status_.begins("javac A.java", 1);
  EXPECT_EQ(status_.text(), "javac A.java ...");
  run("", FileMode::Append);
  status_.ends(false);
  EXPECT_EQ(status_.text(), "Compiled 2 sources in 0.0 s");
  status_.begins("javac A.java", 1);
  run("");
  status_.ends(false);
  EXPECT_EQ(status_.text(), "Compiled 1 source in 0.0 s") << "each command counts anew";
  status_.begins("javac 300 sources", 300);
  run("");
  status_.ends(false);
  EXPECT_EQ(status_.text(), "Compiled 300 sources in 0.0 s");
}

TEST_F(RunStatusTest, WhatAToolHasSaidIsSummedUp) {
  status_.begins("javac A.java", 1);
  run("A.java:3: error: x\nA.java:4: error: y\n");
  status_.ends(true);
  EXPECT_EQ(status_.text(), "2 errors in 1 file, 0.0 s");
  status_.begins("jar", 0);
  run("added manifest\n");
  status_.ends(true);
  EXPECT_EQ(status_.text(), "No errors or warnings, 0.0 s");
}

TEST_F(RunStatusTest, AStopIsTold) {
  status_.begins("javac A.java", 1);
  run("\nStopped.\n", FileMode::Write, RunEnd::Stopped);
  status_.ends(true);
  EXPECT_EQ(status_.text(), "Stopped, 0.0 s");
}

TEST_F(RunStatusTest, AnotherToolThatHasNothingToSayHasEnded) {
  status_.begins("jar", 0);
  EXPECT_EQ(status_.text(), "jar ...");
  run("");
  status_.ends(false);
  EXPECT_EQ(status_.text(), "jar has ended, 0.0 s");
}

TEST_F(RunStatusTest, WhatHasNotRunIsNoSuccess) {
  run("");
  status_.begins("javac A.java", 1);
  status_.ends(false);
  EXPECT_EQ(status_.text(), "") << "the tool could not be started";
  status_.begins("javac A.java", 1);
  run("");
  status_.ends(std::nullopt);
  EXPECT_EQ(status_.text(), "");
}

TEST_F(RunStatusTest, ACommandWithNothingToCompileSaysSo) {
  status_.ends(false);
  EXPECT_EQ(status_.text(), "All classes are up to date");
  status_.ends(std::nullopt);
  EXPECT_EQ(status_.text(), "All classes are up to date") << "one that did not begin changes nothing";
}

TEST_F(RunStatusTest, TheWholeLineNamesTheConfigurationToo) {
  EXPECT_EQ(statusText(settings(), ""), "Tarnwickdefault.CFG");
  EXPECT_EQ(statusText(settings(), "Stopped, 1.0 s"), "Stopped, 1.0 s   |   Tarnwickdefault.CFG");
}

}  // namespace
}  // namespace tarnwick::test
