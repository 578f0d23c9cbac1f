// The files that a console's lines go to: full disks, and what is no plain file.
#include "support/ConsoleFixture.h"
#include "support/TestProgram.h"
#include "support/posix/FullDisk.h"
#include "support/posix/OrdinaryUser.h"
#include "support/posix/OwnDevice.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::contentOf;
using test::writeFile;

const std::string cantOpen = "\nCan't open output file.";
const std::string cantWrite = "\nCan't write output file.";
const std::string recordEnds = "\nThe recording has ended.";

std::string reason(int number) {
  return std::strerror(number);
}

/// A pipe with a name whose reader does nothing until it is asked.
class SleepingReader {
 public:
  explicit SleepingReader(const std::string& path) {
    EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
    reader_ = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(reader_, 0);
  }
  ~SleepingReader() { ::close(reader_); }
  SleepingReader(const SleepingReader&) = delete;
  SleepingReader& operator=(const SleepingReader&) = delete;

  std::string taken() const {
    std::string text;
    std::array<char, 4096> block;
    for (ssize_t count = 0; (count = ::read(reader_, block.data(), block.size())) > 0;) {
      text.append(block.data(), static_cast<std::size_t>(count));
    }
    return text;
  }

 private:
  int reader_ = -1;
};

class ConsoleFilesTest : public test::ConsoleFixture {
 protected:
  std::ptrdiff_t filesInScratch() const {
    return std::distance(std::filesystem::directory_iterator(scratch.path()), std::filesystem::directory_iterator());
  }
  void fill(int count) {
    const TextGuard guard(document.textLock());
    for (int line = 0; line < count; ++line) {
      document.addText(std::string(100, 'x'), KIND_OUTPUT);
      document.newLine();
    }
  }
  Lines save(const std::string& path) {
    desktop.messages.clear();
    desktop.saveAnswers = {path};
    files.saveDisplay();
    return desktop.messages;
  }
  bool record(const std::string& path) {
    desktop.messages.clear();
    desktop.saveAnswers = {path};
    return files.startRecording();
  }
  /// The child says so many lines of which each is one block, and each is in the text.
  void childSays(int count) {
    for (int line = 0; line < count; ++line) {
      const std::string text = "line " + std::to_string(++said_);
      child->out(text + '\n');
      ASSERT_TRUE(until([&] {
        const auto all = lines();
        return std::find(all.begin(), all.end(), text) != all.end();
      }));
    }
  }
  /// Closes the file behind the console's back.
  static void spoil(const std::string& path) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code unknown;
      if (std::filesystem::read_symlink(entry.path(), unknown) != path) continue;
      ::close(std::stoi(entry.path().filename().string()));
      return;
    }
    ADD_FAILURE() << path << " is not open";
  }
  std::string lineOfTest(int number) const { return "line " + std::to_string(number) + '\n'; }

  const test::ScratchFolder scratch;
  const std::string file = scratch.file("kept.txt");

 private:
  int said_ = 0;
};

TEST_F(ConsoleFilesTest, ASaveOnAFullDiskKeepsTheOldFileWholeAndIsTold) {
  writeFile(file, "old content\n");
  fill(200);
  for (const rlim_t bytes : {0, 1, 4095, 4096, 4097, 20000}) {
    const test::FullDisk disk(bytes);
    EXPECT_EQ(save(file), (Lines{reason(EFBIG) + cantWrite})) << bytes;
    EXPECT_EQ(contentOf(file), "old content\n") << bytes;
    EXPECT_EQ(filesInScratch(), 1) << bytes;
  }
  EXPECT_EQ(save(file), Lines{});
  EXPECT_EQ(contentOf(file).size(), 200U * 101U + 1U);
  EXPECT_EQ(filesInScratch(), 1);
}

TEST_F(ConsoleFilesTest, ASaveToAFullDeviceIsTold) {
  const test::OwnDevice device("full", 7);
  if (!device.isUsable()) GTEST_SKIP() << test::noOwnDevice;
  fill(3);
  EXPECT_EQ(save(device.path()), (Lines{reason(ENOSPC) + cantWrite}));
}

