#include "base/FileForSubprocess.h"
#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using test::StandInScript;

class SubprocessTest : public testing::Test {
 protected:
  void SetUp() override { before_ = platform::currentDirectory(); }
  void TearDown() override { platform::changeDirectory(before_); }

  static std::string javac() { return StandInScript::tool("javac"); }

  /// The log as a reader in text mode sees it.
  std::string logText() const {
    std::string text = test::contentOf(log_.path());
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
  }

  bool run(const std::string& script, FileMode mode = FileMode::Write) {
    script_.setScript(script);
    Subprocess tool(desktop_, log_, javac());
    tool.addArg("javac");
    tool.addArg("-d ", "out");
    return test::shown(desktop_, tool.run(nullptr, mode));
  }

  static void fill(Subprocess& tool, int count) {
    tool.addArg("javac");
    for (int i = 1; i < count; ++i) tool.addArg("a", std::to_string(i));
  }

  std::size_t recordedArguments() const {
    const std::string record = script_.record();
    return static_cast<std::size_t>(std::count(record.begin(), record.end(), '\n'));
  }

  StandInScript script_{""};
  test::ScriptedDesktop desktop_;
  ToolLog log_{script_.folder().path()};
  std::string before_;
};

TEST_F(SubprocessTest, ASilentToolLeavesTheLogEmpty) {
  EXPECT_FALSE(run(""));
  EXPECT_EQ(logText(), "");
  EXPECT_EQ(script_.record(), "-d\nout\n");
}

TEST_F(SubprocessTest, AFailingToolThatStaysSilentCountsAsASilentSuccess) {
  EXPECT_FALSE(run("exit 3"));
}

TEST_F(SubprocessTest, TheLogBeginsWithTheCommand) {
  EXPECT_TRUE(run("out hello"));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nhello\n");
}

TEST_F(SubprocessTest, OutputOnStandardErrorAloneCountsToo) {
  EXPECT_TRUE(run("err x.java:1: error\nexit 1"));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nx.java:1: error\n");
}

TEST_F(SubprocessTest, BothOutputsComeInTheOrderOfTheirArrival) {
  // Each waits for the one before it to be logged.
  const std::string log = script_.folder().file("Tarnwick_LOG1.tmp");
  EXPECT_TRUE(run("out one\nawait one " + log + "\nerr two\nawait two " + log + "\nout three"));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\none\ntwo\nthree\n");
}

TEST_F(SubprocessTest, ASingleByteIsOutput) {
  EXPECT_TRUE(run("outraw 41"));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nA");
}

TEST_F(SubprocessTest, BytesOfEveryKindReachTheLogAsTheyAre) {
  // Line ends of either kind, a letter of an 8-bit set, one in UTF-8, a zero, what a text might end at; no line end.
  EXPECT_TRUE(run("outraw 0D0A0AE4C3A400801AFF"));
  const std::string end = platform::lineEnd;
  EXPECT_EQ(test::contentOf(log_.path()),
            end + end + "javac -d out" + end + end + std::string("\r\n\n\xE4\xC3\xA4\0\x80\x1A\xFF", 10));
}

TEST_F(SubprocessTest, LongOutputIsLoggedWhole) {
  EXPECT_TRUE(run("flood 2000000"));
  EXPECT_EQ(logText().size(), 2000000 + std::string("\n\njavac -d out\n\n").size());
}

TEST_F(SubprocessTest, ModeWriteKeepsTheLastRunAlone) {
  EXPECT_TRUE(run("out first"));
  const std::string path = log_.path();
  EXPECT_TRUE(run("out second"));
  EXPECT_EQ(log_.path(), path) << "one log per process";
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nsecond\n");
}

TEST_F(SubprocessTest, ModeAppendAddsAFurtherHeader) {
  EXPECT_TRUE(run("out first"));
  EXPECT_TRUE(run("out second", FileMode::Append));
  EXPECT_FALSE(run("", FileMode::Append));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nfirst\n\n\njavac -d out\n\nsecond\n");
}

TEST_F(SubprocessTest, ASilentRunInModeWriteEmptiesTheLog) {
  EXPECT_TRUE(run("out first"));
  EXPECT_FALSE(run(""));
  EXPECT_EQ(logText(), "");
}

TEST_F(SubprocessTest, ARunWhoseOutputsStayOpenTakesAtLeastOneSettlingTime) {
  const auto begin = steady_clock::now();
  run("grandchild 15000\nout x");
  EXPECT_GE(steady_clock::now() - begin, milliseconds(400));
}

