#include "platform/FileSystem.h"
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"
#include "support/FileTimes.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

/// 1 January 1980, 01:01:01.
std::time_t earlyMarker() {
  std::tm early{};
  early.tm_year = 80;
  early.tm_mday = 1;
  early.tm_hour = early.tm_min = early.tm_sec = 1;
  early.tm_isdst = -1;
  return std::mktime(&early);
}

class JavaSourcefileTest : public testing::Test {
 protected:
  std::string path() const { return scratch_.file("My Source.java"); }

  JavaSourcefile& source(const std::string& text) {
    writeFile(path(), text);
    file_ = std::make_unique<JavaSourcefile>(path(), FileMode::Read);
    return *file_;
  }
  JavaSourcefile& analysed(const std::string& text) {
    source(text).analyse();
    return *file_;
  }
  JavaSourcefile& file() { return *file_; }

  /// The message with which the analysis fails; empty if it does not.
  std::string failure(const std::string& text) {
    try {
      analysed(text);
    } catch (const Compiler::CannotCompileE& caught) {
      return caught.message;
    }
    return {};
  }
  std::string cannotProcess() const { return "\nCan't process file \"" + path() + '"'; }

  /// The names of all types, in order.
  std::string typesOf(const std::string& text) {
    std::string names;
    for (const auto& type : analysed(text).types()) names += (names.empty() ? "" : " ") + type->name;
    return names;
  }
  int mainCountOf(const std::string& method) {
    return analysed("class A { " + method + " { } }").classes().at(0)->mainCount;
  }

  ScratchFolder scratch_;

 private:
  std::unique_ptr<JavaSourcefile> file_;
};

// The records.

TEST_F(JavaSourcefileTest, ARecordIsMadeFromNameAndFlag) {
  const SourceClass aClass("A", true);
  EXPECT_EQ(aClass.name, "A");
  EXPECT_TRUE(aClass.isPublic);
  EXPECT_EQ(aClass.mainCount, 0);
  EXPECT_EQ(aClass.extendsCount(), 0u);
  EXPECT_EQ(aClass.implementsCount(), 0u);
  const SourceInterface anInterface("I", false);
  EXPECT_EQ(anInterface.name, "I");
  EXPECT_FALSE(anInterface.isPublic);
  EXPECT_TRUE(SourceClass().name.empty());
  EXPECT_TRUE(SourceInterface().name.empty());
}

TEST_F(JavaSourcefileTest, ACopiedRecordHasAll) {
  SourceClass record("A", true);
  record.extendsList = {"B"};
  record.implementsList = {"C", "D"};
  record.mainCount = 2;
  const SourceClass copy(record);
  EXPECT_EQ(copy.name, "A");
  EXPECT_TRUE(copy.isPublic);
  EXPECT_EQ(copy.extendsList, Names{"B"});
  EXPECT_EQ(copy.implementsList, (Names{"C", "D"}));
  EXPECT_EQ(copy.mainCount, 2);
  EXPECT_EQ(copy.implementsCount(), 2u);
}

TEST_F(JavaSourcefileTest, AssignmentAppendsTheLists) {
  SourceClass record("A", true);
  record.extendsList = {"B"};
  record.implementsList = {"C"};
  SourceClass other("X", false);
  other.extendsList = {"Y"};
  other.implementsList = {"Z"};
  other.mainCount = 3;
  record = other;
  EXPECT_EQ(record.name, "X");
  EXPECT_FALSE(record.isPublic);
  EXPECT_EQ(record.mainCount, 3);
  EXPECT_EQ(record.extendsList, (Names{"B", "Y"}));
  EXPECT_EQ(record.implementsList, (Names{"C", "Z"}));
  record.clear();
  record = other;
  EXPECT_EQ(record.extendsList, Names{"Y"});
}