TEST_F(ConsoleFilesTest, ASaveThroughALinkLeavesTheLink) {
  writeFile(file, "old content");
  std::filesystem::create_symlink("kept.txt", scratch.file("link"));
  fill(1);
  EXPECT_EQ(save(scratch.file("link")), Lines{});
  EXPECT_TRUE(std::filesystem::is_symlink(scratch.file("link")));
  EXPECT_EQ(contentOf(file), std::string(100, 'x') + "\n\n");
}

TEST_F(ConsoleFilesTest, WhatCantBeOpenedIsToldAndLeftAsItIs) {
  const auto refused = [this](const std::string& path, int number) {
    EXPECT_EQ(save(path), (Lines{reason(number) + cantOpen})) << path;
    EXPECT_FALSE(record(path));
    EXPECT_EQ(desktop.messages, (Lines{reason(number) + cantOpen})) << path;
    EXPECT_FALSE(document.recording());
  };
  refused(scratch.path().substr(0, scratch.path().size() - 1), EISDIR);
  refused(scratch.file("missing/x.txt"), ENOENT);
  ASSERT_EQ(::mkfifo(scratch.file("pipe").c_str(), 0600), 0);
  refused(scratch.file("pipe"), ENXIO);
  std::filesystem::create_symlink("circle", scratch.file("circle"));
  refused(scratch.file("circle"), ELOOP);
  EXPECT_EQ(filesInScratch(), 2);
}

TEST_F(ConsoleFilesTest, AFileThatMayOnlyBeReadIsToldAndKept) {
  if (!test::OrdinaryUser::isBound()) GTEST_SKIP() << test::permissionsBindNobody;
  writeFile(file, "old content");
  ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
  ASSERT_EQ(::chmod(scratch.path().c_str(), 0777), 0);
  {
    const test::OrdinaryUser user;
    EXPECT_EQ(save(file), (Lines{reason(EACCES) + cantOpen}));
    EXPECT_FALSE(record(file));
    EXPECT_EQ(desktop.messages, (Lines{reason(EACCES) + cantOpen}));
  }
  EXPECT_EQ(contentOf(file), "old content");
  EXPECT_EQ(filesInScratch(), 1);
}

TEST_F(ConsoleFilesTest, ASaveToAPipeThatNobodyEmptiesIsToldAndStopsNothing) {
  const SleepingReader reader(scratch.file("pipe"));
  fill(1400);
  EXPECT_EQ(save(scratch.file("pipe")), (Lines{reason(EAGAIN) + cantWrite}));
  EXPECT_GT(reader.taken().size(), 4096U);
}

TEST_F(ConsoleFilesTest, ASaveToAPipeWithAReaderArrivesWhole) {
  const SleepingReader reader(scratch.file("pipe"));
  fill(2);
  EXPECT_EQ(save(scratch.file("pipe")), Lines{});
  EXPECT_EQ(reader.taken(), std::string(100, 'x') + '\n' + std::string(100, 'x') + "\n\n");
}

TEST_F(ConsoleFilesTest, ARecordOnAFullDiskEndsAndIsToldOnce) {
  openRunning();
  ASSERT_TRUE(record(file));
  childSays(3);
  EXPECT_TRUE(desktop.messages.empty());
  const std::string before = contentOf(file);
  {
    const test::FullDisk disk(before.size());
    childSays(5);
    ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
    EXPECT_FALSE(document.recording());
    childSays(5);
  }
  childSays(5);
  EXPECT_EQ(desktop.messages, (Lines{reason(EFBIG) + cantWrite + recordEnds}));
  EXPECT_EQ(contentOf(file), before);
  ASSERT_TRUE(record(file)) << "another one may begin";
  childSays(1);
  EXPECT_EQ(desktop.messages, Lines{});
  files.stopRecording();
}

