// Output as on a terminal: what a program writes over what it wrote, and its colours.
#include "console/ConsolePaint.h"
#include "console/OutputReader.h"
#include "console/StyledColours.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>
#include <random>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using test::charactersAreUtf8;
using test::segmentsOf;
using test::textOf;

class TerminalTextTest : public testing::Test {
 protected:
  explicit TerminalTextTest(bool today = true) : screen(document, today) {
    screen.grid.charWidth = 8;
    screen.grid.charHeight = 16;
  }

  Lines shown() { return textOf(document); }
  Lines segments() { return segmentsOf(document.lastLine()); }
  const TextStyle& style(std::size_t segment) { return document.lastLine().segments().at(segment).style; }

  TarnwickDoc document{""};
  ConsoleScreen screen;
  OutputReader out{screen, KIND_OUTPUT};
  OutputReader err{screen, KIND_ERROR};
};

class ClassicTextTest : public TerminalTextTest {
 protected:
  ClassicTextTest() : TerminalTextTest(false) {}
};

TEST_F(TerminalTextTest, ACarriageReturnWritesOverTheLine) {
  out.handle(" 41 %\r 42 %");
  EXPECT_EQ(segments(), Lines{"2: 42 %"});
  out.handle("\r7");
  EXPECT_EQ(segments(), Lines{"2:742 %"});
  out.handle("\r\nnext\r\n");
  EXPECT_EQ(shown(), (Lines{"742 %", "next", ""}));
}

TEST_F(TerminalTextTest, ALetterWhoseLowBitsAreAControlCodeIsALetter) {
  if (test::charactersAreUtf8()) GTEST_SKIP() << "bytes from 128 up belong to characters here";
  out.handle("\x80 10 \x96 \x8A\x8D\x9B|");
  EXPECT_EQ(shown(), Lines{"\x80 10 \x96 \x8A\x8D\x9B|"});
}

TEST_F(ClassicTextTest, CarriageReturnsAndBackspacesVanish) {
  out.handle(" 41 %\r 42 %\b\bx\f\r\n");
  EXPECT_EQ(shown(), (Lines{" 41 % 42 %x", ""}));
}

TEST_F(ClassicTextTest, SequencesStandInTheText) {
  out.handle("\x1B[31mred");
  EXPECT_EQ(segments(), Lines{"2:[31mred"});
}

TEST_F(TerminalTextTest, ABackspaceGoesBackAndTakesNothing) {
  out.handle("abc\b\b");
  EXPECT_EQ(segments(), Lines{"2:abc"});
  out.handle("X");
  EXPECT_EQ(segments(), Lines{"2:aXc"});
  out.handle("\b\b\b\b\bY");
  EXPECT_EQ(segments(), Lines{"2:YXc"});
  out.handle("\rspin |\b/\b-\b\\");
  EXPECT_EQ(segments(), Lines{"2:spin \\"});
}

TEST_F(TerminalTextTest, AFormFeedGoesDownInTheSameColumn) {
  out.handle("abc\fdef\f");
  EXPECT_EQ(shown(), (Lines{"abc", "   def", "      "}));
  out.handle("\rx\n\fy");
  EXPECT_EQ(shown(), (Lines{"abc", "   def", "x     ", "", "y"}));
}

TEST_F(TerminalTextTest, FormFeedsOfALongLineTakeLittleMemory) {
  out.handle(std::string(2000, 'x') + "\f\f");
  EXPECT_EQ(document.lastLineLength(), 0);
}

TEST_F(TerminalTextTest, ATabGoesOverWhatStandsThereAndFillsUpBeyond) {
  out.handle("0123456789\r\tX");
  EXPECT_EQ(segments(), Lines{"2:01234567X9"});
  out.handle("\tY");
  EXPECT_EQ(segments(), Lines{"2:01234567X9      Y"});
}

