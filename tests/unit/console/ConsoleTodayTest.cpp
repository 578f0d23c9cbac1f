// What only the console of today has, and that the classic one has not.
#include "console/ConsoleEnd.h"
#include "platform/FileSystem.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

class ConsoleTodayTest : public test::ConsoleFixture {
 protected:
  ConsoleTodayTest() { program.today = true; }

  void endWith(int code, const std::string& cause = "") {
    child->out("x\n");
    ASSERT_TRUE(until([&] { return shows("x"); }));
    child->endWith(code, cause);
    ASSERT_TRUE(until([&] { return view->childState() == 0 && !surface.titles.empty(); }));
  }
  bool shows(const std::string& text) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), text) != all.end();
  }
  /// Without the time.
  std::string title() {
    const std::string& last = surface.titles.back();
    return last.substr(0, last.find(" after "));
  }
};

class ConsoleClassicTest : public ConsoleTodayTest {
 protected:
  ConsoleClassicTest() { program.today = false; }
};

TEST(TitleAtEndTest, ItTellsHowTheProgramEndedAndHowLongItRan) {
  EXPECT_EQ(titleAtEnd("Greeter", {false, "", 1, milliseconds(2345)}), "Greeter - ended with 1 after 2.3 s");
  EXPECT_EQ(titleAtEnd("Greeter", {false, "", 0, milliseconds(60)}), "Greeter - ended with 0 after 0.1 s");
  EXPECT_EQ(titleAtEnd("x", {false, "", -1, milliseconds(61999)}), "x - ended with -1 after 62.0 s");
  EXPECT_EQ(titleAtEnd("x", {false, "Killed", 0, milliseconds(0)}), "x - ended by a signal (Killed) after 0.0 s");
  EXPECT_EQ(titleAtEnd("x", {true, "Terminated", 143, milliseconds(1000)}), "x - stopped after 1.0 s");
}

TEST_F(ConsoleTodayTest, OnceTheProgramHasEndedTheTitleTellsItsCode) {
  openRunning();
  EXPECT_TRUE(surface.titles.empty());
  endWith(7);
  EXPECT_EQ(title(), "a title - ended with 7");
  EXPECT_TRUE(shows(banner));
  EXPECT_EQ(surface.titles.size(), 1U);
}

TEST_F(ConsoleTodayTest, TheTitleTellsASignalToo) {
  openRunning();
  endWith(0, "Killed");
  EXPECT_EQ(title(), "a title - ended by a signal (Killed)");
}

TEST_F(ConsoleClassicTest, TheTitleStays) {
  openRunning();
  endChild();
  pump();
  EXPECT_TRUE(surface.titles.empty());
}

TEST_F(ConsoleTodayTest, AModifierAloneClosesNoEndedConsole) {
  openRunning();
  endChild();
  for (const int modifiers : {0, int{SHIFT_BIT}, int{CTRL_BIT}, int{ALT_BIT}, CTRL_BIT | ALT_BIT}) {
    EXPECT_FALSE(view->onKey(ConsoleKey::Modifier, modifiers));
  }
  view->selectAll();
  view->copy();
  view->copyAll();
  view->clear();
  EXPECT_EQ(surface.closes, 0);
  view->onKey(ConsoleKey::Other, 0);
  EXPECT_EQ(surface.closes, 1) << "any other key does";
}

