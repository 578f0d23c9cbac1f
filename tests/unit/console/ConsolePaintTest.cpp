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
  const Colour white{255, 255, 255};
  EXPECT_EQ(classicPalette.of(KIND_INPUT), (StyledColours{{0, 0, 0}, white}));
  EXPECT_EQ(classicPalette.of(KIND_OUTPUT), (StyledColours{{0, 0, 255}, white}));
  EXPECT_EQ(classicPalette.of(KIND_ERROR), (StyledColours{{255, 0, 0}, white}));
  EXPECT_EQ(classicPalette.of(KIND_BANNER), (StyledColours{{0, 255, 0}, {0, 0, 0}}));
  EXPECT_EQ(classicPalette.ground, white);
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

double contrastOf(const StyledColours& colours) {
  const double ink = lightness(colours.ink) + 0.05;
  const double ground = lightness(colours.ground) + 0.05;
  return std::max(ink, ground) / std::min(ink, ground);
}

TEST(ConsoleColours, TextStandsOutFromWhatItStandsOn) {
  EXPECT_GT(contrastOf(classicPalette.of(KIND_INPUT)), 20.9);
  EXPECT_GT(contrastOf(classicPalette.of(KIND_OUTPUT)), 8.5);
  EXPECT_GT(contrastOf(classicPalette.of(KIND_ERROR)), 3.9);
  EXPECT_GT(contrastOf(classicPalette.of(KIND_BANNER)), 15.0);
}

TEST(ConsoleColours, InTheConsoleOfTodayEachStandsFarOutOnBothGrounds) {
  for (const ConsolePalette* const palette : {&lightPalette, &darkPalette}) {
    SCOPED_TRACE(palette == &darkPalette ? "dark" : "light");
    EXPECT_EQ(lightness(palette->ground) < 0.1, palette == &darkPalette);
    for (const int kind : {KIND_NONE, KIND_INPUT, KIND_OUTPUT, KIND_ERROR, KIND_BANNER, KIND_DEBUGGER})
      EXPECT_GE(contrastOf(palette->of(kind)), 7.0) << kind;
    EXPECT_GE(contrastOf(palette->mark), 7.0);
    // Where the link's line is drawn, the text's own colour stands as well.
    EXPECT_GE(contrastOf({palette->link, palette->ground}), 4.5);
  }
}

TEST(ConsoleColours, TheDebuggerHasAColourOfItsOwnEverywhere) {
  for (const ConsolePalette* const palette : {&classicPalette, &lightPalette, &darkPalette}) {
    EXPECT_GE(contrastOf(palette->of(KIND_DEBUGGER)), 7.0);
    EXPECT_EQ(palette->of(KIND_DEBUGGER).ground, palette->ground);
    for (const int kind : {KIND_INPUT, KIND_OUTPUT, KIND_ERROR, KIND_BANNER})
      EXPECT_NE(palette->of(KIND_DEBUGGER).ink, palette->of(kind).ink) << kind;
  }
}

TEST(ConsoleColours, OutputIsBlueErrorsAreRedAndTheBannerIsGreenOnBothGrounds) {
  for (const ConsolePalette* const palette : {&lightPalette, &darkPalette}) {
    const auto& [red, green, blue] = palette->output;
    EXPECT_TRUE(blue > red + 50 && blue > green + 50);
    EXPECT_GT(palette->error.red, palette->error.green + 50);
    EXPECT_GT(palette->error.red, palette->error.blue + 50);
    EXPECT_GT(palette->banner.ink.green, palette->banner.ink.red + 50);
    EXPECT_GT(palette->banner.ink.green, palette->banner.ink.blue + 50);
  }
}

TEST_F(ConsolePaintTest, TextIsPaintedInTheColoursOfItsPalette) {
  document.addText("out", KIND_OUTPUT);
  document.addText("er", KIND_ERROR);
  document.addText("in", KIND_INPUT);
  FakePainter painter;
  TextSearch search;
  search.lookFor("er");
  paintText(painter, document, grid, search, darkPalette);
  EXPECT_EQ(painter.drawn, (Drawn{{4, 0, "out", darkPalette.output},
                                  {28, 0, "er", darkPalette.error},
                                  {44, 0, "in", darkPalette.typed},
                                  {28, 0, "er", darkPalette.mark.ink}}));
  EXPECT_EQ(painter.filled, (std::vector<std::pair<Rect, Colour>>{{{28, 0, 44, 16}, darkPalette.mark.ground}}))
      << "its own ground is there already";
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