TEST_F(SubprocessTest, WhatComesWithinASettlingTimeAfterTheToolsEndKeepsTheRunGoing) {
  // On a busy machine the murmurer may be held up for as long as that. Who did not wait for it would hear all of it in
  // no try.
  std::size_t murmurs = 0;
  for (int tries = 0; tries < 5 && murmurs < 20; ++tries) {
    const auto begin = steady_clock::now();
    EXPECT_TRUE(run("murmurer 20 50\nout x"));
    EXPECT_LT(steady_clock::now() - begin, milliseconds(15000)) << "though it keeps the pipes";
    const std::string log = logText();
    murmurs = 0;
    for (auto at = log.find("murmur\n"); at != std::string::npos; at = log.find("murmur\n", at + 1)) ++murmurs;
    if (murmurs < 20) continue;
    EXPECT_GE(steady_clock::now() - begin, milliseconds(20 * 50 + 400));
  }
  EXPECT_EQ(murmurs, 20U);
}

TEST_F(SubprocessTest, AGrandchildThatKeepsThePipesDoesNotHoldUpTheRun) {
  const auto begin = steady_clock::now();
  EXPECT_TRUE(run("grandchild 15000\nout x"));
  EXPECT_LT(steady_clock::now() - begin, milliseconds(10000));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nx\n");
  EXPECT_TRUE(test::processLives(script_.grandchildren(1).at(0)));
}

TEST_F(SubprocessTest, EmptyArgumentsAddNoTextButTakeAPlace) {
  script_.setScript("out x");
  Subprocess tool(desktop_, log_, javac());
  for (const char* text : {"javac", "", "-g", "", "X.java"}) tool.addArg(text);
  EXPECT_EQ(tool.arguments().size(), 5U);
  EXPECT_TRUE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(logText(), "\n\njavac -g X.java\n\nx\n");
  EXPECT_EQ(script_.record(), "-g\nX.java\n");
}

TEST_F(SubprocessTest, TheFirstWordOfTheCommandIsNotHandedOver) {
  script_.setScript("out x");
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("");
  tool.addArg("first second");
  EXPECT_TRUE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(logText(), "\n\nfirst second\n\nx\n") << "trimmed on the left";
  EXPECT_EQ(script_.record(), "second\n");
}

TEST_F(SubprocessTest, QuotedArgumentsReachTheToolAsOne) {
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("javac");
  tool.addArg("-classpath ", "\"my classes;b\"");
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(script_.record(), "-classpath\nmy classes;b\n");
}

TEST_F(SubprocessTest, NamesThatAShellWouldTouchReachTheToolAsTheyAre) {
  for (const std::string name : {"two words", "100%", "%PATH%", "a & b", "$HOME", "`id`", "it's", "a;b", "^x", "(y)",
                                 "!x", "#1", "~", "a,b=c", "{z}", "[w]", "@args", "-d"}) {
    const std::string folder = script_.folder().file(name) + platform::folderSeparator;
    platform::makeFolders(folder);
    script_.setScript("folder");
    platform::deleteFile(script_.folder().file("record"));
    Subprocess tool(desktop_, log_, javac());
    tool.addArg("javac");
    FileForSubprocess file(folder, "x.java");
    file.args() = {platform::commandWord(folder + "x.java"), platform::commandWord(name)};
    EXPECT_TRUE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
    EXPECT_EQ(script_.record(), folder + "x.java\n" + name + '\n');
    EXPECT_TRUE(logText().ends_with("\n\n" + folder.substr(0, folder.size() - 1) + '\n')) << logText();
    platform::changeDirectory(before_);
  }
}

TEST_F(SubprocessTest, TwoHundredFiftyFiveArgumentsRun) {
  Subprocess tool(desktop_, log_, javac());
  fill(tool, 255);
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(recordedArguments(), 254U);
}

TEST_F(SubprocessTest, TwoHundredFiftySixOwnArgumentsAreRefused) {
  Subprocess tool(desktop_, log_, javac());
  fill(tool, 256);
  FileForSubprocess file("x.java");
  file.args() = {"a"};
  desktop_.expectMessage("Subprocess argument list too long (1).");
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  DetachedSubprocess detached(desktop_, log_, javac());
  fill(detached, 300);
  desktop_.expectMessage("Subprocess argument list too long (1).");
  EXPECT_FALSE(test::shown(desktop_, detached.run(nullptr, FileMode::Write)));
  EXPECT_FALSE(script_.hasRecord()) << "nothing was started";
  EXPECT_EQ(log_.path(), "");
}

