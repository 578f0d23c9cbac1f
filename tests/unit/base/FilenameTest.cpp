#include "base/Filename.h"
#include "platform/Path.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

/// The text with "/" as this system's separator.
std::string local(std::string path) {
  std::replace(path.begin(), path.end(), '/', platform::folderSeparator);
  return path;
}

TEST(Filename, APathIsKeptAsItIs) {
  EXPECT_EQ(Filename(local("a/b c.java")).fullName(), local("a/b c.java"));
  EXPECT_EQ(Filename().fullName(), "");
}

TEST(Filename, APathIsTrimmedAndLosesItsQuotes) {
  EXPECT_EQ(Filename(" \t a b.java\r\n").fullName(), "a b.java");
  EXPECT_EQ(Filename(" \"a b.java\" ").fullName(), "a b.java");
}

TEST(Filename, APathGivenWithQuotesIsStoredWithoutThem) {
  EXPECT_EQ(Filename("\"a b\"").fullName(), "a b");
}

TEST(Filename, APathThatBeginsWithAQuoteAndHasNoClosingOneLosesItsLastCharacterAllTheSame) {
  EXPECT_EQ(Filename("\"abc.java").fullName(), "abc.jav");
}

TEST(Filename, AFolderAndAFileAreJoinedWithOneSeparator) {
  EXPECT_EQ(Filename(local("a/b"), "c.java").fullName(), local("a/b/c.java"));
  EXPECT_EQ(Filename(local("a/b/"), "c.java").fullName(), local("a/b/c.java"));
}

TEST(Filename, AnEmptyFolderAddsNothing) {
  EXPECT_EQ(Filename("", "c.java").fullName(), "c.java");
  EXPECT_EQ(Filename("  ", "c.java").fullName(), "c.java");
  EXPECT_EQ(Filename("\"\"", "c.java").fullName(), "c.java");
}

TEST(Filename, FolderAndFileAreEachCleanedBeforeTheyAreJoined) {
  EXPECT_EQ(Filename(" \"a b\" ", " \"c d.java\" ").fullName(), local("a b/c d.java"));
  EXPECT_EQ(Filename(local("\"a b/\""), "c").fullName(), local("a b/c"));
}

TEST(Filename, WhatIsJoinedIsCleanedOnceMore) {
  EXPECT_EQ(Filename("\"\"a\"\"", "bc").fullName(), local("a\"/b")) << "a quote that is left in front counts again";
  EXPECT_EQ(Filename("", "\" c \"").fullName(), "c");
}

TEST(Filename, QuotedAddsQuotesWhereABlankStands) {
  EXPECT_EQ(Filename("C:\\Program Files\\x.java").quoted(), "\"C:\\Program Files\\x.java\"");
  EXPECT_EQ(Filename("C:\\x.java").quoted(), "C:\\x.java");
}

TEST(Filename, QuotedOfABlankInTheFirstPlaceIsBare) {
  EXPECT_EQ(Filename("\" x\"").fullName(), " x");
  EXPECT_EQ(Filename("\" x\"").quoted(), " x");
}

TEST(Filename, TheDirectoryKeepsItsTrailingSeparator) {
  EXPECT_EQ(Filename(local("a/b/c.java")).directory(), local("a/b/"));
  EXPECT_EQ(Filename(local("a/b/")).directory(), local("a/b/"));
  EXPECT_EQ(Filename("c.java").directory(), "");
  EXPECT_EQ(Filename("").directory(), "");
}

TEST(Filename, DirectoryNoSlashHasNoTrailingSeparator) {
  EXPECT_EQ(Filename(local("a/b/c.java")).directoryNoSlash(), local("a/b"));
  EXPECT_EQ(Filename("c.java").directoryNoSlash(), "");
}

TEST(Filename, TheRootKeepsItsSeparatorSinceItHasNoOtherName) {
  EXPECT_EQ(Filename(local("/c.java")).directoryNoSlash(), local("/"));
}

TEST(Filename, DirectoriesAreQuotedByTheSameRule) {
  EXPECT_EQ(Filename(local("a b/c.java")).quotedDirectory(), local("\"a b/\""));
  EXPECT_EQ(Filename(local("a/c d.java")).quotedDirectory(), local("a/"));
  EXPECT_EQ(Filename(local("a b/c.java")).quotedDirectoryNoSlash(), "\"a b\"");
  EXPECT_EQ(Filename(local("a/c d.java")).quotedDirectoryNoSlash(), "a");
}

TEST(Filename, TheNameIsWhatStandsBehindTheFolder) {
  const Filename name(local("a b/C d.e.java"));
  EXPECT_EQ(name.nameWithExtension(), "C d.e.java");
  EXPECT_EQ(name.quotedNameWithExtension(), "\"C d.e.java\"");
  EXPECT_EQ(name.alwaysQuotedName(), "\"C d.e.java\"");
  EXPECT_EQ(name.baseName(), "C d.e");
  EXPECT_EQ(name.quotedBaseName(), "\"C d.e\"");
  EXPECT_EQ(name.extension(), ".java");
}

TEST(Filename, ANameWithoutBlankIsBareUnlessItIsAlwaysQuoted) {
  const Filename name(local("a b/C.java"));
  EXPECT_EQ(name.quotedNameWithExtension(), "C.java");
  EXPECT_EQ(name.quotedBaseName(), "C");
  EXPECT_EQ(name.alwaysQuotedName(), "\"C.java\"");
  EXPECT_EQ(Filename().alwaysQuotedName(), "\"\"");
}

TEST(Filename, ANameWithoutDotHasNoExtension) {
  EXPECT_EQ(Filename(local("a.b/c")).extension(), "");
  EXPECT_EQ(Filename(local("a.b/c")).baseName(), "c");
}

}  // namespace
}  // namespace tarnwick
