#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <cerrno>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

/// The failure that `action` throws.
Tarnwickfile::FileNotOpenE failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    return failure;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {"", ""};
}

std::string restOf(const Tarnwickfile& file) {
  std::string text;
  for (int c = std::fgetc(file.stream()); c != EOF; c = std::fgetc(file.stream())) text += static_cast<char>(c);
  return text;
}

TEST(Tarnwickfile, TheModesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(FileMode::Read), 0);
  EXPECT_EQ(static_cast<int>(FileMode::Write), 1);
  EXPECT_EQ(static_cast<int>(FileMode::Append), 2);
  EXPECT_EQ(static_cast<int>(FileMode::Undefined), 3);
}

TEST(Tarnwickfile, FromNothingItIsClosedWithNoNameAndNoMode) {
  const Tarnwickfile file;
  EXPECT_FALSE(file.isOpen());
  EXPECT_EQ(file.name().fullName(), "");
  EXPECT_EQ(file.mode(), FileMode::Undefined);
}

TEST(Tarnwickfile, ConstructionOpensForReading) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  const Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  EXPECT_TRUE(file.isOpen());
  EXPECT_EQ(file.mode(), FileMode::Read);
  EXPECT_EQ(file.name().fullName(), folder.file("x.txt"));
  EXPECT_EQ(restOf(file), "text");
}

TEST(Tarnwickfile, ConstructionFromFolderAndNameJoinsThem) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  const Tarnwickfile file(folder.path(), " \"x.txt\" ", FileMode::Read);
  EXPECT_EQ(file.name().fullName(), folder.file("x.txt"));
  EXPECT_EQ(restOf(file), "text");
}

TEST(Tarnwickfile, WritingTruncatesAndAppendingDoesNot) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "before");
  {
    const Tarnwickfile file(folder.file("x.txt"), FileMode::Write);
    std::fputs("one", file.stream());
  }
  EXPECT_EQ(contentOf(folder.file("x.txt")), "one");
  {
    const Tarnwickfile file(folder.file("x.txt"), FileMode::Append);
    std::fputs("two", file.stream());
  }
  EXPECT_EQ(contentOf(folder.file("x.txt")), "onetwo");
}

TEST(Tarnwickfile, AppendingMakesAFileThatIsMissingAndReadsToo) {
  const ScratchFolder folder;
  const Tarnwickfile file(folder.file("x.txt"), FileMode::Append);
  std::fputs("one", file.stream());
  std::rewind(file.stream());
  EXPECT_EQ(restOf(file), "one");
}

TEST(Tarnwickfile, ConstructionFromAPathThatCannotBeReadThrowsTheStrerrorText) {
  const ScratchFolder folder;
  const auto failure = failureOf([&] { const Tarnwickfile file(folder.file("missing.txt"), FileMode::Read); });
  EXPECT_EQ(failure.message, std::strerror(ENOENT));
  EXPECT_EQ(failure.message, "No such file or directory");
  EXPECT_EQ(failure.file, folder.file("missing.txt"));
}

TEST(Tarnwickfile, AFolderGivenAsAFileThrowsInEveryMode) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::makeFolders(folder.file("inner")));
  const bool windows = platform::folderSeparator == '\\';
  for (const FileMode mode : {FileMode::Read, FileMode::Write, FileMode::Append}) {
    const auto failure = failureOf([&] { const Tarnwickfile file(folder.file("inner"), mode); });
    EXPECT_EQ(failure.message, windows ? "Permission denied" : "Is a directory");
    EXPECT_EQ(failure.file, folder.file("inner"));
  }
}

TEST(Tarnwickfile, AnUnopenedFileIsOpenedLater) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file = Tarnwickfile::unopened(folder.file("x.txt"), FileMode::Read);
  EXPECT_FALSE(file.isOpen());
  file.open(FileMode::Undefined);
  EXPECT_EQ(restOf(file), "text");
}

TEST(Tarnwickfile, OpenWithoutAnyModeDoesNotKnowHow) {
  Tarnwickfile nameless;
  const auto failure = failureOf([&] { nameless.open(FileMode::Undefined); });
  EXPECT_EQ(failure.message, "Tarnwickfile::open(): Don't know how to open \"\"");
  EXPECT_EQ(failure.file, "");

  const std::string path = std::string("folder") + platform::folderSeparator + "x y.txt";
  const auto named = failureOf([&] { const Tarnwickfile file(path, FileMode::Undefined); });
  EXPECT_EQ(named.message, "Tarnwickfile::open(): Don't know how to open \"x y.txt\"");
  EXPECT_EQ(named.file, path);
}

