// Long lines that the console of today breaks at the window's width.
#include "console/FindDlg.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr int columns = 20;

/// A window of 20 columns in a row and 10 rows; a column stays free at the right.
class ConsoleWrapTest : public test::ConsoleFixture {
 protected:
  using Drawn = test::FakePainter::Drawn;

  ConsoleWrapTest() {
    program.today = true;
    surface.client = {4 + (columns + 1) * 8, 10 * 16};
  }

  void openWrapped(const std::string& text, bool wrapped = true) {
    program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
      throw platform::SystemError{"CreateProcess", 2, ""};
    };
    view = std::make_unique<TarnwickView>(document, desktop, program, [](int, int) { return std::string(); });
    view->lookLike({0, wrapped}, [this](const TextLook&, const TextLook& now) { told.push_back(now.wrapLines); });
    view->onStart(surface);
    ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
    view->clear();
    add(text);
  }
  void add(const std::string& text) {
    {
      const TextGuard guard(document.textLock());
      test::addOutput(document, text);
      screenEnd = document.lastLineLength();
    }
    view->refresh(lineCount(), screenEnd, screenEnd);
  }

  test::FakePainter painted() {
    const Point at = surface.position;
    test::FakePainter painter({at.x, at.y, at.x + surface.client.x, at.y + surface.client.y});
    view->paint(painter);
    return painter;
  }
  /// The rows that show, from the top.
  std::vector<std::string> shown() {
    std::vector<std::string> rows(static_cast<std::size_t>(surface.client.y / 16));
    for (const auto& one : painted().drawn) {
      EXPECT_EQ(one.x, 4) << one.text;
      const auto row = static_cast<std::size_t>((one.y - surface.position.y) / 16);
      if (row < rows.size()) rows[row] = one.text;
    }
    while (!rows.empty() && rows.back().empty()) rows.pop_back();
    return rows;
  }
  /// Drags from the middle of one cell of the window to that of another.
  std::string selectedBetween(int column, int row, int toColumn, int toRow) {
    MouseState mouse;
    mouse.leftDown = true;
    mouse.at = {4 + column * 8, row * 16 + 8};
    view->onLeftDown(mouse);
    mouse.at = {4 + toColumn * 8, toRow * 16 + 8};
    view->onMouseMove(mouse);
    view->onLeftUp({});
    return view->selectedText();
  }

  const std::string thirty = "abcdefghijklmnopqrst0123456789";
  int screenEnd = 0;
  std::vector<bool> told;
};

TEST_F(ConsoleWrapTest, ALongLineShowsInSeveralRowsAndNothingScrollsSideways) {
  openWrapped(thirty + "\nshort\n");
  EXPECT_EQ(shown(), (std::vector<std::string>{"abcdefghijklmnopqrst", "0123456789", "short"}));
  EXPECT_EQ(surface.sizes.x, 1);
  EXPECT_EQ(surface.sizes.y, 4 * 16);
  EXPECT_EQ(lines()[0], thirty) << "the text itself stays as it is";
}

