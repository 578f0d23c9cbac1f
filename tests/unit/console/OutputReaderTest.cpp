#include "console/OutputReader.h"
#include "support/ConsoleFixture.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::segmentsOf;
using test::textOf;

class OutputReaderTest : public testing::Test {
 protected:
  OutputReaderTest() {
    screen.grid.charWidth = 8;
    screen.grid.charHeight = 16;
  }

  TarnwickDoc document{""};
  ConsoleScreen screen{document};
  OutputReader out{screen, KIND_OUTPUT};
  OutputReader err{screen, KIND_ERROR};
};

TEST_F(OutputReaderTest, BeginsOnALineOfItsOwn) {
  screen.caret.setColumn(7);
  out.begin();
  EXPECT_EQ(document.lineCount(), 2);
  EXPECT_EQ(screen.caret.column(), 0);
}

TEST_F(OutputReaderTest, LinesGoToTheTextInTheReadersKind) {
  out.handle("one\ntwo");
  err.handle("!\n");
  EXPECT_EQ(textOf(document), (Lines{"one", "two!", ""}));
  EXPECT_EQ(segmentsOf(document.lines()[1]), (Lines{"2:two", "3:!"}));
  EXPECT_EQ(screen.caret.column(), 0);
}

TEST_F(OutputReaderTest, TheLinesOfABlockStayTogetherHoweverEagerTheOtherOutputIs) {
  constexpr int rounds = 30;
  constexpr int linesInBlock = 8;
  const auto blockOf = [](char letter) {
    std::string block;
    for (int line = 0; line < linesInBlock; ++line) block += std::string(63, letter) + '\n';
    return block;
  };
  for (int round = 0; round < rounds; ++round) {
    std::thread first;
    std::thread second;
    {
      // Both wait for the lock when it comes free; it goes to whoever waits, so that the one could cut in on the other.
      const TextGuard guard(screen.lock());
      first = std::thread([&] { out.handle(blockOf('o')); });
      second = std::thread([&] { err.handle(blockOf('e')); });
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    first.join();
    second.join();
  }
  ASSERT_EQ(document.lineCount(), 2 * rounds * linesInBlock + 1);
  for (int line = 0; line + 1 < document.lineCount(); ++line) {
    const std::string begin = document.lines()[static_cast<std::size_t>(line - line % linesInBlock)].text();
    EXPECT_EQ(document.lines()[static_cast<std::size_t>(line)].text(), begin) << "line " << line;
  }
}

TEST_F(OutputReaderTest, ASegmentGoesOnWithTheNextBlock) {
  out.handle("ab");
  out.handle("cd");
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:abcd"}));
  EXPECT_EQ(screen.caret.column(), 4);
}

TEST_F(OutputReaderTest, CarriageReturnsVanish) {
  out.handle("one\r\ntwo\r\r\nthr\ree");
  EXPECT_EQ(textOf(document), (Lines{"one", "two", "three"}));
}

TEST_F(OutputReaderTest, ABellBeepsAndLeavesNoMark) {
  out.handle("a\ab");
  EXPECT_EQ(textOf(document), (Lines{"ab"}));
  EXPECT_TRUE(screen.changes.beep);
}

TEST_F(OutputReaderTest, OtherControlBytesAreDropped) {
  std::string block = "a";
  for (char code = 0; code < 32; ++code) {
    if (code != '\n' && code != '\t') block += code;
  }
  out.handle(block + "\x7F" + "b");
  EXPECT_EQ(textOf(document), (Lines{"ab"}));
}

TEST_F(OutputReaderTest, ABackspaceOfTheChildIsDropped) {
  document.addText("typed", KIND_INPUT);
  out.handle("\b");
  EXPECT_EQ(textOf(document), (Lines{"typed"}));
}

TEST_F(OutputReaderTest, ATabFillsUpToTheNextEighthColumn) {
  out.handle("abcde\tf");
  EXPECT_EQ(textOf(document), (Lines{"abcde   f"}));
  EXPECT_EQ(screen.caret.column(), 9);
}

TEST_F(OutputReaderTest, ATabAtABlocksEndTakesTheCaretAlong) {
  out.handle("a\t");
  EXPECT_EQ(screen.caret.column(), 8);
}

TEST_F(OutputReaderTest, ABlockWithoutLineEndIsOneAddition) {
  const std::string block(512, 'x');
  out.handle(block);
  ASSERT_EQ(document.lastLine().segments().size(), 1U);
  EXPECT_EQ(document.lastLine().segments()[0].text, block);
  EXPECT_EQ(screen.changes.rows, 1);
  EXPECT_EQ(screen.changes.firstColumn, 0);
  EXPECT_EQ(screen.changes.lastColumn, 512);
}

TEST_F(OutputReaderTest, ABlockThatAddsNoTextLeavesTheCaretWhereItIs) {
  out.handle("prompt> ");
  document.addText("typed", KIND_INPUT);
  screen.caret.setColumn(10);
  out.handle("\r\a");
  EXPECT_EQ(screen.caret.column(), 10);
  EXPECT_TRUE(screen.changes.show);
}

TEST_F(OutputReaderTest, OutputBehindTypedTextBeginsASegment) {
  document.addText("ty", KIND_INPUT);
  out.handle("out");
  document.addText("ped", KIND_INPUT);
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"1:ty", "2:out", "1:ped"}));
}

