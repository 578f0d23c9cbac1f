// The class's field of the file view, which follows what is compiled.
#include "ProjectViewFixture.h"
#include "base/FileForSubprocess.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "source/ClassToRun.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

class CompiledClassTest : public ProjectViewFixture {
 protected:
  void start(const std::function<void(Settings& settings)>& more = [](Settings&) {}) {
    saveEarlierRun([&](Settings& settings) {
      settings.newerJava = true;
      more(settings);
    });
  }
  /// A source and, as the compiler would leave it, its class.
  void makeCompiled(const std::string& name) {
    makeSource(name, mainMethod());
    makeCurrent(name);
  }
  static std::string field(ScriptedWindow& panel) { return panel.page(TABS, 0).text(FIELD); }
  std::string compiled(ScriptedWindow& panel, const std::string& name) {
    panel.type(SOURCE, quoted(path(name + ".java")));
    panel.press(JAVAC);
    return field(panel);
  }
  std::string classOf(const std::string& name) const { return quoted(path(name + ".class")); }
};

TEST_F(CompiledClassTest, AnEmptyFieldTakesTheClassAndFollowsTheNextSource) {
  makeCompiled("One");
  makeCompiled("Two");
  start();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "One"), classOf("One"));
    EXPECT_EQ(compiled(panel, "Two"), classOf("Two"));
    exit(panel);
  });
  EXPECT_EQ(saved("FILEVIEW_CLASS"), path("Two.class") + ";" + userFolder());
}

TEST_F(CompiledClassTest, AClassOfTheUsersOwnStays) {
  makeCompiled("One");
  start([this](Settings& settings) { settings.fileviewClass.setName(path("Other.class")); });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "One"), classOf("Other"));
    exit(panel);
  });
}

TEST_F(CompiledClassTest, TheClassOfTheSourceOfTheLastTimeGives) {
  makeCompiled("One");
  makeCompiled("Two");
  start([this](Settings& settings) {
    settings.fileviewSource.setName(path("One.java"));
    settings.fileviewClass.setName(path("One.class"));
  });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "Two"), classOf("Two"));
    exit(panel);
  });
}

TEST_F(CompiledClassTest, ItGoesOnAfterACompileThatFailsAndAfterASourceWithoutAMainMethod) {
  makeCompiled("One");
  makeSource("Helper");
  makeCurrent("Helper");
  makeSource("Two", mainMethod());
  start();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "One"), classOf("One"));
    EXPECT_EQ(compiled(panel, "Helper"), classOf("One"));
    EXPECT_EQ(compiled(panel, "Two"), classOf("One")) << "there is no class of it yet";
    makeCurrent("Two");
    EXPECT_EQ(compiled(panel, "Two"), classOf("Two"));
    exit(panel);
  });
}

TEST_F(CompiledClassTest, AClassThatIsCalledOtherwiseNowTakesThePlace) {
  makeCompiled("One");
  start();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "One"), classOf("One"));
    writeFile(path("One.java"), "class Other {" + mainMethod() + "}");
    setFileTime(path("One.java"), sourceTime);
    makeCurrent("Other");
    EXPECT_EQ(compiled(panel, "One"), classOf("Other"));
    panel.page(TABS, 0).type(FIELD, classOf("Mine"));
    EXPECT_EQ(compiled(panel, "One"), classOf("Mine")) << "the user's own";
    exit(panel);
  });
}

TEST_F(CompiledClassTest, ItsArgumentsStayWhileItIsTheSame) {
  makeCompiled("One");
  makeCompiled("Two");
  start();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, classOf("One") + " a b");
    EXPECT_EQ(compiled(panel, "One"), classOf("One") + " a b");
    EXPECT_EQ(compiled(panel, "Two"), classOf("Two")) << "those of another program";
    exit(panel);
  });
}

TEST_F(CompiledClassTest, WithoutANewClassOrAMainMethodNothingHappens) {
  makeCompiled("Stale");
  makeStale("Stale");
  makeSource("None", mainMethod());
  makeSource("Idle");
  makeCurrent("Idle");
  start();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    for (const auto* name : {"Stale", "None", "Idle"}) EXPECT_EQ(compiled(panel, name), "") << name;
    exit(panel);
  });
}

TEST_F(CompiledClassTest, InTheClassicWayTheFieldIsTheUsers) {
  makeCompiled("One");
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(compiled(panel, "One"), "");
    exit(panel);
  });
}

class ClassToRunTest : public ProjectViewFixture {
 protected:
  std::string classIn(const std::string& name, const std::string& text) {
    const Filename source(path(name));
    platform::makeFolders(source.directoryNoSlash());
    writeFile(source.fullName(), text);
    return classToRun(settings(), source);
  }
  std::string below(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return path(name);
  }
  const std::string main = "{ public static void main(String[] a) {} }";
};

TEST_F(ClassToRunTest, TheOneThatBearsTheSourcesNameElseTheFirst) {
  EXPECT_EQ(classIn("A.java", "class B " + main + " class A " + main), path("A.class"));
  EXPECT_EQ(classIn("A.java", "class B " + main + " class C " + main + " class A {}"), path("B.class"));
  EXPECT_EQ(classIn("A.java", "class A { static class A2 " + main + " }"), path("A$A2.class"));
  EXPECT_EQ(classIn("A.java", "class A {}"), "");
  EXPECT_EQ(classToRun(settings(), Filename(path("Gone.java"))), "");
}

TEST_F(ClassToRunTest, WhereThePackagesBegin) {
  EXPECT_EQ(classIn(below("org/x/A.java").substr(userFolder().size()), "package org.x; class A " + main),
            below("org/x/A.class"));
  EXPECT_EQ(classIn("A.java", "package org.x; class A " + main), below("org/x/A.class"))
      << "in a folder of another name";
}

TEST_F(ClassToRunTest, OrInTheFolderThatIsSet) {
  settings().javacDestination = "out";
  EXPECT_EQ(classIn("A.java", "package org.x; class A " + main), below("out/org/x/A.class"));
  settings().javacDestination = path("all");
  EXPECT_EQ(classIn("A.java", "class A " + main), below("all/A.class"));
}

}  // namespace
}  // namespace tarnwick::test
