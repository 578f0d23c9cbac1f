// A line that has no end.
#include "console/OutputReader.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::segmentsOf;
using test::textOf;

constexpr std::size_t mebibyte = std::size_t{1} << 20;

class BrokenLineTest : public testing::TestWithParam<bool> {
 protected:
  void write(OutputReader& reader, std::size_t bytes, const std::string& piece = std::string(512, 'x')) {
    for (std::size_t written = 0; written < bytes; written += piece.size()) reader.handle(piece);
  }
  std::size_t heldBytes() const {
    std::size_t sum = 0;
    for (const auto& line : document.lines()) sum += line.weight();
    return sum;
  }

  TarnwickDoc document{""};
  ConsoleScreen screen{document, GetParam()};
  OutputReader out{screen, KIND_OUTPUT};
  OutputReader err{screen, KIND_ERROR};
};

TEST_P(BrokenLineTest, ALineOfAMebibyteStaysWhole) {
  write(out, mebibyte);
  out.handle("\nnext");
  EXPECT_EQ(document.lineCount(), 2);
  EXPECT_EQ(document.lines()[0].length(), static_cast<int>(mebibyte));
  EXPECT_EQ(segmentsOf(document.lastLine()), Lines{"2:next"});
}

TEST_P(BrokenLineTest, ALongerOneGoesOnBehindAMark) {
  write(out, mebibyte);
  out.handle("abc");
  ASSERT_EQ(document.lineCount(), 2);
  EXPECT_EQ(document.lines()[0].length(), static_cast<int>(mebibyte));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"4:[the line goes on] ", "2:abc"}));
  EXPECT_EQ(screen.caret.column(), document.lastLineLength());
  out.handle("def\nnext");
  EXPECT_EQ(segmentsOf(document.lastLine()), Lines{"2:next"}) << "one line end ends it";
}

TEST_P(BrokenLineTest, OfALineWithoutEndTheLastPiecesAreKept) {
  write(out, 40 * mebibyte);
  EXPECT_LE(heldBytes(), 17 * mebibyte + 1000);
  EXPECT_EQ(document.lineCount(), 17);
  for (const auto& line : document.lines()) EXPECT_EQ(line.text().substr(0, 20), "[the line goes on] x");
}

TEST_P(BrokenLineTest, TabsAndLettersOfBothOutputsByTurnsTakeNoMoreMemory) {
  write(out, 3 * mebibyte, std::string(512, '\t'));
  EXPECT_GT(document.lineCount(), 20 - 4);
  EXPECT_LE(heldBytes(), 17 * mebibyte + 1000);
  for (std::size_t count = 0; count < mebibyte / 2; ++count) {
    out.handle("o");
    err.handle("e");
  }
  EXPECT_LE(heldBytes(), 17 * mebibyte + 1000);
}

TEST_P(BrokenLineTest, LinesThatHaveAnEndAreKeptByTheirCount) {
  for (int line = 0; line < 60; ++line) {
    write(out, mebibyte / 2);
    out.handle("\n");
  }
  EXPECT_EQ(document.lineCount(), 61);
  EXPECT_FALSE(document.linesDropped());
}

TEST_P(BrokenLineTest, OldPiecesGoWithTheirLinesAndMakeRoomForNewOnes) {
  write(out, 10 * mebibyte);
  for (int line = 0; line < TarnwickDoc::maxLines; ++line) out.handle("short\n");
  write(out, 10 * mebibyte);
  EXPECT_GT(document.lineCount(), 1000) << "the first pieces have gone long ago";
  write(out, 8 * mebibyte);
  EXPECT_EQ(document.lineCount(), 17) << "as old as the lines may be that stand above a piece that goes";
}

TEST_P(BrokenLineTest, WhatIsTypedIsNeverBroken) {
  document.addText(std::string(2 * mebibyte, 't'), KIND_INPUT);
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(document.lastLineLength(), static_cast<int>(2 * mebibyte));
}

INSTANTIATE_TEST_SUITE_P(BothWays, BrokenLineTest, testing::Bool());

TEST(ClearedTextTest, OnlyTheLineThatIsBeingWrittenStays) {
  TarnwickDoc document("");
  document.addText("a long line", KIND_OUTPUT);
  document.newLine();
  document.addText("> ", KIND_OUTPUT);
  document.addText("x", KIND_INPUT);
  document.clear();
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:> ", "1:x"}));
  EXPECT_EQ(document.widestLine(), 3);
}

}  // namespace
}  // namespace tarnwick
