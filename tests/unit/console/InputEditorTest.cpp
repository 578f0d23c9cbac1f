#include "console/InputEditor.h"
#include "support/ConsoleFixture.h"

#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::segmentsOf;
using test::textOf;

class InputEditorTest : public testing::Test {
 protected:
  InputEditorTest() {
    screen.grid.charWidth = 8;
    screen.grid.charHeight = 16;
  }

  void type(const std::string& text) {
    editor.append(text);
    editor.drain();
  }
  void press(ConsoleKey key, int times = 1) {
    for (int count = 0; count < times; ++count) editor.navigate(key);
  }
  void output(const std::string& text) { screen.caret.setColumn(document.addText(text, KIND_OUTPUT).end); }
  Lines segments() { return segmentsOf(document.lastLine()); }
  int caret() const { return screen.caret.column(); }

  TarnwickDoc document{""};
  ConsoleScreen screen{document};
  Lines sent;
  InputEditor editor{screen, [this](const std::string& bytes) { sent.push_back(bytes); }};
};

TEST_F(InputEditorTest, TypedTextStaysInTheLineUntilReturn) {
  type("ab");
  type("c");
  EXPECT_EQ(segments(), (Lines{"1:abc"}));
  EXPECT_EQ(caret(), 3);
  EXPECT_TRUE(sent.empty());
  type("\r");
  EXPECT_EQ(sent, (Lines{"abc\n"}));
  EXPECT_EQ(textOf(document), (Lines{"abc", ""}));
  EXPECT_EQ(caret(), 0);
}

TEST_F(InputEditorTest, ReturnOnAnEmptyLineWritesJustCode10) {
  type("\r");
  EXPECT_EQ(sent, (Lines{"\n"}));
}

TEST_F(InputEditorTest, ReturnRightBehindOutputWritesCode13Alone) {
  output("prompt> ");
  type("\r");
  EXPECT_EQ(sent, (Lines{"\r"}));
  EXPECT_EQ(document.lineCount(), 2);
  EXPECT_EQ(caret(), 0);
}

TEST_F(InputEditorTest, ReturnBehindOutputAndTypedTextWritesWhatWasTyped) {
  output("name? ");
  type("Ann\r");
  EXPECT_EQ(sent, (Lines{"Ann\n"}));
}

TEST_F(InputEditorTest, ReturnOnAnInputThatWasTakenBackWritesCode10) {
  output("> ");
  type("x\b\r");
  EXPECT_EQ(sent, (Lines{"\n"}));
}

TEST_F(InputEditorTest, AReturnStopsTheWorkUntilTheNextTime) {
  editor.append("one\rtwo\rthree");
  EXPECT_TRUE(editor.drain());
  EXPECT_EQ(sent, (Lines{"one\n"}));
  EXPECT_TRUE(editor.drain());
  EXPECT_FALSE(editor.drain());
  EXPECT_EQ(sent, (Lines{"one\n", "two\n"}));
  EXPECT_EQ(textOf(document), (Lines{"one", "two", "three"}));
}

TEST_F(InputEditorTest, NothingWaitsBehindALastReturn) {
  editor.append("one\r");
  EXPECT_FALSE(editor.drain());
}

TEST_F(InputEditorTest, ACharacterGoesInAtTheCaret) {
  output("> ");
  type("ac");
  press(ConsoleKey::Left);
  type("b");
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:abc"}));
  EXPECT_EQ(caret(), 4);
  press(ConsoleKey::Home);
  type("xy");
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:xyabc"}));
  EXPECT_EQ(caret(), 4);
}

TEST_F(InputEditorTest, ATabIsExpandedAtTheEndAndIgnoredInside) {
  type("ab\t");
  EXPECT_EQ(segments(), (Lines{"1:ab      "}));
  EXPECT_EQ(caret(), 8);
  press(ConsoleKey::Left);
  type("\t");
  EXPECT_EQ(segments(), (Lines{"1:ab      "}));
  EXPECT_EQ(caret(), 7);
}

