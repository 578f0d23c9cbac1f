#include "support/SplitterFixture.h"

namespace tarnwick::test {
namespace {

using SourceSplitterTest = SplitterFixture;

const std::string notJava =
    "There is neither a class nor an interface definition in the source file.\nIs it really a source file?";

const std::string conflict =
    "\nNaming conflict:\n\n"
    "The source file contains multiple public classes/interfaces.\n"
    "In this case, Tarnwick has to split the source file into multiple files,\n"
    "each containing only one class or interface and having the same name as its class.\n"
    "The name of your source file is the same as the name of a class or interface.\n"
    "It is therefore not possible to create a single class file with this name.\n"
    "\nRename the source file!";

const std::string multiple = "\nMultiple classesInterfaces have the same name as the source file.";

const std::string otherName =
    "\nJavac requires a class/interface with the attribute 'public' to have the same name as the source file.";

TEST_F(SourceSplitterTest, OnePublicClassOfTheFilesName) {
  const Outcome outcome = split("A.java", "public class A {\n}\n");
  EXPECT_EQ(outcome.names, Names{"A.java"});
  EXPECT_EQ(questions_, 0);
  EXPECT_EQ(contentOf(path("A.java")), "public class A {\n}\n") << "untouched, and still there";
}

TEST_F(SourceSplitterTest, TheComparisonOfNamesDoesNotLookAtCaseButTheClassIsSpelledAsInTheSource) {
  EXPECT_EQ(split("a.java", "public class A {}\n").names, Names{"A.java"});
}

TEST_F(SourceSplitterTest, OnePublicClassOfAnotherNameIsRefused) {
  EXPECT_EQ(faultOf("B.java", "public class A {}\n"), "B.java :\n" + otherName);
  EXPECT_EQ(faultOf("A b.java", "public class A {}\n"), "\"A b.java\" :\n" + otherName)
      << "a name with a blank is quoted";
  EXPECT_EQ(faultOf("B.java", "public class A {} class B {}\n"), "B.java :\n" + otherName)
      << "a type of the file's name that is not public does not help";
}

TEST_F(SourceSplitterTest, TwoPublicClassesAreSplit) {
  const std::string text = "public class A {\n  int a;\n}\npublic class B {}\n";
  const Outcome outcome = split("X.java", text);
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
  EXPECT_EQ(outcome.pieces, (Names{"public class A {\n  int a;\n}", "\npublic class B {}"}));
  EXPECT_EQ(questions_, 1);
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("B.java"));
  EXPECT_EQ(contentOf(path("X.java")), text);
}

TEST_F(SourceSplitterTest, TypesThatAreNotPublicGetPiecesToo) {
  const Outcome outcome = split("X.java", "public class A {}\ninterface I { }\npublic interface B { }");
  EXPECT_EQ(outcome.names, (Names{"A.java", "I.java", "B.java"}));
  EXPECT_EQ(outcome.pieces, (Names{"public class A {}", "\ninterface I { }", "\npublic interface B { }"}));
}

TEST_F(SourceSplitterTest, OnePublicTypeAndOthersBehindItStayInOnePiece) {
  const Outcome outcome = split("A.java", "public class A {}\nclass B {}\ninterface C {}\n");
  EXPECT_EQ(outcome.names, Names{"A.java"});
  EXPECT_EQ(questions_, 0);
  EXPECT_FALSE(isThere("B.java"));
}

TEST_F(SourceSplitterTest, WithoutPublicTypesTheSourceGoesAsItIs) {
  EXPECT_EQ(split("X.java", "class A {}\nclass X {}\n").names, Names{});
  EXPECT_EQ(questions_, 0);
}

TEST_F(SourceSplitterTest, PackageAndImportsStandAtTheHeadOfEachPiece) {
  const std::string head = "package p;\nimport a.A;\nimport b.B;\nimport c.C;";
  const Outcome outcome =
      split("X.java", head + "\n\npublic final class One {\n  int x;\n}\n\npublic abstract class Two {}\n");
  EXPECT_EQ(outcome.pieces,
            (Names{head + "\n\npublic final class One {\n  int x;\n}", head + "\n\npublic abstract class Two {}"}));
}

TEST_F(SourceSplitterTest, ThePackageComesBeforeTheImportsWhereverItStands) {
  const Outcome outcome = split("X.java", "import a.A; package p; public class One {} public class Two {}");
  EXPECT_EQ(outcome.pieces.at(0), " package p;import a.A; public class One {}");
}

TEST_F(SourceSplitterTest, AnImportAfterTheFirstClassIsInTheSecondPieceOnly) {
  const Outcome outcome = split("X.java", "import a.A;\npublic class One {}\nimport b.B;\npublic class Two {}\n");
  EXPECT_EQ(outcome.pieces,
            (Names{"import a.A;\npublic class One {}", "import a.A;\nimport b.B;\npublic class Two {}"}));
}

TEST_F(SourceSplitterTest, CommentsAreInNoPiece) {
  const Outcome outcome = split(
      "X.java", "/* first */\npublic class One /* here */ {\n  int x; // there\n}\n// second\npublic class Two {}\n");
  EXPECT_EQ(outcome.pieces, (Names{"\npublic class One  {\n  int x; \n}", "\n\npublic class Two {}"}));
}

TEST_F(SourceSplitterTest, StringsAreCopiedWhole) {
  const Outcome outcome = split("X.java",
                                "public class A { String s = \"a // \\\" ; class Q\"; char c = '\\''; }\n"
                                "@Note(\"class ; {\")\npublic class B {}");
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
  EXPECT_EQ(outcome.pieces.at(0), "public class A { String s = \"a // \\\" ; class Q\"; char c = '\\''; }");
}

TEST_F(SourceSplitterTest, InnerTypesAreNoneOfTheTopLevel) {
  const Outcome outcome =
      split("A.java", "public class A { public class Inner { public interface Deep {} } }\nclass B extends A {}\n");
  EXPECT_EQ(outcome.names, Names{"A.java"});
}

TEST_F(SourceSplitterTest, WordsAroundTheTypeAreSteppedOver) {
  const Outcome outcome =
      split("A.java", "@Note(x=1) public strictfp final class A extends java.lang.Object implements I{}");
  EXPECT_EQ(outcome.names, Names{"A.java"});
}

TEST_F(SourceSplitterTest, TypesOfTheSameNameAreToldOnce) {
  EXPECT_EQ(faultOf("X.java", "public class A {} public class C {}\nclass C {}\n"),
            "X.java :\nThere is more than one class/interface C.\n");
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("C.java"));
}