TEST(Tarnwickfile, OpenWithAModeChangesTheStoredModeForLaterOpens) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  file.open(FileMode::Write);
  EXPECT_EQ(file.mode(), FileMode::Write);
  std::fputs("new", file.stream());
  file.close();
  EXPECT_EQ(contentOf(folder.file("x.txt")), "new");
  file.open(FileMode::Undefined);
  EXPECT_EQ(file.mode(), FileMode::Write);
  file.close();
  EXPECT_EQ(contentOf(folder.file("x.txt")), "") << "opened for writing again";
}

TEST(Tarnwickfile, OpenInTheStoredModeStartsAgainFromTheBeginning) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  EXPECT_EQ(restOf(file), "text");
  file.open(FileMode::Undefined);
  EXPECT_EQ(restOf(file), "text");
}

TEST(Tarnwickfile, AFailedOpenLeavesTheStreamClosedAndTheModeStored) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  file.close();
  ASSERT_TRUE(platform::deleteFile(folder.file("x.txt")));
  EXPECT_THROW(file.open(FileMode::Undefined), Tarnwickfile::FileNotOpenE);
  EXPECT_FALSE(file.isOpen());
  EXPECT_EQ(file.mode(), FileMode::Read);
  EXPECT_THROW(file.stream(), Tarnwickfile::FileNotOpenE);
}

TEST(Tarnwickfile, TheStreamOfAClosedFileThrows) {
  const Tarnwickfile file = Tarnwickfile::unopened("x.txt", FileMode::Read);
  const auto failure = failureOf([&] { file.stream(); });
  EXPECT_EQ(failure.message, "Attempt to access file that has not been opened.");
  EXPECT_EQ(failure.file, "x.txt");
}

TEST(Tarnwickfile, ClosingAClosedFileIsNoFailure) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  file.close();
  EXPECT_FALSE(file.isOpen());
  file.close();
  EXPECT_FALSE(file.isOpen());
  Tarnwickfile().close();
}

TEST(Tarnwickfile, TheDestructorClosesTheStream) {
  const ScratchFolder folder;
  {
    const Tarnwickfile file(folder.file("x.txt"), FileMode::Write);
    std::fputs("text", file.stream());
  }
  EXPECT_EQ(contentOf(folder.file("x.txt")), "text");
}

TEST(Tarnwickfile, AssignmentMovesTheOpenState) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  writeFile(folder.file("y.txt"), "other");
  Tarnwickfile source(folder.file("x.txt"), FileMode::Read);
  std::fgetc(source.stream());
  Tarnwickfile file(folder.file("y.txt"), FileMode::Append);
  file = source;
  EXPECT_FALSE(source.isOpen());
  EXPECT_EQ(file.name().fullName(), folder.file("x.txt"));
  EXPECT_EQ(file.mode(), FileMode::Read);
  EXPECT_EQ(restOf(file), "text") << "from the beginning";
}

TEST(Tarnwickfile, AssignmentFromAFileWithoutModeOpensNothing) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  Tarnwickfile source;
  file = source;
  EXPECT_FALSE(file.isOpen());
  EXPECT_EQ(file.mode(), FileMode::Undefined);
  EXPECT_EQ(file.name().fullName(), "");
}

TEST(Tarnwickfile, AssignmentThrowsWhatOpenThrows) {
  const ScratchFolder folder;
  Tarnwickfile source = Tarnwickfile::unopened(folder.file("missing.txt"), FileMode::Read);
  Tarnwickfile file;
  const auto failure = failureOf([&] { file = source; });
  EXPECT_EQ(failure.message, "No such file or directory");
  EXPECT_EQ(failure.file, folder.file("missing.txt"));
  EXPECT_FALSE(file.isOpen());
}

TEST(Tarnwickfile, ATextWithCarriageReturnsReadsTheSameOnEverySystem) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "one\r\ntwo\r\n");
  const Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  EXPECT_EQ(restOf(file), "one\ntwo\n");
}

TEST(CanBeRead, IsHowAFileIsFoundToExist) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  EXPECT_TRUE(canBeRead(folder.file("x.txt")));
  EXPECT_FALSE(canBeRead(folder.file("missing.txt")));
  EXPECT_FALSE(canBeRead(folder.path()));
  EXPECT_FALSE(canBeRead(""));
}

TEST(Tarnwickfile, ALoneCarriageReturnIsPartOfTheText) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "one\rtwo\r\r\nthree\n\rfour\r");
  const Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  EXPECT_EQ(restOf(file), "one\rtwo\r\nthree\n\rfour\r");
}

TEST(Tarnwickfile, LinesAreReadTheSameWhateverEndsThem) {
  const ScratchFolder folder;
  for (const std::string end : {"\n", "\r\n"}) {
    writeFile(folder.file("x.txt"), "one" + end + end + "two" + end);
    const Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
    char line[20];
    for (const char* expected : {"one\n", "\n", "two\n"}) {
      ASSERT_TRUE(std::fgets(line, sizeof line, file.stream()));
      EXPECT_STREQ(line, expected);
    }
    EXPECT_FALSE(std::fgets(line, sizeof line, file.stream()));
  }
}

