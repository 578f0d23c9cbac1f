#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::platform {
namespace {

using test::contentOf;
using test::ScopedEnvironment;
using test::ScratchFolder;
using test::writeFile;

std::string readAll(std::FILE* stream) {
  std::string text;
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream)) text += static_cast<char>(c);
  return text;
}

std::string readText(const std::string& path, const char* mode = "r") {
  std::FILE* stream = openFile(path, mode);
  if (!stream) {
    ADD_FAILURE() << std::strerror(errno);
    return "";
  }
  const std::string text = readAll(stream);
  std::fclose(stream);
  return text;
}

TEST(FileSystem, AnAbsolutePathBeginsAtTheRoot) {
  const ScratchFolder folder;
  changeDirectory(folder.path());
  EXPECT_EQ(absolutePath(folder.file("x")), folder.file("x")) << "a whole path stays as it is";
  EXPECT_EQ(absolutePath(""), "");
  const std::string here = currentDirectory() + folderSeparator;
  EXPECT_EQ(absolutePath("a b.txt"), here + "a b.txt") << "it need not be there";
  EXPECT_EQ(absolutePath("sub" + std::string(1, folderSeparator)), here + "sub" + folderSeparator);
}

TEST(FileSystem, OpenFileReadsWritesAndAppends) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  std::FILE* stream = openFile(path, "w");
  ASSERT_TRUE(stream);
  std::fputs("one", stream);
  std::fclose(stream);
  stream = openFile(path, "a+");
  ASSERT_TRUE(stream);
  std::fputs("two", stream);
  std::fclose(stream);
  EXPECT_EQ(readText(path), "onetwo");
}

TEST(FileSystem, OpenFileTellsWhyItFailed) {
  const ScratchFolder folder;
  errno = 0;
  EXPECT_FALSE(openFile(folder.file("missing.txt"), "r"));
  EXPECT_EQ(errno, ENOENT);
}

TEST(FileSystem, ReadingDropsACarriageReturnDirectlyBeforeALineFeed) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  writeFile(path, "one\r\ntwo\nthree\rfour\r\r\nfive\n\r");
  EXPECT_EQ(readText(path), "one\ntwo\nthree\rfour\r\nfive\n\r");
}

TEST(FileSystem, ReadingDropsACarriageReturnAtEveryPlaceOfABlock) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  for (std::size_t before = 4090; before <= 4100; ++before) {
    const std::string first(before, 'a');
    const std::string second(4096, 'b');
    writeFile(path, first + "\r\n" + second + "\r\n");
    EXPECT_EQ(readText(path), first + "\n" + second + "\n") << before;
  }
}

TEST(FileSystem, ReadingLargeBlocksDropsTheSameCarriageReturns) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  // Around the place where a reader's large block ends.
  constexpr std::size_t block = 65'536;
  for (std::size_t before = block - 4; before <= block + 1; ++before) {
    const std::string text = std::string(before, 'a') + "\r\r\n\r\nb\rc\n\r";
    writeFile(path, "\r\n" + text);
    std::FILE* stream = openFile(path, "r");
    ASSERT_TRUE(stream);
    std::string all(block, '\0');
    std::string read;
    while (const std::size_t count = std::fread(all.data(), 1, block, stream)) read.append(all, 0, count);
    std::fclose(stream);
    EXPECT_EQ(read, '\n' + std::string(before, 'a') + "\r\n\nb\rc\n\r") << before;
  }
}

TEST(FileSystem, ReadingBytesDropsNothing) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  writeFile(path, "one\r\ntwo\r\n");
  EXPECT_EQ(readText(path, "rb"), "one\r\ntwo\r\n");
}

TEST(FileSystem, ATextCanBeReadAgainFromItsBeginning) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  writeFile(path, "one\r\ntwo\r\nthree");
  std::FILE* stream = openFile(path, "r");
  ASSERT_TRUE(stream);
  EXPECT_EQ(readAll(stream), "one\ntwo\nthree");
  std::rewind(stream);
  EXPECT_EQ(readAll(stream), "one\ntwo\nthree");
  std::fclose(stream);
}

