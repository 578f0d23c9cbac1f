#include "ProjectFixture.h"
#include "project/ProjMainClassDlg.h"
#include "resources/ProjectLayouts.h"

namespace tarnwick::test {
namespace {

const char title[] = "Select class with main()";

class ProjMainClassDlgTest : public ProjectFixture {
 protected:
  int run(ProjectContext* project, const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog(title, script);
    return ProjMainClassDlg(desktop_, project).runModal();
  }
  /// Expects this message, and the dialog closed as if by Cancel.
  void refuses(ProjectContext* project, const std::string& text) {
    desktop_.expectMessage(text);
    isCancelled(project);
  }
  /// The same where nothing has failed.
  void hints(ProjectContext* project, const std::string& text) {
    desktop_.expectHint(text);
    isCancelled(project);
  }
  void isCancelled(ProjectContext* project) {
    EXPECT_EQ(run(project, [](ScriptedWindow& window) { EXPECT_TRUE(window.closed()); }), DIALOG_CANCEL);
  }
  /// Classes in two sources, chosen by hand.
  ProjectContext& openTwo() {
    makeSource("A.java", "package pkg;\nclass Zed { } interface Inner { } class apple { }");
    makeSource("B.java", "class Main " + mainMethod());
    return open("PROJECT_SOURCES  A.java;B.java\nPROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  before\n");
  }
};

TEST_F(ProjMainClassDlgTest, ListsThePlainNameOfEveryClassSorted) {
  ProjectContext& project = openTwo();
  run(&project, [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(CLASS_LIST), (std::vector<std::string>{"apple", "Main", "Zed"}))
        << "with and without a main method, but no interfaces";
    EXPECT_EQ(window.selection(CLASS_LIST), -1);
    EXPECT_EQ(window.text(IDOK_CONTROL), "OK");
    EXPECT_EQ(window.text(IDCANCEL_CONTROL), "Cancel");
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(desktop_.waits(), 1) << "the project is looked at first";
  EXPECT_FALSE(mainClassLayout().content.children.front().multiple);
}

TEST_F(ProjMainClassDlgTest, TheNewerWayGivesFullNames) {
  ProjectContext& project = openTwo();
  settings().newerJava = true;
  run(&project, [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(CLASS_LIST), (std::vector<std::string>{"Main", "pkg.apple", "pkg.Zed"}));
    window.choose(CLASS_LIST, 2);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(project.mainClass, "pkg.Zed");
}

/// Classes of one name in sources of different roots.
TEST_F(ProjMainClassDlgTest, TheNewerWayTellsClassesOfOneNameApartByTheirSources) {
  for (const char* root : {"one", "two"}) {
    const std::string slash(1, platform::folderSeparator);
    platform::makeFolders(folder() + root + slash + "p");
    makeSource(root + slash + "p" + slash + "Main.java", "package p; class Main {} class " + std::string(root) + "{}");
  }
  ProjectContext& project = open(
      "NEWER_JAVA  ON\nPROJECT_SOURCES  one/p/Main.java;two/p/Main.java\nPROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  x\n");
  const auto choose = [&project, this](int line) {
    run(&project, [line](ScriptedWindow& window) {
      EXPECT_EQ(window.entries(CLASS_LIST),
                (std::vector<std::string>{"p.Main (one/p/Main.java)", "p.Main (two/p/Main.java)", "p.one", "p.two"}));
      window.choose(CLASS_LIST, line);
      window.press(IDOK_CONTROL);
    });
    return project.mainClass + '|' + project.mainSource;
  };
  EXPECT_EQ(choose(0), "p.Main|one/p/Main.java");
  EXPECT_EQ(choose(1), "p.Main|two/p/Main.java");
  EXPECT_EQ(choose(2), "p.one|") << "the name alone tells it";
}

TEST_F(ProjMainClassDlgTest, TheClassicWayTellsNoneApart) {
  makeSource("A.java", "package a; class Main {}");
  makeSource("B.java", "package b; class Main {}");
  ProjectContext& project = open("PROJECT_SOURCES  A.java;B.java\nPROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  x\n");
  run(&project, [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(CLASS_LIST), (std::vector<std::string>{"Main", "Main"}));
    window.choose(CLASS_LIST, 1);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(project.mainClass + '|' + project.mainSource, "Main|");
}

TEST_F(ProjMainClassDlgTest, OkTakesTheSelectedName) {
  ProjectContext& project = openTwo();
  const int result = run(&project, [](ScriptedWindow& window) {
    window.choose(CLASS_LIST, 2);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(result, DIALOG_OK);
  EXPECT_EQ(project.mainClass, "Zed") << "without its package, and though it has no main method";
}

TEST_F(ProjMainClassDlgTest, ADoubleClickTakesTheNameAndCloses) {
  ProjectContext& project = openTwo();
  EXPECT_EQ(run(&project, [](ScriptedWindow& window) { window.doubleClick(CLASS_LIST, 0); }), DIALOG_OK);
  EXPECT_EQ(project.mainClass, "apple");
}

TEST_F(ProjMainClassDlgTest, OkWithNothingSelectedKeepsTheMainClass) {
  ProjectContext& project = openTwo();
  EXPECT_EQ(run(&project, [](ScriptedWindow& window) { window.press(IDOK_CONTROL); }), DIALOG_OK);
  EXPECT_EQ(project.mainClass, "before");
}

TEST_F(ProjMainClassDlgTest, CancelKeepsTheMainClass) {
  ProjectContext& project = openTwo();
  const auto cancel = [](ScriptedWindow& window) {
    window.choose(CLASS_LIST, 2);
    window.press(IDCANCEL_CONTROL);
  };
  EXPECT_EQ(run(&project, cancel), DIALOG_CANCEL);
  EXPECT_EQ(project.mainClass, "before");
  EXPECT_EQ(run(&project, [](ScriptedWindow& window) { window.closeBox(); }), DIALOG_CANCEL);
}

TEST_F(ProjMainClassDlgTest, WithoutAProjectItIsToldAndClosed) {
  hints(nullptr, "You have not opened a project yet.");
}

TEST_F(ProjMainClassDlgTest, AProjectOfInterfacesAloneHasNothingToSelect) {
  makeSource("I.java", "interface I { }");
  hints(&open("PROJECT_SOURCES  I.java\nPROJECT_MULTIMAIN  ON\n"), "No classes defined in this project.");
}

TEST_F(ProjMainClassDlgTest, WhatTheLookAtTheProjectThrowsIsToldAndGoesNoFurther) {
  makeSource("A.java", "class A " + mainMethod());
  makeSource("B.java", "class B " + mainMethod());
  refuses(&openWith("A.java;B.java"),
          "Files B.java\nand A.java\nboth have \"public static void main\" methods.\n\n"
          "Edit source files to resolve conflict\nor switch to Tarnwick's fileview\n"
          "or press Files button and allow multiple classes with a main method.");
}

}  // namespace
}  // namespace tarnwick::test
