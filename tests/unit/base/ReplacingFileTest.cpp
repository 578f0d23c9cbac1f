#include "base/ReplacingFile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

using Names = std::vector<std::string>;

/// What lies in the folder.
Names namesIn(const ScratchFolder& folder) {
  EXPECT_TRUE(platform::changeDirectory(folder.path()));
  Names names;
  for (const auto& entry : std::filesystem::directory_iterator(".")) names.push_back(entry.path().filename().string());
  return names;
}

TEST(ReplacingFile, ANameWithALineEndIsRefusedAndNothingIsMade) {
  const test::ScratchFolder folder;
  try {
    const ReplacingFile file(folder.file("a\nb") + platform::folderSeparator + "x.cfg");
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "The name holds a line end");
  }
  EXPECT_FALSE(platform::isFolder(folder.file("a\nb")));
}

TEST(ReplacingFile, WhatIsCommittedTakesTheTargetsPlace) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  {
    ReplacingFile file(folder.file("x.cfg"));
    EXPECT_EQ(file.name().fullName(), folder.file("x.cfg"));
    EXPECT_EQ(file.mode(), FileMode::Write);
    std::fputs("new", file.stream());
    EXPECT_EQ(contentOf(folder.file("x.cfg")), "old") << "nothing happens before the commit";
    file.commit();
    EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
    EXPECT_FALSE(file.isOpen());
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"}) << "nothing else is left";
}

TEST(ReplacingFile, ATargetThatIsMissingIsMade) {
  const ScratchFolder folder;
  {
    ReplacingFile file(folder.file("x.cfg"));
    std::fputs("new", file.stream());
    EXPECT_FALSE(platform::isFile(folder.file("x.cfg")));
    file.commit();
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, WithoutACommitTheTargetStaysAsItWas) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  {
    const ReplacingFile file(folder.file("x.cfg"));
    std::fputs("new", file.stream());
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "old");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, WithoutACommitAMissingTargetStaysMissing) {
  const ScratchFolder folder;
  { const ReplacingFile file(folder.file("x.cfg")); }
  EXPECT_EQ(namesIn(folder), Names{});
}

TEST(ReplacingFile, TheTargetsFolderIsMadeIfItIsMissing) {
  const ScratchFolder folder;
  const std::string target = folder.file("a") + platform::folderSeparator + "b" + platform::folderSeparator + "x.cfg";
  ReplacingFile file(target);
  std::fputs("new", file.stream());
  file.commit();
  EXPECT_EQ(contentOf(target), "new");
}

TEST(ReplacingFile, ATargetWithoutAFolderLiesInTheCurrentOne) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::changeDirectory(folder.path()));
  ReplacingFile file("x.cfg");
  std::fputs("new", file.stream());
  file.commit();
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
}

TEST(ReplacingFile, TwoSavesOfOneTargetDoNotMeet) {
  const ScratchFolder folder;
  ReplacingFile first(folder.file("x.cfg"));
  ReplacingFile second(folder.file("x.cfg"));
  std::fputs("first", first.stream());
  std::fputs("second", second.stream());
  first.commit();
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "first");
  second.commit();
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "second");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, SavesAtTheSameTimeHaveNumbersOfTheirOwn) {
  const ScratchFolder folder;
  const ReplacingFile first(folder.file("x.cfg"));
  const ReplacingFile second(folder.file("x.cfg"));
  Names names = namesIn(folder);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (Names{"x.cfg.tarnwick-1.tmp", "x.cfg.tarnwick-2.tmp"}));
}

TEST(ReplacingFile, WhatAKilledSaveHasLeftIsUsedByTheNext) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  writeFile(folder.file("x.cfg.tarnwick-1.tmp"), "half of a longer conte");
  ReplacingFile file(folder.file("x.cfg"));
  EXPECT_EQ(namesIn(folder).size(), 2U);
  std::fputs("new", file.stream());
  file.commit();
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, AFileOfTheUsersWithANumberIsNeitherUsedNorRemoved) {
  for (const bool thereBefore : {false, true}) {
    const ScratchFolder folder;
    if (thereBefore) writeFile(folder.file("x.cfg"), "old");
    writeFile(folder.file("x.cfg.1.tmp"), "mine");
    ReplacingFile file(folder.file("x.cfg"));
    std::fputs("new", file.stream());
    file.commit();
    EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
    EXPECT_EQ(contentOf(folder.file("x.cfg.1.tmp")), "mine");
    EXPECT_EQ(namesIn(folder).size(), 2U);
  }
}