TEST_F(OutputReaderTest, AsksToShowTheLastLineAtLeastOneColumnWide) {
  out.handle("long line\n");
  EXPECT_TRUE(screen.changes.show);
  EXPECT_EQ(screen.changes.topRow, 1);
  EXPECT_EQ(screen.changes.rows, 2);
  EXPECT_EQ(screen.changes.lastColumn, 1);
}

TEST_F(OutputReaderTest, ACharacterCutByTheBlocksEndWaitsForTheNext) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  const std::string text = "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80|";
  for (const char byte : text) out.handle(std::string(1, byte));
  EXPECT_EQ(textOf(document), (Lines{text}));
  EXPECT_EQ(document.lastLineLength(), 1 + 2 + 2 + 1);
}

TEST_F(OutputReaderTest, TheTwoOutputsKeepTheirCutCharactersApart) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  out.handle("a\xC3");
  err.handle("b\xE6\x97");
  out.handle("\xA4");
  err.handle("\xA5");
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:a", "3:b", "2:\xC3\xA4", "3:\xE6\x97\xA5"}));
}

TEST_F(OutputReaderTest, BadBytesShowAsReplacementCharacters) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every byte is a character here";
  out.handle("a\xFFz\xC3\nb\x80");
  EXPECT_EQ(textOf(document), (Lines{"a\xEF\xBF\xBDz\xEF\xBF\xBD", "b\xEF\xBF\xBD"}));
}

TEST_F(OutputReaderTest, ACharacterThatIsNeverFinishedShowsAtTheEnd) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every byte is a character here";
  out.handle("a\xC3");
  EXPECT_EQ(textOf(document), (Lines{"a"}));
  out.end();
  EXPECT_EQ(textOf(document), (Lines{"a\xEF\xBF\xBD"}));
  EXPECT_EQ(screen.caret.column(), 2);
}

TEST_F(OutputReaderTest, NoByteFrom128UpIsTakenForAControlCode) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "control codes are told by the low 7 bits here";
  out.handle("\xC2\x8A\xC2\x89\xC2\x87|");
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(textOf(document), (Lines{"\xC2\x8A\xC2\x89\xC2\x87|"}));
  EXPECT_FALSE(screen.changes.beep);
}

TEST_F(OutputReaderTest, HighBytesAreClassedByTheirLowSevenBits) {
  if (test::charactersAreUtf8()) GTEST_SKIP() << "bytes from 128 up belong to characters here";
  out.handle(
      "a\x8A"
      "b\x89"
      "c\x87\x80\xFF\xE4");
  EXPECT_EQ(textOf(document), (Lines{"a", "b       c\xE4"}));
  EXPECT_TRUE(screen.changes.beep);
}

TEST_F(OutputReaderTest, ALineOfAMillionCharacters) {
  for (int block = 0; block < 2000; ++block) out.handle(std::string(512, 'x'));
  EXPECT_EQ(document.lastLineLength(), 1024000);
  EXPECT_EQ(screen.caret.column(), 1024000);
}

}  // namespace
}  // namespace tarnwick
