#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"
#include "source/TypeIndex.h"
#include "support/ClassBytes.h"
#include "support/FileTimes.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

constexpr std::time_t start = 1'500'000'000;
constexpr JavaReading newer{true, 17};

/// What the newer reading makes of sources in a scratch folder.
class NewerSourcefileTest : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return scratch_.file(name); }

  void write(const std::string& name, const std::string& text) const {
    writeFile(path(name), text);
    setFileTime(path(name), start);
  }
  void makeClass(const std::string& name, std::time_t time = start) const {
    const Filename file(path(name) + ".class");
    platform::makeFolders(file.directory());
    writeFile(file.fullName(), "");
    setFileTime(file.fullName(), time);
  }
  std::unique_ptr<JavaSourcefile> read(const std::string& name, JavaReading reading = newer) const {
    auto source = std::make_unique<JavaSourcefile>(path(name), FileMode::Read);
    source->close();
    source->analyse(reading);
    return source;
  }
  static TypeIndex indexOf(const std::vector<const JavaSourcefile*>& sources) {
    std::vector<ClassRef> entries;
    for (const auto* source : sources)
      for (const auto& type : source->types()) entries.push_back({*type, *source});
    return TypeIndex(entries);
  }
  bool isUpToDate(const JavaSourcefile& source) const {
    return source.isUpToDate(indexOf({&source}), "", scratch_.path());
  }
  static std::vector<std::string> namesOf(const JavaSourcefile& source) {
    std::vector<std::string> names;
    for (const auto& type : source.types()) names.push_back(type->name);
    return names;
  }

  ScratchFolder scratch_;
};

using Texts = std::vector<std::string>;

TEST_F(NewerSourcefileTest, TypesAndTheirMembersAreCalledAsTheirClassFiles) {
  write(
      "A.java",
      "package p.q;\nclass A<T> { enum E { X { void f() {} } } interface I { record R(int a) {} } }\n@interface B {}");
  const auto source = read("A.java");
  EXPECT_EQ(source->package(), "p.q");
  EXPECT_EQ(namesOf(*source), (Texts{"A", "A$E", "A$I", "A$I$R", "B"}));
  EXPECT_EQ(source->classes().size(), 3U);
  EXPECT_EQ(source->interfaces().size(), 2U);
}

TEST_F(NewerSourcefileTest, SupertypesAreCalledSoToo) {
  write("A.java",
        "class A extends Base<String> implements Outer.Inner, java.util.List<A> {\n"
        "  class M extends N {} class N extends other.A {} interface P extends A, Q {} interface Q {}\n}");
  const auto source = read("A.java");
  const auto& types = source->types();
  EXPECT_EQ(types[0]->extendsList, Texts{"Base"});
  EXPECT_EQ(types[0]->implementsList, (Texts{"Outer$Inner", "java.util.List"}));
  EXPECT_EQ(types[1]->extendsList, Texts{"A$N"});
  EXPECT_EQ(types[2]->extendsList, Texts{"other.A"});
  EXPECT_EQ(types[3]->extendsList, (Texts{"A", "A$Q"}));
}

TEST_F(NewerSourcefileTest, TheClassWithAMainMethodIsFound) {
  write("A.java", "package p; enum A { X; public static void main(final String... args) {} }");
  EXPECT_EQ(read("A.java")->mainClass(), "p.A");
  write("I.java", "interface I { static void main(String[] args) {} }");
  EXPECT_EQ(read("I.java")->mainClass(), "I") << "an interface can be run, too";
  write("N.java", "class N { static class In { public static void main(String[] args) {} } }");
  EXPECT_EQ(read("N.java")->mainClass(), "") << "only at the top";
}

TEST_F(NewerSourcefileTest, TheJdkDecidesWhatIsAMainMethod) {
  write("A.java", "class A { void main() {} }");
  EXPECT_EQ(read("A.java", {true, 24})->mainClass(), "");
  EXPECT_EQ(read("A.java", {true, 25})->mainClass(), "A");
  write("C.java", "void main() {}");
  EXPECT_EQ(read("C.java", {true, 25})->mainClass(), "C") << "a compact source is a class";
}

