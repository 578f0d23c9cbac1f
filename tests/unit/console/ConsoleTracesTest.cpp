// Stack traces in a console: what shows under the mouse, and what a click opens.
#include "console/ConsolePaint.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class ConsoleTracesTest : public test::ConsoleFixture {
 protected:
  ConsoleTracesTest() { program.today = true; }

  /// The trace stands in the line 2, its place from column 11 to 22.
  void openWithTrace() {
    openRunning();
    view->openTracesBy([this](const TraceLink& trace) { opened.push_back(trace); });
    child->err("at x.A.run(Main.java:57)\nabc\n");
    ASSERT_TRUE(until([&] { return lineCount() == 5 && lastLine().empty(); }));
    pump();
    surface.forget();
  }
  static MouseState at(int column, int line, bool control = true) {
    return {{4 + 8 * column + 4, 16 * line + 8}, false, false, false, control};
  }
  void click(MouseState mouse) {
    mouse.leftDown = true;
    view->onLeftDown(mouse);
    mouse.leftDown = false;
    view->onLeftUp(mouse);
  }
  bool underlined() {
    test::FakePainter painter;
    view->paint(painter);
    const Rect line{4 + 8 * 11, 16 * 3 - 2, 4 + 8 * 23, 16 * 3 - 1};
    return std::find(painter.filled.begin(), painter.filled.end(), std::pair(line, lightPalette.link)) !=
           painter.filled.end();
  }

  std::vector<TraceLink> opened;
};

TEST_F(ConsoleTracesTest, AClickWithTheControlKeyOpensThePlace) {
  openWithTrace();
  click(at(11, 2));
  click(at(22, 2));
  ASSERT_EQ(opened.size(), 2U);
  EXPECT_EQ(opened[0], (TraceLink{"Main.java", 57, "x", {11, 23}}));
  EXPECT_EQ(opened[1], opened[0]);
  click(at(10, 2));
  click(at(23, 2));
  click(at(12, 3));
  click(at(12, 40));
  EXPECT_EQ(opened.size(), 2U);
  EXPECT_FALSE(view->canCopy()) << "nothing is selected by it";
}

TEST_F(ConsoleTracesTest, AClickWithoutItSelectsAsEver) {
  openWithTrace();
  click(at(12, 2, false));
  EXPECT_TRUE(opened.empty());
  MouseState other = at(12, 2);
  other.otherButtonDown = true;
  click(other);
  EXPECT_TRUE(opened.empty());
}

TEST_F(ConsoleTracesTest, AHandAndALineShowThatThereIsSomethingToOpen) {
  openWithTrace();
  view->onMouseMove(at(12, 2, false));
  EXPECT_FALSE(surface.hand);
  EXPECT_FALSE(underlined());
  view->onMouseMove(at(12, 2));
  EXPECT_TRUE(surface.hand);
  EXPECT_TRUE(underlined());
  EXPECT_EQ(surface.invalidated, (std::vector<Rect>{{4 + 8 * 11, 46, 4 + 8 * 23, 47}}));
  view->onMouseMove(at(13, 2));
  EXPECT_EQ(surface.invalidated.size(), 1U) << "nothing has changed";
  view->onMouseMove(at(13, 3));
  EXPECT_FALSE(surface.hand);
  EXPECT_FALSE(underlined());
  EXPECT_EQ(surface.invalidated.size(), 2U);
}

TEST_F(ConsoleTracesTest, ScrollingTakesTheLineAway) {
  openWithTrace();
  view->onMouseMove(at(12, 2));
  view->onScrolled();
  EXPECT_FALSE(surface.hand);
  EXPECT_FALSE(underlined());
}

TEST_F(ConsoleTracesTest, AClickTakesTheHandAway) {
  openWithTrace();
  view->onMouseMove(at(12, 2));
  click(at(12, 2));
  EXPECT_EQ(opened.size(), 1U);
  EXPECT_FALSE(surface.hand) << "another window has the mouse next";
}

TEST_F(ConsoleTracesTest, WhileTextIsSelectedNothingIsPointedAt) {
  openWithTrace();
  view->onLeftDown({{4, 40}, true, false, false, false});
  MouseState dragged = at(14, 2);
  dragged.leftDown = true;
  view->onMouseMove(dragged);
  EXPECT_FALSE(surface.hand);
}

TEST_F(ConsoleTracesTest, TheClassicConsoleOpensNothing) {
  program.today = false;
  openWithTrace();
  view->onMouseMove(at(12, 2));
  EXPECT_FALSE(surface.hand);
  click(at(12, 2));
  EXPECT_TRUE(opened.empty());
}

TEST_F(ConsoleTracesTest, ThePlaceGoesWithItsLine) {
  openWithTrace();
  view->onMouseMove(at(12, 2));
  std::string more;
  for (int line = 0; line < TarnwickDoc::maxLines - 3; ++line) more += "x\n";
  child->out(more + "the end");
  ASSERT_TRUE(until([&] { return lastLine() == "the end"; }));
  pump();
  // Two lines have fallen off the top.
  surface.position = {};
  test::FakePainter painter;
  view->paint(painter);
  std::vector<Rect> lines;
  for (const auto& [rect, colour] : painter.filled)
    if (colour == lightPalette.link) lines.push_back(rect);
  ASSERT_EQ(lines.size(), 1U);
  const std::uint64_t gone = [&] {
    const TextGuard guard(document.textLock());
    return document.linesGone();
  }();
  EXPECT_GT(gone, 0U);
  EXPECT_EQ(lines[0].bottom, 16 * (3 - static_cast<int>(gone)) - 1);
}

TEST_F(ConsoleTracesTest, LinesThatHaveFallenOffBeforeAreCounted) {
  openRunning();
  view->openTracesBy([](const TraceLink&) {});
  std::string more;
  for (int line = 0; line < TarnwickDoc::maxLines + 50; ++line) more += "(A.java:1)\n";
  child->out(more + "the end");
  ASSERT_TRUE(until([&] { return lastLine() == "the end"; }));
  pump();
  surface.position = {};
  view->onMouseMove(at(1, 7));
  test::FakePainter painter;
  view->paint(painter);
  const auto isLink = [](const auto& one) { return one.second == lightPalette.link; };
  const auto found = std::find_if(painter.filled.begin(), painter.filled.end(), isLink);
  ASSERT_NE(found, painter.filled.end());
  EXPECT_EQ(found->first.bottom, 16 * 8 - 1);
}

}  // namespace
}  // namespace tarnwick