TEST_F(SourceSplitterTest, AThirdTypeOfTheSameNameIsToldForEachBeforeIt) {
  EXPECT_EQ(faultOf("X.java", "public class A {} public class C {} class C {} class C {}"),
            "X.java :\nThere is more than one class/interface C.\nThere is more than one class/interface C.\n"
            "There is more than one class/interface C.\n");
}

TEST_F(SourceSplitterTest, TypesOfTheSameNameAreNoMatterWithoutASplit) {
  EXPECT_EQ(split("A.java", "public class A {} class C {} class C {}").names, Names{"A.java"});
}

TEST_F(SourceSplitterTest, ASplitThatWouldOverwriteTheSourceIsRefusedAfterTheQuestion) {
  const std::string text = "public class A {} public class B {}\n";
  EXPECT_EQ(faultOf("A.java", text), "A.java :\n" + conflict);
  EXPECT_EQ(questions_, 1);
  EXPECT_EQ(contentOf(path("A.java")), text);
  EXPECT_FALSE(isThere("B.java"));
  EXPECT_EQ(faultOf("X.java", "public class A {} public class B {} class x {}"), "X.java :\n" + conflict)
      << "a type that is not public would overwrite it as well, and case does not count";
}

TEST_F(SourceSplitterTest, SeveralTypesOfTheFilesName) {
  EXPECT_EQ(faultOf("A.java", "public class A {} class a {}"), "A.java :\n" + multiple);
  EXPECT_EQ(faultOf("A.java", "class A {} class a {}"), "A.java :\n" + multiple);
  EXPECT_EQ(faultOf("A.java", "public class A {} public class a {}"), "A.java :\n" + multiple + conflict);
}

TEST_F(SourceSplitterTest, AStatementThatIsNoneAfterAClass) {
  EXPECT_EQ(faultOf("A.java", "public class A {\n\n\n\n\n\n\n}\n;\nclass B {}\n"),
            "A.java :\nLine 9 doesn't seem to make sense.\nPossibly unbalanced { and }.\n\n;");
}

