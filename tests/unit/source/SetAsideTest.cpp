// What becomes of the user's files that bear the names of pieces.
#include "platform/OwnFiles.h"
#include "support/KilledSplit.h"
#include "support/SplitterFixture.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

const char twoPublic[] = "public class A {} public class B {}";
const char ours[] = "Tarnwick_split1.tmp";

class SetAsideTest : public SplitterFixture {
 protected:
  /// What lies in the folder, in order.
  Names names() const {
    Names all = platform::namesIn(scratch_.path());
    std::sort(all.begin(), all.end());
    return all;
  }

  /// Splits X.java, does something while the pieces are there, and lets them go.
  void splitAnd(const std::function<void()>& meanwhile) {
    writeFile(path("X.java"), twoPublic);
    Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
    SourceSplitter splitter(source.name(), [] { return true; });
    splitter.run();
    meanwhile();
  }

  static std::string within(const std::string& folder, const std::string& name) {
    return folder + platform::folderSeparator + name;
  }

  /// Any compile in the folder.
  void compileAnother() { EXPECT_EQ(split("Z.java", "public class Z {}").fault, std::nullopt); }
};

TEST_F(SetAsideTest, AFileOfAPiecesNameIsThereAgainAfterwards) {
  const std::string mine = "mine, and much longer than what stands in its place meanwhile .........................";
  writeFile(path("A.java"), mine);
  splitAnd([this] {
    EXPECT_EQ(textOf("A.java"), "public class A {}") << "the piece takes the name without a question";
    EXPECT_EQ(textOf("B.java"), " public class B {}");
  });
  EXPECT_EQ(contentOf(path("A.java")), mine);
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

TEST_F(SetAsideTest, AFileOfAPiecesVeryContentIsNoPiece) {
  writeFile(path("B.java"), " public class B {}");
  splitAnd([] {});
  EXPECT_EQ(names(), (Names{"B.java", "X.java"}));
}

TEST_F(SetAsideTest, ANameThatIsTwiceThereCostsNothing) {
  writeFile(path("A.java"), "mine");
  writeFile(path("C.java"), "mine too");
  EXPECT_EQ(faultOf("X.java", "public class A {} public class C {} class C {}"),
            "X.java :\nThere is more than one class/interface C.\n");
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(contentOf(path("C.java")), "mine too");
  EXPECT_EQ(names(), (Names{"A.java", "C.java", "X.java"}));
}

TEST_F(SetAsideTest, ABodyThatCantBeWrittenCostsNothing) {
  writeFile(path("A.java"), "mine");
  EXPECT_TRUE(faultOf("X.java", "public class A {} public class B { String s = \"\xE4\"; }")
                  .ends_with("\nCan't write to file \"" + path("B.java") + "\""));
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

TEST_F(SetAsideTest, AFolderInThePlaceOfALaterPieceCostsNothing) {
  writeFile(path("A.java"), "mine");
  platform::makeFolders(path(within("B.java", "inner")));
  EXPECT_EQ(faultOf("X.java", twoPublic), "Is a directory\nCan't process file " + path("B.java"));
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_TRUE(platform::isFolder(path(within("B.java", "inner"))));
  EXPECT_EQ(names(), (Names{"A.java", "B.java", "X.java"}));
}

TEST_F(SetAsideTest, WhatTheUserSavesMeanwhileStays) {
  writeFile(path("A.java"), "mine");
  splitAnd([this] {
    writeFile(path("A.java"), "mine, and newer");
    writeFile(path("B.java"), "mine, and new");
  });
  EXPECT_EQ(contentOf(path("A.java")), "mine, and newer");
  EXPECT_EQ(contentOf(path("A.java.1.kept")), "mine");
  EXPECT_EQ(contentOf(path("B.java")), "mine, and new");
  EXPECT_EQ(names(), (Names{"A.java", "A.java.1.kept", "B.java", "X.java"}));
}

TEST_F(SetAsideTest, AnyChangeOfAPieceMakesItTheUsers) {
  // Longer than a block that is compared at once.
  const std::string text = "public class B {" + std::string(20000, ' ') + "}";
  std::string otherEnd = text;
  otherEnd.back() = '?';
  std::string otherMiddle = text;
  otherMiddle[9000] = '?';
  std::string otherBegin = text;
  otherBegin.front() = 'P';
  for (const auto& changed : {otherBegin, otherMiddle, otherEnd, text + ' ', text.substr(0, 9000), std::string()}) {
    for (const bool setAside : {false, true}) {
      if (setAside) writeFile(path("B.java"), "mine");
      writeFile(path("X.java"), "public class A {}" + text);
      {
        Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
        SourceSplitter splitter(source.name(), [] { return true; });
        splitter.run();
        EXPECT_EQ(textOf("B.java"), text);
        writeFile(path("B.java"), changed);
      }
      EXPECT_EQ(contentOf(path("B.java")), changed);
      EXPECT_EQ(isThere("B.java.1.kept"), setAside);
      platform::deleteFile(path("B.java"));
      platform::deleteFile(path("B.java.1.kept"));
    }
  }
}

TEST_F(SetAsideTest, AnEarlierFileThatWasKeptStaysToo) {
  writeFile(path("A.java"), "mine");
  writeFile(path("A.java.1.kept"), "older");
  splitAnd([this] { writeFile(path("A.java"), "newer"); });
  EXPECT_EQ(contentOf(path("A.java")), "newer");
  EXPECT_EQ(contentOf(path("A.java.1.kept")), "older");
  EXPECT_EQ(contentOf(path("A.java.2.kept")), "mine");
}

TEST_F(SetAsideTest, APieceThatSomebodyRemovesMeanwhileIsNoMatter) {
  writeFile(path("A.java"), "mine");
  splitAnd([this] {
    platform::deleteFile(path("A.java"));
    platform::deleteFile(path("B.java"));
  });
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

TEST_F(SetAsideTest, AFolderOfTheUsersOwnUnderOurNameIsPassedOver) {
  platform::makeFolders(path(within(ours, "kept")));
  writeFile(path(within(ours, within("kept", "A.java"))), "not ours");
  writeFile(path("A.java"), "mine");
  splitAnd([this] { EXPECT_TRUE(platform::isFolder(path("Tarnwick_split2.tmp"))); });
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(contentOf(path(within(ours, within("kept", "A.java")))), "not ours");
  EXPECT_EQ(names(), (Names{"A.java", ours, "X.java"}));
}

TEST_F(SetAsideTest, AFileUnderOurFoldersNameIsPassedOver) {
  writeFile(path(ours), "not ours");
  splitAnd([this] { EXPECT_TRUE(platform::isFolder(path("Tarnwick_split2.tmp"))); });
  EXPECT_EQ(contentOf(path(ours)), "not ours");
  EXPECT_EQ(names(), (Names{ours, "X.java"}));
}

TEST_F(SetAsideTest, WhatAKilledProcessHasLeftIsPutBackByTheNextCompile) {
  leaveKilledSplit(scratch_.path());
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "Z.java"})) << "the other piece goes";
}