TEST(ReplacingFile, AFileWithASecondNameIsNoLeftover) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  writeFile(folder.file("precious"), "mine");
  std::error_code failure;
  std::filesystem::create_hard_link(folder.file("precious"), folder.file("x.cfg.tarnwick-1.tmp"), failure);
  if (failure) GTEST_SKIP() << "no hard links here: " << failure.message();
  {
    ReplacingFile file(folder.file("x.cfg"));
    EXPECT_TRUE(platform::isFile(folder.file("x.cfg.tarnwick-2.tmp"))) << "the next number";
    std::fputs("new", file.stream());
    file.commit();
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(contentOf(folder.file("precious")), "mine");
  EXPECT_EQ(contentOf(folder.file("x.cfg.tarnwick-1.tmp")), "mine");
}

TEST(ReplacingFile, AFolderUnderTheFreshFilesNameIsPassedOver) {
  for (const bool thereBefore : {false, true}) {
    const ScratchFolder folder;
    if (thereBefore) writeFile(folder.file("x.cfg"), "old");
    ASSERT_TRUE(platform::makeFolders(folder.file("x.cfg.tarnwick-1.tmp")));
    ReplacingFile file(folder.file("x.cfg"));
    EXPECT_TRUE(platform::isFile(folder.file("x.cfg.tarnwick-2.tmp")));
    EXPECT_EQ(platform::isFile(folder.file("x.cfg")), thereBefore);
    std::fputs("new", file.stream());
    file.commit();
    EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
    EXPECT_TRUE(platform::isFolder(folder.file("x.cfg.tarnwick-1.tmp")));
    EXPECT_FALSE(platform::isFile(folder.file("x.cfg.tarnwick-2.tmp")));
  }
}

TEST(ReplacingFile, MoreSavesAtOnceThanThereAreNumbersFailAndLeaveTheTarget) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  std::vector<std::unique_ptr<ReplacingFile>> saves;
  for (int i = 0; i < 20; ++i) saves.push_back(std::make_unique<ReplacingFile>(folder.file("x.cfg")));
  try {
    const ReplacingFile oneMore(folder.file("x.cfg"));
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, std::strerror(EBUSY));
    EXPECT_EQ(failure.file, folder.file("x.cfg"));
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "old");
  saves.clear();
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, ATargetThatIsHeldOpenForReadingIsSavedAllTheSame) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "a longer old content");
  const Tarnwickfile reader(folder.file("x.cfg"), FileMode::Read);
  {
    ReplacingFile file(folder.file("x.cfg"));
    std::fputs("new", file.stream());
    file.commit();
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, AFolderAsTargetThrowsWhatOpeningItForWritingThrows) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::makeFolders(folder.file("inner")));
  try {
    const ReplacingFile file(folder.file("inner"));
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, platform::folderSeparator == '/' ? "Is a directory" : "Permission denied");
    EXPECT_EQ(failure.file, folder.file("inner"));
  }
  EXPECT_EQ(namesIn(folder), Names{"inner"});
}

TEST(ReplacingFile, ATargetThatBecomesAFolderMeanwhileThrowsAndLeavesNothingBesideIt) {
  const ScratchFolder folder;
  {
    ReplacingFile file(folder.file("x.cfg"));
    std::fputs("new", file.stream());
    ASSERT_TRUE(platform::makeFolders(folder.file("x.cfg")));
    try {
      file.commit();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      EXPECT_EQ(failure.message, platform::folderSeparator == '/' ? "Is a directory" : "Permission denied");
      EXPECT_EQ(failure.file, folder.file("x.cfg"));
    }
    EXPECT_FALSE(file.isOpen());
  }
  EXPECT_EQ(namesIn(folder), Names{"x.cfg"});
}

TEST(ReplacingFile, AFolderThatCannotBeMadeThrowsWithTheTargetsName) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "a file");
  const std::string target = folder.file("x") + platform::folderSeparator + "y" + platform::folderSeparator + "z.cfg";
  try {
    const ReplacingFile file(target);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, platform::folderSeparator == '/' ? "Not a directory" : "No such file or directory");
    EXPECT_EQ(failure.file, target);
  }
  EXPECT_EQ(contentOf(folder.file("x")), "a file");
}

TEST(ReplacingFile, ACommitOfAClosedFileThrowsAndLeavesTheTarget) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  {
    ReplacingFile file(folder.file("x.cfg"));
    file.close();
    try {
      file.commit();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      EXPECT_EQ(failure.message, "Attempt to access file that has not been opened.");
      EXPECT_EQ(failure.file, folder.file("x.cfg"));
    }
  }
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "old");
}

}  // namespace
}  // namespace tarnwick
