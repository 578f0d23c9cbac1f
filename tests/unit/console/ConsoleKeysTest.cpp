// Keys, and what acts as keys: paste, function keys, commands.
#include "console/TarnwickView.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Rects = std::vector<Rect>;
using test::FakePainter;

class ConsoleKeysTest : public test::ConsoleFixture {};

TEST_F(ConsoleKeysTest, TypedCharactersAreEchoedByTheView) {
  openIdle();
  view->onCharacter("a", 1);
  view->onCharacter("b", 3);
  EXPECT_EQ(lastSegments(), (Lines{"1:abbb"}));
}

TEST_F(ConsoleKeysTest, TheCodeZeroAddsNothing) {
  openIdle();
  view->onCharacter(std::string(1, '\0'), 1);
  EXPECT_EQ(lastSegments(), (Lines{}));
}

TEST_F(ConsoleKeysTest, AKeyDropsTheSelectionAndHidesTheHint) {
  openIdle();
  view->onRightDown({});
  view->selectAll();
  view->onCharacter("a", 1);
  EXPECT_FALSE(view->canCopy());
  EXPECT_FALSE(surface.hint);
}

TEST_F(ConsoleKeysTest, ACharacterThatDoesNothingDropsTheSelectionAndHidesTheHintToo) {
  for (const char character : {'\0', '\b'}) {
    openIdle();
    view->onRightDown({});
    view->selectAll();
    ASSERT_TRUE(view->canCopy() && surface.hint);
    view->onCharacter(std::string(1, character), 1);
    EXPECT_FALSE(view->canCopy());
    EXPECT_FALSE(surface.hint);
    EXPECT_EQ(lastSegments(), Lines{});
  }
}

TEST_F(ConsoleKeysTest, TypingFarRightScrolls) {
  openIdle();
  type(std::string(200, 'x'));
  EXPECT_EQ(surface.position.x, 4 + 201 * 8 - 644);
}

TEST_F(ConsoleKeysTest, PastedLinesReachTheChildOneByOneWithPausesOf100Milliseconds) {
  openRunning();
  desktop.clipboard = "one\r\ntwo\r\nthree";
  EXPECT_TRUE(view->canPaste());
  view->paste();
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"one\n"}; }));
  ASSERT_EQ(desktop.timersOf(100), 1U);
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n"}; }));
  desktop.tick(100);
  EXPECT_EQ(desktop.timersOf(100), 0U);
  EXPECT_EQ(lastLine(), "three");
}

TEST_F(ConsoleKeysTest, APastedLineFeedAloneIsAReturn) {
  openRunning();
  desktop.clipboard = "one\ntwo\n";
  view->paste();
  desktop.tick(100);
  EXPECT_EQ(desktop.timersOf(100), 0U);
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n"}; }));
}

TEST_F(ConsoleKeysTest, EachPastedLineEndIsOneReturnHoweverItIsWritten) {
  openRunning();
  desktop.clipboard = "1\r\n2\r3\n\r\n\r\r\n4\n\n";
  view->paste();
  const Lines wanted = {"1\n", "2\n", "3\n", "\n", "\n", "\n", "4\n", "\n"};
  ASSERT_TRUE(until([&] {
    if (desktop.timersOf(100) > 0) desktop.tick(100);
    return child->writes().size() >= wanted.size();
  }));
  EXPECT_EQ(child->writes(), wanted);
  EXPECT_EQ(desktop.timersOf(100), 0U);
}

TEST_F(ConsoleKeysTest, PastingNothingDoesNothing) {
  openIdle();
  EXPECT_FALSE(view->canPaste());
  view->paste();
  EXPECT_EQ(lastSegments(), (Lines{}));
}

TEST_F(ConsoleKeysTest, APasteIsInsertedAtTheCaret) {
  openIdle();
  type("ad");
  view->onKey(ConsoleKey::Left, 0);
  desktop.clipboard = "bc";
  view->paste();
  EXPECT_EQ(lastLine(), "abcd");
}

TEST_F(ConsoleKeysTest, SendKeysTakesBackslashNForReturn) {
  openRunning();
  view->sendKeys("locals\\n");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"locals\n"}; }));
}

TEST_F(ConsoleKeysTest, SendKeysKeepsALoneBackslash) {
  openIdle();
  view->sendKeys("a\\b\\");
  EXPECT_EQ(lastLine(), "a\\b\\");
}

TEST_F(ConsoleKeysTest, SendKeysWithoutReturnWaitsInTheInputLine) {
  openRunning();
  view->sendKeys("stop at ");
  type("X");
  EXPECT_EQ(lastLine(), "stop at X");
  EXPECT_TRUE(child->writes().empty());
}

TEST_F(ConsoleKeysTest, SendKeysJoinsWhatWasTyped) {
  openIdle();
  type("abc ");
  view->sendKeys("stop at ");
  EXPECT_EQ(lastLine(), "abc stop at ");
}

TEST_F(ConsoleKeysTest, SeveralReturnsOfSendKeysAreSentWithPauses) {
  openRunning();
  view->sendKeys("a\\nb\\n");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"a\n"}; }));
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"a\n", "b\n"}; }));
  EXPECT_EQ(desktop.timersOf(100), 0U);
}

TEST_F(ConsoleKeysTest, AKeyWhileLinesWaitBeginsThePauseAnew) {
  openRunning();
  view->sendKeys("one\\ntwo\\nthree\\n");
  view->onCharacter(std::string(1, '\0'), 1);
  EXPECT_EQ(desktop.timersOf(100), 1U);
  desktop.tick(100);
  EXPECT_EQ(desktop.timersOf(100), 0U);
  EXPECT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n", "three\n"}; }));
}

