#include "base/LastAct.h"
#include "source/SplitPieces.h"
#include "support/SplitterFixture.h"

namespace tarnwick::test {
namespace {

class SplitPiecesTest : public SplitterFixture {
 protected:
  /// Why a piece of this name is not begun.
  static std::string refusal(SplitPieces& pieces, const std::string& name) {
    try {
      pieces.begin(name, "no");
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    return "begun";
  }
};

TEST_F(SplitPiecesTest, PiecesStandTogetherAndLiveAsLongAsTheObject) {
  {
    SplitPieces pieces{Filename(path("X.java"))};
    EXPECT_FALSE(pieces.writing());
    pieces.begin("A.java", "head\n");
    EXPECT_TRUE(pieces.writing());
    pieces.put('{');
    pieces.begin("B.java", "");
    pieces.put('}');
    pieces.end();
    EXPECT_FALSE(pieces.writing());
    EXPECT_FALSE(isThere("A.java")) << "none before all are whole";
    pieces.publish();
    EXPECT_EQ(textOf("A.java"), "head\n{");
    EXPECT_EQ(textOf("B.java"), "}");
  }
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("B.java"));
  EXPECT_FALSE(isThere("Tarnwick_split1.tmp"));
}

TEST_F(SplitPiecesTest, AProcessThatCannotTakeItsLeaveRemovesThemAndPutsBackWhatWasInTheirWay) {
  writeFile(path("A.java"), "mine");
  {
    SplitPieces pieces{Filename(path("X.java"))};
    pieces.begin("A.java", "head\n");
    pieces.begin("B.java", "");
    pieces.end();
    pieces.publish();
    EXPECT_EQ(textOf("A.java"), "head\n");
    LastAct::doAll();
    EXPECT_EQ(contentOf(path("A.java")), "mine");
    EXPECT_FALSE(isThere("B.java"));
    EXPECT_FALSE(isThere("Tarnwick_split1.tmp"));
  }
  EXPECT_EQ(contentOf(path("A.java")), "mine") << "though the object went later";
}

TEST_F(SplitPiecesTest, APieceThatIsNotWholeGoesWithTheObject) {
  {
    SplitPieces pieces{Filename(path("X.java"))};
    pieces.begin("C.java", "open");
  }
  EXPECT_FALSE(isThere("C.java"));
  EXPECT_FALSE(isThere("Tarnwick_split1.tmp"));
}

TEST_F(SplitPiecesTest, ANameThatLeadsOutOfTheFolderIsRefused) {
  platform::makeFolders(path("src"));
  writeFile(path("Other.java"), "mine");
  const std::string separator(1, platform::folderSeparator);
  {
    SplitPieces pieces{Filename(path("src" + separator + "X.java"))};
    EXPECT_EQ(refusal(pieces, ".." + separator + "Other.java"), "No such file or directory");
  }
  EXPECT_EQ(contentOf(path("Other.java")), "mine");
}

TEST_F(SplitPiecesTest, TheSourceItselfIsRefused) {
  writeFile(path("X.java"), "mine");
  {
    SplitPieces pieces{Filename(path("X.java"))};
    EXPECT_EQ(refusal(pieces, "X.java"), "File exists");
  }
  EXPECT_EQ(contentOf(path("X.java")), "mine");
}

TEST_F(SplitPiecesTest, AZeroByteInTheHeadHidesNothingBehindIt) {
  SplitPieces pieces{Filename(path("X.java"))};
  pieces.begin("A.java", std::string("one\0two", 7));
  pieces.end();
  pieces.publish();
  EXPECT_EQ(textOf("A.java"), "onetwo");
}

}  // namespace
}  // namespace tarnwick::test
