#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(PosixPath, SplitsAtSlashesAndKnowsNoDrive) {
  const PathParts parts = splitPath("/home/a b/X.java");
  EXPECT_EQ(parts.drive, "");
  EXPECT_EQ(parts.folder, "/home/a b/");
  EXPECT_EQ(parts.base, "X");
  EXPECT_EQ(parts.extension, ".java");
  EXPECT_EQ(folderSeparator, '/');
}

TEST(PosixPath, ABackslashOrColonIsPartOfAName) {
  EXPECT_EQ(splitPath("C:\\a\\b.c").folder, "");
  EXPECT_EQ(splitPath("C:\\a\\b.c").drive, "");
  EXPECT_EQ(splitPath("C:\\a\\b.c").base, "C:\\a\\b");
  EXPECT_FALSE(endsInSeparator("a\\"));
}

TEST(PosixPath, ADocumentsAddressIsAFileAddressWithTheAnchor) {
  EXPECT_EQ(documentAddress("/opt/a b/\xC3\xA4#%?.htm", "#paths"), "file:///opt/a%20b/%C3%A4%23%25%3F.htm#paths");
  EXPECT_EQ(documentAddress("/opt/guide.htm", ""), "file:///opt/guide.htm");
  EXPECT_EQ(documentAddress("guide.htm", ""), documentAddress(absolutePath("guide.htm"), ""));
}

TEST(PosixPath, AToolsFileHasNoExeAndJavawIsJava) {
  EXPECT_EQ(toolFileName("javac"), "javac");
  EXPECT_EQ(toolFileName("java"), "java");
  EXPECT_EQ(toolFileName("javaw"), "java");
}

TEST(PosixPath, FileNamesCompareExactly) {
  EXPECT_TRUE(sameFileName("/a/B.java", "/a/B.java"));
  EXPECT_FALSE(sameFileName("/a/B.java", "/a/b.java"));
}

TEST(PosixPath, PathListsHaveColonsOnACommandLineAndSemicolonsInSettings) {
  EXPECT_EQ(commandLineList("/a;/b c;."), "/a:/b c:.");
  EXPECT_EQ(commandLineList(""), "");
  EXPECT_EQ(storedList("/a:/b c:."), "/a;/b c;.");
  EXPECT_EQ(storedList("/a;/b"), "/a;/b");
  EXPECT_EQ(storedList("/a:/b;/c"), "/a;/b;/c");
}

TEST(PosixPath, TheExecutablesNameIsKeptAsItStands) {
  EXPECT_EQ(keptExecutable("/usr/lib/jvm/Java/bin/java"), "/usr/lib/jvm/Java/bin/java");
}

TEST(PosixPath, TheStartFolderIsTheHomeFolder) {
  const test::ScopedEnvironment home("HOME", "/home/somebody");
  EXPECT_EQ(startFolder("C:\\"), "/home/somebody");
  EXPECT_EQ(startFolder("C:"), "/home/somebody");
}

TEST(PosixPath, TheRawCommandLineIsTheArgumentsJoinedBySingleBlanks) {
  char program[] = "/usr/bin/tarnwick";
  char first[] = "\\/DEFAULTDIR=/a b\\/";
  char second[] = "\\/RUN=x  y";
  char* arguments[] = {program, first, second, nullptr};
  EXPECT_EQ(rawCommandLine(3, arguments), "\\/DEFAULTDIR=/a b\\/ \\/RUN=x  y");
  EXPECT_EQ(rawCommandLine(2, arguments), "\\/DEFAULTDIR=/a b\\/");
  EXPECT_EQ(rawCommandLine(1, arguments), "");
  EXPECT_EQ(rawCommandLine(0, arguments), "");
}

}  // namespace
}  // namespace tarnwick::platform