TEST_F(ConsoleTodayTest, PagesScrollAndCloseNoEndedConsole) {
  openRunning();
  std::string text;
  for (int i = 0; i < 200; ++i) text += "line " + std::to_string(i) + '\n';
  child->out(text + "last\n");
  ASSERT_TRUE(until([&] { return shows("last"); }));
  child->endWith(0);
  ASSERT_TRUE(until([&] { return view->childState() == 0 && !surface.titles.empty(); }));
  const int end = surface.position.y;
  ASSERT_GT(end, 0);
  EXPECT_TRUE(view->onKey(ConsoleKey::PageUp, 0));
  const int seen = surface.clientSize().y;
  EXPECT_EQ(surface.position.y, end - (seen - surface.cell().y));
  EXPECT_TRUE(surface.titles.back().ends_with(" - scrolled back")) << surface.titles.back();
  EXPECT_TRUE(view->onKey(ConsoleKey::PageDown, 0));
  EXPECT_EQ(surface.position.y, end);
  EXPECT_FALSE(surface.titles.back().ends_with(" - scrolled back"));
  EXPECT_TRUE(view->onKey(ConsoleKey::PageDown, 0));
  EXPECT_EQ(surface.position.y, end);
  for (int i = 0; i < 100; ++i) view->onKey(ConsoleKey::PageUp, SHIFT_BIT);
  EXPECT_EQ(surface.position.y, 0);
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(ConsoleClassicTest, APageKeyClosesAnEndedConsoleAsAnyOtherDoes) {
  openRunning();
  endChild();
  EXPECT_FALSE(view->onKey(ConsoleKey::PageUp, 0));
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleTodayTest, ACharacterClosesAnEndedConsole) {
  openRunning();
  endChild();
  view->onCharacter(" ", 1);
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleClassicTest, AModifierAloneClosesAnEndedConsole) {
  openRunning();
  endChild();
  view->onKey(ConsoleKey::Modifier, 0);
  EXPECT_EQ(surface.closes, 1);
}

TEST_F(ConsoleTodayTest, TheEndOfTheInputComesBehindWhatWasSent) {
  openRunning();
  child->stopReadingInput();
  type("last line\r");
  ASSERT_TRUE(until([&] { return child->writing(); }));
  EXPECT_TRUE(view->canEndInput());
  view->endInput();
  EXPECT_FALSE(view->canEndInput());
  EXPECT_FALSE(child->inputClosed());
  child->readInputAgain();
  EXPECT_TRUE(until([&] { return child->inputClosed(); }));
  EXPECT_EQ(child->writes(), Lines{"last line\n"});
}

TEST_F(ConsoleTodayTest, TheCommandEndsTheInputBehindAllThatWasPasted) {
  openRunning();
  desktop.clipboard = "one\r\ntwo\r\nthree\r\nfour";
  view->paste();
  view->endInput();
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n"}; }));
  EXPECT_TRUE(view->canEndInput());
  desktop.tick(100);
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return child->inputClosed(); }));
  EXPECT_EQ(child->writes(), (Lines{"one\n", "two\n", "three\n", "four\n"}));
}

TEST_F(ConsoleTodayTest, AnEndThatIsStillToComeIsNotForTheNextProgram) {
  openRunning();
  desktop.clipboard = "one\r\ntwo\r\nthree";
  view->paste();
  view->endInput();
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n"}; }));
  endWith(1);
  child = std::make_shared<test::ChildScript>();
  view->runAgain();
  ASSERT_TRUE(until([&] { return view->childState() == 1; }));
  type("hello\r");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"hello\n"}; }));
  EXPECT_TRUE(view->canEndInput());
}

TEST_F(ConsoleTodayTest, AndBehindALineThatHasNoReturnYet) {
  openRunning();
  type("one");
  view->endInput();
  ASSERT_TRUE(until([&] { return child->inputClosed(); }));
  EXPECT_EQ(child->writes(), Lines{"one\n"});
}

TEST_F(ConsoleTodayTest, ControlDEndsTheInputAndNothingFollows) {
  openRunning();
  type("one\r\x04");
  ASSERT_TRUE(until([&] { return child->inputClosed(); }));
  type("two\r");
  view->endInput();
  EXPECT_EQ(child->writes(), Lines{"one\n"});
  endWith(0);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ConsoleClassicTest, ControlDIsSentAsItIs) {
  openRunning();
  type("\x04");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"\x04"}; }));
  EXPECT_FALSE(child->inputClosed());
}

TEST_F(ConsoleTodayTest, InputThatEndsBeforeTheProgramStandsEndsForIt) {
  openIdle();
  EXPECT_FALSE(view->canEndInput()) << "nothing runs";
  view->endInput();
  EXPECT_FALSE(child->inputClosed());
}

