#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "platform/Trash.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(Win32Folders, NamesAreFilledInByTheToolItself) {
  EXPECT_EQ(withNamesFilledIn(" cf x.jar * *.class"), " cf x.jar * *.class");
}

TEST(Win32Folders, ACommandLineHasTheLengthThatTheSystemTakes) {
  EXPECT_EQ(longestCommandLine(), 32766U);
}

TEST(Win32Trash, ACopyGoesThereAndTheFileStays) {
  const test::ScratchFolder scratch;
  const std::string file = scratch.file("my app.jar");
  test::writeFile(file, "what it held");
  copyToTrash(file);
  EXPECT_EQ(test::contentOf(file), "what it held");
  EXPECT_EQ(filesIn(scratch.path()).size(), 1U) << "nothing is left beside it";
}

TEST(Win32Trash, AFileThatIsNotThereLeavesNoCopy) {
  const test::ScratchFolder scratch;
  EXPECT_FALSE(copyToTrash(scratch.file("none.jar")));
  EXPECT_TRUE(filesIn(scratch.path()).empty());
}

}  // namespace
}  // namespace tarnwick::platform
