// Typing in the console of today, where output comes in between.
#include "console/HeldInput.h"
#include "console/InputEditor.h"
#include "console/OutputReader.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::segmentsOf;
using test::textOf;

class InputTodayTest : public testing::Test {
 protected:
  explicit InputTodayTest(bool today = true) : screen(document, today) {
    screen.grid.charWidth = 8;
    screen.grid.charHeight = 16;
  }

  void type(const std::string& text) {
    editor.append(text);
    while (editor.drain()) {
    }
  }
  void press(ConsoleKey key, int times = 1) {
    for (int count = 0; count < times; ++count) editor.navigate(key);
  }
  Lines segments() { return segmentsOf(document.lastLine()); }
  int caret() const { return screen.caret.column(); }

  TarnwickDoc document{""};
  ConsoleScreen screen;
  OutputReader out{screen, KIND_OUTPUT};
  OutputReader err{screen, KIND_ERROR};
  Lines sent;
  int ends = 0;
  InputEditor editor{screen, [this](const std::string& bytes) { sent.push_back(bytes); }, {[this] { ++ends; }, '\x1A'}};
};

class InputBeforeTest : public InputTodayTest {
 protected:
  InputBeforeTest() : InputTodayTest(false) {}
};

TEST_F(InputTodayTest, ReturnBehindOutputSendsALineEnd) {
  out.handle("Press Enter ");
  type("\r");
  EXPECT_EQ(sent, Lines{"\n"});
  EXPECT_EQ(textOf(document), (Lines{"Press Enter ", ""}));
  type("\r");
  EXPECT_EQ(sent, (Lines{"\n", "\n"}));
}

TEST_F(InputTodayTest, LettersWhoseLowBitsAreAControlCodeBelongToTheLine) {
  if (test::charactersAreUtf8()) GTEST_SKIP() << "bytes from 128 up belong to characters here";
  type("10 \x80 \x8A\x8D\x9E");
  EXPECT_EQ(sent, Lines{});
  EXPECT_EQ(textOf(document), (Lines{"10 \x80 \x8A\x8D\x9E"}));
  type("\r");
  EXPECT_EQ(sent, Lines{"10 \x80 \x8A\x8D\x9E\n"});
}

TEST_F(InputTodayTest, ReturnBehindAControlCharacterSendsALineEndToo) {
  type("abc\x01\r");
  EXPECT_EQ(sent, (Lines{"abc", "\x01", "\n"}));
}

TEST_F(InputTodayTest, ALineThatOutputHasInterruptedIsSentWhole) {
  out.handle("> ");
  type("h");
  out.handle("tick1 ");
  type("ello world\r");
  EXPECT_EQ(sent, Lines{"hello world\n"});
  EXPECT_EQ(textOf(document), (Lines{"> tick1 hello world", ""}));
}

TEST_F(InputBeforeTest, OnlyWhatWasTypedSinceIsSent) {
  out.handle("> ");
  type("h");
  out.handle("tick1 ");
  type("ello world\r");
  EXPECT_EQ(sent, Lines{"ello world\n"});
  EXPECT_EQ(textOf(document), (Lines{"> htick1 ello world", ""}));
}

TEST_F(InputTodayTest, WhatIsTypedGoesOnOnTheLineThatTheOutputBegins) {
  out.handle("name? ");
  type("An");
  out.handle("one\ntwo\n");
  EXPECT_EQ(textOf(document), (Lines{"name? one", "two", "An"}));
  EXPECT_EQ(caret(), 2);
  err.handle("!");
  EXPECT_EQ(segments(), (Lines{"3:!", "1:An"}));
  type("n\r");
  EXPECT_EQ(sent, Lines{"Ann\n"});
}

TEST_F(InputTodayTest, AnInterruptedLineStaysEditableAsOne) {
  type("hxllo");
  press(ConsoleKey::Left, 3);
  out.handle("tick1 ");
  EXPECT_EQ(caret(), 8) << "where it stood in the input";
  type("\b");
  type("e");
  EXPECT_EQ(segments(), (Lines{"2:tick1 ", "1:hello"}));
  press(ConsoleKey::Home);
  EXPECT_EQ(caret(), 6);
  press(ConsoleKey::Delete);
  out.handle("tick2\n");
  press(ConsoleKey::End);
  type("!\r");
  EXPECT_EQ(sent, Lines{"ello!\n"});
  EXPECT_EQ(textOf(document), (Lines{"tick1 tick2", "ello!", ""}));
}