TEST_F(TerminalTextTest, BothOutputsWriteInOnePlace) {
  out.handle("abcdef\r");
  err.handle("XY");
  EXPECT_EQ(segments(), (Lines{"3:XY", "2:cdef"}));
  out.handle("\rZ");
  EXPECT_EQ(segments(), (Lines{"2:Z", "3:Y", "2:cdef"}));
  err.handle("\bA");
  EXPECT_EQ(segments(), (Lines{"3:AY", "2:cdef"}));
}

TEST_F(TerminalTextTest, WhatIsTypedStaysBehindALineThatIsWrittenOver) {
  out.handle("10 % ");
  document.addText("ab", KIND_INPUT);
  screen.caret.setColumn(6);
  out.handle("\r11 % done ");
  EXPECT_EQ(segments(), (Lines{"2:11 % done ", "1:ab"}));
  EXPECT_EQ(screen.caret.column(), 11);
  out.handle("\r12");
  EXPECT_EQ(segments(), (Lines{"2:12 % done ", "1:ab"}));
}

TEST_F(TerminalTextTest, WhatWasSentWithoutALineEndIsNotWrittenOver) {
  out.handle("> ");
  document.addText("sent", KIND_INPUT);
  document.addText("", KIND_ERROR);
  out.handle("out");
  EXPECT_EQ(segments(), (Lines{"2:> ", "1:sent", "3:", "2:out"}));
}

TEST_F(TerminalTextTest, ALineThatTheUserBeginsIsWrittenFromItsStart) {
  out.handle("question\r");
  screen.newLine();
  out.handle("answer");
  EXPECT_EQ(shown(), (Lines{"question", "answer"}));
}

TEST_F(TerminalTextTest, OfACoveredHalfOfACharacterABlankIsLeft) {
  if (!charactersAreUtf8()) GTEST_SKIP() << "a character is one byte and one column here";
  out.handle("\xE6\x97\xA5\xE6\x9C\xAC!\r.");
  EXPECT_EQ(segments(), Lines{"2:. \xE6\x9C\xAC!"});
  out.handle("\r\xC3\xA4\xC3\xB6\xC3\xBC");
  EXPECT_EQ(segments(), Lines{"2:\xC3\xA4\xC3\xB6\xC3\xBC !"});
  EXPECT_EQ(document.lastLineLength(), 5);
  out.handle("\r\xE6\x97\xA5");
  EXPECT_EQ(segments(), Lines{"2:\xE6\x97\xA5\xC3\xBC !"});
}

TEST_F(TerminalTextTest, ColoursPartALineAndEndWhereTheyAreTakenBack) {
  out.handle("a\x1B[31;1mred\x1B[0mb");
  EXPECT_EQ(segments(), (Lines{"2:a", "2:red", "2:b"}));
  EXPECT_EQ(style(0), TextStyle{});
  EXPECT_EQ(style(1), (TextStyle{1, TextStyle::plain, true}));
  EXPECT_EQ(style(2), TextStyle{});
  EXPECT_EQ(document.lastLine().text(), "aredb");
}

TEST_F(TerminalTextTest, EachOutputHasItsOwnColours) {
  out.handle("\x1B[32mgreen");
  err.handle("plain");
  out.handle("\ngreen");
  EXPECT_EQ(style(0).ink, 2);
  EXPECT_EQ(document.lines()[0].segments()[1].style, TextStyle{});
}

TEST_F(TerminalTextTest, BlocksMayCutEverythingAnywhere) {
  const std::string text =
      "a\x1B[38;5;208mb\x1B]0;title\x1B\\c\x1B[2K\rd\x1B[1;48;2;1;2;3me\tf\x1B(Bg\b\bh\x1B[mi\fj\r\nk\x1B[?25hl "
      "\xC3\xA4!";
  out.handle(text);
  std::vector<Lines> whole;
  for (const auto& line : document.lines()) whole.push_back(segmentsOf(line));
  for (std::size_t size = 1; size < text.size(); ++size) {
    TarnwickDoc other("");
    ConsoleScreen cut(other, true);
    OutputReader reader(cut, KIND_OUTPUT);
    for (std::size_t at = 0; at < text.size(); at += size) reader.handle(std::string_view(text).substr(at, size));
    std::vector<Lines> pieces;
    for (const auto& line : other.lines()) pieces.push_back(segmentsOf(line));
    EXPECT_EQ(pieces, whole) << size;
  }
}

