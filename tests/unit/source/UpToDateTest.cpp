#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "source/JavaSourcefile.h"
#include "source/TypeIndex.h"
#include "support/FileTimes.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

constexpr std::time_t start = 1'500'000'000;

/// The rule as one would tell it, looking at everything each time.
class LinearRule {
 public:
  LinearRule(const std::vector<ClassRef>& index, const JavaSourcefile& source, std::string folder)
      : index_(index), source_(source), folder_(std::move(folder)) {}

  bool isUpToDate() const {
    bool result = true;
    for (auto type = source_.types().rbegin(); type != source_.types().rend(); ++type) {
      if (!classFileCheck((*type)->name)) result = false;
      if (!supertypes(**type, (*type)->name, 0)) result = false;
    }
    return result;
  }

 private:
  bool supertypes(const SourceType& type, const std::string& name, int depth) const {
    for (auto s = type.extendsList.rbegin(); s != type.extendsList.rend(); ++s)
      if (!supertypeCheck(*s, name, depth)) return false;
    for (auto s = type.implementsList.rbegin(); s != type.implementsList.rend(); ++s)
      if (!supertypeCheck(*s, name, depth)) return false;
    return true;
  }

  bool classFileCheck(const std::string& name) const {
    const auto sameName = [&](const ClassRef& entry) { return entry.type.name == name; };
    if (std::none_of(index_.begin(), index_.end(), sameName)) return true;
    return isOlder(source_, name);
  }

  bool supertypeCheck(const std::string& super, const std::string& name, int depth) const {
    if (depth > static_cast<int>(index_.size()) - 1) return false;
    const auto sameName = [&](const auto& entry) { return entry.type.name == super; };
    const auto entry = std::find_if(index_.rbegin(), index_.rend(), sameName);
    if (entry == index_.rend()) return true;
    if (!isOlder(entry->source, name)) return false;
    const auto& types = entry->source.types();
    const auto record = std::find_if(types.rbegin(), types.rend(), [&](const auto& t) { return t->name == super; });
    return record == types.rend() || supertypes(**record, name, depth + 1);
  }

  bool isOlder(const JavaSourcefile& source, const std::string& name) const {
    const auto sourceTime = platform::lastChange(source.name().fullName());
    const auto classTime = platform::lastChange(folder_ + name + ".class");
    return sourceTime && classTime && *sourceTime < *classTime;
  }

  const std::vector<ClassRef>& index_;
  const JavaSourcefile& source_;
  std::string folder_;
};

class UpToDateTest : public testing::Test {
 protected:
  JavaSourcefile& add(const std::string& name, const std::string& text, std::time_t time = start) {
    writeFile(scratch_.file(name), text);
    setFileTime(scratch_.file(name), time);
    sources_.push_back(std::make_unique<JavaSourcefile>(scratch_.file(name), FileMode::Read));
    sources_.back()->analyse();
    return *sources_.back();
  }
  void addClassFile(const std::string& name, std::time_t time) {
    writeFile(scratch_.file(name + ".class"), "");
    setFileTime(scratch_.file(name + ".class"), time);
  }

  /// As a project gathers them: from the last source to the first, classes before interfaces.
  std::vector<ClassRef> entries() const {
    std::vector<ClassRef> all;
    for (auto source = sources_.rbegin(); source != sources_.rend(); ++source) {
      for (const auto& type : (*source)->classes()) all.push_back({*type, **source});
      for (const auto& type : (*source)->interfaces()) all.push_back({*type, **source});
    }
    return all;
  }

  /// Both ways, which must agree.
  bool isUpToDate(const JavaSourcefile& source, const std::vector<ClassRef>& list) const {
    const bool result = source.isUpToDate(TypeIndex(list), "", scratch_.path());
    EXPECT_EQ(result, LinearRule(list, source, scratch_.path()).isUpToDate());
    return result;
  }
  bool isUpToDate(const JavaSourcefile& source) const { return isUpToDate(source, entries()); }

  ScratchFolder scratch_;
  std::vector<std::unique_ptr<JavaSourcefile>> sources_;
};