TEST_F(InputTodayTest, WhatIsTypedBeforeTheProgramSpeaksIsKept) {
  type("early");
  out.begin();
  err.begin();
  EXPECT_EQ(textOf(document), (Lines{"", "", "early"}));
  type("\r");
  EXPECT_EQ(sent, Lines{"early\n"});
}

TEST_F(InputTodayTest, BlocksThatShowNothingLeaveCaretAndInput) {
  type("ab");
  press(ConsoleKey::Left);
  out.handle("\a");
  EXPECT_EQ(segments(), Lines{"1:ab"});
  EXPECT_EQ(caret(), 1);
}

TEST_F(InputTodayTest, ACutCharacterAtTheEndComesBeforeWhatIsTyped) {
  type("ab");
  out.handle("x\xC3");
  out.end();
  EXPECT_EQ(segments().back(), "1:ab");
  EXPECT_EQ(caret(), document.lastLineLength());
}

TEST_F(InputTodayTest, TheWindowIsAskedToShowTheCaretBehindTheInput) {
  type("abcdef");
  screen.changes = {};
  out.handle("tick ");
  EXPECT_TRUE(screen.changes.show);
  EXPECT_EQ(screen.changes.lastColumn, 11);
}

TEST_F(InputTodayTest, ControlDOnAnEmptyLineEndsTheInput) {
  type("\x04");
  EXPECT_EQ(ends, 1);
  out.handle("more? ");
  type("\x04");
  EXPECT_EQ(ends, 2);
  type("a\b\x04");
  EXPECT_EQ(ends, 3);
  EXPECT_TRUE(sent.empty());
  EXPECT_EQ(document.lineCount(), 1);
}

TEST_F(InputTodayTest, ControlDBehindTypedTextIsAControlCharacterLikeOthers) {
  type("abc\x04");
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(sent, (Lines{"abc", "\x04"}));
}

TEST_F(InputBeforeTest, ControlDIsAControlCharacterLikeOthers) {
  type("\x04\x1A\r");
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(sent, (Lines{"\x04", "\x1A", "\n"}));
}

TEST_F(InputTodayTest, WhereControlZIsTheMarkItEndsTheInputTogetherWithReturn) {
  out.handle("more? ");
  type("\x1A");
  EXPECT_EQ(segments(), (Lines{"2:more? ", "1:^Z"}));
  EXPECT_EQ(ends, 0);
  type("\r");
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(sent.empty());
  EXPECT_EQ(textOf(document), (Lines{"more? ^Z", ""}));
}

TEST_F(InputTodayTest, AMarkThatIsTypedOverIsNone) {
  type("\x1Ax\r");
  EXPECT_EQ(sent, Lines{"^Zx\n"});
  type("\x1A\b\b^Z\r");
  EXPECT_EQ(sent.back(), "^Z\n") << "typed letter by letter";
  type("\x1A");
  press(ConsoleKey::Up);
  type("\r");
  EXPECT_EQ(sent.back(), "^Z\n") << "brought back";
  EXPECT_EQ(ends, 0);
}

TEST_F(InputTodayTest, WhereNothingIsTheMarkControlZIsAControlCharacter) {
  InputEditor other{screen, [this](const std::string& bytes) { sent.push_back(bytes); }, {[this] { ++ends; }, '\0'}};
  other.append("\x1A");
  other.drain();
  EXPECT_EQ(sent, Lines{"\x1A"});
  EXPECT_EQ(ends, 0);
}

TEST_F(InputTodayTest, WhatWasAppendedCanBeForgotten) {
  editor.append("one\rtwo\r");
  EXPECT_TRUE(editor.drain());
  editor.dropPending();
  EXPECT_FALSE(editor.drain());
  EXPECT_EQ(sent, Lines{"one\n"});
}

}  // namespace
}  // namespace tarnwick