// Against a line of plain cells, each with its letter and its kind.
TEST_F(TerminalTextTest, OverwritingDoesWhatAPlainLineOfCellsDoes) {
  std::mt19937 random(7);
  const auto upTo = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
  std::string letters;
  std::string kinds;
  ConsoleLine line;
  for (int round = 0; round < 3000; ++round) {
    if (round % 60 == 0) {
      line = {};
      letters.clear();
      kinds.clear();
    }
    const std::string text(static_cast<std::size_t>(1 + upTo(5)), static_cast<char>('a' + upTo(25)));
    const int kind = KIND_OUTPUT + upTo(1);
    const TextStyle style{upTo(1), TextStyle::plain};
    const auto column = static_cast<std::size_t>(upTo(static_cast<int>(letters.size())));
    if (column == letters.size()) {
      line.append(text, kind, style);
    } else {
      EXPECT_EQ(line.overwrite(static_cast<int>(column), text, kind, style), static_cast<int>(column + text.size()));
    }
    const std::size_t covered = std::min(text.size(), letters.size() - column);
    letters.replace(column, covered, text);
    kinds.replace(column, covered, std::string(text.size(), static_cast<char>('0' + kind * 2 + style.ink)));
    ASSERT_EQ(line.text(), letters);
    ASSERT_EQ(line.length(), static_cast<int>(letters.size()));
    std::string shownKinds;
    const ConsoleSegment* before = nullptr;
    for (const auto& segment : line.segments()) {
      shownKinds.append(segment.text.size(), static_cast<char>('0' + segment.kind * 2 + segment.style.ink));
      ASSERT_EQ(segment.columns, static_cast<int>(segment.text.size()));
      ASSERT_TRUE(!before || before->kind != segment.kind || before->style != segment.style) << "neighbours alike";
      before = &segment;
    }
    ASSERT_EQ(shownKinds, kinds);
    ASSERT_EQ(line.weight(), letters.size() + (line.segments().size() - 1) * sizeof(ConsoleSegment));
  }
}

TEST_F(TerminalTextTest, AProgressBarOfAnyLengthStaysOneLine) {
  for (int count = 0; count < 100000; ++count) out.handle("\r" + std::to_string(count) + " %");
  EXPECT_EQ(shown(), Lines{"99999 %"});
  EXPECT_EQ(document.widestLine(), 7);
}

TEST_F(TerminalTextTest, ALineWithoutEndThatGoesBackAndForthIsNotBrokenInTheMiddle) {
  const std::string piece(512, 'x');
  for (std::size_t bytes = 0; bytes < TarnwickDoc::longestLine; bytes += piece.size()) out.handle(piece);
  out.handle("\ry");
  EXPECT_EQ(document.lineCount(), 1);
  EXPECT_EQ(document.lastLine().text().substr(0, 2), "yx");
}

TEST(StyledColoursTest, NumbersStandForTheColoursThatTerminalsGiveThem) {
  EXPECT_EQ(colourOfCode(0), (Colour{0, 0, 0}));
  EXPECT_EQ(colourOfCode(9), (Colour{255, 0, 0}));
  EXPECT_EQ(colourOfCode(15), (Colour{255, 255, 255}));
  EXPECT_EQ(colourOfCode(16), (Colour{0, 0, 0}));
  EXPECT_EQ(colourOfCode(21), (Colour{0, 0, 255}));
  EXPECT_EQ(colourOfCode(208), (Colour{255, 135, 0}));
  EXPECT_EQ(colourOfCode(231), (Colour{255, 255, 255}));
  EXPECT_EQ(colourOfCode(232), (Colour{8, 8, 8}));
  EXPECT_EQ(colourOfCode(255), (Colour{238, 238, 238}));
  EXPECT_EQ(colourOfCode(TextStyle::trueColour | 0x123456), (Colour{0x12, 0x34, 0x56}));
}

