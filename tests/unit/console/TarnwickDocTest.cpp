#include "console/ConsoleFiles.h"
#include "console/TarnwickDoc.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/ConsoleFixture.h"
#include "support/TestProgram.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::segmentsOf;
using test::textOf;

class TarnwickDocTest : public testing::Test {
 protected:
  void addLine(const std::string& text, int kind = KIND_OUTPUT) {
    document.addText(text, kind);
    document.newLine();
  }
  /// What a text file with these lines holds, by the system's own line ends.
  static std::string asText(const std::string& text) {
    std::string converted;
    for (const char c : text) {
      if (c == '\n' && platform::folderSeparator == '\\') converted += '\r';
      converted += c;
    }
    return converted;
  }

  test::ScratchFolder scratch;
  test::RecordingDesktop desktop;
  TarnwickDoc document{"title of the switch"};
  ConsoleFiles files{document, desktop};
};

TEST_F(TarnwickDocTest, ANewDocumentHasOneEmptyLine) {
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(document.widestLine(), 0);
  EXPECT_FALSE(document.linesDropped());
  EXPECT_FALSE(document.recording());
  EXPECT_EQ(document.title(), "title of the switch");
  int kind = 9;
  EXPECT_EQ(document.lastSegment(kind), nullptr);
  EXPECT_EQ(kind, 0);
}

TEST_F(TarnwickDocTest, The1501stLineEvictsTheFirst) {
  document.addText("first", KIND_OUTPUT);
  for (int line = 2; line <= 1500; ++line) document.newLine();
  EXPECT_EQ(document.lineCount(), 1500);
  EXPECT_FALSE(document.linesDropped());
  EXPECT_EQ(document.lines().front().text(), "first");
  document.newLine();
  EXPECT_EQ(document.lineCount(), 1500);
  EXPECT_TRUE(document.linesDropped());
  EXPECT_EQ(document.lines().front().text(), "");
}

TEST_F(TarnwickDocTest, WidestLineStaysWhenTheLineIsGone) {
  document.addText(std::string(99, 'x'), KIND_OUTPUT);
  EXPECT_EQ(document.widestLine(), 99);
  for (int line = 0; line < 1501; ++line) document.newLine();
  EXPECT_EQ(document.widestLine(), 99);
  document.addText("short", KIND_OUTPUT);
  EXPECT_EQ(document.widestLine(), 99);
}

TEST_F(TarnwickDocTest, AddTextGivesTheColumnsItTook) {
  EXPECT_EQ(document.addText("abc", KIND_OUTPUT), (ColumnRange{0, 3}));
  EXPECT_EQ(document.addText("de", KIND_ERROR), (ColumnRange{3, 5}));
  EXPECT_EQ(document.lastLineLength(), 5);
}

TEST_F(TarnwickDocTest, ALineFeedAloneBeginsALine) {
  document.addText("abc", KIND_OUTPUT);
  EXPECT_EQ(document.addText("\n", KIND_OUTPUT), (ColumnRange{0, 0}));
  EXPECT_EQ(textOf(document), (Lines{"abc", ""}));
}

TEST_F(TarnwickDocTest, ATabAtColumn5GivesThreeBlanks) {
  document.addText("abcde", KIND_OUTPUT);
  EXPECT_EQ(document.addText("\t", KIND_OUTPUT), (ColumnRange{5, 8}));
  EXPECT_EQ(document.lastLine().text(), "abcde   ");
}

TEST_F(TarnwickDocTest, ATabAtColumn8GivesEightBlanks) {
  document.addText("abcdefgh", KIND_OUTPUT);
  EXPECT_EQ(document.addText("\t", KIND_OUTPUT), (ColumnRange{8, 16}));
  EXPECT_EQ(document.lastLine().text(), "abcdefgh        ");
}