TEST_F(SubprocessTest, OwnAndTheFilesArgumentsTogetherAreRefusedAtTheSameCount) {
  Subprocess tool(desktop_, log_, javac());
  fill(tool, 200);
  FileForSubprocess file("x.java");
  file.args().assign(56, "f");
  desktop_.expectMessage("Subprocess argument list too long (2).");
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  DetachedSubprocess detached(desktop_, log_, javac());
  fill(detached, 200);
  desktop_.expectMessage("Subprocess argument list too long (2).");
  EXPECT_FALSE(test::shown(desktop_, detached.run(&file, FileMode::Write)));
  EXPECT_FALSE(script_.hasRecord());

  file.args().pop_back();
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  EXPECT_EQ(recordedArguments(), 254U);
}

TEST_F(SubprocessTest, TheFilesArgumentsFollowTheToolsOwn) {
  script_.setScript("out x");
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("javac");
  tool.addArg("-g");
  FileForSubprocess file("x.java");
  file.args() = {"a \"b c\""};
  EXPECT_TRUE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  EXPECT_EQ(logText(), "\n\njavac -g a \"b c\"\n\nx\n");
  EXPECT_EQ(script_.record(), "-g\na\nb c\n");
}

TEST_F(SubprocessTest, TheToolRunsInTheFilesFolderAndWeStayThere) {
  const test::ScratchFolder work;
  script_.setScript("folder");
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("javac");
  FileForSubprocess file(work.file("x.java"));
  EXPECT_TRUE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  const std::string folder = work.path().substr(0, work.path().size() - 1);
  EXPECT_EQ(logText(), "\n\njavac\n\n" + folder + '\n');
  EXPECT_EQ(platform::currentDirectory(), folder);
}

TEST_F(SubprocessTest, AFileWithoutAFolderLeavesTheCurrentOne) {
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("javac");
  FileForSubprocess file("x.java");
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  EXPECT_EQ(platform::currentDirectory(), before_);
}

TEST_F(SubprocessTest, AFolderThatCannotBeEnteredEndsTheRun) {
  FileForSubprocess file(script_.folder().file("nothing") + platform::folderSeparator, "x.java");
  Subprocess tool(desktop_, log_, javac());
  DetachedSubprocess detached(desktop_, log_, javac());
  for (Subprocess* each : {&tool, static_cast<Subprocess*>(&detached)}) {
    each->addArg("javac");
    desktop_.expectMessage("Subprocess::run(): _chdir error");
    EXPECT_FALSE(test::shown(desktop_, each->run(&file, FileMode::Write)));
  }
  EXPECT_FALSE(script_.hasRecord());
  EXPECT_EQ(platform::currentDirectory(), before_);
}

TEST_F(SubprocessTest, AToolThatCannotBeStartedIsTold) {
  const std::string missing = script_.folder().file("javac.exe");
  std::string text;
  try {
    platform::ChildProcess::start({missing, "", false});
  } catch (const platform::SystemError& error) {
    text = error.text();
  }
  ASSERT_EQ(text.substr(0, 22), "CreateProcess error 2\n");
  Subprocess tool(desktop_, log_, missing);
  tool.addArg("javac");
  desktop_.expectMessage("Can't start " + missing + '\n' + text);
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(log_.path(), "") << "a log is made with the first run that starts";
}

TEST_F(SubprocessTest, AFailedStartKeepsAnEarlierLog) {
  EXPECT_TRUE(run("out first"));
  Subprocess tool(desktop_, log_, script_.folder().path());
  tool.addArg("javac");
  try {
    platform::ChildProcess::start({script_.folder().path(), "", false});
  } catch (const platform::SystemError& error) {
    desktop_.expectMessage("Can't start " + script_.folder().path() + '\n' + error.text());
  }
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  EXPECT_EQ(logText(), "\n\njavac -d out\n\nfirst\n");
}

TEST_F(SubprocessTest, ALogThatCannotBeMadeIsToldAndTheToolRunsToItsEnd) {
  ToolLog nowhere(script_.folder().file("nothing") + platform::folderSeparator);
  script_.setScript("flood 300000\nout last");
  Subprocess tool(desktop_, nowhere, javac());
  tool.addArg("javac");
  std::string expected;
  try {
    ToolLog(script_.folder().file("nothing") + platform::folderSeparator).open(FileMode::Write);
  } catch (const Tarnwickfile::FileNotOpenE& e) {
    expected = e.message + "\nCan't open log file " + e.file;
  }
  ASSERT_NE(expected, "");
  try {
    test::shown(desktop_, tool.run(nullptr, FileMode::Write));
    FAIL() << "whether the tool wrote anything is told though it is not known";
  } catch (const Tarnwickfile::FileNotOpenE& e) {
    EXPECT_EQ(e.message, expected);
  }
}

TEST_F(SubprocessTest, ResetTakesAnotherExecutableAndDropsTheArguments) {
  Subprocess tool(desktop_, log_, "one");
  tool.addArg("a");
  tool.reset(javac());
  EXPECT_EQ(tool.executable(), javac());
  EXPECT_TRUE(tool.arguments().empty());
  tool.addArg("pre", "fix");
  EXPECT_EQ(tool.arguments(), std::vector<std::string>{"prefix"});
}

