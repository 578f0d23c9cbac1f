#include "platform/Path.h"
#include "platform/win32/CommandLine.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(WindowsPath, SplitsIntoDriveFolderNameAndExtension) {
  const PathParts parts = splitPath("C:\\Program Files\\X.java");
  EXPECT_EQ(parts.drive, "C:");
  EXPECT_EQ(parts.folder, "\\Program Files\\");
  EXPECT_EQ(parts.base, "X");
  EXPECT_EQ(parts.extension, ".java");
  EXPECT_EQ(folderSeparator, '\\');
}

TEST(WindowsPath, ADriveNeedsNoFolder) {
  const PathParts parts = splitPath("C:x.y");
  EXPECT_EQ(parts.drive, "C:");
  EXPECT_EQ(parts.folder, "");
  EXPECT_EQ(parts.base, "x");
  EXPECT_EQ(parts.extension, ".y");
}

TEST(WindowsPath, AShareIsPartOfTheFolder) {
  const PathParts parts = splitPath("\\\\host\\share\\x.y");
  EXPECT_EQ(parts.drive, "");
  EXPECT_EQ(parts.folder, "\\\\host\\share\\");
  EXPECT_EQ(parts.base, "x");
}

TEST(WindowsPath, ASlashSeparatesFoldersToo) {
  EXPECT_EQ(splitPath("C:/a/x.y").folder, "/a/");
  EXPECT_EQ(splitPath("C:\\a/b\\c").folder, "\\a/b\\");
  EXPECT_TRUE(endsInSeparator("a/"));
}

TEST(WindowsPath, AToolsFileEndsInExe) {
  EXPECT_EQ(toolFileName("javac"), "javac.exe");
  EXPECT_EQ(toolFileName("javaw"), "javaw.exe");
}

TEST(WindowsPath, FileNamesCompareIgnoringCase) {
  EXPECT_TRUE(sameFileName("C:\\A\\b.JAVA", "c:\\a\\B.java"));
  EXPECT_FALSE(sameFileName("C:\\a\\b.java", "C:\\a\\b.jav"));
}

TEST(WindowsPath, PathListsStayAsTheyStand) {
  EXPECT_EQ(commandLineList("C:\\a;D:\\b"), "C:\\a;D:\\b");
  EXPECT_EQ(storedList("C:\\a;D:\\b"), "C:\\a;D:\\b");
}

TEST(WindowsPath, TheExecutablesNameIsKeptFolded) {
  EXPECT_EQ(keptExecutable("C:\\Java\\bin\\java.exe"), "c:\\JaVa\\bIn\\jAvA.ExE");
}

TEST(WindowsPath, TheStartFolderStaysAsItStands) {
  EXPECT_EQ(startFolder("C:\\"), "C:\\");
  EXPECT_EQ(startFolder("C:"), "C:");
}

TEST(WindowsPath, TheCommandLineLosesTheProgramsNameOnly) {
  EXPECT_EQ(withoutProgramName("Tarnwick.exe"), "");
  EXPECT_EQ(withoutProgramName("Tarnwick.exe  a  b "), "a  b ");
  EXPECT_EQ(withoutProgramName("\"C:\\Program Files\\Tarnwick.exe\" \"C:\\my dir\\a.TWP\""), "\"C:\\my dir\\a.TWP\"");
  EXPECT_EQ(withoutProgramName("\"C:\\Program Files\\Tarnwick.exe\""), "");
  EXPECT_EQ(withoutProgramName("C:\\\"a b\"\\T.exe\tx"), "x");
  EXPECT_EQ(withoutProgramName(""), "");
}

}  // namespace
}  // namespace tarnwick::platform