TEST_F(TarnwickDocTest, TabsWithinATextCountFromWhereItStands) {
  document.addText("ab", KIND_OUTPUT);
  EXPECT_EQ(document.addText("c\td\t\te", KIND_ERROR), (ColumnRange{2, 25}));
  EXPECT_EQ(document.lastLine().text(), "abc     d               e");
}

TEST_F(TarnwickDocTest, ATabBehindWideCharactersGoesByColumns) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  document.addText("\xE6\x97\xA5\xE6\x9C\xAC\t|", KIND_OUTPUT);
  EXPECT_EQ(document.lastLine().text(), "\xE6\x97\xA5\xE6\x9C\xAC    |");
  EXPECT_EQ(document.lastLineLength(), 9);
}

TEST_F(TarnwickDocTest, ABackspaceTakesTheLastTypedCharacter) {
  document.addText("ab", KIND_INPUT);
  EXPECT_EQ(document.addText("\b", KIND_INPUT), (ColumnRange{1, 2}));
  EXPECT_EQ(document.lastLine().text(), "a");
}

TEST_F(TarnwickDocTest, ABackspaceTakesAWholeCharacter) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  document.addText("a\xE6\x97\xA5", KIND_INPUT);
  EXPECT_EQ(document.addText("\b", KIND_INPUT), (ColumnRange{1, 3}));
  EXPECT_EQ(document.lastLine().text(), "a");
}

TEST_F(TarnwickDocTest, ABackspaceOnOutputChangesNothing) {
  document.addText("out", KIND_OUTPUT);
  EXPECT_EQ(document.addText("\b", KIND_INPUT), (ColumnRange{3, 3}));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:out"}));
}

TEST_F(TarnwickDocTest, ABackspaceOfTheChildChangesNothing) {
  document.addText("typed", KIND_INPUT);
  EXPECT_EQ(document.addText("\b", KIND_OUTPUT), (ColumnRange{5, 5}));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"1:typed"}));
}

TEST_F(TarnwickDocTest, ABackspaceOnAnEmptyInputSegmentChangesNothing) {
  document.addText("out", KIND_OUTPUT);
  document.addText("", KIND_INPUT);
  EXPECT_EQ(document.addText("\b", KIND_INPUT), (ColumnRange{3, 3}));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:out", "1:"}));
}

TEST_F(TarnwickDocTest, ABackspaceReachesOnlyTheNewestTypedSegment) {
  document.addText("old", KIND_INPUT);
  document.addText("out", KIND_OUTPUT);
  document.addText("n", KIND_INPUT);
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"1:old", "2:out", "1:n"}));
  document.addText("\b", KIND_INPUT);
  document.addText("\b", KIND_INPUT);
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"1:old", "2:out", "1:"}));
}

TEST_F(TarnwickDocTest, ReplaceInputReplacesTheTypedEnd) {
  document.addText("out", KIND_OUTPUT);
  document.addText("abc", KIND_INPUT);
  EXPECT_EQ(document.replaceInput("longer"), (ColumnRange{3, 9}));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:out", "1:longer"}));
  EXPECT_EQ(document.widestLine(), 9);
  EXPECT_EQ(document.replaceInput(""), (ColumnRange{3, 3}));
  EXPECT_EQ(document.widestLine(), 9);
}

TEST_F(TarnwickDocTest, ReplaceInputAddsWhereNothingWasTyped) {
  EXPECT_EQ(document.replaceInput("abc"), (ColumnRange{0, 3}));
  document.newLine();
  document.addText("out", KIND_OUTPUT);
  EXPECT_EQ(document.replaceInput("x"), (ColumnRange{3, 4}));
  EXPECT_EQ(segmentsOf(document.lastLine()), (Lines{"2:out", "1:x"}));
}

