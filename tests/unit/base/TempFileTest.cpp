#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utime.h>

namespace tarnwick {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

constexpr std::time_t hour = 3600;
constexpr std::time_t day = 24 * hour;

void makeOlder(const std::string& path, std::time_t age) {
  utimbuf times{};
  times.actime = times.modtime = std::time(nullptr) - age;
  ASSERT_EQ(::utime(path.c_str(), &times), 0);
}

std::string tempName(const ScratchFolder& folder, int number) {
  return folder.file("Tarnwick_LOG" + std::to_string(number) + ".tmp");
}

TEST(TempFile, HasNoNameAndIsNotOpenBeforeItIsOpened) {
  const ScratchFolder folder;
  const TempFile file("Tarnwick_LOG", folder.path());
  EXPECT_EQ(file.name().fullName(), "");
  EXPECT_EQ(file.mode(), FileMode::Write);
  EXPECT_FALSE(file.isOpen());
}

TEST(TempFile, TakesTheFirstFreeNumber) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
  EXPECT_TRUE(platform::isFile(tempName(folder, 1)));
  std::fputs("text", file.stream());
  file.close();
  EXPECT_EQ(contentOf(tempName(folder, 1)), "text");
}

TEST(TempFile, AFolderWithoutItsSeparatorGetsOne) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::makeFolders(folder.file("inner")));
  TempFile file("Tarnwick_LOG", folder.file("inner"));
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), folder.file("inner") + platform::folderSeparator + "Tarnwick_LOG1.tmp");
}

TEST(TempFile, NoFolderMeansTheCurrentOne) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::changeDirectory(folder.path()));
  TempFile file("Tarnwick_LOG", "");
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), "Tarnwick_LOG1.tmp");
  EXPECT_TRUE(platform::isFile(tempName(folder, 1)));
}

TEST(TempFile, TheDestructorDeletesTheFileAlsoWhileItIsOpen) {
  const ScratchFolder folder;
  {
    TempFile file("Tarnwick_LOG", folder.path());
    file.openTemp(FileMode::Write);
    EXPECT_TRUE(platform::isFile(tempName(folder, 1)));
  }
  EXPECT_FALSE(platform::isFile(tempName(folder, 1)));
}

TEST(TempFile, TheDestructorDeletesThroughTheBaseClassToo) {
  const ScratchFolder folder;
  auto file = std::make_unique<TempFile>("Tarnwick_LOG", folder.path());
  file->openTemp(FileMode::Write);
  std::unique_ptr<Tarnwickfile> base = std::move(file);
  base.reset();
  EXPECT_FALSE(platform::isFile(tempName(folder, 1)));
}

TEST(TempFile, AFileWithANameKeepsItWhenItIsOpenedAgain) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  std::fputs("one\n", file.stream());
  file.openTemp(FileMode::Append);
  std::fputs("two\n", file.stream());
  file.openTemp(FileMode::Read);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
  char line[10];
  ASSERT_TRUE(std::fgets(line, sizeof line, file.stream()));
  EXPECT_STREQ(line, "one\n");
}

TEST(TempFile, AFileWhoseNameCannotBeOpenedGetsANewOne) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  file.close();
  ASSERT_EQ(std::rename(tempName(folder, 1).c_str(), folder.file("away").c_str()), 0);
  ASSERT_TRUE(platform::makeFolders(tempName(folder, 1)));
  writeFile(tempName(folder, 2), "another instance's");
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 3));
  EXPECT_EQ(contentOf(tempName(folder, 2)), "another instance's");
}

TEST(TempFile, ANewNameIsOfNoUseForReading) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  try {
    file.openTemp(FileMode::Read);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.file, tempName(folder, 1));
  }
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
}

TEST(TempFile, OfTwoRunsTheSecondSeesTheFirstsFreshFileAndTakesTheNextNumber) {
  const ScratchFolder folder;
  TempFile first("Tarnwick_LOG", folder.path());
  TempFile second("Tarnwick_LOG", folder.path());
  first.openTemp(FileMode::Write);
  second.openTemp(FileMode::Write);
  EXPECT_EQ(first.name().fullName(), tempName(folder, 1));
  EXPECT_EQ(second.name().fullName(), tempName(folder, 2));
}