TEST_F(SubprocessTest, AnObjectMayRunAgain) {
  script_.setScript("out x");
  Subprocess tool(desktop_, log_, javac());
  tool.addArg("javac");
  EXPECT_TRUE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
  script_.setScript("");
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write))) << "the result is the last run's";
}

TEST_F(SubprocessTest, ADetachedToolIsNotWaitedForAndNeverHasOutput) {
  const std::string go = script_.folder().file("go");
  script_.setScript("out said\nawait go " + go + "\nkeep " + go);
  const test::ScratchFolder work;
  DetachedSubprocess tool(desktop_, log_, javac());
  for (const char* text : {"javac", "", "-g", "-cp a;b"}) tool.addArg(text);
  FileForSubprocess file(work.file("x.java"));
  file.args() = {"last"};
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  EXPECT_FALSE(platform::isFile(script_.folder().file("record.kept"))) << "it has not been let go on";
  // Where the arguments become one command line, the blank within one splits it.
  const std::string expected = platform::folderSeparator == '/' ? "-g\n-cp a;b\nlast\n" : "-g\n-cp\na;b\nlast\n";
  EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord() && script_.record() == expected; }));
  EXPECT_EQ(platform::currentDirectory() + platform::folderSeparator, work.path());
  EXPECT_EQ(log_.path(), "");
  platform::changeDirectory(before_);
  test::writeFile(go, "go");
  EXPECT_TRUE(test::waitUntil([&] { return platform::isFile(script_.folder().file("record.kept")); }));
}

TEST_F(SubprocessTest, ADetachedToolTakesAsManyArguments) {
  DetachedSubprocess tool(desktop_, log_, javac());
  fill(tool, 200);
  FileForSubprocess file("x.java");
  file.args().assign(55, "f");
  EXPECT_FALSE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
  EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord() && recordedArguments() == 254; }));
}

TEST_F(SubprocessTest, ADetachedToolThatCannotBeStartedIsTold) {
  const std::string missing = script_.folder().file("nothing.exe");
  DetachedSubprocess tool(desktop_, log_, missing);
  tool.addArg("nothing");
  desktop_.expectMessage("Unable to start " + missing + ".\n\nNo such file or directory  (2)");
  EXPECT_FALSE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
}

TEST(ToolLogTest, IsMadeWithTheFirstOpenAndGoesWithTheProcess) {
  const test::ScratchFolder folder;
  std::string path;
  {
    ToolLog log(folder.path());
    EXPECT_EQ(log.path(), "");
    EXPECT_THROW(log.append("x", 1), Tarnwickfile::FileNotOpenE);
    log.open(FileMode::Write);
    path = log.path();
    EXPECT_EQ(path, folder.file("Tarnwick_LOG1.tmp"));
    EXPECT_EQ(log.append("abc", 3), 3U);
    log.close();
    EXPECT_EQ(test::contentOf(path), "abc");
    EXPECT_THROW(log.append("x", 1), Tarnwickfile::FileNotOpenE);
    log.close();
  }
  EXPECT_FALSE(platform::isFile(path));
}

TEST(ToolLogTest, LiesWhereTheConfigurationIsWhenItIsMade) {
  const test::ScratchFolder before;
  const test::ScratchFolder after;
  std::string folder = before.path();
  ToolLog log([&folder] { return folder; });
  folder = after.path();
  log.open(FileMode::Write);
  EXPECT_EQ(log.path(), after.file("Tarnwick_LOG1.tmp"));
}

TEST(ToolLogTest, AfterAFailureItLiesWhereTheConfigurationIsThen) {
  const test::ScratchFolder scratch;
  std::string folder = scratch.file("gone") + platform::folderSeparator;
  ToolLog log([&folder] { return folder; });
  EXPECT_THROW(log.open(FileMode::Write), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(log.path(), "");
  folder = scratch.path();
  log.open(FileMode::Write);
  EXPECT_EQ(log.path(), scratch.file("Tarnwick_LOG1.tmp"));
  log.append("abc", 3);
  log.close();
  EXPECT_EQ(test::contentOf(log.path()), "abc");
}

TEST(ToolLogTest, ASecondProcesssLogTakesTheNextNumber) {
  const test::ScratchFolder folder;
  ToolLog first(folder.path());
  ToolLog second(folder.path());
  first.open(FileMode::Write);
  second.open(FileMode::Write);
  EXPECT_EQ(second.path(), folder.file("Tarnwick_LOG2.tmp"));
}

}  // namespace
}  // namespace tarnwick