TEST_F(JavaSourcefileTest, AClearedRecordIsFresh) {
  SourceClass record("A", true);
  record.extendsList = {"B"};
  record.implementsList = {"C"};
  record.mainCount = 2;
  SourceType& base = record;
  base.clear();
  EXPECT_TRUE(record.name.empty());
  EXPECT_FALSE(record.isPublic);
  EXPECT_EQ(record.extendsCount(), 0u);
  EXPECT_EQ(record.implementsCount(), 0u);
  EXPECT_EQ(record.mainCount, 0);
}

// The object.

TEST_F(JavaSourcefileTest, EveryConstructorSetsTheEarlyTime) {
  writeFile(path(), "");
  EXPECT_EQ(JavaSourcefile().timestamp(), earlyMarker());
  EXPECT_EQ(JavaSourcefile().mode(), FileMode::Undefined);
  const JavaSourcefile byPath(path(), FileMode::Read);
  EXPECT_EQ(byPath.timestamp(), earlyMarker());
  EXPECT_TRUE(byPath.isOpen());
  const JavaSourcefile byFolder(scratch_.path(), "My Source.java", FileMode::Read);
  EXPECT_EQ(byFolder.timestamp(), earlyMarker());
  EXPECT_EQ(byFolder.name().fullName(), path());
  const JavaSourcefile named(static_cast<const Tarnwickfile&>(byPath));
  EXPECT_EQ(named.timestamp(), earlyMarker());
  EXPECT_EQ(named.name().fullName(), path());
  EXPECT_FALSE(named.isOpen());
  EXPECT_THROW(JavaSourcefile(scratch_.file("none.java"), FileMode::Read), Tarnwickfile::FileNotOpenE);
}

TEST_F(JavaSourcefileTest, AssignmentTakesClassesAndInterfacesButNotTypes) {
  JavaSourcefile& other = analysed("package p; class A { } interface I { }");
  other.isCurrent();
  other.open(FileMode::Read);
  JavaSourcefile copy;
  copy = other;
  EXPECT_EQ(copy.name().fullName(), path());
  EXPECT_EQ(copy.mode(), FileMode::Read);
  EXPECT_TRUE(copy.isOpen());
  EXPECT_FALSE(other.isOpen());
  EXPECT_EQ(copy.timestamp(), other.timestamp());
  EXPECT_EQ(copy.classes(), other.classes());
  EXPECT_EQ(copy.interfaces(), other.interfaces());
  EXPECT_TRUE(copy.types().empty());
  EXPECT_TRUE(copy.package().empty());
  other.clearTypes();
  EXPECT_EQ(copy.classes().at(0)->name, "A") << "the records are still there";
}

TEST_F(JavaSourcefileTest, ClearTypesForgetsTypesAndPackage) {
  JavaSourcefile& java = analysed("package p; class A { } interface I { }");
  java.clearTypes();
  EXPECT_TRUE(java.classes().empty());
  EXPECT_TRUE(java.interfaces().empty());
  EXPECT_TRUE(java.types().empty());
  EXPECT_EQ(java.package(), "");
}

TEST_F(JavaSourcefileTest, AddedRecordsAreCopies) {
  JavaSourcefile java;
  SourceClass record("A", true);
  java.addClass(record);
  java.addInterface(SourceInterface("I", false));
  java.addClass(SourceClass("B", false));
  record.name = "changed";
  ASSERT_EQ(java.types().size(), 3u);
  EXPECT_EQ(java.types()[0]->name, "A");
  EXPECT_EQ(java.types()[1]->name, "I");
  EXPECT_EQ(java.types()[2]->name, "B");
  EXPECT_EQ(java.types()[0], java.classes()[0]);
  EXPECT_EQ(java.types()[1], java.interfaces()[0]);
  EXPECT_EQ(java.types()[2], java.classes()[1]);
}