TEST(TempFile, AnotherPrefixHasItsOwnNumbers) {
  const ScratchFolder folder;
  TempFile log("Tarnwick_LOG", folder.path());
  TempFile manifest("Tarnwick_tempManifest", folder.path());
  log.openTemp(FileMode::Write);
  manifest.openTemp(FileMode::Write);
  EXPECT_EQ(manifest.name().fullName(), folder.file("Tarnwick_tempManifest1.tmp"));
}

TEST(TempFile, AFileUnderADayOldIsTakenToBeInUse) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "in use");
  makeOlder(tempName(folder, 1), day - hour);
  {
    TempFile file("Tarnwick_LOG", folder.path());
    file.openTemp(FileMode::Write);
    EXPECT_EQ(file.name().fullName(), tempName(folder, 2));
  }
  EXPECT_EQ(contentOf(tempName(folder, 1)), "in use");
}

TEST(TempFile, AFileFromTheFutureIsTakenToBeInUse) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "in use");
  makeOlder(tempName(folder, 1), -3 * day);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 2));
}

TEST(TempFile, AFileOfJustOverADayIsALeftover) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "old");
  makeOlder(tempName(folder, 1), day + hour);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
}

TEST(TempFile, ALeftoverTwoDaysOldIsTakenOverAndTruncated) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "leftover");
  makeOlder(tempName(folder, 1), 2 * day);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
  file.close();
  EXPECT_EQ(contentOf(tempName(folder, 1)), "");
}

TEST(TempFile, ALeftoverIsNotDeletedBeforeItIsTakenOver) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "leftover");
  makeOlder(tempName(folder, 1), 2 * day);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Append);
  file.close();
  EXPECT_EQ(contentOf(tempName(folder, 1)), "leftover") << "appending finds the old content";
}

TEST(TempFile, AnOldFileWithASecondNameIsNoLeftover) {
  const ScratchFolder folder;
  writeFile(folder.file("precious"), "mine");
  std::error_code failure;
  std::filesystem::create_hard_link(folder.file("precious"), tempName(folder, 1), failure);
  if (failure) GTEST_SKIP() << "no hard links here: " << failure.message();
  makeOlder(folder.file("precious"), 2 * day);
  {
    TempFile file("Tarnwick_LOG", folder.path());
    file.openTemp(FileMode::Write);
    EXPECT_EQ(file.name().fullName(), tempName(folder, 2));
  }
  EXPECT_EQ(contentOf(folder.file("precious")), "mine");
  EXPECT_EQ(contentOf(tempName(folder, 1)), "mine");
}

TEST(TempFile, AMissingFolderFailsWithTheFirstCandidatesName) {
  const ScratchFolder folder;
  const std::string missing = folder.file("missing") + platform::folderSeparator;
  TempFile file("Tarnwick_LOG", missing);
  try {
    file.openTemp(FileMode::Write);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.file, missing + "Tarnwick_LOG1.tmp");
  }
}

TEST(TempFile, WhatCouldNotBeOpenedIsNotDeleted) {
  const ScratchFolder folder;
  {
    TempFile file("Tarnwick_LOG", folder.path());
    EXPECT_THROW(file.openTemp(FileMode::Read), Tarnwickfile::FileNotOpenE);
    EXPECT_EQ(file.name().fullName(), "");
    writeFile(tempName(folder, 1), "somebody else's");
  }
  EXPECT_EQ(contentOf(tempName(folder, 1)), "somebody else's");
}

TEST(TempFile, AFileOfADayExactlyIsALeftover) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "old");
  makeOlder(tempName(folder, 1), day);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 1));
}

