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

TEST(Filename, WhiteSpaceOfEveryKindGoesFromBothEnds) {
  EXPECT_EQ(Filename(" \t\n\v\f\rx\t y \t\n\v\f\r").fullName(), "x\t y");
  EXPECT_EQ(Filename(" \t ").fullName(), "");
}

TEST(Filename, OneQuoteAloneLeavesNothing) {
  EXPECT_EQ(Filename("\"").fullName(), "");
  EXPECT_EQ(Filename("\"\"").fullName(), "");
}

TEST(Filename, OnlyOnePairOfQuotesGoes) {
  EXPECT_EQ(Filename("\"\"a\"\"").fullName(), "\"a\"");
  EXPECT_EQ(Filename("a\"").fullName(), "a\"") << "a quote at the end alone is part of the path";
}

TEST(Filename, WhatTheQuotesEncloseKeepsItsBlanks) {
  EXPECT_EQ(Filename("\" a \"").fullName(), " a ");
  EXPECT_EQ(Filename("\"x \"").quoted(), "\"x \"") << "a blank in the last place counts";
}

TEST(Filename, ABlankInTheFirstPlaceCountsNowhere) {
  const Filename name(local("\" a/b.java\""));
  EXPECT_EQ(name.quotedDirectory(), local(" a/"));
  EXPECT_EQ(name.quotedDirectoryNoSlash(), " a");
  EXPECT_EQ(Filename(local("a b/ c.java")).quotedNameWithExtension(), " c.java");
  EXPECT_EQ(Filename(local("a b/ c.java")).quotedBaseName(), " c");
  EXPECT_EQ(Filename(local("a b/ c.java")).alwaysQuotedName(), "\" c.java\"");
}

TEST(Filename, ABlankInTheExtensionAloneQuotesTheNameAndNotItsBase) {
  const Filename name("a.b c");
  EXPECT_EQ(name.quotedNameWithExtension(), "\"a.b c\"");
  EXPECT_EQ(name.quotedBaseName(), "a");
  EXPECT_EQ(name.extension(), ".b c");
}

TEST(Filename, AFolderHasNoName) {
  const Filename name(local("a b/c.d/"));
  EXPECT_EQ(name.directory(), local("a b/c.d/"));
  EXPECT_EQ(name.directoryNoSlash(), local("a b/c.d"));
  EXPECT_EQ(name.nameWithExtension(), "");
  EXPECT_EQ(name.baseName(), "");
  EXPECT_EQ(name.extension(), "");
  EXPECT_EQ(name.alwaysQuotedName(), "\"\"");
}

TEST(Filename, TheEmptyPathHasNoParts) {
  const Filename name;
  EXPECT_EQ(name.quoted(), "");
  EXPECT_EQ(name.directoryNoSlash(), "");
  EXPECT_EQ(name.quotedDirectory(), "");
  EXPECT_EQ(name.quotedDirectoryNoSlash(), "");
  EXPECT_EQ(name.nameWithExtension(), "");
  EXPECT_EQ(name.quotedNameWithExtension(), "");
  EXPECT_EQ(name.quotedBaseName(), "");
  EXPECT_EQ(name.extension(), "");
}

TEST(Filename, AskingChangesNothing) {
  const Filename name(local("a b/c d.java"));
  name.quoted();
  name.directoryNoSlash();
  name.alwaysQuotedName();
  EXPECT_EQ(name.fullName(), local("a b/c d.java"));
}

TEST(Filename, LettersBeyondAsciiAreKept) {
  // In UTF-8 and in an 8-bit character set alike, no byte of these is a separator, a dot or a blank.
  const std::string folder =
                        "\xC3\x9C"
                        "b",
                    base =
                        "Gr\xC3\xB6\xC3\x9F"
                        "e";
  const Filename name(folder, base + ".java");
  EXPECT_EQ(name.fullName(), local(folder + "/" + base + ".java"));
  EXPECT_EQ(name.quoted(), name.fullName());
  EXPECT_EQ(name.directoryNoSlash(), folder);
  EXPECT_EQ(name.baseName(), base);
  EXPECT_EQ(name.extension(), ".java");
}

TEST(Filename, ALongPathIsTakenApartWhole) {
  const std::string folder(3000, 'f'), base(2000, 'b'), extension(1000, 'e');
  const Filename name(folder, base + '.' + extension);
  EXPECT_EQ(name.directoryNoSlash(), folder);
  EXPECT_EQ(name.baseName(), base);
  EXPECT_EQ(name.extension(), '.' + extension);
}

TEST(Filename, AnEmptyFileLeavesTheFolder) {
  EXPECT_EQ(Filename("a", "").fullName(), local("a/"));
  EXPECT_EQ(Filename("", "").fullName(), "");
}

}  // namespace
}  // namespace tarnwick
