// The letters' size in the console of today.
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class ConsoleLettersTest : public test::ConsoleFixture {
 protected:
  ConsoleLettersTest() { program.today = true; }

  /// A console with 200 lines, "line 0" on its third one, whose letters begin with this size.
  void openLong(int letters = 0) {
    program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
      throw platform::SystemError{"CreateProcess", 2, ""};
    };
    view = std::make_unique<TarnwickView>(document, desktop, program, [](int, int) { return std::string(); });
    if (program.today)
      view->lookLike({letters, false}, [this](const TextLook&, const TextLook& now) { told.push_back(now.letters); });
    view->onStart(surface);
    ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
    {
      const TextGuard guard(document.textLock());
      for (int i = 0; i < 200; ++i) test::addOutput(document, "line " + std::to_string(i) + '\n');
    }
    view->refresh(lineCount(), 0, 0);
    surface.forget();
  }

  int topLine() const { return surface.position.y / surface.cellSize.y; }
  int end() { return lineCount() * surface.cellSize.y - surface.client.y; }

  std::vector<int> told;
};

TEST_F(ConsoleLettersTest, TheWheelWithControlMakesThemLargerAndSmaller) {
  openLong();
  EXPECT_TRUE(view->onZoom(1));
  EXPECT_EQ(surface.letters, 11);
  EXPECT_TRUE(view->onZoom(-3));
  EXPECT_EQ(surface.letters, 8);
  EXPECT_TRUE(view->onZoom(0)) << "less than a step, which is no reason to scroll";
  EXPECT_EQ(surface.letters, 8);
  EXPECT_TRUE(view->onZoom(2));
  EXPECT_EQ(surface.letters, 0) << "the usual size";
  EXPECT_EQ(told, (std::vector<int>{11, 8, 0}));
}

TEST_F(ConsoleLettersTest, TheUsualSizeComesBackAtOnce) {
  openLong();
  view->stepLetters(5);
  view->useUsualLetters();
  EXPECT_EQ(surface.letters, 0);
  EXPECT_EQ(surface.cellSize, (Point{8, 16}));
  view->useUsualLetters();
  EXPECT_EQ(told, (std::vector<int>{16, 0})) << "nothing new is not told";
}

TEST_F(ConsoleLettersTest, ThereIsALargestAndASmallest) {
  openLong();
  EXPECT_TRUE(view->canStepLetters(1));
  EXPECT_TRUE(view->canStepLetters(-1));
  view->stepLetters(50);
  EXPECT_EQ(surface.letters, 36);
  EXPECT_FALSE(view->canStepLetters(1));
  EXPECT_TRUE(view->canStepLetters(-1));
  view->stepLetters(-50);
  EXPECT_EQ(surface.letters, 6);
  EXPECT_FALSE(view->canStepLetters(-1));
}

TEST_F(ConsoleLettersTest, AConsoleBeginsWithWhatItWasGiven) {
  openLong(20);
  EXPECT_EQ(surface.letters, 20);
  EXPECT_EQ(surface.sizes.y, lineCount() * 32);
  view->stepLetters(1);
  EXPECT_EQ(surface.letters, 22);
}

TEST_F(ConsoleLettersTest, TheDocumentGrowsWithThem) {
  openLong();
  view->stepLetters(5);
  EXPECT_EQ(surface.cellSize, (Point{12, 25}));
  EXPECT_EQ(surface.sizes, (Point{4 + (8 + 1) * 12, lineCount() * 25}));
  EXPECT_GT(surface.allInvalidated, 0);
  test::FakePainter painter({0, 100, 644, 150});
  view->paint(painter);
  ASSERT_FALSE(painter.drawn.empty());
  EXPECT_EQ(painter.drawn[0].y % 25, 0);
}

TEST_F(ConsoleLettersTest, AViewAtTheEndStaysThere) {
  openLong();
  ASSERT_EQ(surface.position.y, end());
  view->stepLetters(4);
  EXPECT_EQ(surface.position.y, end());
  view->stepLetters(-7);
  EXPECT_EQ(surface.position.y, end());
  EXPECT_TRUE(surface.titles.empty()) << "nobody has scrolled back";
}