TEST_F(JavaSourcefileTest, IsCurrentTellsOfEachChangeOnce) {
  JavaSourcefile& java = source("class A { }");
  setFileTime(path(), 1'500'000'000);
  EXPECT_FALSE(java.isCurrent()) << "the first look";
  EXPECT_EQ(java.timestamp(), 1'500'000'000);
  EXPECT_TRUE(java.isCurrent());
  setFileTime(path(), 1'400'000'000);
  EXPECT_FALSE(java.isCurrent()) << "an older file is a changed one";
  EXPECT_TRUE(java.isCurrent());
}

TEST_F(JavaSourcefileTest, AMissingFileIsNotCurrentAndKeepsItsTime) {
  JavaSourcefile& java = source("class A { }");
  setFileTime(path(), 1'500'000'000);
  java.isCurrent();
  java.close();
  platform::deleteFile(path());
  EXPECT_FALSE(java.isCurrent());
  EXPECT_EQ(java.timestamp(), 1'500'000'000);
}

// The outline.

TEST_F(JavaSourcefileTest, AnalysingLeavesTheFileClosed) {
  EXPECT_FALSE(analysed("class A { }").isOpen());
}

TEST_F(JavaSourcefileTest, ThePackage) {
  EXPECT_EQ(analysed("package a.b.c;\nclass A { }").package(), "a.b.c");
  EXPECT_EQ(analysed("package a ;").package(), "a");
  EXPECT_EQ(analysed("package a-b{;").package(), "a-b") << "the brace ends the statement";
  EXPECT_EQ(analysed("class A { }").package(), "");
  EXPECT_EQ(analysed("import x.package; class A { }").package(), "");
}

TEST_F(JavaSourcefileTest, TwoPackagesAreRefused) {
  EXPECT_EQ(failure("package a;\nclass A { }\n\npackage b;\nclass B { }"),
            "\"My Source.java\" line 4: Package redefinition");
  EXPECT_EQ(file().package(), "a");
  EXPECT_EQ(file().types().size(), 1u) << "what was found stays";
  EXPECT_EQ(file().timestamp(), earlyMarker());
}

TEST_F(JavaSourcefileTest, PublicHoldsThroughOtherModifiers) {
  EXPECT_TRUE(analysed("public abstract class A { }").types().at(0)->isPublic);
  EXPECT_TRUE(analysed("abstract public class A { }").types().at(0)->isPublic);
  EXPECT_TRUE(analysed("public interface I { }").types().at(0)->isPublic);
  EXPECT_FALSE(analysed("final class A { }").types().at(0)->isPublic);
  EXPECT_FALSE(analysed("interface I { }").types().at(0)->isPublic);
}

TEST_F(JavaSourcefileTest, PublicLivesForOneStatement) {
  EXPECT_FALSE(analysed("public ; class A { }").types().at(0)->isPublic);
  EXPECT_FALSE(analysed("public class A { } class B { }").types().at(1)->isPublic);
}

TEST_F(JavaSourcefileTest, ImportsAndOtherStatementsArePassedOver) {
  EXPECT_EQ(typesOf("import a.b; import static c.d.*;; class A { }"), "A");
}

TEST_F(JavaSourcefileTest, SupertypesOfAClass) {
  const auto& record = *analysed("class A extends B implements C, D { }").classes().at(0);
  EXPECT_EQ(record.name, "A");
  EXPECT_EQ(record.extendsList, Names{"B"});
  EXPECT_EQ(record.implementsList, (Names{"C", "D"}));
}

TEST_F(JavaSourcefileTest, SupertypesInUnusualOrder) {
  const auto& record = *analysed("class A implements C,D extends B extends E implements F { }").classes().at(0);
  EXPECT_EQ(record.extendsList, Names{"B"}) << "the first one counts";
  EXPECT_EQ(record.implementsList, (Names{"C", "D", "F"}));
}

TEST_F(JavaSourcefileTest, SupertypesOfAnInterface) {
  const auto& record = *analysed("interface I extends J, K { }").interfaces().at(0);
  EXPECT_EQ(record.extendsList, (Names{"J", "K"}));
  EXPECT_TRUE(record.implementsList.empty());
  EXPECT_TRUE(analysed("interface I { }").interfaces().at(0)->extendsList.empty());
  EXPECT_EQ(analysed("interface I x extends J\n,\nK extends L { }").interfaces().at(0)->extendsList, (Names{"J", "K"}));
}

TEST_F(JavaSourcefileTest, AQualifiedNameIsHeldWhole) {
  EXPECT_EQ(analysed("class A extends java.lang.Object { }").classes().at(0)->extendsList, Names{"java.lang.Object"});
}

TEST_F(JavaSourcefileTest, GenericsAreNotKnown) {
  EXPECT_EQ(typesOf("class A<T> { }"), "A<T>");
  EXPECT_EQ(typesOf("class A<T, U> { }"), "A<T");
}

TEST_F(JavaSourcefileTest, TypesInTheOrderOfTheSource) {
  EXPECT_EQ(typesOf("interface I { } class A { } interface J { } class B { }"), "I A J B");
  EXPECT_EQ(file().classes().size(), 2u);
  EXPECT_EQ(file().interfaces().size(), 2u);
}

TEST_F(JavaSourcefileTest, CommentsHoldNoTypes) {
  EXPECT_EQ(typesOf("// class A { }\n/* class B { } */\n"), "");
  EXPECT_EQ(typesOf("class /* x */ A // y\n{ }"), "A");
}

TEST_F(JavaSourcefileTest, AnEmptyFileHasNoTypes) {
  EXPECT_EQ(typesOf(""), "");
  EXPECT_EQ(typesOf("\n \n"), "");
}

TEST_F(JavaSourcefileTest, TypesInTypesAreNotLookedInto) {
  EXPECT_EQ(typesOf("class A { class B { class C { } } interface D { } int x; } class E { }"), "A E");
  EXPECT_EQ(typesOf("interface I { class B { } interface D { } } class E { }"), "I E");
}

TEST_F(JavaSourcefileTest, BodiesOfAllKindsArePassedOver) {
  EXPECT_EQ(
      typesOf("class A { int[] a = {1, 2}; static { x(); } { y(); } A() { } void f() { if (a) { } } ; } class B {}"),
      "A B");
  EXPECT_EQ(typesOf("class A {} class B {}"), "A B");
  EXPECT_EQ(typesOf("class A { int a; } class B { int b; }"), "A B");
}

TEST_F(JavaSourcefileTest, AnEnumerationEndsTheOutline) {
  EXPECT_EQ(typesOf("class A { } enum E { X } class B { }"), "A");
}

TEST_F(JavaSourcefileTest, MainMethods) {
  EXPECT_EQ(mainCountOf("public static void main(String[] a)"), 1);
  EXPECT_EQ(mainCountOf("static public void main(String[] a)"), 1);
  EXPECT_EQ(mainCountOf("void static public main(String[] a)"), 1);
  EXPECT_EQ(mainCountOf("public final static synchronized void main(String[] a)"), 1);
  EXPECT_EQ(mainCountOf("public static void main (String[] a) throws X"), 1);
  EXPECT_EQ(mainCountOf("public void main(String[] a)"), 0);
  EXPECT_EQ(mainCountOf("static void main(String[] a)"), 0);
  EXPECT_EQ(mainCountOf("public static int main(String[] a)"), 0);
  EXPECT_EQ(mainCountOf("public static void main2(String[] a)"), 0);
  EXPECT_EQ(mainCountOf("public static void f(int main)"), 1) << "the rule knows no more";
  EXPECT_EQ(mainCountOf("public static void main(int main)"), 2);
  EXPECT_EQ(mainCountOf("main(public static void"), 0) << "all must stand before";
}

TEST_F(JavaSourcefileTest, TheFlagsLiveForOneStatement) {
  EXPECT_EQ(mainCountOf("public static int a; void main()"), 0);
  EXPECT_EQ(mainCountOf("public static void f() { } int main()"), 0);
}

TEST_F(JavaSourcefileTest, MainMethodsAreCountedForEachClass) {
  const std::string method = "public static void main(String[] a) { } ";
  const auto& java = analysed("class A { int x; " + method + method + "} class B { " + method + "} class C { }");
  EXPECT_EQ(java.classes().at(0)->mainCount, 2);
  EXPECT_EQ(java.classes().at(1)->mainCount, 1);
  EXPECT_EQ(java.classes().at(2)->mainCount, 0);
}

TEST_F(JavaSourcefileTest, MainMethodsWithoutABodyDoNotCount) {
  EXPECT_EQ(analysed("class A { public static void main(String[] a); }").classes().at(0)->mainCount, 0);
}

TEST_F(JavaSourcefileTest, MainMethodsOfInnerTypesAndInterfacesDoNotCount) {
  const std::string method = "public static void main(String[] a) { } ";
  EXPECT_EQ(analysed("class A { class B { " + method + "} }").classes().at(0)->mainCount, 0);
  EXPECT_EQ(analysed("interface I { " + method + "}").mainClass(), "");
}

TEST_F(JavaSourcefileTest, AnalysingAgainStartsAfresh) {
  analysed("package p; class A { }");
  writeFile(path(), "package q; class B { }");
  file().analyse();
  EXPECT_EQ(file().package(), "q");
  ASSERT_EQ(file().types().size(), 1u);
  EXPECT_EQ(file().types()[0]->name, "B");
}

// Failures.

TEST_F(JavaSourcefileTest, AFileThatCannotBeOpened) {
  JavaSourcefile& java = analysed("class A { }");
  java.isCurrent();
  platform::deleteFile(path());
  try {
    java.analyse();
    FAIL() << "analysed";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory\nCan't process file " + path());
  }
  EXPECT_EQ(java.timestamp(), earlyMarker());
  EXPECT_EQ(java.types().size(), 1u) << "what was known before is not lost";
}

TEST_F(JavaSourcefileTest, AFolderIsNoSource) {
  JavaSourcefile java(Tarnwickfile::unopened(scratch_.path(), FileMode::Read));
  try {
    java.analyse();
    FAIL() << "analysed";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_TRUE(failure.message.ends_with("\nCan't process file " + scratch_.path())) << failure.message;
  }
}

TEST_F(JavaSourcefileTest, MissingBraces) {
  const std::string message = "Unexpected end of file: Missing }" + cannotProcess();
  for (const std::string text :
       {"class A", "class A;", "class A {", "class A { int x;", "class A { int x", "class A { void f()",
        "class A { void f() {", "class A { void f() { }", "class A { void f() { } int x",
        "class A { void f() { } int x;", "interface I", "interface I {", "interface I { void f();", "class A { /* }",
        "class A { // }", "class A { \"{\" }"})
    EXPECT_EQ(failure(text), message) << text;
}

TEST_F(JavaSourcefileTest, ATypeThatIsNotClosedLeavesThoseBeforeIt) {
  EXPECT_NE(failure("package p; class A { } class B { void f() {"), "");
  EXPECT_EQ(file().package(), "p");
  ASSERT_EQ(file().types().size(), 1u);
  EXPECT_EQ(file().types()[0]->name, "A");
  EXPECT_EQ(file().timestamp(), earlyMarker());
}

TEST_F(JavaSourcefileTest, TooManyBraces) {
  const std::string message = "Line 2: Too many }" + cannotProcess();
  EXPECT_EQ(failure("class A { }\n}"), message);
  EXPECT_EQ(failure("}\n"), "Line 1: Too many }" + cannotProcess());
  EXPECT_EQ(failure("interface I { }\n} class B { }"), message);
  EXPECT_EQ(file().types().size(), 1u);
}

TEST_F(JavaSourcefileTest, BadCharacterConstants) {
  const std::string message = "Line 2: Invalid character constant." + cannotProcess();
  EXPECT_EQ(failure("\n'ab'"), message);
  EXPECT_EQ(failure("class A {\n'ab' }"), message);
  EXPECT_EQ(failure("class A { void f() {\n'ab' } }"), message);
  EXPECT_EQ(failure("interface I {\n'ab' }"), message);
  EXPECT_EQ(failure("class A { void f() { }\n'ab' }"), message);
}

TEST_F(JavaSourcefileTest, AFailureRepeatsTheAnalysisAtTheNextLook) {
  for (const std::string text : {"}", "package a; package b;", "class A {"}) {
    JavaSourcefile& java = source(text);
    setFileTime(path(), 1'500'000'000);
    EXPECT_FALSE(java.isCurrent());
    EXPECT_THROW(java.analyse(), Compiler::CannotCompileE) << text;
    EXPECT_FALSE(java.isCurrent()) << text;
  }
}

TEST_F(JavaSourcefileTest, BracesInStringsUnbalanceASource) {
  EXPECT_EQ(typesOf("class A { String s = \"{}\"; } class B { }"), "A B");
  EXPECT_EQ(failure("class A { String s = \"}\"; }"), "Line 1: Too many }" + cannotProcess());
}

TEST_F(JavaSourcefileTest, BinaryFilesHaveNoTypes) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>((i * 7 + i / 256) % 256);
  bytes.erase(std::remove_if(bytes.begin(), bytes.end(), [](char c) { return c == '\'' || c == '}'; }), bytes.end());
  EXPECT_EQ(typesOf(bytes), "");
  EXPECT_EQ(typesOf("\0\0\xFF\xFE class A { }"s), "A");
}

TEST_F(JavaSourcefileTest, AnEndByteInACommentEndsTheFile) {
  EXPECT_EQ(failure("class A { /* \xFF */ }"), "Unexpected end of file: Missing }" + cannotProcess());
  EXPECT_EQ(typesOf("class A { } // \xFF\nclass B { }"), "A");
}

TEST_F(JavaSourcefileTest, ManyLevels) {
  const std::string open(100'000, '{');
  const std::string close(100'000, '}');
  EXPECT_EQ(typesOf("class A { void f() " + open + close + " } class B { }"), "A B");
  EXPECT_EQ(failure("class A { void f() " + open), "Unexpected end of file: Missing }" + cannotProcess());
}

TEST_F(JavaSourcefileTest, ASourceOfOneLongLine) {
  std::string text = "class A { ";
  text.reserve(51'000'000);
  while (text.size() < 50'000'000) text += "int x = 'a' + f(\"b\"); /* c */ void f() { g(); } ";
  EXPECT_EQ(typesOf(text + "} class B { }"), "A B");
  EXPECT_EQ(typesOf("class A { " + std::string(50'000'000, 'x') + "; }"), "A");
}

// The main class.

TEST_F(JavaSourcefileTest, TheMainClassIsQualified) {
  const std::string method = "public static void main(String[] a) { } ";
  EXPECT_EQ(analysed("class X { } class A { " + method + "}").mainClass(), "A");
  EXPECT_EQ(analysed("package p.q; class X { } class A { " + method + "} class Y { }").mainClass(), "p.q.A");
  EXPECT_EQ(analysed("package p; class A { }").mainClass(), "");
}

TEST_F(JavaSourcefileTest, MoreThanOneMainMethodIsRefused) {
  const auto messageOf = [this](const std::string& text) {
    try {
      analysed(text).mainClass();
    } catch (const JavaSourcefile::MultiplePublicStaticVoidMainE& failure) {
      return failure.message;
    }
    return "none"s;
  };
  const std::string method = "public static void main(String[] a) { } ";
  const auto expected = [this](const std::string& name) {
    return "Class " + name + "(File \"" + path() + "\") has multiple main() methods.\n";
  };
  EXPECT_EQ(messageOf("class A { " + method + method + "}"), expected("A"));
  EXPECT_EQ(messageOf("package p; class A { " + method + "} class B { " + method + "} class C { " + method + "}"),
            expected("B"));
}

}  // namespace
}  // namespace tarnwick::test
