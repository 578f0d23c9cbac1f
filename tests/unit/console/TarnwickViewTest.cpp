// The view on its window: following the text, timers, painting, clipboard.
#include "console/TarnwickView.h"
#include "platform/FileSystem.h"
#include "support/ConsoleFixture.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Rects = std::vector<Rect>;
using test::FakePainter;

class TarnwickViewTest : public test::ConsoleFixture {
 protected:
  void addLines(int count) {
    const TextGuard guard(document.textLock());
    for (int line = 0; line < count; ++line) document.newLine();
  }
  void addText(const std::string& text, int kind = KIND_OUTPUT) {
    const TextGuard guard(document.textLock());
    document.addText(text, kind);
  }
};

TEST_F(TarnwickViewTest, TheStartSetsTheSmallestScrollSizesAndTheBlinkTimer) {
  open();
  EXPECT_EQ(surface.sizes, (Point{1, 1}));
  EXPECT_EQ(desktop.timersOf(700), 1U);
  desktop.tick(700);
}

TEST_F(TarnwickViewTest, ATimerThatCantBeHadIsTold) {
  desktop.timersWork = false;
  open();
  EXPECT_EQ(desktop.messages, (Lines{"Error creating timer"}));
}

TEST_F(TarnwickViewTest, WhatWaitsForATimerThatCantBeHadIsNotLost) {
  openRunning();
  desktop.timersWork = false;
  view->sendKeys("one\\ntwo\\n");
  EXPECT_EQ(desktop.messages, (Lines{"Error creating timer"}));
  // The next key brings it on its way.
  view->onCharacter(std::string(1, '\0'), 1);
  EXPECT_TRUE(until([&] { return child->writes() == Lines{"one\n", "two\n"}; }));
}

TEST_F(TarnwickViewTest, AFontThatCantBeMadeIsToldAndTheConsoleRunsWithoutIt) {
  surface.fontMade = false;
  openRunning();
  EXPECT_EQ(desktop.messages, (Lines{"Error creating font"}));
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(TarnwickViewTest, AFontThatCantBeMeasuredIsTold) {
  surface.cellSize = {0, 0};
  open();
  EXPECT_EQ(desktop.messages, (Lines{"Error getting font metrics"}));
  // The next paint tries again.
  surface.cellSize = {8, 16};
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted.size(), 1U);
}

TEST_F(TarnwickViewTest, PaintsTextCaretAndSelection) {
  openIdle();
  addText("abc def");
  view->onDoubleClick({.at = {4 + 8 * 5, 3}});
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.drawn, (std::vector<FakePainter::Drawn>{{4, 0, "abc def", {0, 0, 255}}}));
  // The caret has two pixels' width and the cell's height.
  EXPECT_EQ(painter.inverted, (Rects{{4, 0, 6, 16}, {36, 0, 60, 16}}));
}

TEST_F(TarnwickViewTest, AllTimersEndWithTheWindow) {
  openIdle();
  view->sendKeys("a\\nb");
  view->onRightDown({});
  EXPECT_EQ(desktop.runningTimers(), 3U);
  view->onClose();
  EXPECT_EQ(desktop.runningTimers(), 0U);
}

TEST_F(TarnwickViewTest, NothingAddressesTheWindowAfterTheClose) {
  openRunning();
  view->onClose();
  surface.forget();
  const int wakes = surface.wakes;
  child->out("late\n");
  view->onWake();
  view->onResized();
  view->refresh(5, 0, 1);
  view->onKey(ConsoleKey::Up, 0);
  view->onCharacter("x", 1);
  view->sendKeys("y\\n");
  view->onLeftDown({});
  view->onMouseMove({.at = {50, 50}, .leftDown = true});
  view->onLeftUp({});
  view->onDoubleClick({});
  view->onRightDown({});
  view->selectAll();
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(surface.sizeChanges + surface.scrolls + surface.allInvalidated + surface.hintChanges, 0);
  EXPECT_TRUE(surface.invalidated.empty());
  EXPECT_EQ(surface.wakes, wakes);
}

// Following the text.

TEST_F(TarnwickViewTest, RefreshSetsTheScrollSizesWhenTheyChange) {
  openIdle();
  addText("0123456789");
  view->refresh(1, 0, 10);
  EXPECT_EQ(surface.sizes, (Point{4 + 11 * 8, 16}));
  EXPECT_EQ(surface.sizeChanges, 1);
  view->refresh(1, 0, 10);
  EXPECT_EQ(surface.sizeChanges, 1);
  addLines(1);
  view->refresh(2, 0, 1);
  EXPECT_EQ(surface.sizes, (Point{4 + 11 * 8, 32}));
}

TEST_F(TarnwickViewTest, RefreshInvalidatesTheTailOfTheLastLineOnly) {
  openIdle();
  addText("0123456789");
  view->refresh(1, 0, 10);
  surface.forget();
  view->refresh(1, 9, 10);
  EXPECT_EQ(surface.invalidated, (Rects{{4 + 9 * 8, 0, 644, 16}}));
  EXPECT_EQ(surface.allInvalidated, 0);
  EXPECT_EQ(surface.scrolls, 0);
}

TEST_F(TarnwickViewTest, RefreshInvalidatesAllRowsThatHaveComeSinceTheLast) {
  openIdle();
  view->refresh(1, 0, 1);
  surface.forget();
  addLines(3);
  view->refresh(4, 0, 1);
  EXPECT_EQ(surface.invalidated, (Rects{{0, 0, 644, 64}}));
}

