// What the small editor does not take for a text.
#include "app/PlainTextFile.h"
#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

class SpecialTextFileTest : public testing::Test {
 protected:
  SpecialTextFileTest() {
    writeFile(scratch_.file("text"), "kept");
    file_.load(scratch_.file("text"));
  }

  std::string refusalOf(const std::string& path) {
    try {
      file_.load(path);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      EXPECT_EQ(failure.file, path);
      EXPECT_EQ(file_.text(), "kept");
      return failure.message;
    }
    return "";
  }

  void makeLarge(const std::string& name) const {
    writeFile(scratch_.file(name), "");
    ASSERT_EQ(::truncate(scratch_.file(name).c_str(), 64L * 1024 * 1024 + 1), 0);
  }

  ScratchFolder scratch_;
  PlainTextFile file_;
};

TEST_F(SpecialTextFileTest, DevicesPipesAndLargeFilesAreRefusedInWords) {
  ASSERT_EQ(::mkfifo(scratch_.file("pipe").c_str(), 0600), 0);
  makeLarge("large");
  EXPECT_EQ(refusalOf("/dev/zero"), "Not a regular file");
  EXPECT_EQ(refusalOf(scratch_.file("pipe")), "Not a regular file");
  EXPECT_EQ(refusalOf("/proc/self/maps"), "Not a regular file");
  EXPECT_EQ(refusalOf(scratch_.file("large")), "Larger than 64 MiB");
}

TEST_F(SpecialTextFileTest, AFileThatHasBecomeOneHasBeenChanged) {
  platform::deleteFile(scratch_.file("text"));
  EXPECT_FALSE(file_.changedByOthers()) << "a file that has gone is made again";
  std::filesystem::create_symlink("/dev/zero", scratch_.file("text"));
  EXPECT_TRUE(file_.changedByOthers());
  platform::deleteFile(scratch_.file("text"));
  makeLarge("text");
  EXPECT_TRUE(file_.changedByOthers());
}

}  // namespace
}  // namespace tarnwick::test