TEST_F(TarnwickDocTest, RecordingWritesCompletedLinesInFull) {
  const std::string file = scratch.file("record.txt");
  desktop.saveAnswers = {file};
  document.addText("out", KIND_OUTPUT);
  EXPECT_TRUE(files.startRecording());
  EXPECT_TRUE(document.recording());
  document.addText("err %s", KIND_ERROR);
  document.addText("in", KIND_INPUT);
  document.newLine();
  document.newLine();
  document.addText("\tx", KIND_OUTPUT);
  document.newLine();
  document.addText("unfinished", KIND_OUTPUT);
  files.stopRecording();
  EXPECT_FALSE(document.recording());
  document.newLine();
  EXPECT_EQ(test::contentOf(file), asText("outerr %sin\n\n        x\n"));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(TarnwickDocTest, ALineReachesTheRecordWhenTheNextOneIsBegun) {
  const std::string file = scratch.file("record.txt");
  desktop.saveAnswers = {file};
  EXPECT_TRUE(files.startRecording());
  document.addText("short", KIND_OUTPUT);
  EXPECT_EQ(test::contentOf(file), "");
  document.newLine();
  EXPECT_EQ(test::contentOf(file), asText("short\n"));
  EXPECT_TRUE(document.recording());
}

TEST_F(TarnwickDocTest, TheDocumentsEndLeavesTheUnfinishedLineUnrecorded) {
  const std::string file = scratch.file("record.txt");
  {
    TarnwickDoc other("");
    ConsoleFiles othersFiles(other, desktop);
    desktop.saveAnswers = {file};
    EXPECT_TRUE(othersFiles.startRecording());
    other.addText("done", KIND_OUTPUT);
    other.addText("\n", KIND_OUTPUT);
    other.addText("unfinished", KIND_OUTPUT);
  }
  EXPECT_EQ(test::contentOf(file), asText("done\n"));
}

TEST_F(TarnwickDocTest, TwoConsolesThatRecordToOneFileLeaveEachLineWhole) {
  const std::string file = scratch.file("record.txt");
  TarnwickDoc other("");
  ConsoleFiles othersFiles(other, desktop);
  desktop.saveAnswers = {file, file};
  EXPECT_TRUE(files.startRecording());
  addLine("what is over when the other one begins");
  EXPECT_TRUE(othersFiles.startRecording());
  for (int line = 0; line < 3; ++line) {
    addLine("mine");
    other.addText("theirs", KIND_OUTPUT);
    other.newLine();
  }
  othersFiles.stopRecording();
  files.stopRecording();
  EXPECT_EQ(test::contentOf(file), asText("mine\ntheirs\nmine\ntheirs\nmine\ntheirs\n"));
}

TEST_F(TarnwickDocTest, ARecordOntoTheSameFileBeginsAnew) {
  const std::string file = scratch.file("record.txt");
  desktop.saveAnswers = {file, file};
  EXPECT_TRUE(files.startRecording());
  addLine("first");
  EXPECT_TRUE(files.startRecording());
  addLine("second");
  files.stopRecording();
  EXPECT_EQ(test::contentOf(file), asText("second\n"));
}

TEST_F(TarnwickDocTest, ASaveOverTheRecordEndsItAndHoldsTheDisplay) {
  const std::string file = scratch.file("record.txt");
  desktop.saveAnswers = {file, file};
  EXPECT_TRUE(files.startRecording());
  addLine("one");
  files.saveDisplay();
  addLine("two");
  EXPECT_EQ(test::contentOf(file), asText("one\n\n"));
  EXPECT_EQ(desktop.messages, Lines{});
}

TEST_F(TarnwickDocTest, TheDialogAsksForAFileToSaveWithoutFilterOrName) {
  const std::string file = scratch.file("chosen.txt");
  desktop.saveAnswers = {file, file};
  files.startRecording();
  files.startRecording();
  ASSERT_EQ(desktop.saveRequests.size(), 2U);
  const FileRequest& first = desktop.saveRequests[0];
  EXPECT_EQ(first.filter, "");
  EXPECT_EQ(first.name, "");
  EXPECT_EQ(first.startFolder, "");
  EXPECT_TRUE(first.confirmOverwrite);
  EXPECT_EQ(desktop.saveRequests[1].startFolder, scratch.path());
}

TEST_F(TarnwickDocTest, ACancelledDialogSaysSoAndTheRecordingHasEnded) {
  desktop.saveAnswers = {scratch.file("a.txt"), std::nullopt};
  EXPECT_TRUE(files.startRecording());
  EXPECT_FALSE(files.startRecording());
  EXPECT_FALSE(document.recording());
  EXPECT_EQ(desktop.messages, (Lines{"\nCan't open output file."}));
}

TEST_F(TarnwickDocTest, AFileThatCantBeOpenedIsReportedWithItsReason) {
  desktop.saveAnswers = {scratch.file("no folder") + platform::folderSeparator + "x.txt"};
  EXPECT_FALSE(files.startRecording());
  EXPECT_FALSE(document.recording());
  EXPECT_EQ(desktop.messages, (Lines{std::strerror(ENOENT) + std::string("\nCan't open output file.")}));
  desktop.messages.clear();
  desktop.saveAnswers = {scratch.file("no folder") + platform::folderSeparator + "x.txt"};
  files.saveDisplay();
  EXPECT_EQ(desktop.messages, (Lines{std::strerror(ENOENT) + std::string("\nCan't open output file.")}));
  EXPECT_FALSE(platform::isFolder(scratch.file("no folder"))) << "a save makes no folders";
}

TEST_F(TarnwickDocTest, SaveDisplayWritesEverythingTheUnfinishedLineToo) {
  const std::string file = scratch.file("display.txt");
  addLine("one");
  document.addText("t\tw", KIND_OUTPUT);
  document.addText("o", KIND_INPUT);
  desktop.saveAnswers = {file};
  files.saveDisplay();
  EXPECT_EQ(test::contentOf(file), asText("one\nt       wo\n"));
  EXPECT_FALSE(document.recording());
}

TEST_F(TarnwickDocTest, SavingEndsARecording) {
  const std::string record = scratch.file("record.txt");
  const std::string display = scratch.file("display.txt");
  desktop.saveAnswers = {record, display};
  EXPECT_TRUE(files.startRecording());
  addLine("one");
  files.saveDisplay();
  EXPECT_FALSE(document.recording());
  addLine("two");
  EXPECT_EQ(test::contentOf(record), asText("one\n"));
  EXPECT_EQ(test::contentOf(display), asText("one\n\n"));
}

TEST_F(TarnwickDocTest, ACancelledSaveWritesNothing) {
  const std::string file = scratch.file("display.txt");
  test::writeFile(file, "kept");
  desktop.saveAnswers = {std::nullopt};
  files.saveDisplay();
  EXPECT_EQ(desktop.messages, (Lines{"\nCan't open output file."}));
  EXPECT_EQ(test::contentOf(file), "kept");
}

TEST_F(TarnwickDocTest, ALineOfAMillionCharactersInSmallPieces) {
  const std::string block(512, 'x');
  for (int piece = 0; piece < 2000; ++piece) document.addText(block, KIND_OUTPUT);
  EXPECT_EQ(document.lastLineLength(), 1024000);
  EXPECT_EQ(document.widestLine(), 1024000);
  EXPECT_EQ(document.lastLine().segments().size(), 1U);
}

// Each piece is a segment of its own: to walk over them all for every piece would take hours.
TEST_F(TarnwickDocTest, ALineOfAMillionPiecesOfBothOutputsInTurn) {
  const auto begin = std::chrono::steady_clock::now();
  for (int piece = 0; piece < 1000000; ++piece) document.addText("x", piece % 2 == 0 ? KIND_OUTPUT : KIND_ERROR);
  EXPECT_EQ(document.addText("y", KIND_OUTPUT), (ColumnRange{1000000, 1000001}));
  EXPECT_EQ(document.lastLineLength(), 1000001);
  EXPECT_EQ(document.lastLine().segments().size(), 1000001U);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

}  // namespace
}  // namespace tarnwick