TEST_F(ConsoleWrapTest, ItIsOffAtFirstAndTurnedOnAndOff) {
  openWrapped(thirty + "\nshort\n", false);
  EXPECT_EQ(shown(), (std::vector<std::string>{thirty.substr(0, 23), "short"}));
  view->setWrapLines(true);
  EXPECT_EQ(shown(), (std::vector<std::string>{"abcdefghijklmnopqrst", "0123456789", "short"}));
  view->setWrapLines(true);
  view->setWrapLines(false);
  EXPECT_EQ(shown(), (std::vector<std::string>{thirty.substr(0, 23), "short"}));
  EXPECT_EQ(surface.sizes.x, 4 + 31 * 8);
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

TEST_F(ConsoleWrapTest, AnotherWidthBreaksThemAnew) {
  openWrapped(thirty + "\n");
  surface.client.x = 4 + 11 * 8;
  view->onResized();
  EXPECT_EQ(shown(), (std::vector<std::string>{"abcdefghij", "klmnopqrst", "0123456789"}));
  EXPECT_EQ(surface.sizes.y, 4 * 16);
  surface.client.x = 1;
  view->onResized();
  EXPECT_EQ(surface.sizes.y, 31 * 16) << "a column at least";
}

TEST_F(ConsoleWrapTest, LargerLettersBreakThemAnew) {
  openWrapped(thirty + "\n");
  view->stepLetters(9);
  EXPECT_EQ(surface.cellSize.x, 19);
  // (4 + 21 * 8 - 4) / 19 - 1 = 7 columns.
  EXPECT_EQ(surface.sizes.y, (5 + 1) * surface.cellSize.y);
}

TEST_F(ConsoleWrapTest, TheEndIsFollowedByRows) {
  openWrapped("");
  for (int line = 0; line < 20; ++line) add(thirty + '\n');
  EXPECT_EQ(surface.position, (Point{0, (41 - 10) * 16}));
  add("x");
  EXPECT_EQ(surface.position, (Point{0, (41 - 10) * 16}));
  add(std::string(columns, 'x'));
  EXPECT_EQ(surface.position, (Point{0, (42 - 10) * 16}));
}

TEST_F(ConsoleWrapTest, AViewThatWasScrolledBackHoldsStillWhileLinesFallOffTheTop) {
  openWrapped("");
  std::string text;
  for (int line = 0; line < TarnwickDoc::maxLines; ++line)
    text += std::to_string(line) + (line % 2 ? " " + thirty : "") + '\n';
  add(text);
  surface.position.y = 1000 * 16 + 5;
  view->onScrolled();
  const auto before = shown();
  for (int round = 0; round < 3; ++round) {
    {
      const TextGuard guard(document.textLock());
      for (int line = 0; line < 17; ++line) test::addOutput(document, "later\n");
    }
    view->refresh(lineCount(), 0, 0);
    EXPECT_LT(surface.position.y, 1000 * 16);
    EXPECT_EQ(surface.position.y % 16, 5);
    EXPECT_EQ(shown(), before);
  }
  for (int round = 0; round < 2; ++round) {
    {
      const TextGuard guard(document.textLock());
      for (int line = 0; line < TarnwickDoc::maxLines; ++line) test::addOutput(document, "later\n");
    }
    view->refresh(lineCount(), 0, 0);
    EXPECT_EQ(surface.position.y, 0) << "what was there has gone";
  }
}

TEST_F(ConsoleWrapTest, ABrokenLineIsSelectedAndCopiedAsOne) {
  openWrapped(thirty + "\nshort\n");
  EXPECT_EQ(selectedBetween(18, 0, 3, 1), "st012");
  const auto inverted = painted().inverted;
  ASSERT_EQ(inverted.size(), 3U) << "the caret and two rows";
  EXPECT_EQ(inverted[1], (Rect{4 + 18 * 8, 0, 4 + columns * 8, 16}));
  EXPECT_EQ(inverted[2], (Rect{4, 16, 4 + 3 * 8, 32}));
  EXPECT_EQ(selectedBetween(2, 1, 2, 2), "23456789\r\nsh");
  EXPECT_EQ(selectedBetween(0, 0, 100, 0), "abcdefghijklmnopqrst") << "beyond the row's end";
  EXPECT_EQ(painted().inverted, (std::vector<Rect>{{4, 3 * 16, 6, 4 * 16}, {4, 0, 4 + columns * 8, 16}}))
      << "nothing of the row below";
  EXPECT_EQ(selectedBetween(0, 1, 100, 1), "0123456789");
  view->selectAll();
  EXPECT_EQ(view->selectedText(), thirty + "\r\nshort\r\n");
  EXPECT_EQ(painted().inverted.back(), (Rect{4, 0, 4 + columns * 8, 4 * 16}));
}

TEST_F(ConsoleWrapTest, AWordIsSelectedAcrossItsRows) {
  openWrapped("one two " + thirty + " end\n");
  MouseState mouse;
  mouse.at = {4 + 3 * 8 + 2, 1 * 16 + 8};
  view->onDoubleClick(mouse);
  EXPECT_EQ(view->selectedText(), thirty);
  // From column 8 of the first row to column 18 of the second.
  const auto inverted = painted().inverted;
  ASSERT_EQ(inverted.size(), 3U);
  EXPECT_EQ(inverted[1], (Rect{4 + 8 * 8, 0, 4 + columns * 8, 16}));
  EXPECT_EQ(inverted[2], (Rect{4, 16, 4 + 18 * 8, 32}));
}

TEST_F(ConsoleWrapTest, WhatIsTypedGoesOnInTheNextRowWithItsCaret) {
  openWrapped("");
  const auto caret = [this] { return painted().inverted.at(0); };
  type(std::string(columns - 1, 'x'));
  EXPECT_EQ(caret(), (Rect{4 + 19 * 8, 0, 4 + 19 * 8 + 2, 16}));
  type("y");
  EXPECT_EQ(caret(), (Rect{4 + 20 * 8, 0, 4 + 20 * 8 + 2, 16})) << "in the column that stays free";
  type("z");
  EXPECT_EQ(caret(), (Rect{4 + 8, 16, 4 + 8 + 2, 32}));
  EXPECT_EQ(shown(), (std::vector<std::string>{std::string(19, 'x') + 'y', "z"}));
  view->onKey(ConsoleKey::Left, 0);
  EXPECT_EQ(caret(), (Rect{4, 16, 4 + 2, 32})) << "before the letter that is there";
  view->onKey(ConsoleKey::Left, 0);
  EXPECT_EQ(caret(), (Rect{4 + 19 * 8, 0, 4 + 19 * 8 + 2, 16}));
  view->onCharacter("\b", 1);
  EXPECT_EQ(shown(), (std::vector<std::string>{std::string(18, 'x') + "yz"}));
}

TEST_F(ConsoleWrapTest, APageIsAPageOfRows) {
  openWrapped("");
  for (int line = 0; line < 20; ++line) add(thirty + '\n');
  view->onKey(ConsoleKey::PageUp, 0);
  EXPECT_EQ(surface.position.y, (31 - 9) * 16);
  EXPECT_EQ(shown()[0], "abcdefghijklmnopqrst");
}

TEST_F(ConsoleWrapTest, TheTopStaysWhereItIsWhateverChanges) {
  openWrapped("");
  for (int line = 0; line < 40; ++line) add(std::to_string(line) + ' ' + thirty + '\n');
  surface.position.y = 20 * 16;
  view->onScrolled();
  ASSERT_EQ(shown()[0].substr(0, 3), "10 ");
  surface.client.x = 4 + 11 * 8;
  view->onResized();
  EXPECT_EQ(shown()[0].substr(0, 3), "10 ");
  view->stepLetters(1);
  EXPECT_EQ(painted().drawn.at(0).text.substr(0, 3), "10 ");
  view->useUsualLetters();
  view->setWrapLines(false);
  EXPECT_EQ(shown()[0].substr(0, 3), "10 ");
  view->setWrapLines(true);
  EXPECT_EQ(shown()[0].substr(0, 3), "10 ");
  ASSERT_FALSE(surface.titles.empty());
  EXPECT_TRUE(surface.titles.back().ends_with(" - scrolled back"));
}

TEST_F(ConsoleWrapTest, AWideCharacterIsNotCutByARow) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  openWrapped(std::string(columns - 1, 'x') + "\xE6\x97\xA5yz\n");
  EXPECT_EQ(painted().drawn,
            (std::vector<Drawn>{{4, 0, std::string(columns - 1, 'x') + "\xE6\x97\xA5", lightPalette.output},
                                {4 + 8, 16, "yz", lightPalette.output}}));
  EXPECT_EQ(selectedBetween(19, 0, 2, 1), "\xE6\x97\xA5y");
}

TEST_F(ConsoleWrapTest, OfAVeryLongLineOnlyWhatIsSeenIsDrawn) {
  openWrapped(std::string(1000000, 'x') + '\n');
  EXPECT_EQ(surface.position.y, (1000000 / columns + 1 - 10) * 16);
  EXPECT_LE(painted().drawn.size(), 11U);
}

}  // namespace
}  // namespace tarnwick