TEST_F(ConsoleFilesTest, ARecordOnAFullDeviceEndsAndIsToldOnce) {
  const test::OwnDevice device("full", 7);
  if (!device.isUsable()) GTEST_SKIP() << test::noOwnDevice;
  openRunning();
  ASSERT_TRUE(record(device.path()));
  childSays(4);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{reason(ENOSPC) + cantWrite + recordEnds}));
  EXPECT_FALSE(document.recording());
}

TEST_F(ConsoleFilesTest, ARecordThatEndsAtATypedLineIsToldToo) {
  openIdle();
  ASSERT_TRUE(record(file));
  const test::FullDisk disk(0);
  type("typed\r");
  desktop.runPosted();
  EXPECT_EQ(desktop.messages, (Lines{reason(EFBIG) + cantWrite + recordEnds}));
  EXPECT_FALSE(document.recording());
}

TEST_F(ConsoleFilesTest, ARecordIntoAPipeThatNobodyEmptiesEndsAndStopsNothing) {
  const SleepingReader reader(scratch.file("pipe"));
  openRunning();
  ASSERT_TRUE(record(scratch.file("pipe")));
  for (int line = 0; line < 5000; ++line) child->out("a line of some length, so that the pipe is full soon\n");
  childSays(1);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{reason(EAGAIN) + cantWrite + recordEnds}));
  EXPECT_FALSE(document.recording());
}

TEST_F(ConsoleFilesTest, ARecordWhoseReaderGoesEndsAndIsTold) {
  openRunning();
  {
    const SleepingReader reader(scratch.file("pipe"));
    ASSERT_TRUE(record(scratch.file("pipe")));
    childSays(2);
    EXPECT_NE(reader.taken().find(lineOfTest(1)), std::string::npos);
  }
  childSays(2);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{reason(EPIPE) + cantWrite + recordEnds}));
}

TEST_F(ConsoleFilesTest, ARecordWhoseFileHasGoneEndsAndIsTold) {
  openRunning();
  for (const bool replaced : {false, true}) {
    ASSERT_TRUE(record(file));
    childSays(2);
    EXPECT_TRUE(desktop.messages.empty());
    if (replaced) {
      writeFile(scratch.file("other"), "another's");
      std::filesystem::rename(scratch.file("other"), file);
    } else {
      std::filesystem::remove(file);
    }
    childSays(2);
    ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
    EXPECT_EQ(desktop.messages, (Lines{reason(ENOENT) + cantWrite + recordEnds})) << replaced;
    EXPECT_FALSE(document.recording());
  }
  EXPECT_EQ(contentOf(file), "another's");
}

TEST_F(ConsoleFilesTest, ARecordGoesOnWhenItsFileBearsAnotherName) {
  openRunning();
  ASSERT_TRUE(record(file));
  std::filesystem::rename(file, scratch.file("moved"));
  childSays(2);
  files.stopRecording();
  EXPECT_EQ(desktop.messages, Lines{});
  EXPECT_NE(contentOf(scratch.file("moved")).find(lineOfTest(1)), std::string::npos);
}

TEST_F(ConsoleFilesTest, AFileThatCantBeClosedIsTold) {
  ASSERT_TRUE(record(file));
  spoil(file);
  files.stopRecording();
  EXPECT_EQ(desktop.messages, (Lines{reason(EBADF) + cantWrite}));
  EXPECT_FALSE(document.recording());
}

TEST_F(ConsoleFilesTest, AConsoleThatClosesTellsThatItsRecordCantBeClosed) {
  openIdle();
  ASSERT_TRUE(record(file));
  spoil(file);
  view->onClose();
  EXPECT_EQ(desktop.messages, (Lines{reason(EBADF) + cantWrite}));
  view->onClose();
  EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST_F(ConsoleFilesTest, AConsoleThatClosesTellsWhatHasNotBeenToldYet) {
  openIdle();
  ASSERT_TRUE(record(file));
  const test::FullDisk disk(0);
  fill(1);
  view->onClose();
  desktop.runPosted();
  EXPECT_EQ(desktop.messages, (Lines{reason(EFBIG) + cantWrite + recordEnds}));
}

}  // namespace
}  // namespace tarnwick