TEST(FileSystem, ReadingGoesOnAtARememberedPosition) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.txt");
  writeFile(path, "one\r\ntwo\r\nthree");
  std::FILE* stream = openFile(path, "r");
  ASSERT_TRUE(stream);
  char line[20];
  ASSERT_TRUE(std::fgets(line, sizeof line, stream));
  const long place = std::ftell(stream);
  EXPECT_EQ(readAll(stream), "two\nthree");
  ASSERT_EQ(std::fseek(stream, place, SEEK_SET), 0);
  EXPECT_EQ(readAll(stream), "two\nthree");
  std::fclose(stream);
}

TEST(FileSystem, OpenFileRefusesAFolderInEveryMode) {
  const ScratchFolder folder;
  const std::string inner = folder.file("inner");
  ASSERT_TRUE(makeFolders(inner));
  for (const char* mode : {"r", "w", "a+", "r+", "rb"}) {
    errno = 0;
    EXPECT_FALSE(openFile(inner, mode)) << mode;
    EXPECT_EQ(errno, folderSeparator == '/' ? EISDIR : EACCES) << mode;
  }
  EXPECT_TRUE(isFolder(inner));
}

TEST(FileSystem, ClaimFileTakesAFreeNameOnce) {
  const ScratchFolder folder;
  const std::string path = folder.file("x.tmp");
  EXPECT_TRUE(claimFile(path));
  EXPECT_EQ(contentOf(path), "");
  errno = 0;
  EXPECT_FALSE(claimFile(path));
  EXPECT_EQ(errno, EEXIST);
  errno = 0;
  EXPECT_FALSE(claimFile(folder.file("missing") + folderSeparator + "x.tmp"));
  EXPECT_EQ(errno, ENOENT);
}

TEST(FileSystem, LastChangeIsTheTimeOfWriting) {
  const ScratchFolder folder;
  const std::time_t before = std::time(nullptr);
  writeFile(folder.file("x"), "x");
  const auto changed = lastChange(folder.file("x"));
  ASSERT_TRUE(changed);
  // File systems may keep the time a little coarser than the clock does.
  EXPECT_GE(*changed, before - 2);
  EXPECT_LE(*changed, std::time(nullptr) + 2);
  EXPECT_FALSE(lastChange(folder.file("missing")));
}

TEST(FileSystem, DeleteFileDeletesFilesOnly) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  EXPECT_TRUE(deleteFile(folder.file("x")));
  EXPECT_FALSE(isFile(folder.file("x")));
  EXPECT_FALSE(deleteFile(folder.file("x")));
  ASSERT_TRUE(makeFolders(folder.file("inner")));
  EXPECT_FALSE(deleteFile(folder.file("inner")));
  EXPECT_TRUE(isFolder(folder.file("inner")));
}

TEST(FileSystem, FilesAndFoldersAreToldApart) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  EXPECT_TRUE(isFile(folder.file("x")));
  EXPECT_FALSE(isFolder(folder.file("x")));
  EXPECT_FALSE(isFile(folder.path()));
  EXPECT_TRUE(isFolder(folder.path()));
  EXPECT_FALSE(isFile(folder.file("missing")));
  EXPECT_FALSE(isFolder(folder.file("missing")));
  EXPECT_FALSE(isFolder(""));
}

TEST(FileSystem, FilesInAFolderAreThePlainOnes) {
  const ScratchFolder folder;
  writeFile(folder.file("b c.java"), "x");
  writeFile(folder.file(".hidden"), "");
  writeFile(folder.file("plain"), "x");
  ASSERT_TRUE(makeFolders(folder.file("inner")));
  writeFile(folder.file("inner") + folderSeparator + "deeper", "x");
  const std::vector<std::string> expected = {".hidden", "b c.java", "plain"};
  std::string withoutSeparator = folder.path();
  withoutSeparator.pop_back();
  for (const std::string& path : {folder.path(), withoutSeparator}) {
    auto found = filesIn(path);
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected) << path;
  }
  EXPECT_EQ(filesIn(folder.file("inner")), std::vector<std::string>{"deeper"});
}

TEST(FileSystem, AFolderThatCantBeReadHasNoFiles) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  ASSERT_TRUE(makeFolders(folder.file("empty")));
  ASSERT_TRUE(changeDirectory(folder.path()));
  for (const std::string& path : {folder.file("empty"), folder.file("missing"), folder.file("x"), std::string()}) {
    EXPECT_TRUE(filesIn(path).empty()) << path;
  }
}