TEST_F(SetAsideTest, TheFileItselfIsReadWhenItIsBack) {
  leaveKilledSplit(scratch_.path());
  writeFile(path(within(ours, within("kept", "A.java"))), "public class Wrong {}");
  EXPECT_EQ(split("A.java").fault,
            "A.java :\n\nJavac requires a class/interface with the attribute 'public' to have the same name as the "
            "source file.");
}

TEST_F(SetAsideTest, WhatTheUserHasMadeOfAPieceSinceTheKillStays) {
  leaveKilledSplit(scratch_.path());
  writeFile(path("A.java"), "mine, from another copy");
  writeFile(path("B.java"), "mine, and new");
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "mine, from another copy");
  EXPECT_EQ(contentOf(path("A.java.1.kept")), "mine");
  EXPECT_EQ(contentOf(path("B.java")), "mine, and new");
  EXPECT_EQ(names(), (Names{"A.java", "A.java.1.kept", "B.java", "Z.java"}));
}

TEST_F(SetAsideTest, AKillBeforeThePiecesHaveTheirNamesCostsNothing) {
  leaveKilledSplit(scratch_.path());
  const auto inner = [this](const char* room, const char* name) { return path(within(ours, within(room, name))); };
  // The user's files, of which one was just about to be set aside. The other is no piece although it could be one.
  platform::deleteFile(inner("kept", "A.java"));
  writeFile(inner("writing", "A.java"), "public class A {}");
  writeFile(inner("writing", "B.java"), " public class B {}");
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "public class A {}");
  EXPECT_EQ(contentOf(path("B.java")), " public class B {}");
  EXPECT_EQ(names(), (Names{"A.java", "B.java", "Z.java"}));
}

TEST_F(SetAsideTest, AKillBetweenSettingAsideAndThePieceCostsNothing) {
  leaveKilledSplit(scratch_.path());
  platform::deleteFile(path("A.java"));
  writeFile(path(within(ours, within("writing", "A.java"))), "public class A {}");
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "Z.java"}));
}

