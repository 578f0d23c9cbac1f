// Saves on disks that are full. A small program mounts them and saves.
#include "support/Children.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

class FullDiskTest : public testing::Test {
 protected:
  std::string told(const std::string& what) const {
    return outputOf(standInFolder() + "small_disk",
                    '"' + folder_.path().substr(0, folder_.path().size() - 1) + "\" " + what);
  }

  /// Every save in vain tells the reason and the target's name.
  std::string threeFailures() const {
    const std::string one =
        "message: No space left on device\nCan't save configuration data in " + folder_.file("Tarnwickdefault.CFG\n");
    return one + one + one;
  }

  const ScratchFolder folder_;
};

TEST_F(FullDiskTest, ASaveWithNoSpaceLeftKeepsTheOldFileWhole) {
  const std::string text = told("space");
  if (text.starts_with("skipped: ")) GTEST_SKIP() << "no disk can be mounted here: " << text.substr(9);
  EXPECT_EQ(text, threeFailures() + "holds: b\nname: Tarnwickdefault.CFG\nname: filler\n" +
                      "holds: a\nname: Tarnwickdefault.CFG\n");
}

TEST_F(FullDiskTest, ASaveWhereNoFileCanBeMadeKeepsTheOldFileWhole) {
  const std::string text = told("names");
  if (text.starts_with("skipped: ")) GTEST_SKIP() << "no disk can be mounted here: " << text.substr(9);
  EXPECT_EQ(text, threeFailures() + "holds: b\nname: Tarnwickdefault.CFG\nname: names\n" +
                      "holds: a\nname: Tarnwickdefault.CFG\nname: names\n");
}

}  // namespace
}  // namespace tarnwick::test