TEST_F(InputEditorTest, ATabBehindOutputBeginsInput) {
  output("abc");
  type("\t");
  EXPECT_EQ(segments(), (Lines{"2:abc", "1:     "}));
  EXPECT_EQ(caret(), 8);
}

TEST_F(InputEditorTest, BackspaceTakesTheCharacterLeftOfTheCaret) {
  output("> ");
  type("abc");
  press(ConsoleKey::Left);
  type("\b");
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:ac"}));
  EXPECT_EQ(caret(), 3);
  type("\b\b\b");
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:c"}));
  EXPECT_EQ(caret(), 2);
}

TEST_F(InputEditorTest, BackspaceOnOutputIsIgnored) {
  output("abc");
  type("\b");
  EXPECT_EQ(segments(), (Lines{"2:abc"}));
  EXPECT_EQ(caret(), 3);
}

TEST_F(InputEditorTest, BackspaceReachesOnlyTheNewestTypedSegment) {
  type("old");
  output("out");
  type("n\b\b\b");
  EXPECT_EQ(segments(), (Lines{"1:old", "2:out", "1:"}));
  EXPECT_EQ(caret(), 6);
}

TEST_F(InputEditorTest, AControlCharacterSendsTheTypedTextFirst) {
  type("abc\x04");
  EXPECT_EQ(sent, (Lines{"abc", "\x04"}));
  EXPECT_EQ(segments(), (Lines{"1:abc", "3:"}));
  type("d");
  EXPECT_EQ(segments(), (Lines{"1:abc", "3:", "1:d"}));
  type("\r");
  EXPECT_EQ(sent, (Lines{"abc", "\x04", "d\n"}));
}

TEST_F(InputEditorTest, AControlCharacterAloneIsJustWritten) {
  type("\x1A");
  output("out");
  type("\x04");
  EXPECT_EQ(sent, (Lines{"\x1A", "\x04"}));
  EXPECT_EQ(segments(), (Lines{"2:out"}));
}

TEST_F(InputEditorTest, AControlCharacterEndsAlsoAnInputThatWasTakenBack) {
  type("x\b\x04");
  EXPECT_EQ(sent, (Lines{"\x04"}));
  EXPECT_EQ(segments(), (Lines{"1:", "3:"}));
  type("\r");
  EXPECT_EQ(sent, (Lines{"\x04", "\r"}));
}

TEST_F(InputEditorTest, ALineFeedIsAControlCharacterLikeAnother) {
  type("abc\n");
  EXPECT_EQ(sent, (Lines{"abc", "\n"}));
  EXPECT_EQ(document.lineCount(), 1);
}

TEST_F(InputEditorTest, EndAndHomeMoveWithinTheLastSegment) {
  output("> ");
  type("abc");
  press(ConsoleKey::Home);
  EXPECT_EQ(caret(), 2);
  press(ConsoleKey::End);
  EXPECT_EQ(caret(), 5);
}

TEST_F(InputEditorTest, HomeOnAnEmptyLineDoesNothing) {
  press(ConsoleKey::Home);
  EXPECT_FALSE(screen.changes.show);
  EXPECT_EQ(caret(), 0);
}

TEST_F(InputEditorTest, HomeOnOutputGoesToItsStartAndTypingAppends) {
  type("in");
  output("out");
  press(ConsoleKey::Home);
  EXPECT_EQ(caret(), 2);
  type("x");
  EXPECT_EQ(segments(), (Lines{"1:in", "2:out", "1:x"}));
  EXPECT_EQ(caret(), 6) << "at the line's end, with what was appended";
  type("y");
  EXPECT_EQ(segments(), (Lines{"1:in", "2:out", "1:xy"}));
}

TEST_F(InputEditorTest, WhatIsTypedBehindOutputAfterHomeArrivesInItsOrder) {
  for (const std::string prompt : {">", "> ", "main[1] ", "a very long prompt of a debugger: "}) {
    output(prompt);
    press(ConsoleKey::Home);
    for (const char* key : {"l", "i", "s", "t"}) type(key);
    EXPECT_EQ(segments(), (Lines{"2:" + prompt, "1:list"}));
    EXPECT_EQ(caret(), document.lastLineLength());
    type("\r");
    EXPECT_EQ(sent, (Lines{"list\n"})) << prompt;
    sent.clear();
  }
}

