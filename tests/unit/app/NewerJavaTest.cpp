// The question whether sources are to be read the newer way, and what follows from Yes.
#include "ProjectViewFixture.h"
#include "settingsdialog/SettingsDialog.h"

namespace tarnwick::test {
namespace {

const char question[] =
    "This source may be of a newer Java than Tarnwick's classic way of reading knows.\n\n"
    "Read sources the newer way from now on (generics, enums, records ...)?\n"
    "You can change that on the page \"javac\" of the settings.";
const char noType[] =
    "X.java :\nLine 1 doesn't seem to make sense.\nThe input file may not be in text format.There is neither a class "
    "nor an interface definition in the source file.\nIs it really a source file?";

class NewerJavaTest : public ProjectViewFixture {
 protected:
  /// Presses "javac" on this source.
  void compile(const std::string& text, const std::function<void()>& expectations) {
    writeFile(path("X.java"), text);
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.type(SOURCE, quoted(path("X.java")));
      expectations();
      panel.press(JAVAC);
      EXPECT_TRUE(panel.enabled(JAVAC));
      exit(panel);
    });
  }
  bool wasCompiled(const std::string& name) const {
    const std::string record = scratch_.file("record");
    return platform::isFile(record) && contentOf(record).ends_with("\n" + path(name) + "\n");
  }
};

TEST_F(NewerJavaTest, YesReadsSourcesTheNewerWayAndCompiles) {
  saveEarlierRun();
  compile("enum X { A }", [this] {
    desktop_.expectMessage(noType);
    desktop_.expectQuestion(question, true);
  });
  EXPECT_EQ(saved("NEWER_JAVA"), "ON");
  EXPECT_TRUE(wasCompiled("X.java"));
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Asterisk});
}

TEST_F(NewerJavaTest, NoLeavesEverythingAsItIs) {
  saveEarlierRun();
  compile("enum X { A }", [this] {
    desktop_.expectMessage(noType);
    desktop_.expectQuestion(question, false);
  });
  EXPECT_EQ(saved("NEWER_JAVA"), "(none)");
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(NewerJavaTest, WhatNoWayTakesIsNotAskedAbout) {
  saveEarlierRun();
  compile("", [this] {
    desktop_.expectMessage(
        "X.java :\nThere is neither a class nor an interface definition in the source file.\nIs it really a source "
        "file?");
  });
  compile("public class Y {}", [this] {
    desktop_.expectMessage(
        "X.java :\n\nJavac requires a class/interface with the attribute 'public' to have the same name as the source "
        "file.");
  });
}

TEST_F(NewerJavaTest, ACompilerThatIsMissingIsNoMatterOfReading) {
  saveEarlierRun([this](Settings& settings) { settings.javaPath = scratch_.file("none") + platform::folderSeparator; });
  compile("enum X { A }", [this] {
    desktop_.expectMessage("Can't access compiler " + scratch_.file("none") + platform::folderSeparator +
                           platform::toolFileName("javac") +
                           "\nNo such file or directory"
                           "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  });
}

TEST_F(NewerJavaTest, InTheNewerWayThereIsNoQuestion) {
  saveEarlierRun([](Settings& settings) { settings.newerJava = true; });
  compile("enum X { A }", [] {});
  EXPECT_TRUE(wasCompiled("X.java"));
}

TEST_F(NewerJavaTest, AProjectAsksWhenItCompiles) {
  saveEarlierRun();
  makeSource("Main", mainMethod());
  const std::string project = makeProject("PROJECT_SOURCES  Main.java\n");
  startWith(project, [&](ScriptedWindow& panel) {
    writeFile(path("Main.java"), "public class Main {} enum E { A }");
    const std::string refusal =
        "Main.java :\nLine 1 doesn't seem to make sense.\nPossibly unbalanced { and }.\n enum E ";
    desktop_.expectMessage(refusal);
    desktop_.expectQuestion(question, true);
    panel.press(CHANGED);
    exit(panel);
  });
  EXPECT_TRUE(wasCompiled("Main.java"));
  EXPECT_EQ(savedIn(project, "NEWER_JAVA"), "ON") << "the project's own setting";
  EXPECT_EQ(saved("NEWER_JAVA"), "(none)");
}

TEST_F(NewerJavaTest, AProjectWithASourceThatSeemsEmptyAsksAtItsStartOnce) {
  saveEarlierRun();
  writeFile(path("E.java"), "enum E { A }");
  writeFile(path("F.java"), "enum F { A }");
  const std::string project = makeProject("PROJECT_SOURCES  E.java;F.java\n");
  desktop_.expectQuestion(question, false);
  startWith(project, [&](ScriptedWindow& panel) { exit(panel); });
  desktop_.expectQuestion(question, true);
  startWith(project, [&](ScriptedWindow& panel) {
    panel.press(CHANGED);
    exit(panel);
  });
  EXPECT_EQ(savedIn(project, "NEWER_JAVA"), "ON");
  EXPECT_TRUE(wasCompiled("E.java"));
}

TEST_F(NewerJavaTest, ASourceThatIsReallyEmptyDoesNotEndTheSearch) {
  saveEarlierRun();
  writeFile(path("D.java"), "// nothing yet");
  writeFile(path("E.java"), "enum E { A }");
  const std::string project = makeProject("PROJECT_SOURCES  D.java;E.java\n");
  desktop_.expectQuestion(question, true);
  startWith(project, [&](ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(savedIn(project, "NEWER_JAVA"), "ON");
}

TEST_F(NewerJavaTest, AProjectWithARefusedSourceAsksAtItsStart) {
  saveEarlierRun();
  writeFile(path("Main.java"), "public class Main {" + mainMethod() + "String s = \"{\"; }");
  const std::string project = makeProject("PROJECT_SOURCES  Main.java\n");
  const std::string refusal = "Unexpected end of file: Missing }\nCan't process file " + quoted(path("Main.java"));
  desktop_.expectMessage(refusal);
  desktop_.expectQuestion(question, false);
  startWith(project, [&](ScriptedWindow& panel) {
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "");
    exit(panel);
  });
  desktop_.expectMessage(refusal);
  desktop_.expectQuestion(question, true);
  startWith(project, [&](ScriptedWindow& panel) {
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
    EXPECT_EQ(settings().fileviewClass.lastFolder(), userFolder());
    exit(panel);
  });
  EXPECT_EQ(savedIn(project, "NEWER_JAVA"), "ON");
  EXPECT_EQ(saved("RECENT_PROJECTS"), project);
}

TEST_F(NewerJavaTest, SettingsTakeTheSwitchFromTheirPage) {
  saveEarlierRun();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    auto& page = window.page(1092, 1);
    EXPECT_FALSE(page.checked(2101));
    EXPECT_EQ(page.text(2101), "Newer Java (generics, enums, records ...)");
    page.press(2101);
    window.press(IDOK_CONTROL);
  });
  int status = 0;
  settings().readDefaultConfiguration(status);
  SettingsDialog(settings()).runModal(1);
  EXPECT_EQ(saved("NEWER_JAVA"), "ON");
}

}  // namespace
}  // namespace tarnwick::test