TEST_F(TarnwickViewTest, RefreshFollowsTheLastLine) {
  openIdle();
  addLines(99);
  view->refresh(100, 0, 1);
  EXPECT_EQ(surface.position, (Point{0, 100 * 16 - 400}));
  EXPECT_EQ(surface.allInvalidated, 1);
  // A user's scroll upward lasts until the next output.
  surface.position = {0, 160};
  view->refresh(100, 0, 1);
  EXPECT_EQ(surface.position, (Point{0, 1200}));
}

TEST_F(TarnwickViewTest, RefreshFollowsFromBelowToo) {
  openIdle();
  addLines(100);
  surface.position.y = 5000;
  view->refresh(101, 0, 1);
  EXPECT_EQ(surface.position.y, 101 * 16 - 400);
}

TEST_F(TarnwickViewTest, TheCaretStandsOnTheLastLineFromTheStart) {
  addLines(3);
  openIdle();
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted, (Rects{{4, 48, 6, 64}}));
}

TEST_F(TarnwickViewTest, RefreshShowsTheRightOfALongLine) {
  openIdle();
  addText(std::string(200, 'x'));
  view->refresh(1, 0, 200);
  EXPECT_EQ(surface.position.x, 4 + 201 * 8 - 644);
}

TEST_F(TarnwickViewTest, RefreshComesBackToTheLeft) {
  openIdle();
  addText(std::string(300, 'x'));
  view->refresh(1, 0, 300);
  // Column 100 is left of what is seen: it comes to the right edge.
  ASSERT_GT(surface.position.x, 4 + 100 * 8);
  view->refresh(1, 100, 99);
  EXPECT_EQ(surface.position.x, 4 + 100 * 8 - 644);
  // And never below 0.
  view->refresh(1, 0, 1);
  EXPECT_EQ(surface.position.x, 0);
}

TEST_F(TarnwickViewTest, OnceLinesHaveBeenDroppedEveryRefreshDrawsAll) {
  openIdle();
  addLines(1500);
  view->refresh(1500, 0, 1);
  surface.forget();
  view->refresh(1500, 0, 1);
  EXPECT_EQ(surface.allInvalidated, 1);
  EXPECT_TRUE(surface.invalidated.empty());
}

TEST_F(TarnwickViewTest, RefreshDropsTheSelectionAndHidesTheHint) {
  openIdle();
  addText("word");
  view->onRightDown({});
  EXPECT_TRUE(surface.hint);
  view->selectAll();
  EXPECT_TRUE(view->canCopy());
  surface.forget();
  view->refresh(1, 0, 1);
  EXPECT_FALSE(view->canCopy());
  EXPECT_FALSE(surface.hint);
  EXPECT_EQ(surface.allInvalidated, 1);
}

TEST_F(TarnwickViewTest, OutputDropsTheSelection) {
  openRunning();
  pump();
  view->selectAll();
  child->out("x");
  EXPECT_TRUE(until([&] { return !view->canCopy(); }));
}

TEST_F(TarnwickViewTest, AWindowThatShowsTheEndGoesOnShowingItWhenResized) {
  openIdle();
  addLines(99);
  view->refresh(100, 0, 1);
  surface.client = {644, 200};
  view->onResized();
  EXPECT_EQ(surface.position.y, 1400);
  surface.position.y = 100;  // the user looks further up
  surface.client = {644, 160};
  view->onResized();
  EXPECT_EQ(surface.position.y, 100);
}

TEST_F(TarnwickViewTest, ALineWhosePixelsCantBeCountedDoesNoHarm) {
  openIdle();
  view->refresh(1, 0, 2000000000);
  EXPECT_GE(surface.position.x, 0);
  EXPECT_GT(surface.sizes.x, 0);
}

// The clipboard.

TEST_F(TarnwickViewTest, CopyPutsTheSelectionOnTheClipboard) {
  openIdle();
  addText("one");
  addLines(1);
  addText("two");
  EXPECT_FALSE(view->canCopy());
  view->selectAll();
  EXPECT_TRUE(view->canCopy());
  EXPECT_EQ(view->selectedText(), "one\r\ntwo");
  view->copy();
  EXPECT_EQ(desktop.clipboard, std::string("one") + platform::lineEnd + "two") << "as the system writes lines";
  EXPECT_TRUE(view->canCopy());
}

TEST_F(TarnwickViewTest, AClipboardThatTakesNothingIsTold) {
  openIdle();
  desktop.clipboardTakes = false;
  view->selectAll();
  view->copy();
  ASSERT_EQ(desktop.messages.size(), 1U);
  const std::string start = "Unable to set clipboard data.\n";
  EXPECT_EQ(desktop.messages[0].substr(0, start.size()), start);
  EXPECT_EQ(desktop.messages[0], clipboardFailure(desktop.messages[0].substr(start.size())));
}

TEST_F(TarnwickViewTest, OfTheReasonForAClipboardThatTakesNothingFiveHundredAndTwelveCharactersAreTold) {
  const std::string start = "Unable to set clipboard data.\n";
  EXPECT_EQ(clipboardFailure(""), start);
  EXPECT_EQ(clipboardFailure("No memory."), start + "No memory.");
  std::string reason(513, 'a');
  reason[511] = 'b';
  EXPECT_EQ(clipboardFailure(reason), start + reason.substr(0, 512));
  EXPECT_TRUE(clipboardFailure(reason).ends_with("ab"));
}

TEST_F(TarnwickViewTest, SelectAllIsShown) {
  openIdle();
  addText("abc");
  surface.forget();
  view->selectAll();
  EXPECT_EQ(surface.allInvalidated, 1);
  FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted.back(), (Rect{4, 0, 28, 16}));
}

}  // namespace
}  // namespace tarnwick