TEST_F(NewerSourcefileTest, TwoMainMethodsAreAConflict) {
  write("A.java",
        "class A { public static void main(String[] a) {} } class B { public static void main(String[] a) {} }");
  const auto source = read("A.java");
  EXPECT_THROW(source->mainClass(), JavaSourcefile::MultiplePublicStaticVoidMainE);
}

TEST_F(NewerSourcefileTest, EachClassFileCounts) {
  write("A.java", "class A { class M {} }");
  const auto source = read("A.java");
  EXPECT_FALSE(isUpToDate(*source));
  makeClass("A");
  EXPECT_FALSE(isUpToDate(*source)) << "the member's is missing";
  makeClass("A$M");
  EXPECT_TRUE(isUpToDate(*source)) << "the same second is new enough";
  makeClass("A$M", start - 1);
  EXPECT_FALSE(isUpToDate(*source));
}

TEST_F(NewerSourcefileTest, AClassFileThatTheJdkCantRunIsStale) {
  write("A.java", "class A { class M {} }");
  write("module-info.java", "module m {}");
  const auto compileFor = [this](const std::string& name, unsigned java) {
    writeFile(path(name) + ".class", ClassBytes::of(name, java));
    setFileTime(path(name) + ".class", start + 1);
  };
  for (const std::string name : {"A", "A$M", "module-info"}) compileFor(name, 17);
  for (const std::string name : {"A", "A$M", "module-info"}) {
    const std::string source = name == "module-info" ? "module-info.java" : "A.java";
    EXPECT_TRUE(isUpToDate(*read(source)));
    compileFor(name, 18);
    EXPECT_FALSE(isUpToDate(*read(source))) << name;
    EXPECT_TRUE(isUpToDate(*read(source, {true, 18})));
    EXPECT_TRUE(isUpToDate(*read(source, {true, 0}))) << "of a JDK without a version nothing is known";
    compileFor(name, 17);
  }
  compileFor("A", 18);
  compileFor("A$M", 18);
  EXPECT_TRUE(isUpToDate(*read("A.java", {false, 17}))) << "the classic way looks at times alone";
}

TEST_F(NewerSourcefileTest, AClassFileIsOpenedAgainOnlyWhenItHasChanged) {
  write("A.java", "class A {}");
  const auto source = read("A.java");
  const auto compileFor = [this](unsigned java, std::time_t time) {
    writeFile(path("A.class"), ClassBytes::of("A", java));
    setFileTime(path("A.class"), time);
  };
  compileFor(17, start + 1);
  EXPECT_TRUE(isUpToDate(*source));
  compileFor(18, start + 1);
  EXPECT_TRUE(isUpToDate(*source)) << "nobody compiles twice in a second with two JDKs";
  compileFor(18, start + 2);
  EXPECT_FALSE(isUpToDate(*source));
  compileFor(17, start + 3);
  EXPECT_TRUE(isUpToDate(*source));
}

TEST_F(NewerSourcefileTest, LocalAndAnonymousClassesDoNotCount) {
  write("A.java", "class A { void f() { class L {} new Object() {}; } }");
  makeClass("A");
  EXPECT_TRUE(isUpToDate(*read("A.java")));
}

TEST_F(NewerSourcefileTest, ANewerSupertypeMakesAClassStale) {
  write("A.java", "class A extends B.C {}");
  write("B.java", "class B { static class C {} }");
  makeClass("A", start + 3);
  setFileTime(path("B.java"), start + 5);
  const auto a = read("A.java");
  const auto b = read("B.java");
  EXPECT_FALSE(a->isUpToDate(indexOf({a.get(), b.get()}), "", scratch_.path()));
  makeClass("A", start + 6);
  EXPECT_TRUE(a->isUpToDate(indexOf({a.get(), b.get()}), "", scratch_.path()));
}