TEST_F(UpToDateTest, AClassFileMustBeThereAndNewer) {
  const auto& a = add("A.java", "class A { }");
  EXPECT_FALSE(isUpToDate(a)) << "no class file";
  addClassFile("A", start + 1);
  EXPECT_TRUE(isUpToDate(a)) << "a second newer";
  addClassFile("A", start);
  EXPECT_FALSE(isUpToDate(a)) << "of the same second";
  addClassFile("A", start - 1);
  EXPECT_FALSE(isUpToDate(a));
}

TEST_F(UpToDateTest, EveryTypeOfASourceCounts) {
  const auto& a = add("A.java", "class A { } interface B { } class C { }");
  for (const std::string missing : {"A", "B", "C"}) {
    for (const std::string name : {"A", "B", "C"}) addClassFile(name, start + 1);
    EXPECT_TRUE(isUpToDate(a));
    platform::deleteFile(scratch_.file(missing + ".class"));
    EXPECT_FALSE(isUpToDate(a)) << missing;
  }
}

TEST_F(UpToDateTest, ASourceWithoutTypesIsUpToDate) {
  EXPECT_TRUE(isUpToDate(add("A.java", "")));
}

TEST_F(UpToDateTest, AMissingSourceIsOutOfDate) {
  const auto& a = add("A.java", "class A { }");
  addClassFile("A", start + 1);
  platform::deleteFile(scratch_.file("A.java"));
  EXPECT_FALSE(isUpToDate(a));
}

TEST_F(UpToDateTest, ATypeThatIsNotInTheIndexNeedsNoClassFile) {
  const auto& a = add("A.java", "class A { }");
  EXPECT_TRUE(isUpToDate(a, {}));
}

TEST_F(UpToDateTest, AnEmptyIndexLeavesNoRoomForSupertypes) {
  EXPECT_FALSE(isUpToDate(add("A.java", "class A extends Object { }"), {}));
}

TEST_F(UpToDateTest, ForeignSupertypesDoNotCount) {
  const auto& a = add("A.java", "class A extends java.lang.Object implements Runnable { }");
  addClassFile("A", start + 1);
  EXPECT_TRUE(isUpToDate(a));
}

TEST_F(UpToDateTest, ANewerSuperclassSource) {
  const auto& a = add("A.java", "class A extends B { }");
  add("B.java", "class B { }", start + 5);
  addClassFile("A", start + 5);
  EXPECT_FALSE(isUpToDate(a)) << "the same second is too late";
  addClassFile("A", start + 6);
  EXPECT_TRUE(isUpToDate(a)) << "the superclass needs no class file for that";
}

TEST_F(UpToDateTest, ANewerSourceTwoStepsUp) {
  const auto& a = add("A.java", "class A extends B { }");
  add("B.java", "class B extends C { }");
  add("C.java", "class C { }", start + 5);
  addClassFile("A", start + 3);
  EXPECT_FALSE(isUpToDate(a));
  addClassFile("A", start + 6);
  EXPECT_TRUE(isUpToDate(a));
}

TEST_F(UpToDateTest, NewerSourcesOfInterfaces) {
  const auto& a = add("A.java", "class A implements X, I { }");
  add("I.java", "interface I extends Y, J { }");
  add("J.java", "interface J { }", start + 5);
  addClassFile("A", start + 3);
  EXPECT_FALSE(isUpToDate(a));
  addClassFile("A", start + 6);
  EXPECT_TRUE(isUpToDate(a));
  platform::deleteFile(scratch_.file("J.java"));
  EXPECT_FALSE(isUpToDate(a)) << "a source that is gone";
}

TEST_F(UpToDateTest, CircularInheritanceIsNeverUpToDate) {
  const auto& a = add("A.java", "class A extends B { }");
  const auto& b = add("B.java", "class B extends A { }");
  const auto& c = add("C.java", "class C extends B { }");
  const auto& d = add("D.java", "class D extends D { }");
  for (const std::string name : {"A", "B", "C", "D"}) addClassFile(name, start + 1);
  EXPECT_FALSE(isUpToDate(a));
  EXPECT_FALSE(isUpToDate(b));
  EXPECT_FALSE(isUpToDate(c));
  EXPECT_FALSE(isUpToDate(d));
}