TEST(FileSystem, MakeFoldersMakesThoseAboveToo) {
  const ScratchFolder folder;
  const std::string deep = folder.file("a") + folderSeparator + "b c" + folderSeparator + "d" + folderSeparator;
  EXPECT_TRUE(makeFolders(deep));
  EXPECT_TRUE(isFolder(deep));
  EXPECT_TRUE(makeFolders(deep)) << "again";
}

TEST(FileSystem, MakeFoldersFailsWhereAFileStands) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  EXPECT_FALSE(makeFolders(folder.file("x")));
  EXPECT_FALSE(makeFolders(folder.file("x") + folderSeparator + "y"));
  EXPECT_FALSE(makeFolders(""));
  EXPECT_EQ(contentOf(folder.file("x")), "x");
}

TEST(FileSystem, FlushToDiskBringsWhatWasWritten) {
  const ScratchFolder folder;
  std::FILE* stream = openFile(folder.file("x"), "w");
  ASSERT_TRUE(stream);
  std::fputs("text", stream);
  EXPECT_TRUE(flushToDisk(stream));
  EXPECT_EQ(contentOf(folder.file("x")), "text");
  std::fclose(stream);
}

TEST(FileSystem, ResolvedPathIsAbsolute) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "x");
  ASSERT_TRUE(changeDirectory(folder.path()));
  const std::string resolved = resolvedPath("x.txt");
  EXPECT_NE(splitPath(resolved).folder, "");
  EXPECT_EQ(resolved, resolvedPath(folder.file("x.txt")));
  EXPECT_EQ(contentOf(resolved), "x");
}

TEST(FileSystem, ResolvedPathOfWhatDoesNotExistIsThePathItself) {
  const ScratchFolder folder;
  EXPECT_EQ(resolvedPath(folder.file("missing")), folder.file("missing"));
  EXPECT_EQ(resolvedPath(""), "");
}

TEST(FileSystem, ChangeDirectoryMovesTheProcess) {
  const ScratchFolder folder;
  EXPECT_TRUE(changeDirectory(folder.path()));
  writeFile("here.txt", "x");
  EXPECT_TRUE(isFile(folder.file("here.txt")));
  EXPECT_EQ(resolvedPath(currentDirectory()), resolvedPath(folder.path()));
  EXPECT_FALSE(changeDirectory(folder.file("missing")));
  EXPECT_FALSE(changeDirectory(""));
  EXPECT_EQ(resolvedPath(currentDirectory()), resolvedPath(folder.path()));
}

TEST(FileSystem, TheEnvironmentIsReadSetAndCleared) {
  const ScopedEnvironment restored("TARNWICK_TEST_VARIABLE", "");
  EXPECT_FALSE(environment("TARNWICK_TEST_VARIABLE"));
  EXPECT_TRUE(setEnvironment("TARNWICK_TEST_VARIABLE=a=b c"));
  EXPECT_EQ(environment("TARNWICK_TEST_VARIABLE"), "a=b c");
  EXPECT_TRUE(setEnvironment("TARNWICK_TEST_VARIABLE=other"));
  EXPECT_EQ(environment("TARNWICK_TEST_VARIABLE"), "other");
  EXPECT_TRUE(setEnvironment("TARNWICK_TEST_VARIABLE="));
  EXPECT_FALSE(environment("TARNWICK_TEST_VARIABLE"));
  EXPECT_TRUE(setEnvironment("TARNWICK_TEST_VARIABLE=")) << "when it is gone already";
}

TEST(FileSystem, ADefinitionNeedsANameAndAnEqualsSign) {
  EXPECT_FALSE(setEnvironment("TARNWICK_TEST_VARIABLE"));
  EXPECT_FALSE(setEnvironment("=value"));
  EXPECT_FALSE(setEnvironment(""));
}

TEST(FileSystem, TheExecutableIsTheTestProgram) {
  EXPECT_TRUE(isFile(executablePath()));
  EXPECT_EQ(splitPath(executablePath()).base, "tarnwick_unit_tests");
  EXPECT_NE(splitPath(executablePath()).folder, "");
}

TEST(FileSystem, TheHomeFolderIsAFolder) {
  EXPECT_TRUE(isFolder(homeFolder())) << homeFolder();
}

TEST(FileSystem, TheProcessHasANumber) {
  EXPECT_GT(processId(), 0);
}

}  // namespace
}  // namespace tarnwick::platform
