#include "platform/Path.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::platform {
namespace {

TEST(Path, PartsJoinedGiveThePathAgain) {
  for (const std::string path :
       {"", "x", "x.java", "a.b.c", ".x", "x.", "..", "a b/c d.e", "/", "/x", "a/", "a/b.c/d", "C:\\a\\b.c", "C:x",
        "C:", "\\\\host\\share\\x.y", "a;b", "\xC3\xA4/\xC3\xB6.\xC3\xBC", "\xE4\\\xF6.\xFC"}) {
    const PathParts parts = splitPath(path);
    EXPECT_EQ(parts.drive + parts.folder + parts.base + parts.extension, path);
  }
}

TEST(Path, TheExtensionBeginsAtTheLastDotOfTheName) {
  EXPECT_EQ(splitPath("a.b.java").base, "a.b");
  EXPECT_EQ(splitPath("a.b.java").extension, ".java");
  EXPECT_EQ(splitPath("a.").extension, ".");
  EXPECT_EQ(splitPath(".profile").base, "");
  EXPECT_EQ(splitPath(".profile").extension, ".profile");
  EXPECT_EQ(splitPath("plain").extension, "");
}

TEST(Path, ADotInAFolderBeginsNoExtension) {
  const PathParts parts = splitPath(std::string("a.b") + folderSeparator + "c");
  EXPECT_EQ(parts.folder, std::string("a.b") + folderSeparator);
  EXPECT_EQ(parts.base, "c");
  EXPECT_EQ(parts.extension, "");
}

TEST(Path, EndsInSeparatorLooksAtTheLastCharacter) {
  EXPECT_FALSE(endsInSeparator(""));
  EXPECT_FALSE(endsInSeparator("a"));
  EXPECT_FALSE(endsInSeparator(std::string(1, folderSeparator) + "a"));
  EXPECT_TRUE(endsInSeparator(std::string(1, folderSeparator)));
  EXPECT_TRUE(endsInSeparator(std::string("a") + folderSeparator));
}

TEST(Path, FoldExecutableLowersEvenPlacesAndRaisesOddOnes) {
  EXPECT_EQ(foldExecutable("C:\\Java\\bin\\java.exe"), "c:\\JaVa\\bIn\\jAvA.ExE");
  EXPECT_EQ(foldExecutable("ABCabc"), "aBcAbC");
  EXPECT_EQ(foldExecutable(""), "");
}

TEST(Path, FoldExecutableTouchesNothingButLettersOfTheAlphabet) {
  EXPECT_EQ(foldExecutable("\xC3\xA4 1_\xE4\xC4"), "\xC3\xA4 1_\xE4\xC4");
}

}  // namespace
}  // namespace tarnwick::platform
