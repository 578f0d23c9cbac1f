#include "console/TextSearch.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Hit = TextSearch::Hit;
using Columns = std::vector<ColumnRange>;

ConsoleLine lineOf(const std::string& text) {
  ConsoleLine line;
  line.append(text, KIND_OUTPUT);
  return line;
}

class TextSearchTest : public testing::Test {
 protected:
  void write(const Lines& lines) {
    for (const auto& line : lines) {
      document.addText(line, KIND_OUTPUT);
      document.newLine();
    }
  }
  Hit next() { return search.step(document, false).value_or(Hit{-1, -1, -1}); }
  Hit previous() { return search.step(document, true).value_or(Hit{-1, -1, -1}); }

  TarnwickDoc document{""};
  TextSearch search;
};

TEST_F(TextSearchTest, HitsAreFoundInAnyCaseAndDoNotOverlap) {
  search.lookFor("aN");
  EXPECT_EQ(search.hitsIn(lineOf("ANanas, an")), (Columns{{0, 2}, {2, 4}, {8, 10}}));
  EXPECT_EQ(search.hitsIn(lineOf("nothing")), Columns{});
  search.lookFor("aa");
  EXPECT_EQ(search.hitsIn(lineOf("aaaaa")), (Columns{{0, 2}, {2, 4}}));
  search.lookFor("");
  EXPECT_FALSE(search.active());
  EXPECT_EQ(search.hitsIn(lineOf("a")), Columns{});
}

TEST_F(TextSearchTest, AHitMayReachOverSegmentsAndIsCountedInColumns) {
  ConsoleLine line = lineOf("one t");
  line.append("wo", KIND_ERROR);
  search.lookFor("two");
  EXPECT_EQ(search.hitsIn(line), (Columns{{4, 7}}));
  if (!test::charactersAreUtf8()) return;
  EXPECT_EQ(search.hitsIn(lineOf("\xE6\x97\xA5\xC3\xA4two")), (Columns{{3, 6}}));
}

TEST_F(TextSearchTest, ItBeginsWithTheLastHitAndGoesRound) {
  write({"a one a", "none", "a", ""});
  search.lookFor("a");
  EXPECT_EQ(next(), (Hit{2, 0, 1}));
  EXPECT_EQ(next(), (Hit{0, 0, 1}));
  EXPECT_EQ(next(), (Hit{0, 6, 7}));
  EXPECT_EQ(next(), (Hit{2, 0, 1}));
  EXPECT_EQ(previous(), (Hit{0, 6, 7}));
  EXPECT_EQ(previous(), (Hit{0, 0, 1}));
  EXPECT_EQ(previous(), (Hit{2, 0, 1}));
}

TEST_F(TextSearchTest, TheOnlyHitIsFoundAgainAndAgain) {
  write({"none", "one", "none"});
  search.lookFor("ONE");
  write({"x"});
  search.lookFor("x");
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(next(), (Hit{3, 0, 1}));
    EXPECT_EQ(previous(), (Hit{3, 0, 1}));
  }
}

TEST_F(TextSearchTest, WithoutAnyHitThereIsNone) {
  write({"a", "b"});
  search.lookFor("c");
  EXPECT_EQ(next(), (Hit{-1, -1, -1}));
  EXPECT_EQ(previous(), (Hit{-1, -1, -1}));
}

TEST_F(TextSearchTest, LinesThatFallOffTheTopDoNotMoveThePlace) {
  for (int line = 0; line < TarnwickDoc::maxLines; ++line) write({"hit " + std::to_string(line)});
  search.lookFor("hit 7");
  // "hit 7", "hit 70" to "hit 79" and "hit 700" to "hit 799"; the last empty line has taken the place of the first.
  for (int tries = 0; tries < 200 && next() != Hit{699, 0, 5}; ++tries) {
  }
  const int gone = 5;
  for (int line = 0; line < gone; ++line) write({"more"});
  EXPECT_EQ(next().line, 700 - gone) << "the one behind it";
  EXPECT_EQ(previous().line, 699 - gone);
  for (int line = 0; line < 720; ++line) write({"more"});
  EXPECT_EQ(next().line, 0) << "where that has gone too, it goes on at the top";
}

}  // namespace
}  // namespace tarnwick