TEST_F(SourceSplitterTest, ComplaintsComeInTheOrderOfTheChecks) {
  EXPECT_EQ(faultOf("B.java", "public class A { char c = 'ab; }\nint x;\n"),
            "B.java :\nLine 1: Invalid character constant.\n"
            "Line 2 doesn't seem to make sense.\nPossibly unbalanced { and }.\n\nint x;" +
                otherName);
}

TEST_F(SourceSplitterTest, BadCharacterConstantsInABodyAreCollected) {
  EXPECT_EQ(faultOf("A.java", "public class A {\n  char c = 'ab;\n  char d = '\\n2;\n}\n"),
            "A.java :\nLine 2: Invalid character constant.\nLine 3: Invalid character constant.\n");
}

TEST_F(SourceSplitterTest, ABadCharacterConstantAtTheTopLevelEndsTheReading) {
  EXPECT_EQ(faultOf("A b.java", "char c = 'ab';\npublic class A {}\n"),
            "Line 1: Invalid character constant.\nCan't process file \"" + path("A b.java") + "\"");
}

TEST_F(SourceSplitterTest, ATopLevelBraceTooMany) {
  const std::string quotedPath = "\"" + path("A.java") + "\"";
  EXPECT_EQ(faultOf("A.java", "public class A {}\n}\n"), "Line 2: Too many }\nCan't process file " + quotedPath);
  EXPECT_EQ(faultOf("A.java", "}"), "Line 1: Too many }\nCan't process file " + quotedPath);
}

TEST_F(SourceSplitterTest, ATopLevelBlockIsTakenForABraceTooMany) {
  EXPECT_EQ(faultOf("A.java", "public class A {}{}"), "A.java :\nLine 1: There are too many }\n{}");
  EXPECT_EQ(faultOf("A.java", "public class A {}{ x }\nclass B {"), "A.java :\nLine 1: There are too many }\n{ x }");
  EXPECT_EQ(faultOf("A.java", "{}"), "A.java :\nLine 1: There are too many }\n{}" + notJava);
}

TEST_F(SourceSplitterTest, ABlockBehindWhiteSpaceEndsTheReadingWithoutAWord) {
  EXPECT_EQ(split("A.java", "public class A {} {}\npublic class B {}").names, Names{"A.java"});
  EXPECT_EQ(faultOf("A.java", "import a.A; {} public class A {}"), "A.java :\n" + notJava);
}

TEST_F(SourceSplitterTest, AClassThatIsNotClosedEndsWithTheFile) {
  const Outcome outcome = split("X.java", "public class A {}\npublic class B { {\n  int x;\n");
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
  EXPECT_EQ(outcome.pieces.at(1), "\npublic class B { {\n  int x;\n");
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("B.java"));
}

TEST_F(SourceSplitterTest, ABraceTooManyInABodyIsCollected) {
  // The semicolon makes what follows the body, which begins outside of all braces.
  EXPECT_EQ(faultOf("A.java", "public class A; }\nclass B {}"), "A.java :\nLine 1: Too many }\nLine 2: Too many }\n");
}

TEST_F(SourceSplitterTest, ABraceInACommentCountsNothing) {
  EXPECT_EQ(split("A.java", "// }\npublic class A { /* } { { */ int x; // }\n}\nclass B {} // }").names,
            Names{"A.java"});
}

TEST_F(SourceSplitterTest, ABraceInACharacterConstantCountsLikeAnyOther) {
  EXPECT_EQ(faultOf("A.java", "public class A { char c = '}'; int x; }"),
            "A.java :\nLine 1 doesn't seem to make sense.\nPossibly unbalanced { and }.\n';");
}

TEST_F(SourceSplitterTest, ABraceInAStringCountsLikeAnyOther) {
  const Outcome outcome = split("X.java", "public class A { String s = \"{\"; }\npublic class B {}\n");
  EXPECT_EQ(outcome.names, Names{}) << "the second class seems to stand inside the first";
  EXPECT_EQ(outcome.fault, "X.java :\n" + otherName);
}

