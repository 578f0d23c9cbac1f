#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace tarnwick {
namespace {

using test::ScratchFolder;

// The rule is the same everywhere; ten thousand files are made only where that takes no time.
TEST(PosixTempFile, AfterTheLastCandidateItGivesUp) {
  const ScratchFolder folder;
  constexpr int last = 9998;
  const auto name = [&](int number) { return folder.file("Tarnwick_LOG" + std::to_string(number) + ".tmp"); };
  for (int i = 1; i <= last; ++i) ASSERT_TRUE(platform::claimFile(name(i)));
  TempFile file("Tarnwick_LOG", folder.path());
  try {
    file.openTemp(FileMode::Write);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "Can't create temporary file ");
    EXPECT_EQ(failure.file, name(last));
  }
  ASSERT_TRUE(platform::deleteFile(name(last)));
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), name(last));
}

TEST(PosixTempFile, ALinkThatLeadsNowhereIsNotFollowed) {
  const ScratchFolder folder;
  ASSERT_EQ(::symlink("elsewhere", folder.file("Tarnwick_LOG1.tmp").c_str()), 0);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), folder.file("Tarnwick_LOG2.tmp"));
  EXPECT_FALSE(platform::isFile(folder.file("elsewhere")));
}

}  // namespace
}  // namespace tarnwick
