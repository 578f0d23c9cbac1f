#include "console/ConsolePaint.h"
#include "support/ConsoleFixture.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Drawn = std::vector<test::FakePainter::Drawn>;
using test::FakePainter;

class ConsolePaintTest : public testing::Test {
 protected:
  ConsolePaintTest() {
    grid.charWidth = 8;
    grid.charHeight = 16;
  }
  Drawn paint(const Rect& clip) {
    FakePainter painter(clip);
    paintText(painter, document, grid);
    return painter.drawn;
  }

  TarnwickDoc document{""};
  ConsoleGrid grid;
};

TEST_F(ConsolePaintTest, EveryKindHasItsColour) {
  EXPECT_EQ(colourOf(KIND_INPUT), (Colour{0, 0, 0}));
  EXPECT_EQ(colourOf(KIND_OUTPUT), (Colour{0, 0, 255}));
  EXPECT_EQ(colourOf(KIND_ERROR), (Colour{255, 0, 0}));
  EXPECT_EQ(colourOf(KIND_BANNER), (Colour{0, 255, 0}));
  EXPECT_EQ(consoleBackground, (Colour{255, 255, 255}));
}

TEST_F(ConsolePaintTest, SegmentsFollowOneAnotherCellByCell) {
  document.addText("out", KIND_OUTPUT);
  document.addText("er", KIND_ERROR);
  document.newLine();
  document.addText("in", KIND_INPUT);
  document.newLine();
  document.addText("end", KIND_BANNER);
  EXPECT_EQ(paint({0, 0, 644, 400}), (Drawn{{4, 0, "out", {0, 0, 255}},
                                            {28, 0, "er", {255, 0, 0}},
                                            {4, 16, "in", {0, 0, 0}},
                                            {4, 32, "end", {0, 255, 0}}}));
}

TEST_F(ConsolePaintTest, OnlyLinesInTheClipAreDrawn) {
  for (int line = 0; line < 1000; ++line) {
    document.addText(std::to_string(line), KIND_OUTPUT);
    document.newLine();
  }
  const Drawn drawn = paint({0, 16 * 500, 644, 16 * 502});
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn.front().text, "500");
  EXPECT_LE(drawn.size(), 3U);
}

TEST_F(ConsolePaintTest, ALineOfWhichOnlyTheTopShowsIsDrawn) {
  document.addText("above", KIND_OUTPUT);
  document.newLine();
  document.addText("cut", KIND_OUTPUT);
  EXPECT_EQ(paint({0, 0, 644, 17}).back().text, "cut");
}

TEST_F(ConsolePaintTest, OfALongLineOnlyWhatIsSeenIsDrawn) {
  std::string text(1000000, 'x');
  text.replace(500000, 4, "SEEN");
  document.addText(text, KIND_OUTPUT);
  const int left = 4 + 500000 * 8;
  const Drawn drawn = paint({left, 0, left + 32, 16});
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_LT(drawn[0].text.size(), 10U);
  const std::size_t seen = drawn[0].text.find("SEEN");
  ASSERT_NE(seen, std::string::npos);
  EXPECT_EQ(drawn[0].x + static_cast<int>(seen) * 8, left);
}

TEST_F(ConsolePaintTest, AWideCharacterAtTheClipsBorderIsDrawnWhole) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "\xE6\x97\xA5";
  document.addText(text, KIND_OUTPUT);
  const int left = 4 + 2001 * 8;  // in the middle of a character
  const Drawn drawn = paint({left, 0, left + 8, 16});
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0].text.size() % 3, 0U);
  EXPECT_LE(drawn[0].x, left - 8);
  EXPECT_EQ((drawn[0].x - 4) % 16, 0);
}

TEST_F(ConsolePaintTest, AClipBelowTheTextDrawsNothing) {
  document.addText("x", KIND_OUTPUT);
  EXPECT_TRUE(paint({0, 160, 644, 400}).empty());
}

/// How light a colour is, 0 to 1, as an eye sees it.
double lightness(const Colour& colour) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.red) + 0.7152 * part(colour.green) + 0.0722 * part(colour.blue);
}

double contrast(int kind) {
  const double text = lightness(colourOf(kind)) + 0.05;
  const double ground = lightness(backgroundOf(kind)) + 0.05;
  return std::max(text, ground) / std::min(text, ground);
}

TEST(ConsoleColours, TextStandsOutFromWhatItStandsOn) {
  EXPECT_GT(contrast(KIND_INPUT), 20.9);
  EXPECT_GT(contrast(KIND_OUTPUT), 8.5);
  EXPECT_GT(contrast(KIND_ERROR), 3.9);
  EXPECT_GT(contrast(KIND_BANNER), 15.0);
}

TEST_F(ConsolePaintTest, TheBannerStandsOnADarkBandOfItsOwnCells) {
  document.addText("in", KIND_INPUT);
  document.addText("end", KIND_BANNER);
  FakePainter painter;
  paintText(painter, document, grid);
  ASSERT_EQ(painter.filled.size(), 1u);
  EXPECT_EQ(painter.filled[0].first, (Rect{grid.x(2), 0, grid.x(5), 16}));
  EXPECT_EQ(painter.filled[0].second, (Colour{0, 0, 0}));
}

}  // namespace
}  // namespace tarnwick