TEST_F(ConsoleTodayTest, AProgramIsStoppedOnlyIfTheUserSaysSo) {
  openRunning();
  desktop.yesNoAnswers.emplace_back([] { return false; });
  view->askToStop();
  EXPECT_EQ(desktop.messages, Lines{"Stop the program?"});
  EXPECT_EQ(child->treesEnded(), 0);
  desktop.yesNoAnswers.emplace_back([] { return true; });
  view->askToStop();
  EXPECT_EQ(child->treesEnded(), 1);
  endWith(143, "Terminated");
  EXPECT_EQ(title(), "a title - stopped");
  EXPECT_TRUE(shows(banner));
  EXPECT_EQ(surface.closes, 0);
  view->askToStop();
  EXPECT_EQ(child->treesEnded(), 1) << "nor is anybody asked once it has ended";
}

TEST_F(ConsoleTodayTest, AProgramThatEndsWhileTheQuestionShowsIsLeftAlone) {
  openRunning();
  desktop.yesNoAnswers.emplace_back([this] {
    endChild();
    return true;
  });
  view->askToStop();
  EXPECT_EQ(child->treesEnded(), 0);
  EXPECT_EQ(title(), "a title - ended with 0");
}

TEST_F(ConsoleTodayTest, AConsoleThatClosesWhileTheQuestionShowsIsLeftAlone) {
  openRunning();
  desktop.yesNoAnswers.emplace_back([this] {
    view->onClose();
    return true;
  });
  view->askToStop();
  EXPECT_EQ(child->treesEnded(), 1) << "by the close";
}

TEST_F(ConsoleTodayTest, AnEndedProgramRunsAgainInTheSameWindow) {
  openRunning();
  EXPECT_FALSE(view->canRunAgain());
  view->runAgain();
  endWith(1);
  EXPECT_TRUE(view->canRunAgain());
  started.arguments.clear();
  child = std::make_shared<test::ChildScript>();
  view->runAgain();
  ASSERT_TRUE(until([&] { return view->childState() == 1; }));
  EXPECT_EQ(started.arguments, program.runArguments);
  EXPECT_EQ(surface.titles.back(), "a title");
  EXPECT_TRUE(shows(banner)) << "what was there stays";
  type("hello\r");
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"hello\n"}; }));
  child->out("y\n");
  ASSERT_TRUE(until([&] { return shows("y"); }));
  child->endWith(2);
  ASSERT_TRUE(until([&] { return title() == "a title - ended with 2"; }));
  const Lines all = lines();
  EXPECT_EQ(std::count(all.begin(), all.end(), banner), 2);
}

TEST_F(ConsoleTodayTest, ARunAgainThatSaysNothingKeepsTheWindow) {
  openRunning();
  endWith(0);
  child = std::make_shared<test::ChildScript>();
  view->runAgain();
  ASSERT_TRUE(until([&] { return view->childState() == 1; }));
  child->endWith(3);
  ASSERT_TRUE(until([&] { return title() == "a title - ended with 3"; }));
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(ConsoleTodayTest, AFirstRunThatSaysNothingLeavesNoConsole) {
  openRunning();
  child->endWith(0);
  EXPECT_TRUE(until([&] { return surface.closes == 1; }));
}

TEST_F(ConsoleTodayTest, CopyAllTakesEveryLineAndLeavesTheSelection) {
  openRunning();
  child->out("one\ntwo");
  ASSERT_TRUE(until([&] { return lastLine() == "two"; }));
  view->onDoubleClick({{4, 2 * 16}, false, false, false, false});
  const bool selected = view->canCopy();
  view->copyAll();
  EXPECT_EQ(desktop.clipboard, std::string(platform::lineEnd) + platform::lineEnd + "one" + platform::lineEnd + "two");
  EXPECT_EQ(view->canCopy(), selected);
}

TEST_F(ConsoleTodayTest, ClearLeavesTheLineThatIsBeingWritten) {
  openRunning();
  child->out("one\ntwo\n> ");
  ASSERT_TRUE(until([&] { return lastLine() == "> "; }));
  type("ab");
  view->selectAll();
  view->clear();
  EXPECT_EQ(lines(), Lines{"> ab"});
  EXPECT_FALSE(view->canCopy());
  EXPECT_EQ(surface.sizes, (Point{4 + 5 * 8, 16}));
  test::FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted.at(0), (Rect{4 + 4 * 8, 0, 4 + 4 * 8 + 2, 16})) << "the caret goes along";
}

