#include "base/RelativeName.h"
#include "platform/Path.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

const bool onWindows = platform::folderSeparator == '\\';

TEST(RelativeName, OnlyWhatGoesUpOrComesFromTheTopLeavesTheFolder) {
  for (const char* name : {"A.java", "./A.java", "a/b/A.java", "a/./A.java", ".//A.java", "..a/A.java", "a..", ""})
    EXPECT_TRUE(leadsDown(name)) << name;
  for (const char* name : {"../A.java", "a/../A.java", "./../A.java", "a/..", "..", "/A.java", "//a/A.java"})
    EXPECT_FALSE(leadsDown(name)) << name;
  for (const char* name : {"C:A.java", "C:\\A.java", "\\A.java", "a\\..\\A.java"})
    EXPECT_EQ(leadsDown(name), !onWindows) << name;
}

TEST(RelativeName, IsWrittenAlikeOnEverySystem) {
  EXPECT_EQ(relativeName("./a/b c/A.java"), "a/b c/A.java");
  EXPECT_EQ(relativeName("A.java"), "A.java");
  for (const char* name : {"././A.java", ".//A.java", ".//.//A.java"}) EXPECT_EQ(relativeName(name), "A.java") << name;
  EXPECT_EQ(relativeName("a\\b\\A.java"), onWindows ? "a/b/A.java" : "a\\b\\A.java");
  EXPECT_EQ(relativeName("a\\A.java"), onWindows ? "a/A.java" : "a\\A.java");
  EXPECT_EQ(localName("a/b/A.java"), onWindows ? "a\\b\\A.java" : "a/b/A.java");
}

}  // namespace
}  // namespace tarnwick::test
