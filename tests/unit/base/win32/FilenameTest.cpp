#include "base/Filename.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(WindowsFilename, TheDirectoryIsDriveAndFolder) {
  const Filename name("C:\\Program Files\\x.java");
  EXPECT_EQ(name.directory(), "C:\\Program Files\\");
  EXPECT_EQ(name.directoryNoSlash(), "C:\\Program Files");
  EXPECT_EQ(name.quotedDirectory(), "\"C:\\Program Files\\\"");
  EXPECT_EQ(name.baseName(), "x");
}

TEST(WindowsFilename, ADrivesRootLosesItsBackslash) {
  EXPECT_EQ(Filename("C:\\x.java").directory(), "C:\\");
  EXPECT_EQ(Filename("C:\\x.java").directoryNoSlash(), "C:");
  EXPECT_EQ(Filename("C:x.java").directory(), "C:");
}

}  // namespace
}  // namespace tarnwick