TEST(TempFile, NumbersInUseArePassedOverUpToTheFirstThatIsFreeOrOld) {
  const ScratchFolder folder;
  for (int number = 1; number <= 12; ++number) writeFile(tempName(folder, number), "in use");
  makeOlder(tempName(folder, 11), 2 * day);
  TempFile old("Tarnwick_LOG", folder.path());
  old.openTemp(FileMode::Write);
  EXPECT_EQ(old.name().fullName(), tempName(folder, 11)) << "two digits";
  TempFile free("Tarnwick_LOG", folder.path());
  free.openTemp(FileMode::Write);
  EXPECT_EQ(free.name().fullName(), tempName(folder, 13));
}

TEST(TempFile, ALowerNumberThatBecameFreeIsTakenFirst) {
  const ScratchFolder folder;
  auto first = std::make_unique<TempFile>("Tarnwick_LOG", folder.path());
  TempFile second("Tarnwick_LOG", folder.path());
  first->openTemp(FileMode::Write);
  second.openTemp(FileMode::Write);
  first.reset();
  TempFile third("Tarnwick_LOG", folder.path());
  third.openTemp(FileMode::Write);
  EXPECT_EQ(third.name().fullName(), tempName(folder, 1));
}

TEST(TempFile, WithoutAModeItIsOpenedForWriting) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Undefined);
  EXPECT_EQ(file.mode(), FileMode::Write);
  std::fputs("text", file.stream());
  file.close();
  EXPECT_EQ(contentOf(tempName(folder, 1)), "text");
}

TEST(TempFile, AFolderInTheWayIsPassedOver) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::makeFolders(tempName(folder, 1)));
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), tempName(folder, 2));
}

TEST(TempFile, ADestructorWithoutAFileDeletesNothing) {
  const ScratchFolder folder;
  writeFile(tempName(folder, 1), "somebody else's");
  { const TempFile file("Tarnwick_LOG", folder.path()); }
  EXPECT_EQ(contentOf(tempName(folder, 1)), "somebody else's");
}

TEST(TempFile, ClosingDoesNotDelete) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  file.close();
  EXPECT_TRUE(platform::isFile(tempName(folder, 1))) << "an editor may be looking at it";
}

TEST(TempFile, WhatAKilledProcessHasLeftIsClearedAndNothingElse) {
  const ScratchFolder folder;
  for (const char* name :
       {"Tarnwick_LOG1.tmp", "Tarnwick_LOG9998.tmp", "Tarnwick_tempManifest2.tmp", "Tarnwick_javadoc_list1.tmp"}) {
    writeFile(folder.file(name), "left");
    clearTempFiles(folder.path());
    EXPECT_FALSE(platform::isFile(folder.file(name))) << name;
  }
  for (const char* name : {"Tarnwick_LOG.tmp", "Tarnwick_LOG1.txt", "Tarnwick_LOG1.tmp.bak", "Tarnwick_LOGx1.tmp",
                           "Tarnwick_LOG1x.tmp", "My Tarnwick_LOG1.tmp", "Tarnwick_notes1.tmp", "Tarnwickdefault.CFG",
                           "Tarnwickdefault.CFG.1.tmp", ".tmp", "1.tmp"}) {
    writeFile(folder.file(name), "the user's");
    clearTempFiles(folder.path());
    EXPECT_TRUE(platform::isFile(folder.file(name))) << name;
  }
}

TEST(TempFile, AFileThatIsInUseIsNotCleared) {
  const ScratchFolder folder;
  {
    TempFile file("Tarnwick_LOG", folder.path());
    file.openTemp(FileMode::Write);
    clearTempFiles(folder.path());
    EXPECT_TRUE(platform::isFile(tempName(folder, 1))) << "open";
    file.close();
    clearTempFiles(folder.path());
    EXPECT_TRUE(platform::isFile(tempName(folder, 1))) << "between two runs";
  }
  EXPECT_FALSE(platform::isFile(tempName(folder, 1)));
}

TEST(TempFile, AFileThatWasMadeAnewIsNotClearedEither) {
  const ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  file.close();
  ASSERT_EQ(std::rename(tempName(folder, 1).c_str(), folder.file("away").c_str()), 0);
  file.openTemp(FileMode::Write);
  file.close();
  clearTempFiles(folder.path());
  EXPECT_TRUE(platform::isFile(tempName(folder, 1)));
}

}  // namespace
}  // namespace tarnwick