TEST_F(ConsoleKeysTest, FunctionKeysAreLookedUpByGroupAndIndex) {
  openIdle();
  keyText = "k";
  for (int group = 0; group < 8; ++group) {
    for (int index = 0; index < 8; ++index) {
      const auto key = static_cast<ConsoleKey>(static_cast<int>(ConsoleKey::F5) + index);
      EXPECT_TRUE(view->onKey(key, group));
      EXPECT_EQ(asked.back(), (std::pair{group, index}));
    }
  }
  EXPECT_EQ(asked.size(), 64U);
  EXPECT_EQ(lastLine(), std::string(64, 'k'));
  EXPECT_EQ(static_cast<int>(SHIFT_BIT), 1);
  EXPECT_EQ(static_cast<int>(CTRL_BIT), 2);
  EXPECT_EQ(static_cast<int>(ALT_BIT), 4);
}

TEST_F(ConsoleKeysTest, AnEmptyFunctionKeyWritesNothing) {
  openRunning();
  view->onKey(ConsoleKey::F5, SHIFT_BIT);
  EXPECT_EQ(lastSegments(), (Lines{}));
  EXPECT_TRUE(child->writes().empty());
}

TEST_F(ConsoleKeysTest, AnEmptyFunctionKeyGoesOnWithWhatWaits) {
  openRunning();
  view->sendKeys("one\\ntwo");
  view->selectAll();
  EXPECT_EQ(lastLine(), "");
  view->onKey(ConsoleKey::F5, SHIFT_BIT);
  EXPECT_EQ(lastLine(), "two");
  EXPECT_FALSE(view->canCopy());
}

TEST_F(ConsoleKeysTest, NavigationKeysEditTheLine) {
  openIdle();
  type("abc");
  EXPECT_TRUE(view->onKey(ConsoleKey::Home, 0));
  EXPECT_TRUE(view->onKey(ConsoleKey::Delete, 0));
  EXPECT_EQ(lastLine(), "bc");
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted, (Rects{{4, 0, 6, 16}}));
  EXPECT_TRUE(view->onKey(ConsoleKey::End, 0));
  FakePainter second;
  view->paint(second);
  EXPECT_EQ(second.inverted, (Rects{{20, 0, 22, 16}}));
}

TEST_F(ConsoleKeysTest, WithAltANavigationKeyIsOfNoUse) {
  openIdle();
  type("abc");
  EXPECT_FALSE(view->onKey(ConsoleKey::Home, ALT_BIT));
  EXPECT_FALSE(view->onKey(ConsoleKey::Other, 0));
  type("d");
  EXPECT_EQ(lastLine(), "abcd");
}

TEST_F(ConsoleKeysTest, WithControlAndAltItIsAKeyLikeAnother) {
  openRunning();
  type("abc");
  EXPECT_TRUE(view->onKey(ConsoleKey::Home, CTRL_BIT | ALT_BIT));
  type("d");
  EXPECT_EQ(lastLine(), "dabc");
  type("\r");
  endChild();
  view->onKey(ConsoleKey::Other, CTRL_BIT | ALT_BIT);
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, AnyKeyAfterTheEndClosesTheWindow) {
  openRunning();
  endChild();
  EXPECT_EQ(surface.closes, 0);
  view->onKey(ConsoleKey::Other, 0);
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, ACharacterAfterTheEndClosesTheWindow) {
  openRunning();
  endChild();
  view->onCharacter("x", 1);
  EXPECT_EQ(surface.closes, 1);
  EXPECT_EQ(lastLine(), "x");
}

// So the menus can be reached by Alt, to save what has been said.
TEST_F(ConsoleKeysTest, WithAltAKeyClosesNothingAfterTheEndUnlessItTypes) {
  openRunning();
  endChild();
  view->onKey(ConsoleKey::Other, ALT_BIT);
  view->onKey(ConsoleKey::Home, ALT_BIT);
  EXPECT_EQ(surface.closes, 0);
  view->onKey(ConsoleKey::F5, ALT_BIT);
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, APasteAfterTheEndClosesTheWindow) {
  openRunning();
  endChild();
  desktop.clipboard = "x";
  view->paste();
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, AQuickCopyAfterTheEndClosesTheWindow) {
  openRunning();
  endChild();
  view->selectAll();
  view->onRightDown({});
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, ACommandAfterTheEndClosesTheWindow) {
  openRunning();
  endChild();
  view->sendKeys("cont\\n");
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleKeysTest, AWindowThatEndsWithinItsCloseIsNotAddressedAgain) {
  openRunning();
  endChild();
  surface.endsAtOnce = view.get();
  surface.forget();
  view->onCharacter("x", 1);
  EXPECT_EQ(surface.closes, 1);
  EXPECT_TRUE(surface.invalidated.empty());
  EXPECT_EQ(desktop.runningTimers(), 0U);
}

TEST_F(ConsoleKeysTest, WhileTheChildRunsAKeyClosesNothing) {
  openRunning();
  view->onKey(ConsoleKey::Other, 0);
  type("x");
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(ConsoleKeysTest, InputGoesOnInASegmentOfItsOwnWhileOutputArrives) {
  openRunning();
  type("ty");
  child->out("out");
  ASSERT_TRUE(until([&] { return lastLine() == "tyout"; }));
  type("ped\b");
  EXPECT_EQ(lastSegments(), (Lines{"1:ty", "2:out", "1:pe"}));
  type("\r");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"pe\n"}; }));
}

}  // namespace
}  // namespace tarnwick