class ScrolledBackTest : public ConsoleTodayTest {
 protected:
  /// A running program that has said so many lines.
  void openWithLines(int count) {
    openRunning();
    say(count);
  }
  void say(int count) {
    const std::string last = "line " + std::to_string(said += count);
    std::string text;
    for (int line = 1; line < count; ++line) text += "line\n";
    child->out(text + last + "\n");
    // The count alone tells nothing where as many lines fall off the top as come.
    ASSERT_TRUE(until([&] { return lineCount() > 1 && lines().rbegin()[1] == last && lastLine().empty(); }));
    pump();
  }
  void scrollTo(int y) {
    surface.position.y = y;
    view->onScrolled();
  }
  int end() { return 16 * lineCount() - 400; }

 private:
  int said = 0;
};

TEST_F(ScrolledBackTest, TheViewHoldsStillAndSaysSoUntilTheUserIsAtTheEndAgain) {
  openWithLines(100);
  EXPECT_EQ(surface.position.y, end());
  EXPECT_TRUE(surface.titles.empty());
  scrollTo(160);
  EXPECT_EQ(surface.titles, Lines{"a title - scrolled back"});
  say(50);
  EXPECT_EQ(surface.position.y, 160);
  EXPECT_EQ(surface.sizes.y, 16 * lineCount()) << "the bars know of what has come";
  scrollTo(end() - 1);
  say(1);
  EXPECT_EQ(surface.position.y, end() - 16 - 1) << "nearly the end is not the end";
  scrollTo(end());
  EXPECT_EQ(surface.titles.back(), "a title");
  say(50);
  EXPECT_EQ(surface.position.y, end());
}

TEST_F(ScrolledBackTest, WhatTheUserLooksAtStaysInSightWhileLinesFallOffTheTop) {
  openWithLines(1600);
  scrollTo(800 * 16);
  say(30);
  EXPECT_EQ(surface.position.y, 770 * 16);
  scrollTo(20 * 16);
  say(30);
  EXPECT_EQ(surface.position.y, 0);
}

TEST_F(ScrolledBackTest, AKeyShowsTheEndAgain) {
  openWithLines(100);
  scrollTo(160);
  view->onKey(ConsoleKey::Modifier, CTRL_BIT);
  EXPECT_EQ(surface.position.y, 160);
  type("a");
  EXPECT_EQ(surface.position.y, end());
  EXPECT_EQ(surface.titles.back(), "a title");
  scrollTo(160);
  view->onKey(ConsoleKey::Left, 0);
  EXPECT_EQ(surface.position.y, end());
}

TEST_F(ScrolledBackTest, TheTitleTellsTheEndOfTheProgramToo) {
  openWithLines(100);
  scrollTo(160);
  endWith(5);
  EXPECT_EQ(title(), "a title - ended with 5");
  EXPECT_TRUE(surface.titles.back().ends_with(" s - scrolled back")) << surface.titles.back();
  EXPECT_EQ(surface.position.y, 160);
  scrollTo(end());
  EXPECT_TRUE(surface.titles.back().ends_with(" s")) << surface.titles.back();
}

TEST_F(ScrolledBackTest, ClearedTextIsShownFromItsEnd) {
  openWithLines(100);
  scrollTo(160);
  view->clear();
  EXPECT_EQ(surface.position.y, 0);
  say(60);
  EXPECT_EQ(surface.position.y, end());
}

TEST_F(ConsoleClassicTest, NewOutputAlwaysShowsTheEnd) {
  openRunning();
  child->out(std::string(100, '\n') + "x");
  ASSERT_TRUE(until([&] { return lastLine() == "x"; }));
  surface.position.y = 160;
  view->onScrolled();
  child->out("y");
  ASSERT_TRUE(until([&] { return lastLine() == "xy"; }));
  EXPECT_TRUE(until([&] { return surface.position.y == 16 * lineCount() - 400; }));
  EXPECT_TRUE(surface.titles.empty());
}

}  // namespace
}  // namespace tarnwick