TEST_F(SourceSplitterTest, AnEmptyFile) {
  EXPECT_EQ(faultOf("A.java", ""), "A.java :\n" + notJava);
  EXPECT_EQ(faultOf("A.java", " \n\t\r\n"), "A.java :\n" + notJava);
  EXPECT_EQ(faultOf("A.java", "// only a comment\n/* and one that stays open"), "A.java :\n" + notJava);
  EXPECT_EQ(faultOf("A.java", "package p;\nimport a.A;\n"), "A.java :\n" + notJava);
}

TEST_F(SourceSplitterTest, ABinaryFile) {
  const std::string noText = "A.java :\nLine 1 doesn't seem to make sense.\nThe input file may not be in text format.";
  EXPECT_EQ(faultOf("A.java", std::string("\x7f"
                                          "ELF\x02\x01\x01\x03\xf0\x80 junk",
                                          15)),
            noText + notJava);
  EXPECT_EQ(faultOf("A.java", std::string("\xCA\xFE\xBA\xBE\0\0\0\x41", 8)), noText + notJava);
  EXPECT_EQ(faultOf("A.java", std::string("\0\0\x01\0", 4)), noText + notJava);
}

TEST_F(SourceSplitterTest, EveryByteAloneIsComplainedOf) {
  for (int byte = 0; byte < 256; ++byte) {
    const Outcome outcome = split("A.java", std::string(1, static_cast<char>(byte)));
    EXPECT_TRUE(outcome.fault) << byte;
  }
}

TEST_F(SourceSplitterTest, AWordThatEndsTheFileIsNotActedOn) {
  EXPECT_EQ(faultOf("A.java", "public class"),
            "A.java :\nLine 1 doesn't seem to make sense.\nThe input file may not be in text format." + notJava);
}

TEST_F(SourceSplitterTest, AByteFrom128OnInABodyCantBeWritten) {
  for (const char* byte : {"\xE4", "\x80", "\xC3\xA4"}) {
    const std::string fault =
        faultOf("X.java", "public class A {}\npublic class B { String s = \"" + std::string(byte) + "\"; }\n");
    const std::string end = "\nCan't write to file \"" + path("B.java") + "\"";
    EXPECT_TRUE(fault.ends_with(end)) << fault;
    EXPECT_GT(fault.size(), end.size()) << "the system's sentence comes first";
    EXPECT_FALSE(isThere("A.java"));
    EXPECT_FALSE(isThere("B.java"));
  }
}

TEST_F(SourceSplitterTest, AByteFrom128OnDoesNoHarmElsewhere) {
  const Outcome outcome =
      split("X.java", "// \xE4\n@Note(\"\xE4\")\npublic class A { /* \xE4 */ }\npublic class B {}\n");
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
  EXPECT_EQ(outcome.pieces.at(0), "\n@Note(\"\xE4\")\npublic class A {  }");
}

TEST_F(SourceSplitterTest, AByteFrom128OnDoesNoHarmWithoutASplit) {
  EXPECT_EQ(split("A.java", "public class A { String s = \"\xE4\"; }\n").names, Names{"A.java"});
}

TEST_F(SourceSplitterTest, TheBytes0And255AreLeftOut) {
  const char text[] = "public class A { int\0\xFF x; }\npublic class B {}\n";
  const Outcome outcome = split("X.java", std::string(text, sizeof text - 1));
  EXPECT_EQ(outcome.fault, std::nullopt);
  EXPECT_EQ(outcome.pieces.at(0), "public class A { int x; }");
}

TEST_F(SourceSplitterTest, CancelWritesNoFile) {
  answer_ = [] { return false; };
  writeFile(path("A.java"), "mine");
  EXPECT_TRUE(split("X.java", "public class A {}\npublic class B {}\n").declined);
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_FALSE(isThere("B.java"));
}

TEST_F(SourceSplitterTest, CancelComesBeforeAllComplaints) {
  answer_ = [] { return false; };
  EXPECT_TRUE(split("A.java", "public class A {}\npublic class B {}\n;").declined);
}

TEST_F(SourceSplitterTest, ComplaintsOfTheFirstPassStopBeforeAnyFileIsWritten) {
  writeFile(path("A.java"), "mine");
  EXPECT_EQ(faultOf("X.java", "public class A {}\npublic class B {}\n;"),
            "X.java :\nLine 3 doesn't seem to make sense.\nPossibly unbalanced { and }.\n\n;");
  EXPECT_EQ(contentOf(path("A.java")), "mine");
}