TEST_F(InputEditorTest, AnAppendedCharacterLeavesNoCaretBehind) {
  output("prompt> ");
  press(ConsoleKey::Home);
  screen.changes = {};
  type("x");
  EXPECT_TRUE(screen.changes.show);
  EXPECT_EQ(screen.changes.leftColumn, 0) << "where the caret stood";
  EXPECT_EQ(screen.changes.lastColumn, 9);
}

TEST_F(InputEditorTest, LeftAndRightStayWithinTheTypedText) {
  output("> ");
  type("ab");
  press(ConsoleKey::Left, 5);
  EXPECT_EQ(caret(), 2);
  press(ConsoleKey::Right, 5);
  EXPECT_EQ(caret(), 4);
}

TEST_F(InputEditorTest, LeftAndRightDoNothingOnOutput) {
  output("abc");
  press(ConsoleKey::Left);
  EXPECT_EQ(caret(), 3);
  press(ConsoleKey::Home);
  press(ConsoleKey::Right);
  EXPECT_EQ(caret(), 0);
}

TEST_F(InputEditorTest, DeleteTakesTheCharacterUnderTheCaret) {
  type("abc");
  press(ConsoleKey::Delete);
  EXPECT_EQ(segments(), (Lines{"1:abc"}));
  press(ConsoleKey::Home);
  press(ConsoleKey::Delete);
  EXPECT_EQ(segments(), (Lines{"1:bc"}));
  EXPECT_EQ(caret(), 0);
  press(ConsoleKey::Delete, 5);
  EXPECT_EQ(segments(), (Lines{"1:"}));
}

TEST_F(InputEditorTest, DeleteOnOutputDoesNothing) {
  output("abc");
  press(ConsoleKey::Home);
  press(ConsoleKey::Delete);
  EXPECT_EQ(segments(), (Lines{"2:abc"}));
}

TEST_F(InputEditorTest, UpShowsTheLineJustSent) {
  type("first\r");
  type("second\r");
  output("> ");
  type("half");
  press(ConsoleKey::Up);
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:second"}));
  EXPECT_EQ(caret(), 8);
  press(ConsoleKey::Up, 3);
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:first"}));
  EXPECT_EQ(caret(), 7);
  press(ConsoleKey::Down, 3);
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:second"}));
}

TEST_F(InputEditorTest, DownAfterAReturnShowsTheEmptyText) {
  type("first\r");
  type("half");
  press(ConsoleKey::Down);
  EXPECT_EQ(segments(), (Lines{"1:"}));
  EXPECT_EQ(caret(), 0);
}

TEST_F(InputEditorTest, UpAndDownDoNothingWithoutHistory) {
  type("half");
  press(ConsoleKey::Up);
  press(ConsoleKey::Down);
  EXPECT_EQ(segments(), (Lines{"1:half"}));
}

TEST_F(InputEditorTest, EditingGoesByWholeCharacters) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  type("a\xE6\x97\xA5\xC3\xA4");  // columns 1, 2, 1
  EXPECT_EQ(caret(), 4);
  press(ConsoleKey::Left);
  EXPECT_EQ(caret(), 3);
  press(ConsoleKey::Left);
  EXPECT_EQ(caret(), 1);
  press(ConsoleKey::Right);
  EXPECT_EQ(caret(), 3);
  type("\b");
  EXPECT_EQ(segments(), (Lines{"1:a\xC3\xA4"}));
  EXPECT_EQ(caret(), 1);
  type("\xE6\x9C\xAC");
  EXPECT_EQ(segments(), (Lines{"1:a\xE6\x9C\xAC\xC3\xA4"}));
  EXPECT_EQ(caret(), 3);
  press(ConsoleKey::Home);
  press(ConsoleKey::Right);
  press(ConsoleKey::Delete);
  EXPECT_EQ(segments(), (Lines{"1:a\xC3\xA4"}));
  type("\r");
  EXPECT_EQ(sent, (Lines{"a\xC3\xA4\n"}));
}