TEST(StyledColoursTest, TextWithoutColoursShowsAsEver) {
  for (const int kind : {KIND_INPUT, KIND_OUTPUT, KIND_ERROR, KIND_BANNER}) {
    const StyledColours plain = classicPalette.of(kind);
    EXPECT_EQ(coloursOf({}, plain), plain);
    EXPECT_EQ(coloursOf({TextStyle::plain, TextStyle::plain, true, true}, plain), plain);
  }
}

TEST(StyledColoursTest, WhateverIsChosenCanBeReadOnItsGround) {
  const std::pair<const ConsolePalette*, int> kinds[] = {{&lightPalette, KIND_OUTPUT},
                                                         {&lightPalette, KIND_ERROR},
                                                         {&darkPalette, KIND_OUTPUT},
                                                         {&darkPalette, KIND_ERROR}};
  for (const auto& [palette, kind] : kinds) {
    for (int ink = TextStyle::plain; ink < 256; ++ink) {
      for (int ground = TextStyle::plain; ground < 256; ground += ground < 16 ? 1 : 7) {
        for (const bool inverse : {false, true}) {
          if (ink == TextStyle::plain && ground == TextStyle::plain && !inverse) continue;
          const StyledColours colours = coloursOf({ink, ground, false, false, inverse}, palette->of(kind));
          ASSERT_GE(contrast(colours.ink, colours.ground), 4.5)
              << ink << " on " << ground << (inverse ? " inverse" : "");
        }
      }
    }
  }
}

TEST(StyledColoursTest, WhatCanBeReadKeepsItsColourAndOthersTheirHue) {
  const StyledColours plain{{0, 0, 255}, {255, 255, 255}};
  EXPECT_EQ(coloursOf({4, TextStyle::plain}, plain).ink, (Colour{0, 0, 238}));
  EXPECT_EQ(coloursOf({11, 0}, plain), (StyledColours{{255, 255, 0}, {0, 0, 0}}));
  const Colour yellow = coloursOf({11, TextStyle::plain}, plain).ink;
  EXPECT_EQ(yellow.red, yellow.green);
  EXPECT_GT(yellow.red, 60);
  EXPECT_EQ(yellow.blue, 0);
  EXPECT_EQ(coloursOf({TextStyle::plain, TextStyle::plain, false, false, true}, plain),
            (StyledColours{{255, 255, 255}, {0, 0, 255}}));
}

TEST(StyledColoursTest, BlackAndWhiteStandAsFarApartAsColoursCan) {
  EXPECT_NEAR(contrast({0, 0, 0}, {255, 255, 255}), 21, 0.001);
  EXPECT_NEAR(contrast({255, 255, 255}, {0, 0, 0}), 21, 0.001);
  EXPECT_NEAR(contrast({9, 9, 9}, {9, 9, 9}), 1, 0.001);
}

TEST_F(TerminalTextTest, PaintingShowsTheStyles) {
  using Drawn = test::FakePainter::Drawn;
  out.handle("a\x1B[1mB\x1B[22;4mCC\x1B[24;31;43mD\x1B[0;7mE");
  test::FakePainter painter;
  paintText(painter, document, screen.grid);
  const Colour blue{0, 0, 255};
  const StyledColours chosen = coloursOf({1, 3}, classicPalette.of(KIND_OUTPUT));
  const std::vector<Drawn> drawn = {{4, 0, "a", blue},   {12, 0, "B", blue},       {13, 0, "B", blue},
                                    {20, 0, "CC", blue}, {36, 0, "D", chosen.ink}, {44, 0, "E", {255, 255, 255}}};
  EXPECT_EQ(painter.drawn, drawn);
  const std::vector<std::pair<Rect, Colour>> filled = {
      {{20, 14, 36, 15}, blue}, {{36, 0, 44, 16}, chosen.ground}, {{44, 0, 52, 16}, blue}};
  EXPECT_EQ(painter.filled, filled);
}

}  // namespace
}  // namespace tarnwick
