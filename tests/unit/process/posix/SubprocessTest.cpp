#include "base/FileForSubprocess.h"
#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"
#include "support/posix/FullDisk.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tarnwick {
namespace {

using test::StandInScript;

class PosixSubprocessTest : public testing::Test {
 protected:
  bool run(const std::string& tool = StandInScript::tool("javac")) {
    Subprocess run(desktop_, log_, tool);
    run.addArg("javac");
    return test::shown(desktop_, run.run(nullptr, FileMode::Write));
  }

  StandInScript script_{""};
  test::ScriptedDesktop desktop_;
  ToolLog log_{script_.folder().path()};
};

TEST_F(PosixSubprocessTest, AFullDiskIsToldAndTheToolStillCountsAsHavingSpoken) {
  log_.open(FileMode::Write);  // so that its name is known
  log_.close();
  for (const char* script : {"out A.java:1: error", "flood 2000000"}) {
    script_.setScript(script);
    desktop_.expectMessage("File too large\nCan't write log file " + log_.path());
    bool spoke = false;
    {
      const test::FullDisk disk(10);
      spoke = run();
    }
    EXPECT_TRUE(spoke) << script;
    EXPECT_EQ(test::contentOf(log_.path()).size(), 10U) << "what there was room for is kept";
  }
  script_.setScript("out again");
  EXPECT_TRUE(run()) << "with room on the disk nothing is told";
  EXPECT_EQ(test::contentOf(log_.path()), "\n\njavac\n\nagain\n");
}

TEST_F(PosixSubprocessTest, AToolThatASignalEndsHasSaidSo) {
  script_.setScript("signal 9");
  EXPECT_TRUE(run()) << "though it did not write a byte";
  EXPECT_EQ(test::contentOf(log_.path()), "\n\njavac\n\nEnded by a signal: Killed\n");
  EXPECT_EQ(log_.end(), RunEnd::BySignal);
  script_.setScript("outraw 41\nsignal 11");
  EXPECT_TRUE(run());
  EXPECT_EQ(test::contentOf(log_.path()), "\n\njavac\n\nA\nEnded by a signal: Segmentation fault\n");
  script_.setScript("exit 137");
  EXPECT_FALSE(run()) << "an exit code is never read";
  EXPECT_EQ(log_.end(), RunEnd::ByItself);
}

TEST_F(PosixSubprocessTest, AToolThatCannotBeRunIsTold) {
  const std::string file = script_.folder().file("javac");
  test::writeFile(file, "text");
  const std::string folder = script_.folder().file("folder");
  std::filesystem::create_directory(folder);
  const std::string missing = script_.folder().file("missing");
  const struct {
    std::string tool;
    std::string reason;
  } table[] = {
      {missing, "CreateProcess error 2\nNo such file or directory"},
      {file, "CreateProcess error 13\nPermission denied"},
      {folder, "CreateProcess error 13\nPermission denied"},
  };
  for (const auto& row : table) {
    desktop_.expectMessage("Can't start " + row.tool + '\n' + row.reason);
    EXPECT_FALSE(run(row.tool));
  }
  chmod(file.c_str(), 0755);
  desktop_.expectMessage("Can't start " + file + "\nCreateProcess error 8\nExec format error");
  EXPECT_FALSE(run(file)) << "and no shell plays it";
  EXPECT_EQ(log_.path(), "");
}

TEST_F(PosixSubprocessTest, WithoutPipesNothingIsStartedAndItIsTold) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer opens files of its own and takes their lack for a fault of ours";
#endif
  // A tool that nobody can listen to would count as one that had nothing to say.
  desktop_.expectMessage("Can't start " + StandInScript::tool("javac") +
                         "\nCreatePipe() error 24\nToo many open files");
  rlimit before{};
  ::getrlimit(RLIMIT_NOFILE, &before);
  rlimit none = before;
  none.rlim_cur = 3;
  ::setrlimit(RLIMIT_NOFILE, &none);
  const bool spoke = run();
  ::setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_FALSE(spoke);
  EXPECT_FALSE(script_.hasRecord());
  EXPECT_EQ(log_.path(), "");
}

TEST_F(PosixSubprocessTest, NamesAreFilledInForTheToolAndNotInTheLog) {
  const std::string before = platform::currentDirectory();
  const test::ScratchFolder work;
  for (const char* name : {"b", "a b", ".c"}) test::writeFile(work.file(name), "");
  platform::changeDirectory(work.path());
  script_.setScript("out x");
  for (const bool filled : {false, true}) {
    Subprocess tool(desktop_, log_, StandInScript::tool("jar"));
    tool.addArg("jar");
    tool.addArg("*");
    if (filled) tool.fillInNames();
    EXPECT_TRUE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
    EXPECT_EQ(test::contentOf(log_.path()), "\n\njar *\n\nx\n");
    EXPECT_EQ(script_.record(), filled ? "*\na b\nb\n" : "*\n");
  }
  platform::changeDirectory(before);
}

TEST_F(PosixSubprocessTest, NamesOfEveryKindReachTheToolAsTheyAre) {
  for (const std::string name : {"two words",  "100%",      "a & b", "$HOME",      "`id`",
                                 "say \"hi\"", "\"",        "end\\", "a\\\"b c\\", "it's",
                                 "*?[x]",      "a;b|c>d<e", "#1",    "~",          "\xC3\xA4\xE6\x97\xA5",
                                 "tab\there",  " leading",  "!x",    "(y)",        "-d",
                                 "%s%n"}) {
    const std::string folder = script_.folder().file(name) + '/';
    std::filesystem::create_directory(folder);
    script_.setScript("folder\nerr " + name);
    platform::deleteFile(script_.folder().file("record"));
    Subprocess tool(desktop_, log_, StandInScript::tool("javac"));
    tool.addArg("javac");
    FileForSubprocess file(folder, "x.java");
    file.args() = {platform::commandWord(folder + "x.java"), platform::commandWord(name)};
    EXPECT_TRUE(test::shown(desktop_, tool.run(&file, FileMode::Write)));
    EXPECT_EQ(script_.record(), folder + "x.java\n" + name + '\n');
    const std::string log = test::contentOf(log_.path());
    EXPECT_NE(log.find('\n' + folder.substr(0, folder.size() - 1) + '\n'), std::string::npos) << log;
    EXPECT_NE(log.find('\n' + name + '\n'), std::string::npos) << log;

    platform::deleteFile(script_.folder().file("record"));
    script_.setScript("");
    DetachedSubprocess detached(desktop_, log_, StandInScript::tool("javac"));
    detached.addArg("javac");
    detached.addArg(platform::detachedArgument(folder + "x.java"));
    EXPECT_FALSE(test::shown(desktop_, detached.run(&file, FileMode::Write)));
    EXPECT_TRUE(test::waitUntil([&] {
      return script_.hasRecord() && script_.record().starts_with(folder + "x.java\n");
    })) << name;
  }
}

}  // namespace
}  // namespace tarnwick
