#include "base/ClassFile.h"
#include "support/ClassBytes.h"
#include "support/TestProgram.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

TEST(ClassFilePipeTest, APipeIsNotWaitedFor) {
  const ScratchFolder scratch;
  const std::string pipe = scratch.file("X.class");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(readClassFile(pipe));
  EXPECT_FALSE(classFileVersion(pipe));
}

TEST(ClassFilePipeTest, NothingIsTakenFromAPipe) {
  const ScratchFolder scratch;
  const std::string pipe = scratch.file("X.class");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const int held = ::open(pipe.c_str(), O_RDWR);
  ASSERT_GE(held, 0);
  const std::string bytes = ClassBytes::of("B", 17);
  ASSERT_EQ(::write(held, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  EXPECT_FALSE(readClassFile(pipe));
  EXPECT_FALSE(classFileVersion(pipe));
  ::close(held);
}

}  // namespace
}  // namespace tarnwick::test