TEST_F(NewerSourcefileTest, ATypeOfTheSameNameInAnotherPackageIsNoSupertype) {
  write("A.java", "class A extends other.A {}");
  makeClass("A");
  EXPECT_TRUE(isUpToDate(*read("A.java"))) << "no circle";
}

TEST_F(NewerSourcefileTest, ASourceWithoutTypesIsUpToDateAsTheCompilerSeesIt) {
  write("Empty.java", "");
  EXPECT_TRUE(isUpToDate(*read("Empty.java")));
  write("package-info.java", "package p;");
  EXPECT_TRUE(isUpToDate(*read("package-info.java"))) << "no class file is made";
  write("package-info.java", "@Deprecated package p;");
  EXPECT_FALSE(isUpToDate(*read("package-info.java")));
  makeClass(std::string("p") + platform::folderSeparator + "package-info");
  EXPECT_TRUE(isUpToDate(*read("package-info.java")));
  write("module-info.java", "module m {}");
  EXPECT_FALSE(isUpToDate(*read("module-info.java")));
  makeClass("module-info");
  EXPECT_TRUE(isUpToDate(*read("module-info.java")));
}

TEST_F(NewerSourcefileTest, ASourceIsReadAnewWhenTheWayChanges) {
  write("A.java", "enum A { X }");
  const auto source = read("A.java");
  EXPECT_FALSE(source->isCurrent(newer)) << "not looked at yet";
  EXPECT_TRUE(source->isCurrent(newer));
  EXPECT_FALSE(source->isCurrent());
  source->analyse();
  EXPECT_TRUE(source->isCurrent());
  EXPECT_EQ(namesOf(*source), Texts{});
  EXPECT_FALSE(source->isCurrent(newer));
}

TEST_F(NewerSourcefileTest, ClassesLieWhereThePackagesBegin) {
  const std::string slash(1, platform::folderSeparator);
  const std::string inPackage = "p" + slash + "q" + slash + "A";
  platform::makeFolders(path("p" + slash + "q"));
  write(inPackage + ".java", "package p.q; class A {}");
  const auto source = read(inPackage + ".java");
  EXPECT_EQ(source->root() + slash, scratch_.path());
  makeClass("p" + slash + "q" + slash + "p" + slash + "q" + slash + "A");
  EXPECT_FALSE(isUpToDate(*source)) << "where the classic way would have it";
  makeClass(inPackage);
  EXPECT_TRUE(isUpToDate(*source));
  EXPECT_TRUE(source->isUpToDate(indexOf({source.get()}), " . ", scratch_.path()));
  EXPECT_FALSE(source->isUpToDate(indexOf({source.get()}), "out", scratch_.path()));
  makeClass("out" + slash + inPackage);
  EXPECT_TRUE(source->isUpToDate(indexOf({source.get()}), "out", scratch_.path()));
}

TEST_F(NewerSourcefileTest, WhereTheFolderIsNotThePackagesItIsTheRoot) {
  const std::string slash(1, platform::folderSeparator);
  platform::makeFolders(path("other"));
  write("other" + slash + "A.java", "package p; class A {}");
  const auto source = read("other" + slash + "A.java");
  EXPECT_EQ(source->root(), path("other"));
  EXPECT_FALSE(isUpToDate(*source));
  makeClass("other" + slash + "p" + slash + "A");
  EXPECT_TRUE(isUpToDate(*source));
}

/// Sources of packages, each with a class file.
class PackagesUpToDateTest : public NewerSourcefileTest {
 protected:
  const JavaSourcefile& add(const std::string& folder, const std::string& name, const std::string& text,
                            std::time_t time = start) {
    const std::string base = folder + platform::folderSeparator + name;
    platform::makeFolders(path(folder));
    write(base + ".java", "package " + folder + ";\n" + text);
    setFileTime(path(base + ".java"), time);
    makeClass(base, start + 1);
    sources_.push_back(read(base + ".java"));
    return *sources_.back();
  }
  bool isUpToDateAmongAll(const JavaSourcefile& source) const {
    std::vector<const JavaSourcefile*> all;
    for (const auto& one : sources_) all.push_back(one.get());
    return source.isUpToDate(indexOf(all), "", scratch_.path());
  }