TEST_F(InputEditorTest, CombiningMarksStayWithTheirCharacter) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  type("xe");
  type("\xCC\x81");
  type("z");
  EXPECT_EQ(caret(), 3);
  press(ConsoleKey::Left, 2);
  EXPECT_EQ(caret(), 1);
  press(ConsoleKey::Delete);
  EXPECT_EQ(segments(), (Lines{"1:xz"}));
  press(ConsoleKey::End);
  type("e\xCC\x81\b");
  EXPECT_EQ(segments(), (Lines{"1:xze"}));
  EXPECT_EQ(caret(), 3);
}

TEST_F(InputEditorTest, HighBytesAreClassedByTheirLowSevenBits) {
  if (test::charactersAreUtf8()) GTEST_SKIP() << "bytes from 128 up belong to characters here";
  type("a\xE4\x84");
  EXPECT_EQ(sent, (Lines{"a\xE4", "\x84"}));
}

TEST_F(InputEditorTest, OnlyTheExactCodesAreBackspaceTabAndReturn) {
  // The euro sign of code page 1251 and its neighbours.
  type("ab\x88\x89\x8D");
  EXPECT_TRUE(sent.empty());
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(document.lastLine().currentKind(), KIND_INPUT);
  EXPECT_EQ(document.lastLineLength(), 5);
  EXPECT_EQ(caret(), 5);
  type("\b");
  EXPECT_EQ(document.lastLineLength(), 4);
  type("\r");
  EXPECT_EQ(sent, (Lines{"ab\x88\x89\n"}));
}

TEST_F(InputEditorTest, EachEditAsksForTheScreenToFollow) {
  type("sent\r");
  output("prompt> ");
  type("abcd");
  const auto asked = [this](const std::function<void()>& edit) {
    screen.changes = {};
    edit();
    EXPECT_TRUE(screen.changes.show);
    EXPECT_EQ(screen.changes.rows, document.lineCount());
    return std::pair(screen.changes.leftColumn, screen.changes.lastColumn);
  };
  using Columns = std::pair<int, int>;
  EXPECT_EQ(asked([&] { type("e"); }), (Columns{12, 13}));
  EXPECT_EQ(asked([&] { press(ConsoleKey::Home); }), (Columns{8, 8})) << "the old caret stands to the right of it";
  EXPECT_EQ(asked([&] { press(ConsoleKey::Right); }), (Columns{8, 9}));
  EXPECT_EQ(asked([&] { press(ConsoleKey::Delete); }), (Columns{9, 10}));
  EXPECT_EQ(asked([&] { type("\b"); }), (Columns{7, 9}));
  EXPECT_EQ(asked([&] { press(ConsoleKey::End); }), (Columns{8, 11}));
  EXPECT_EQ(asked([&] { press(ConsoleKey::Left); }), (Columns{10, 11}));
  EXPECT_EQ(asked([&] { press(ConsoleKey::Up); }), (Columns{8, 12}));
  press(ConsoleKey::End);
  EXPECT_EQ(asked([&] { type("\t"); }), (Columns{0, 16}));
  EXPECT_EQ(asked([&] { type("\x04"); }), (Columns{0, 16}));
  EXPECT_EQ(asked([&] { type("\x04"); }), (Columns{0, 16})) << "with nothing typed";
  EXPECT_EQ(asked([&] { type("\r"); }), (Columns{0, 0}));
}

TEST_F(InputEditorTest, AMillionCharactersInTheMiddleOfALine) {
  type("ab");
  press(ConsoleKey::Left);
  type(std::string(1000000, 'x'));
  EXPECT_EQ(document.lastLineLength(), 1000002);
  EXPECT_EQ(caret(), 1000001);
  type("\r");
  EXPECT_EQ(sent, (Lines{"a" + std::string(1000000, 'x') + "b\n"}));
}

}  // namespace
}  // namespace tarnwick
