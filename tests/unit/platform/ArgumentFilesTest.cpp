#include "platform/ArgumentFiles.h"
#include "platform/Path.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(ArgumentFilesTest, AnArgumentFileTakesNoBlanksNoQuotesAndNoComment) {
  for (const char* name : {"a.java", "a#b.java", "C:\\a\\b.java", "@a", "-x"})
    EXPECT_TRUE(fitsArgumentFile(name)) << name;
  for (const char* name : {"", "a b", " a", "a\tb", "it's.java", "a\"b", "#a.java", "a\fb"})
    EXPECT_FALSE(fitsArgumentFile(name)) << name;
}

TEST(ArgumentFilesTest, LettersBeyondAsciiGoIntoAnArgumentFileWhereEveryJdkReadsThemAlike) {
  EXPECT_EQ(fitsArgumentFile("\xC3\x9C.java"), folderSeparator == '/');
}

}  // namespace
}  // namespace tarnwick::platform
