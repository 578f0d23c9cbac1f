#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Replacement.h"
#include "support/TestProgram.h"

#include <cerrno>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick::platform {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

std::FILE* opened(const std::string& path, const std::string& content) {
  std::FILE* stream = openReplacement(path, "w", false);
  if (!stream) {
    ADD_FAILURE() << "can't open " << path;
    return nullptr;
  }
  std::fputs(content.c_str(), stream);
  EXPECT_TRUE(flushToDisk(stream));
  return stream;
}

/// The content as this program reads it.
std::string readBack(const std::string& path) {
  std::FILE* stream = openFile(path, "r");
  if (!stream) return "(cannot be opened)";
  std::string content;
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream)) content += static_cast<char>(c);
  std::fclose(stream);
  return content;
}

TEST(Replacement, TakesTheTargetsPlace) {
  const ScratchFolder folder;
  writeFile(folder.file("old"), "old");
  std::FILE* stream = opened(folder.file("new"), "new");
  ASSERT_TRUE(stream);
  EXPECT_EQ(contentOf(folder.file("old")), "old");
  EXPECT_TRUE(putInPlace(stream, folder.file("new"), folder.file("old")));
  EXPECT_EQ(readBack(folder.file("old")), "new") << "readable from the moment that it is there";
  EXPECT_FALSE(isFile(folder.file("new")));
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("old")), "new");
}

TEST(Replacement, TakesAPlaceWhereNothingWas) {
  const ScratchFolder folder;
  std::FILE* stream = opened(folder.file("new"), "new");
  ASSERT_TRUE(stream);
  EXPECT_TRUE(putInPlace(stream, folder.file("new"), folder.file("fresh")));
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("fresh")), "new");
  EXPECT_FALSE(isFile(folder.file("new")));
}

TEST(Replacement, TellsWhyItCannotTakeAPlace) {
  const ScratchFolder folder;
  std::FILE* stream = opened(folder.file("new"), "new");
  ASSERT_TRUE(stream);
  errno = 0;
  EXPECT_FALSE(putInPlace(stream, folder.file("new"), folder.file("missing") + folderSeparator + "x"));
  EXPECT_EQ(errno, ENOENT);
  discardReplacement(stream, folder.file("new"));
  std::fclose(stream);
  EXPECT_FALSE(isFile(folder.file("new")));
}

TEST(Replacement, NobodyElseGetsItWhileItIsOpen) {
  const ScratchFolder folder;
  std::FILE* stream = opened(folder.file("new"), "mine");
  ASSERT_TRUE(stream);
  errno = 0;
  EXPECT_FALSE(openReplacement(folder.file("new"), "w", false));
  EXPECT_EQ(errno, EBUSY);
  EXPECT_EQ(readBack(folder.file("new")), "mine");
  std::fclose(stream);
}

TEST(Replacement, WhatWasLeftIsUsedAgainAndEmptied) {
  const ScratchFolder folder;
  writeFile(folder.file("new"), "a long rest of somebody who was killed");
  std::FILE* stream = opened(folder.file("new"), "new");
  ASSERT_TRUE(stream);
  EXPECT_TRUE(putInPlace(stream, folder.file("new"), folder.file("x")));
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("x")), "new");
}

TEST(Replacement, AReaderDoesNotStandInTheWay) {
  const ScratchFolder folder;
  writeFile(folder.file("old"), "a longer old content");
  std::FILE* reader = openFile(folder.file("old"), "r");
  ASSERT_TRUE(reader);
  std::FILE* stream = opened(folder.file("new"), "new");
  ASSERT_TRUE(stream);
  EXPECT_TRUE(isWritable(folder.file("old")));
  EXPECT_TRUE(putInPlace(stream, folder.file("new"), folder.file("old")));
  std::fclose(stream);
  std::fclose(reader);
  EXPECT_EQ(contentOf(folder.file("old")), "new");
  EXPECT_FALSE(isFile(folder.file("new")));
}

TEST(Replacement, WhatIsMissingIsNotWritable) {
  const ScratchFolder folder;
  errno = 0;
  EXPECT_FALSE(isWritable(folder.file("missing")));
  EXPECT_EQ(errno, ENOENT);
  writeFile(folder.file("x"), "content");
  EXPECT_TRUE(isWritable(folder.file("x")));
  EXPECT_EQ(contentOf(folder.file("x")), "content");
}

TEST(Replacement, AFolderOrAMissingOneGivesNone) {
  const ScratchFolder folder;
  EXPECT_FALSE(openReplacement(folder.path(), "w", false));
  errno = 0;
  EXPECT_FALSE(openReplacement(folder.file("missing") + folderSeparator + "x", "w", false));
  EXPECT_EQ(errno, ENOENT);
}

TEST(Replacement, LinesEndAsTheSystemsTextsDo) {
  const ScratchFolder folder;
  std::FILE* stream = opened(folder.file("new"), "a\nb\n");
  ASSERT_TRUE(stream);
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("new")), folderSeparator == '/' ? "a\nb\n" : "a\r\nb\r\n");
}

TEST(Replacement, BytesStayAsTheyAre) {
  const ScratchFolder folder;
  std::FILE* stream = openReplacement(folder.file("new"), "wb", false);
  ASSERT_TRUE(stream);
  std::fputs("a\nb\r\n", stream);
  EXPECT_TRUE(flushToDisk(stream));
  EXPECT_TRUE(putInPlace(stream, folder.file("new"), folder.file("x")));
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("x")), "a\nb\r\n");
}

TEST(Replacement, TheFolderForTemporaryFilesIsThere) {
  EXPECT_TRUE(isFolder(temporaryFolder()));
  EXPECT_TRUE(endsInSeparator(temporaryFolder()));
}

}  // namespace
}  // namespace tarnwick::platform