TEST_F(SetAsideTest, AKillWhilePuttingBackCostsNothing) {
  leaveKilledSplit(scratch_.path());
  // The user's file, which looks like a piece, is in its place already.
  platform::deleteFile(path(within(ours, within("kept", "A.java"))));
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "public class A {}");
  EXPECT_EQ(names(), (Names{"A.java", "Z.java"}));
}

TEST_F(SetAsideTest, AKillAtTheVeryBeginningLeavesNothing) {
  platform::makeFolders(path(ours));
  compileAnother();
  EXPECT_EQ(names(), Names{"Z.java"});
}

TEST_F(SetAsideTest, AKillWhileTheFolderWasBeingMadeLeavesNothing) {
  platform::makeFolders(path(ours));
  writeFile(path(within(ours, "in_use")), "");
  compileAnother();
  EXPECT_EQ(names(), Names{"Z.java"});
}

TEST_F(SetAsideTest, WhatSeveralKilledProcessesHaveLeftIsPutBack) {
  const auto moveAway = [this](const char* name) { ASSERT_TRUE(platform::moveToFreeName(path(ours), path(name))); };
  leaveKilledSplit(scratch_.path());
  moveAway("Tarnwick_split20.tmp");
  leaveKilledSplit(scratch_.path());
  // The second one split another source, and had other files in its way.
  for (const char* room : {"over", "kept"}) {
    const std::string folder = within(ours, room);
    ASSERT_TRUE(platform::moveToFreeName(path(within(folder, "A.java")), path(within(folder, "C.java"))));
  }
  writeFile(path("C.java"), "public class A {}");
  moveAway("Tarnwick_split2.tmp");
  compileAnother();
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(contentOf(path("C.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "C.java", "Z.java"}));
}

TEST_F(SetAsideTest, WhereNoNumberIsFreeNothingIsSplit) {
  Names expected = {"A.java", "X.java"};
  for (int i = 1; i <= 20; ++i) {
    expected.push_back("Tarnwick_split" + std::to_string(i) + ".tmp");
    writeFile(path(expected.back()), "not ours");
  }
  std::sort(expected.begin(), expected.end());
  writeFile(path("A.java"), "mine");
  EXPECT_EQ(faultOf("X.java", twoPublic), "File exists\nCan't process file " + path("A.java"));
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), expected);
}

TEST_F(SetAsideTest, ASplitThatIsUnderWayIsLeftAlone) {
  writeFile(path("A.java"), "mine");
  splitAnd([this] {
    compileAnother();
    EXPECT_EQ(textOf("A.java"), "public class A {}");
    EXPECT_EQ(textOf("B.java"), " public class B {}");
    const Outcome outcome = split("Y.java", "public class C {} public class D {}");
    EXPECT_EQ(outcome.pieces, (Names{"public class C {}", " public class D {}"})) << "another one beside it";
    EXPECT_EQ(textOf("A.java"), "public class A {}");
  });
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java", "Y.java", "Z.java"}));
}

TEST_F(SetAsideTest, NamesThatAreOneOnThisDiskAreNoTwoPieces) {
  writeFile(path("probe"), "");
  const bool ignoresCase = isThere("PROBE");
  platform::deleteFile(path("probe"));
  writeFile(path("A.java"), "mine");
  const Outcome outcome = split("X.java", "public class a {} public class A {}");
  if (ignoresCase)
    EXPECT_EQ(outcome.fault, "File exists\nCan't process file " + path("A.java"));
  else
    EXPECT_EQ(outcome.pieces, (Names{"public class a {}", " public class A {}"}));
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

TEST_F(SetAsideTest, AFileWhoseNameDiffersInCaseIsThereAgainAsItWasSpelled) {
  writeFile(path("a.JAVA"), "mine");
  splitAnd([] {});
  EXPECT_EQ(names(), (Names{"X.java", "a.JAVA"}));
  EXPECT_EQ(contentOf(path("a.JAVA")), "mine");
}

TEST_F(SetAsideTest, ASourceOfOneOfItsTypesNamesIsNeverTouched) {
  for (const char* name : {"A.java", "a.java", "B.JAVA"}) {
    const std::string fault = faultOf(name, twoPublic);
    EXPECT_NE(fault.find("\nNaming conflict:\n\n"), std::string::npos) << fault;
    EXPECT_EQ(contentOf(path(name)), twoPublic);
    EXPECT_EQ(names(), Names{name});
    platform::deleteFile(path(name));
  }
}

}  // namespace
}  // namespace tarnwick::test