TEST_F(ConsoleLettersTest, OfOneThatWasScrolledBackTheTopLineStays) {
  openLong();
  surface.position.y = 50 * 16;
  view->onScrolled();
  view->stepLetters(4);
  EXPECT_EQ(topLine(), 50);
  view->stepLetters(-6);
  EXPECT_EQ(topLine(), 50);
  ASSERT_FALSE(surface.titles.empty());
  EXPECT_TRUE(surface.titles.back().ends_with(" - scrolled back"));
  view->refresh(lineCount(), 0, 0);
  EXPECT_EQ(topLine(), 50) << "it still holds still";
}

TEST_F(ConsoleLettersTest, TheLeftColumnStaysToo) {
  openLong();
  surface.position = {10 * 8, 50 * 16};
  view->onScrolled();
  view->stepLetters(5);
  EXPECT_EQ(surface.position.x, 10 * 12);
}

TEST_F(ConsoleLettersTest, ASelectionStaysOnItsLetters) {
  openLong();
  surface.position.y = 0;
  view->onScrolled();
  MouseState mouse;
  mouse.at = {4, 2 * 16 + 1};
  mouse.leftDown = true;
  view->onLeftDown(mouse);
  mouse.at.x = 4 + 4 * 8;
  view->onMouseMove(mouse);
  view->onLeftUp({});
  const std::string selected = view->selectedText();
  view->stepLetters(5);
  EXPECT_EQ(view->selectedText(), selected);
  test::FakePainter painter;
  view->paint(painter);
  EXPECT_EQ(painter.inverted.back(), (Rect{4, 50, 4 + 4 * 12, 75}));
}

TEST_F(ConsoleLettersTest, TheCaretStandsInItsColumn) {
  openLong();
  type("abc");
  view->stepLetters(5);
  surface.position.y = end();
  test::FakePainter painter({0, end(), 644, end() + 400});
  view->paint(painter);
  ASSERT_EQ(painter.inverted.size(), 1U);
  EXPECT_EQ(painter.inverted[0], (Rect{4 + 3 * 12, (lineCount() - 1) * 25, 4 + 3 * 12 + 2, lineCount() * 25}));
}

TEST_F(ConsoleLettersTest, AHintGoes) {
  openLong();
  view->onRightDown({});
  ASSERT_TRUE(surface.hint);
  view->stepLetters(1);
  EXPECT_FALSE(surface.hint);
}

TEST_F(ConsoleLettersTest, InTheClassicConsoleTheWheelScrollsWhateverIsHeld) {
  program.today = false;
  openLong();
  EXPECT_FALSE(view->onZoom(1));
  EXPECT_EQ(surface.letters, 0);
}

TEST_F(ConsoleLettersTest, TheColoursFollowTheDesktop) {
  openLong();
  EXPECT_EQ(view->ground(), lightPalette.ground);
  surface.dark = true;
  EXPECT_EQ(view->ground(), darkPalette.ground);
  test::FakePainter painter({0, end(), 644, end() + 400});
  view->paint(painter);
  ASSERT_FALSE(painter.drawn.empty());
  EXPECT_EQ(painter.drawn[0].colour, darkPalette.output);
}

TEST_F(ConsoleLettersTest, TheClassicConsoleIsWhiteOnEveryDesktop) {
  program.today = false;
  openLong();
  surface.dark = true;
  EXPECT_EQ(view->ground(), (Colour{255, 255, 255}));
  test::FakePainter painter({0, end(), 644, end() + 400});
  view->paint(painter);
  ASSERT_FALSE(painter.drawn.empty());
  EXPECT_EQ(painter.drawn[0].colour, (Colour{0, 0, 255}));
}

TEST_F(ConsoleLettersTest, AClosedConsoleChangesNothing) {
  openLong();
  view->onClose();
  EXPECT_TRUE(view->onZoom(1));
  EXPECT_FALSE(view->canStepLetters(1));
  EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace tarnwick