TEST_F(UpToDateTest, TheDepthIsBoundByTheIndex) {
  const auto& a = add("A.java", "class A extends B { }");
  const auto& b = add("B.java", "class B extends Object { }");
  addClassFile("A", start + 1);
  addClassFile("B", start + 1);
  EXPECT_TRUE(isUpToDate(a));
  const std::vector<ClassRef> onlyB = {{*b.types()[0], b}};
  EXPECT_FALSE(isUpToDate(a, onlyB)) << "A's way up is longer than the index, as A is not in it";
  EXPECT_TRUE(isUpToDate(b, onlyB));
}

TEST_F(UpToDateTest, OfEqualNamesTheLastEntryDefinesASupertype) {
  const auto& a = add("A.java", "class A extends B { }");
  const auto& old = add("B1.java", "class B { }");
  const auto& fresh = add("B2.java", "class B { }", start + 5);
  addClassFile("A", start + 3);
  const ClassRef entryA{*a.types()[0], a};
  const ClassRef entryOld{*old.types()[0], old};
  const ClassRef entryFresh{*fresh.types()[0], fresh};
  EXPECT_TRUE(isUpToDate(a, {entryA, entryFresh, entryOld}));
  EXPECT_FALSE(isUpToDate(a, {entryA, entryOld, entryFresh}));
}

TEST_F(UpToDateTest, TheIndexKnowsFirstAndLastOfAName) {
  const auto& one = add("A1.java", "class A { }");
  const auto& two = add("A2.java", "class A { } class B { }");
  const TypeIndex index({{*one.types()[0], one}, {*two.types()[0], two}, {*two.types()[1], two}});
  EXPECT_EQ(&index.first("A")->source, &one);
  EXPECT_EQ(&index.last("A")->source, &two);
  EXPECT_EQ(index.first("B"), index.last("B"));
  EXPECT_EQ(index.first("C"), nullptr);
  EXPECT_EQ(index.last("C"), nullptr);
  EXPECT_EQ(index.entries().size(), 3u);
}

TEST_F(UpToDateTest, TheTimeOfASourceIsAskedOnce) {
  const auto& a = add("A.java", "class A { }");
  const TypeIndex index(entries());
  EXPECT_EQ(index.timeOf(a), start);
  setFileTime(scratch_.file("A.java"), start + 9);
  EXPECT_EQ(index.timeOf(a), start);
  EXPECT_EQ(TypeIndex(entries()).timeOf(a), start + 9);
}

TEST_F(UpToDateTest, AClassThatWasCompiledInTheRunIsSeen) {
  const auto& a = add("A.java", "class A { }");
  const TypeIndex index(entries());
  EXPECT_FALSE(a.isUpToDate(index, "", scratch_.path()));
  addClassFile("A", start + 1);
  EXPECT_TRUE(a.isUpToDate(index, "", scratch_.path()));
}

TEST_F(UpToDateTest, WhereTheClassesAre) {
  const char slash = platform::folderSeparator;
  const std::string plain = scratch_.file("A.class");
  const std::string inPackage = scratch_.file(std::string("p") + slash + "q" + slash + "A.class");
  const std::string elsewhere = scratch_.file("out put");
  platform::makeFolders(scratch_.file(std::string("p") + slash + "q"));
  platform::makeFolders(elsewhere + slash + "p" + slash + "q");
  std::string withoutSeparator = scratch_.path();
  withoutSeparator.pop_back();
  const auto found = [&](const std::string& text, const std::string& classFile, const std::string& destination,
                         const std::string& project) {
    const auto& a = add("A.java", text);
    const TypeIndex index({{*a.types()[0], a}});
    EXPECT_FALSE(a.isUpToDate(index, destination, project));
    writeFile(classFile, "");
    setFileTime(classFile, start + 1);
    const bool result = a.isUpToDate(index, destination, project);
    platform::deleteFile(classFile);
    return result;
  };
  EXPECT_TRUE(found("class A { }", plain, "", withoutSeparator));
  EXPECT_TRUE(found("class A { }", plain, "", scratch_.path()));
  EXPECT_TRUE(found("class A { }", plain, ".", withoutSeparator));
  for (const std::string& relative : {std::string("out put"), std::string(".") + slash + "out put"}) {
    EXPECT_TRUE(found("class A { }", elsewhere + slash + "A.class", relative, withoutSeparator)) << relative;
  }
  EXPECT_FALSE(found("class A { }", plain, "..", withoutSeparator)) << "the folder above is another";
  EXPECT_FALSE(found("class A { }", plain, ".hidden", withoutSeparator));
  EXPECT_TRUE(found("package p.q; class A { }", inPackage, "", withoutSeparator));
  EXPECT_TRUE(found("class A { }", elsewhere + slash + "A.class", elsewhere, withoutSeparator));
  EXPECT_TRUE(found("class A { }", elsewhere + slash + "A.class", '"' + elsewhere + '"', withoutSeparator))
      << "the setting carries its own quotes";
  EXPECT_TRUE(found("package p.q; class A { }", elsewhere + slash + "p" + slash + "q" + slash + "A.class", elsewhere,
                    withoutSeparator));
}