TEST_F(SourceSplitterTest, ASourceThatIsNotThere) {
  EXPECT_EQ(split("X.java").fault, "No such file or directory\nCan't process file " + path("X.java"));
}

TEST_F(SourceSplitterTest, ASourceThatVanishesBetweenThePasses) {
  answer_ = [this] { return platform::deleteFile(path("X.java")); };
  EXPECT_EQ(faultOf("X.java", "public class A {} public class B {}"),
            "No such file or directory\nCan't process file " + path("X.java"));
  EXPECT_FALSE(isThere("A.java"));
}

TEST_F(SourceSplitterTest, ASourceThatChangesBetweenThePasses) {
  answer_ = [this] {
    writeFile(path("X.java"), "public class A {} public class C {}\n}");
    return true;
  };
  EXPECT_EQ(faultOf("X.java", "public class A {} public class B {}"),
            "Line 2: Too many }\nCan't process file \"" + path("X.java") + "\"");
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("C.java"));
}

TEST_F(SourceSplitterTest, ABadConstantInABodyIsNoMatterInTheSecondPass) {
  answer_ = [this] {
    writeFile(path("X.java"), "public class A { char c = 'ab; } public class B {}");
    return true;
  };
  const Outcome outcome = split("X.java", "public class A {} public class B {}");
  EXPECT_EQ(outcome.fault, std::nullopt);
  EXPECT_EQ(outcome.pieces, (Names{"public class A { char c = 'a; }", " public class B {}"}))
      << "the character that was wrong is left out";
}

TEST_F(SourceSplitterTest, ANameThatIsTakenByAFolder) {
  platform::makeFolders(path("B.java"));
  const std::string fault = faultOf("X.java", "public class A {} public class B {} public class C {}");
  EXPECT_EQ(fault, "Is a directory\nCan't process file " + path("B.java"));
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_TRUE(platform::isFolder(path("B.java"))) << "what was there before stays";
  EXPECT_FALSE(isThere("C.java"));
}

TEST_F(SourceSplitterTest, PiecesAreDeletedWhereverTheProgramHasGone) {
  const std::string before = platform::currentDirectory();
  ASSERT_TRUE(platform::changeDirectory(scratch_.path()));
  writeFile("X.java", "public class A {} public class B {}");
  {
    Tarnwickfile source = Tarnwickfile::unopened("X.java", FileMode::Read);
    SourceSplitter splitter(source.name(), [] { return true; });
    splitter.run();
    EXPECT_TRUE(isThere("A.java"));
    ASSERT_TRUE(platform::changeDirectory(before));
  }
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_FALSE(isThere("B.java"));
}

TEST_F(SourceSplitterTest, AnOldMacintoshsLineEnds) {
  const Outcome outcome = split("X.java", "// one\rpublic class A {}\rpublic class B {}\r");
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
}

TEST_F(SourceSplitterTest, OneLineOfManyMegabytes) {
  constexpr std::size_t size = 5U << 20U;
  std::string text = "public class A {";
  while (text.size() < size / 2) text += " int x = \"long line\".length(); /* and a comment */ char c = 'x';";
  const std::size_t end = text.size();
  text += "} public class B { int y";
  text.resize(size, ' ');
  text += ";}";
  const Outcome outcome = split("X.java", text);
  EXPECT_EQ(outcome.fault, std::nullopt);
  EXPECT_EQ(outcome.names, (Names{"A.java", "B.java"}));
  EXPECT_LT(outcome.pieces.at(0).size(), end) << "without the comments";
  EXPECT_TRUE(outcome.pieces.at(0).ends_with("char c = 'x';}"));
  EXPECT_FALSE(isThere("A.java"));
}

TEST_F(SourceSplitterTest, OneStatementOfManyMegabytes) {
  EXPECT_EQ(faultOf("X.java", std::string(5U << 20U, 'x')),
            "X.java :\nLine 1 doesn't seem to make sense.\nThe input file may not be in text format." + notJava);
}

}  // namespace
}  // namespace tarnwick::test