TEST(Tarnwickfile, WhatIsWrittenReadsBackAsTheSameText) {
  const ScratchFolder folder;
  Tarnwickfile file(folder.file("x.txt"), FileMode::Write);
  std::fputs("one\n\ntwo\n", file.stream());
  file.open(FileMode::Append);
  std::fputs("three", file.stream());
  file.open(FileMode::Read);
  EXPECT_EQ(restOf(file), "one\n\ntwo\nthree");
}

TEST(Tarnwickfile, ConstructionFromFolderAndNameThrowsWhatOpenThrows) {
  const ScratchFolder folder;
  const auto failure = failureOf([&] { const Tarnwickfile file(folder.path(), "no thing.txt", FileMode::Read); });
  EXPECT_EQ(failure.message, "No such file or directory");
  EXPECT_EQ(failure.file, folder.file("no thing.txt"));
}

TEST(Tarnwickfile, WritingIntoAFolderThatIsMissingThrows) {
  const ScratchFolder folder;
  const std::string path = folder.file("missing") + platform::folderSeparator + "x.txt";
  for (const FileMode mode : {FileMode::Write, FileMode::Append}) {
    const auto failure = failureOf([&] { const Tarnwickfile file(path, mode); });
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.file, path);
  }
}

TEST(Tarnwickfile, AFailureTellsTheNameWithoutQuotes) {
  const auto failure = failureOf([] { const Tarnwickfile file(" \"no where/no thing\" ", FileMode::Read); });
  EXPECT_EQ(failure.file, "no where/no thing");
}

TEST(Tarnwickfile, AFailedOpenStoresItsModeAllTheSame) {
  const ScratchFolder folder;
  Tarnwickfile file = Tarnwickfile::unopened(folder.file("x.txt"), FileMode::Undefined);
  EXPECT_THROW(file.open(FileMode::Read), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(file.mode(), FileMode::Read);
  writeFile(folder.file("x.txt"), "text");
  file.open(FileMode::Undefined);
  EXPECT_EQ(restOf(file), "text");
}

TEST(Tarnwickfile, AnUnopenedFileWithoutModeIsToldHowLater) {
  const ScratchFolder folder;
  Tarnwickfile file = Tarnwickfile::unopened(folder.file("x.txt"), FileMode::Undefined);
  const auto failure = failureOf([&] { file.open(FileMode::Undefined); });
  EXPECT_EQ(failure.message, "Tarnwickfile::open(): Don't know how to open \"x.txt\"");
  EXPECT_FALSE(platform::isFile(folder.file("x.txt")));
  file.open(FileMode::Write);
  EXPECT_TRUE(platform::isFile(folder.file("x.txt")));
}

TEST(Tarnwickfile, AssignmentOpensAlsoWhatWasClosed) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile source = Tarnwickfile::unopened(folder.file("x.txt"), FileMode::Read);
  Tarnwickfile file;
  file = source;
  EXPECT_FALSE(source.isOpen());
  EXPECT_EQ(restOf(file), "text");
  EXPECT_EQ(source.name().fullName(), folder.file("x.txt")) << "the source keeps its name";
  EXPECT_EQ(source.mode(), FileMode::Read);
}

TEST(Tarnwickfile, AssignmentToItselfChangesNothing) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  std::fgetc(file.stream());
  Tarnwickfile& same = file;
  file = same;
  EXPECT_EQ(restOf(file), "ext");
}

TEST(Tarnwickfile, ANameWithALineEndIsRefusedInEveryMode) {
  const ScratchFolder folder;
  for (const char* name : {"a\nb.txt", "a\rb.txt", "a\nb/c.txt"}) {
    for (const FileMode mode : {FileMode::Read, FileMode::Write, FileMode::Append}) {
      try {
        const Tarnwickfile file(folder.file(name), mode);
        ADD_FAILURE() << "nothing was thrown";
      } catch (const Tarnwickfile::FileNotOpenE& failure) {
        EXPECT_EQ(failure.message, "The name holds a line end");
        EXPECT_EQ(failure.file, folder.file(name));
      }
    }
  }
  EXPECT_TRUE(platform::filesIn(folder.path()).empty()) << "nothing was made";
}

TEST(Tarnwickfile, WhiteSpaceAndQuotesAroundANameDoNotCountInTheTestForItsFile) {
  const ScratchFolder folder;
  writeFile(folder.file("my x.txt"), "");
  EXPECT_TRUE(canBeRead('"' + folder.file("my x.txt") + '"'));
  EXPECT_TRUE(canBeRead(folder.file("my x.txt") + " \n"));
  EXPECT_FALSE(canBeRead(folder.file("my y.txt")));
}

}  // namespace
}  // namespace tarnwick
