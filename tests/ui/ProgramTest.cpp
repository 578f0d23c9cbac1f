#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {

namespace {

bool onWindows() {
  return platform::environment("OS").value_or("") == "Windows_NT";
}

/// Runs this program anew with the arguments; what it writes goes to a file.
int runAnew(const std::string& arguments, const std::string& output) {
  std::string command = "\"" + platform::executablePath() + "\" " + arguments + " >\"" + output + "\" 2>&1";
  if (onWindows()) command = "\"" + command + "\"";  // its shell takes off the outermost quotes
  const int status = std::system(command.c_str());
  return onWindows() ? status : (status >> 8) & 0xFF;
}

}  // namespace

TEST(ProgramTest, TheProgramsResultIsTheExitCode) {
  ScratchFolder folder;
  EXPECT_EQ(runAnew("--exit-code 0", folder.file("out")), 0);
  EXPECT_EQ(runAnew("--exit-code 7", folder.file("out")), 7);
  EXPECT_EQ(contentOf(folder.file("out")), "");
}

TEST(ProgramTest, ADialogAndAMessageBeforeAnyWindowLeaveTheExitCodeAlone) {
  ScratchFolder folder;
  EXPECT_EQ(runAnew("--dialogs 9", folder.file("out")), 9);
  EXPECT_EQ(contentOf(folder.file("out")), "");
}

TEST(ProgramTest, WithoutADisplayOneLineSaysSo) {
  if (onWindows()) GTEST_SKIP() << "Windows always has a display";
  ScratchFolder folder;
  const ScopedEnvironment noWayland("WAYLAND_DISPLAY", "");
  {
    const ScopedEnvironment wrong("DISPLAY", ":4711");
    EXPECT_EQ(runAnew("--exit-code 0", folder.file("out")), 1);
    EXPECT_EQ(contentOf(folder.file("out")), "Tarnwick: can't open the display :4711\n");
  }
  const ScopedEnvironment none("DISPLAY", "");
  EXPECT_EQ(runAnew("--exit-code 0", folder.file("out")), 1);
  EXPECT_EQ(contentOf(folder.file("out")), "Tarnwick: can't open the display (DISPLAY is not set)\n");
}

TEST(ProgramTest, AProgramThatThrowsEndsWithOne) {
  ScratchFolder folder;
  EXPECT_EQ(runAnew("--throw 0", folder.file("out")), 1);
}

}  // namespace tarnwick::test