  std::vector<std::unique_ptr<JavaSourcefile>> sources_;
};

TEST_F(PackagesUpToDateTest, TypesOfOneNameInTwoPackagesAreTwo) {
  const auto& one = add("a", "List", "class List extends b.List {}");
  const auto& two = add("b", "List", "public class List {}");
  EXPECT_TRUE(isUpToDateAmongAll(one)) << "no circle";
  EXPECT_TRUE(isUpToDateAmongAll(two));
}

TEST_F(PackagesUpToDateTest, ASupertypeIsFoundByItsImport) {
  for (const char* how : {"import b.Base;", "import b.*;", ""}) {
    sources_.clear();
    const std::string name = *how ? "Base" : "b.Base";
    const auto& user = add("a", "User", std::string(how) + " class User extends " + name + " {}");
    add("c", "Base", "public class Base {}", start + 5);
    EXPECT_TRUE(isUpToDateAmongAll(user)) << how << ": that of another package does not count";
    add("b", "Base", "public class Base {}", start + 5);
    EXPECT_FALSE(isUpToDateAmongAll(user)) << how;
  }
}

TEST_F(PackagesUpToDateTest, ASupertypesOwnSupertypesAreLookedForWhereItStands) {
  const auto& user = add("c", "User", "import b.Base; class User extends Base {}");
  add("b", "Base", "import m.Middle; public class Base extends Middle {}");
  add("m", "Middle", "public class Middle extends Top {}");
  EXPECT_TRUE(isUpToDateAmongAll(user));
  add("m", "Top", "public class Top {}", start + 5);
  EXPECT_FALSE(isUpToDateAmongAll(user));
}

TEST_F(PackagesUpToDateTest, AMemberOfAnImportedTypeIsFoundToo) {
  const auto& user = add("a", "User", "import b.Outer; class User implements Outer.In {}");
  EXPECT_TRUE(isUpToDateAmongAll(user));
  add("b", "Outer", "public class Outer { public interface In {} }", start + 5);
  EXPECT_FALSE(isUpToDateAmongAll(user));
}

TEST_F(PackagesUpToDateTest, ThePackagesOwnTypeComesBeforeThoseOnDemand) {
  const auto& user = add("a", "User", "import b.*; class User extends Base {}");
  add("b", "Base", "public class Base {}", start + 5);
  EXPECT_FALSE(isUpToDateAmongAll(user));
  add("a", "Base", "class Base {}");
  EXPECT_TRUE(isUpToDateAmongAll(user));
}

TEST_F(NewerSourcefileTest, WhatIsNotThereIsTold) {
  write("A.java", "class A {}");
  const auto source = read("A.java");
  platform::deleteFile(path("A.java"));
  try {
    source->analyse(newer);
    FAIL() << "no exception";
  } catch (const Compiler::RefusedE&) {
    FAIL() << "no way of reading would help";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory\nCan't process file " + path("A.java"));
  }
}

TEST_F(NewerSourcefileTest, TheNewerWayTakesWhatDeclaresSomethingUnderTheRightName) {
  const auto takes = [this](const std::string& text) {
    write("X.java", text);
    return newerWayTakes(path("X.java"));
  };
  for (const char* text :
       {"enum X { A }", "class A<T> {}", "public record X() {}", "public class X {} public class B {}", "package p;",
        "module m {}", "void main() {}", "class X { public enum Z { A } }"})
    EXPECT_TRUE(takes(text)) << text;
  for (const char* text : {"", "// nothing", "public class Other {}", "import java.util.*;", "class A {} }",
                           "class A { {}", "} class A {"})
    EXPECT_FALSE(takes(text)) << text;
  EXPECT_FALSE(newerWayTakes(path("None.java")));
}

}  // namespace
}  // namespace tarnwick::test
