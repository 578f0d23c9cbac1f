#include "source/SplitPieces.h"
#include "support/SplitterFixture.h"

namespace tarnwick::test {
namespace {

using SplitPiecesTest = SplitterFixture;

TEST_F(SplitPiecesTest, APieceLivesAsLongAsTheObject) {
  {
    SplitPieces pieces{Filename(path("X.java"))};
    EXPECT_FALSE(pieces.writing());
    pieces.begin("A.java", "head\n");
    EXPECT_TRUE(pieces.writing());
    pieces.put('{');
    pieces.begin("B.java", "");
    EXPECT_EQ(textOf("A.java"), "head\n{") << "closed when the next one begins";
    pieces.put('}');
    pieces.end();
    EXPECT_FALSE(pieces.writing());
    EXPECT_EQ(textOf("B.java"), "}");
    pieces.begin("C.java", "open");
  }
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("B.java"));
  EXPECT_FALSE(isThere("C.java"));
}

TEST_F(SplitPiecesTest, ANameThatLeadsOutOfTheFolderIsRefused) {
  platform::makeFolders(path("src"));
  writeFile(path("Other.java"), "mine");
  const std::string separator(1, platform::folderSeparator);
  {
    SplitPieces pieces{Filename(path("src" + separator + "X.java"))};
    EXPECT_THROW(pieces.begin(".." + separator + "Other.java", "no"), Tarnwickfile::FileNotOpenE);
  }
  EXPECT_EQ(contentOf(path("Other.java")), "mine");
}

}  // namespace
}  // namespace tarnwick::test