/// A project of random types, some of them double, missing, circular or foreign.
class RandomProject {
 public:
  explicit RandomProject(unsigned seed) : random_(seed) {}

  std::string someName() { return "T" + std::to_string(below(9)); }
  std::string someSource() {
    std::string text;
    for (int types = below(4); types > 0; --types) text += someType();
    return text;
  }
  int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  bool oneIn(int chance) { return below(chance) == 0; }

 private:
  std::string someType() {
    if (oneIn(3)) return "interface " + someName() + list(" extends ", below(4)) + " { }\n";
    return "class " + someName() + list(" extends ", below(2)) + list(" implements ", below(3)) + " { }\n";
  }
  std::string list(const std::string& word, int count) {
    std::string text;
    for (; count > 0; --count) text += (text.empty() ? word : ", ") + (oneIn(5) ? "Foreign" : someName());
    return text;
  }

  std::mt19937 random_;
};

TEST_F(UpToDateTest, OnRandomProjectsBothWaysAgree) {
  int fresh = 0;
  int stale = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    RandomProject project(seed);
    sources_.clear();
    const int spread = 1 + project.below(3);
    const int sources = 1 + project.below(6);
    for (int i = 0; i < sources; ++i)
      add("S" + std::to_string(i) + ".java", project.someSource(), start + project.below(spread));
    for (int i = 0; i < 9; ++i) {
      addClassFile("T" + std::to_string(i), start + 1 + project.below(3));
      if (project.oneIn(30)) platform::deleteFile(scratch_.file("T" + std::to_string(i) + ".class"));
    }
    if (project.oneIn(10)) platform::deleteFile(scratch_.file("S0.java"));
    auto list = entries();
    while (project.oneIn(4) && !list.empty()) list.pop_back();
    const TypeIndex index(list);
    for (const auto& source : sources_) {
      const bool result = source->isUpToDate(index, "", scratch_.path());
      ASSERT_EQ(result, LinearRule(list, *source, scratch_.path()).isUpToDate()) << "seed " << seed;
      ++(result ? fresh : stale);
    }
  }
  EXPECT_GT(fresh, 100);
  EXPECT_GT(stale, 100);
}

TEST_F(UpToDateTest, ALongChainAndManyDiamonds) {
  std::string chain;
  for (int i = 0; i < 100'000; ++i)
    chain += "class C" + std::to_string(i) + " extends C" + std::to_string(i + 1) + "{}\n";
  std::string diamonds;
  for (int i = 0; i < 1000; ++i) {
    const std::string above = std::to_string(i + 1);
    diamonds += "interface D" + std::to_string(i) + " extends L" + above + ", R" + above + "{}\n";
    diamonds +=
        "interface L" + above + " extends D" + above + "{}\ninterface R" + above + " extends D" + above + "{}\n";
  }
  const auto& user = add("C.java", chain);
  add("D.java", diamonds);
  const TypeIndex index(entries());
  EXPECT_TRUE(index.isOlder(user, "C0", start + 1));
  EXPECT_FALSE(index.isOlder(user, "C0", start));
  EXPECT_TRUE(index.isOlder(user, "D0", start + 1));
  EXPECT_FALSE(index.isOlder(user, "D0", std::nullopt));
}

}  // namespace
}  // namespace tarnwick::test
