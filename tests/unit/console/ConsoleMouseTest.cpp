// Selecting with the mouse, quick copy and the hint.
#include "console/TarnwickView.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Rects = std::vector<Rect>;

class ConsoleMouseTest : public test::ConsoleFixture {
 protected:
  ConsoleMouseTest() {
    for (const char* line : {"alpha beta", "gamma", "delta epsilon"}) {
      document.addText(line, KIND_OUTPUT);
      document.newLine();
    }
  }

  /// A point in the left half of a cell.
  static Point at(int column, int line) { return {4 + column * 8 + 1, line * 16 + 3}; }
  void down(const Point& where) { view->onLeftDown({.at = where, .leftDown = true}); }
  void move(const Point& where) { view->onMouseMove({.at = where, .leftDown = true}); }
  void up(const Point& where) { view->onLeftUp({.at = where}); }
  void drag(const Point& from, const Point& to) {
    down(from);
    move(to);
    up(to);
  }
  Rects inverted() {
    test::FakePainter painter;
    view->paint(painter);
    painter.inverted.erase(painter.inverted.begin());  // the caret
    return painter.inverted;
  }
};

TEST_F(ConsoleMouseTest, DraggingSelects) {
  openIdle();
  drag(at(6, 0), at(3, 1));
  EXPECT_TRUE(view->canCopy());
  EXPECT_EQ(view->selectedText(), "beta\r\ngam");
  EXPECT_EQ(inverted(), (Rects{{52, 0, 4 + 13 * 8, 16}, {4, 16, 28, 32}}));
}

TEST_F(ConsoleMouseTest, TheBorderLiesHalfWayThroughACharacter) {
  openIdle();
  drag({4 + 8 * 1 + 3, 5}, {4 + 8 * 3 + 4, 5});
  EXPECT_EQ(view->selectedText(), "lph");
}

TEST_F(ConsoleMouseTest, NoHalfOfAWideCharacterIsSelected) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  document.addText("x\xE6\x97\xA5", KIND_OUTPUT);
  document.addText("\xE6\x9C\xAC", KIND_INPUT);
  openIdle();
  const auto place = [](int pixels) { return Point{4 + pixels, 3 * 16 + 5}; };
  // Left and right of the middle of the first wide character, then of the second one.
  drag(place(15), place(31));
  EXPECT_EQ(view->selectedText(), "\xE6\x97\xA5");
  EXPECT_EQ(inverted(), (Rects{{4 + 8, 48, 4 + 24, 64}}));
  drag(place(16), place(32));
  EXPECT_EQ(view->selectedText(), "\xE6\x9C\xAC");
  EXPECT_EQ(inverted(), (Rects{{4 + 24, 48, 4 + 40, 64}}));
  view->onLeftDown({.at = place(15), .leftDown = true, .shift = true});
  EXPECT_EQ(view->selectedText(), "\xE6\x97\xA5\xE6\x9C\xAC");
  surface.position.x = 8;
  drag(place(8), place(80));
  EXPECT_EQ(view->selectedText(), "\xE6\x9C\xAC");
}

TEST_F(ConsoleMouseTest, TheScrollPositionCounts) {
  openIdle();
  surface.position = {16, 16};
  drag({4, 3}, {4 + 24, 3});
  EXPECT_EQ(view->selectedText(), "mma");
}

TEST_F(ConsoleMouseTest, PointsOutsideTheLeftTopAreHeldToTheText) {
  openIdle();
  drag(at(5, 0), {-300, -300});
  EXPECT_EQ(view->selectedText(), "alpha");
}

TEST_F(ConsoleMouseTest, ADragStepInvalidatesABandOnly) {
  openIdle();
  down(at(0, 1));
  surface.forget();
  move(at(2, 1));
  EXPECT_EQ(surface.invalidated, (Rects{{0, 0, 644, 48}}));
  move(at(2, 1));
  EXPECT_EQ(surface.invalidated.size(), 1U);
  surface.client.y = 40;
  move(at(2, 2));
  EXPECT_EQ(surface.invalidated.back(), (Rect{0, 0, 644, 40}));
  surface.position.y = 8;
  move(at(1, 0));
  EXPECT_EQ(surface.invalidated.back(), (Rect{0, 8, 644, 48}));
  EXPECT_EQ(surface.allInvalidated, 0);
}

TEST_F(ConsoleMouseTest, AMoveWithoutTheButtonEndsTheDrag) {
  openIdle();
  down(at(0, 0));
  move(at(5, 0));
  view->onMouseMove({.at = at(9, 0)});
  EXPECT_EQ(view->selectedText(), "alpha");
  move(at(9, 0));
  EXPECT_EQ(view->selectedText(), "alpha");
}

TEST_F(ConsoleMouseTest, AMoveWithoutTheButtonAndWithoutSelectionEndsInNothing) {
  openIdle();
  down(at(0, 0));
  view->onMouseMove({.at = at(0, 0)});
  EXPECT_FALSE(view->canCopy());
}

TEST_F(ConsoleMouseTest, TheCommandCopyIsEnabledWhileDragging) {
  openIdle();
  EXPECT_FALSE(view->canCopy());
  down(at(0, 0));
  EXPECT_TRUE(view->canCopy());
  up(at(0, 0));
  EXPECT_FALSE(view->canCopy());
}

