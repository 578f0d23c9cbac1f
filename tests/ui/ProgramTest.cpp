#include "support/TestProgram.h"
#include "ui/ProgramAnew.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {

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