TEST_F(ConsoleMouseTest, ShiftExtendsAStandingSelection) {
  openIdle();
  drag(at(2, 0), at(4, 0));
  surface.forget();
  view->onLeftDown({.at = at(3, 1), .leftDown = true, .shift = true});
  EXPECT_EQ(surface.allInvalidated, 2);  // the old rectangles go, the new ones come
  up(at(3, 1));
  EXPECT_EQ(view->selectedText(), "pha beta\r\ngam");
  view->onLeftDown({.at = at(0, 0), .leftDown = true, .shift = true});
  up(at(0, 0));
  EXPECT_EQ(view->selectedText(), "alpha beta\r\ngam");
}

TEST_F(ConsoleMouseTest, ShiftWithoutASelectionBeginsOne) {
  openIdle();
  view->onLeftDown({.at = at(2, 0), .leftDown = true, .shift = true});
  move(at(4, 0));
  up(at(4, 0));
  EXPECT_EQ(view->selectedText(), "ph");
}

TEST_F(ConsoleMouseTest, ControlOrAnotherButtonBeginsNothing) {
  openIdle();
  view->onLeftDown({.at = at(2, 0), .leftDown = true, .control = true});
  move(at(4, 0));
  EXPECT_FALSE(view->canCopy());
  view->onLeftDown({.at = at(2, 0), .leftDown = true, .otherButtonDown = true});
  move(at(4, 0));
  EXPECT_FALSE(view->canCopy());
}

TEST_F(ConsoleMouseTest, APressDropsTheRectangles) {
  openIdle();
  drag(at(0, 0), at(5, 0));
  surface.forget();
  view->onLeftDown({.at = at(2, 1), .leftDown = true, .control = true});
  EXPECT_TRUE(inverted().empty());
  EXPECT_EQ(surface.allInvalidated, 1);
}

TEST_F(ConsoleMouseTest, ADoubleClickSelectsAWord) {
  openIdle();
  surface.forget();
  down(at(8, 0));
  up(at(8, 0));
  view->onDoubleClick({.at = at(8, 0)});
  up(at(8, 0));
  EXPECT_EQ(view->selectedText(), "beta");
  EXPECT_EQ(inverted(), (Rects{{52, 0, 84, 16}}));
  EXPECT_GT(surface.allInvalidated, 0);
}

TEST_F(ConsoleMouseTest, ADoubleClickBeyondALineDoesNothing) {
  openIdle();
  view->onDoubleClick({.at = at(20, 0)});
  view->onDoubleClick({.at = at(0, 30)});
  EXPECT_FALSE(view->canCopy());
}

TEST_F(ConsoleMouseTest, ADoubleClickBeyondALineDropsWhatWasSelected) {
  openIdle();
  drag(at(0, 0), at(5, 0));
  view->onDoubleClick({.at = at(20, 0)});
  EXPECT_FALSE(view->canCopy());
  EXPECT_TRUE(inverted().empty());
}

TEST_F(ConsoleMouseTest, ARightClickCopiesTheSelectionIntoTheInput) {
  openIdle();
  type("stop at ");
  view->onDoubleClick({.at = at(0, 1)});
  view->onRightDown({.at = at(0, 0)});
  EXPECT_EQ(lastLine(), "stop at gamma");
  EXPECT_FALSE(view->canCopy());
  EXPECT_FALSE(surface.hint);
}

TEST_F(ConsoleMouseTest, AQuickCopyOfSeveralLinesSendsThemOneByOne) {
  open();
  ASSERT_TRUE(until([&] { return view->childState() == 1 && lineCount() == 6; }));
  pump();
  drag(at(6, 0), at(3, 2));
  view->onRightDown({});
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"beta\n"}; }));
  desktop.tick(100);
  // Each line's end acts as Return and a line feed.
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"beta\n", "\n", "gamma\n"}; }));
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return child->writes() == Lines{"beta\n", "\n", "gamma\n", "\n"}; }));
  EXPECT_EQ(lastLine(), "del");
  EXPECT_EQ(desktop.timersOf(100), 0U);
}

TEST_F(ConsoleMouseTest, ARightClickWithoutSelectionShowsTheHintForEightSeconds) {
  openIdle();
  view->onRightDown({});
  EXPECT_TRUE(surface.hint);
  ASSERT_EQ(desktop.timersOf(8000), 1U);
  desktop.tick(8000);
  EXPECT_FALSE(surface.hint);
  EXPECT_EQ(desktop.timersOf(8000), 0U);
}

TEST_F(ConsoleMouseTest, AnyKeyOrTheLeftButtonHidesTheHintSooner) {
  openIdle();
  view->onRightDown({});
  view->onCharacter("a", 1);
  EXPECT_FALSE(surface.hint);
  view->onRightDown({});
  down(at(0, 0));
  EXPECT_FALSE(surface.hint);
  up(at(0, 0));
  view->onRightDown({});
  view->onDoubleClick({.at = at(20, 0)});
  EXPECT_FALSE(surface.hint);
  EXPECT_EQ(desktop.timersOf(8000), 0U);
}

TEST_F(ConsoleMouseTest, AnotherRightClickShowsTheHintAnew) {
  openIdle();
  view->onRightDown({});
  view->onRightDown({});
  EXPECT_TRUE(surface.hint);
  EXPECT_EQ(desktop.timersOf(8000), 1U);
}

}  // namespace
}  // namespace tarnwick
