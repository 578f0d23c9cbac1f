#include "ProjectFixture.h"
#include "project/ProjectBuild.h"
#include "support/Children.h"

namespace tarnwick::test {
namespace {

class ProjectBuildTest : public ProjectFixture {
 protected:
  ProjectBuildTest() {
    // The stand-in plays the user's editor.
    settings().displayWithNotepad = 0;
    settings().editorTarget = standInFolder() + platform::toolFileName("javadoc");
    settings().saveDefaultConfiguration(nullptr);
  }

  /// Three sources with a class file each, of which the one of B is stale.
  ProjectContext& openThree() {
    for (const char* name : {"A", "B", "C"}) {
      makeSource(std::string(name) + ".java", std::string("class ") + name + " { }");
      makeClassFile(name, name == std::string("B") ? start : start + 1);
    }
    return openWith("A.java;B.java;C.java");
  }
  /// The sources that the compiler was given, in order.
  std::string compiled() const {
    std::string names;
    const std::string text = recorded();
    for (auto at = text.find(folder()); at != std::string::npos; at = text.find(folder(), at + 1)) {
      const auto begin = at + folder().size();
      names += text.substr(begin, text.find('\n', begin) - begin) + ' ';
    }
    return names;
  }
  bool logWasShown() {
    return waitUntil([this] { return recorded().find(log_.path() + "\n") != std::string::npos; });
  }
  static std::string conflict() {
    return "Files B.java\nand A.java\nboth have \"public static void main\" methods.\n\n"
           "Edit source files to resolve conflict\nor switch to Tarnwick's fileview\n"
           "or press Files button and allow multiple classes with a main method.";
  }
};

using Sounds = std::vector<AlertSound>;

TEST_F(ProjectBuildTest, OnlyWhatIsOutOfDateIsCompiled) {
  compileProject(settings(), openThree(), false);
  EXPECT_EQ(compiled(), "B.java ");
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Asterisk});
}

TEST_F(ProjectBuildTest, AllAreCompiledFromTheLastToTheFirst) {
  compileProject(settings(), openThree(), true);
  EXPECT_EQ(compiled(), "C.java B.java A.java ");
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Asterisk}) << "one sound for the batch";
}

TEST_F(ProjectBuildTest, TheLogIsNotShownOnSuccess) {
  ProjectContext& project = openThree();
  settings().displayWithNotepad = 0;
  settings().editWithNotepad = 0;
  // An editor that can't be started would be told.
  settings().editorTarget = scratch_.file("no editor");
  for (const bool all : {false, true}) compileProject(settings(), project, all);
  EXPECT_EQ(compiled(), "B.java C.java B.java A.java ");
  EXPECT_EQ(desktop_.alerts(), (Sounds{AlertSound::Asterisk, AlertSound::Asterisk}));
}

TEST_F(ProjectBuildTest, AStaleSupertypeMakesAClassStale) {
  makeSource("A.java", "class A extends Z { }");
  makeSource("Z.java", "class Z { }", start + 5);
  makeClassFile("A", start + 3);
  makeClassFile("Z", start + 6);
  compileProject(settings(), openWith("A.java;Z.java"), false);
  EXPECT_EQ(compiled(), "A.java ");
}

TEST_F(ProjectBuildTest, WithAllClassesCurrentNothingIsCompiledYetItSounds) {
  ProjectContext& project = openThree();
  makeClassFile("B");
  compileProject(settings(), project, false);
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Asterisk});
  EXPECT_TRUE(project.upToDate());
  settings().javacSoundOnSuccess = 0;
  compileProject(settings(), project, false);
  EXPECT_EQ(desktop_.alerts().size(), 1U) << "as the setting says";
}

TEST_F(ProjectBuildTest, TheCompilerGetsTheClasspathOfARun) {
  ProjectContext& project = openThree();
  settings().classpath = "lib";
  compileProject(settings(), project, false);
  EXPECT_NE(recorded().find("\n-classpath\n" + platform::commandLineList("lib;" + folderNoSlash()) + "\n"),
            std::string::npos)
      << recorded();
}

TEST_F(ProjectBuildTest, EachCompileSavesTheSettingsIntoTheProject) {
  ProjectContext& project = openThree();
  settings().javaXms = "9m";
  compileProject(settings(), project, false);
  EXPECT_EQ(valueIn(projectFile(), "JAVA_XMS"), "9m");
  EXPECT_EQ(valueIn(projectFile(), "PROJECT_SOURCES"), "A.java;B.java;C.java");
  EXPECT_NE(valueIn(configFile(), "JAVA_XMS"), "9m");
}

TEST_F(ProjectBuildTest, TheFirstCompileBeginsTheLogAndTheOthersGoOn) {
  ProjectContext& project = openThree();
  settings().javacSoundOnError = 0;
  writeFile(scratch_.file("script"), "err of the first batch\n");
  compileProject(settings(), project, true);
  EXPECT_TRUE(logWasShown());
  platform::deleteFile(scratch_.file("record"));
  writeFile(scratch_.file("script"), "err of the second batch\n");
  compileProject(settings(), project, true);
  EXPECT_TRUE(logWasShown());
  const std::string log = contentOf(log_.path());
  EXPECT_EQ(log.find("of the first batch"), std::string::npos) << log;
  const auto c = log.find("C.java");
  const auto b = log.find("B.java");
  const auto a = log.find("A.java");
  ASSERT_NE(a, std::string::npos) << log;
  EXPECT_TRUE(c < b && b < a) << log;
  std::size_t count = 0;
  for (auto at = log.find("of the second batch"); at != std::string::npos; at = log.find("of the second batch", at + 1))
    ++count;
  EXPECT_EQ(count, 3U);
}

TEST_F(ProjectBuildTest, AnyOutputSoundsTheExclamationOnceAndShowsTheLog) {
  for (const int sound : {1, 0}) {
    ProjectContext& project = openThree();
    settings().javacSoundOnError = sound;
    writeFile(scratch_.file("script"), "err a warning\n");
    compileProject(settings(), project, true);
    EXPECT_TRUE(logWasShown()) << recorded();
    EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Exclamation}) << "only the first time";
    platform::deleteFile(scratch_.file("record"));
  }
}

/// Does something before each run of a tool.
struct InterferingDesktop : ScriptedDesktop {
  void whileBusy(const std::function<void()>& work, const std::function<void()>& giveUp) override {
    if (before) before(runs++);
    ScriptedDesktop::whileBusy(work, giveUp);
  }
  std::function<void(int)> before;
  int runs = 0;
};

class InterferedBuildTest : public ProjectBuildTest {
 protected:
  ProjectContext& openLive(const std::string& sources) {
    writeFile(projectFile(), "PROJECT_SOURCES  " + sources + "\n");
    auto project = std::make_unique<ProjectContext>(live_, projectFile(), false);
    ProjectContext& opened = *project;
    live_.currentProject = std::move(project);
    return opened;
  }

  InterferingDesktop interfering_;
  SettingsContext liveContext_{interfering_, program_, log_};
  Settings live_{liveContext_};
};

TEST_F(InterferedBuildTest, ASilentCompileBehindAFailedOneDoesNotMakeItASuccess) {
  openThree();
  interfering_.before = [](int) {};
  writeFile(scratch_.file("script"), "given C.java\nerr only of the first\n");
  compileProject(live_, openLive("A.java;B.java;C.java"), true);
  EXPECT_EQ(interfering_.runs, 3) << "nor does it end the batch";
  EXPECT_EQ(interfering_.alerts(), Sounds{AlertSound::Exclamation});
  EXPECT_TRUE(logWasShown());
}

TEST_F(InterferedBuildTest, WhatTheCompilerMadeIsSeenInTheEnd) {
  openThree();
  interfering_.before = [this](int) { makeClassFile("B"); };
  ProjectContext& project = openLive("A.java;B.java;C.java");
  compileProject(live_, project, false);
  EXPECT_TRUE(project.upToDate());
  EXPECT_EQ(interfering_.alerts(), Sounds{AlertSound::Asterisk});
}

TEST_F(InterferedBuildTest, AnExceptionEndsTheBatchAtThatSource) {
  openThree();
  // The next source goes before its turn comes.
  interfering_.before = [this](int) { platform::deleteFile(folder() + "B.java"); };
  ProjectContext& project = openLive("A.java;B.java;C.java");
  const std::string missing = folder() + "B.java";
  interfering_.expectMessage(refusal(scratch_.file("missing"), FileMode::Read) + "\nCan't process file " + missing);
  compileProject(live_, project, true);
  EXPECT_EQ(compiled(), "C.java ");
  EXPECT_TRUE(interfering_.alerts().empty()) << "neither sound nor log";
  EXPECT_EQ(interfering_.waits(), 1) << "and no further look at the project";
}

TEST_F(ProjectBuildTest, AConflictOfMainMethodsIsShownAndNothingIsCompiled) {
  makeSource("A.java", "class A " + mainMethod());
  makeSource("B.java", "class B " + mainMethod());
  ProjectContext& project = openWith("A.java;B.java");
  for (const bool all : {false, true}) {
    desktop_.expectMessage(conflict());
    compileProject(settings(), project, all);
  }
  EXPECT_EQ(recorded(), "");
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_EQ(project.mainClass, "");
  project.multiMain = 1;
  compileProject(settings(), project, true);
  EXPECT_EQ(compiled(), "B.java A.java ") << "the way out that the text names";
}

TEST_F(ProjectBuildTest, GivingUpASplitEndsTheBatchSilently) {
  makeSource("A.java", "class A { }");
  makeSource("B.java", "public class B { }\npublic class B2 { }\n");
  makeSource("C.java", "class C { }");
  ProjectContext& project = openWith("A.java;B.java;C.java");
  desktop_.expectDialog("Java Portability Warning", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  compileProject(settings(), project, true);
  EXPECT_EQ(compiled(), "C.java ");
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_EQ(desktop_.waits(), 1) << "the last look at the project is left out";
}

TEST_F(ProjectBuildTest, ACompilerThatCantBeReadIsShown) {
  ProjectContext& project = openThree();
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  const std::string tool = settings().javaPath + platform::toolFileName("javac");
  desktop_.expectMessage("Can't access compiler " + tool + "\n" + refusal(tool, FileMode::Read) +
                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  compileProject(settings(), project, false);
  EXPECT_TRUE(desktop_.alerts().empty());
}

class RunTargetTest : public ProjectFixture {
 protected:
  using Arguments = std::vector<std::string>;
  struct Target {
    std::string path;
    Arguments arguments;
  };

  /// The target for what stands in the field.
  Target typed(const ProjectContext& project, const std::string& text) {
    ToolTipDlg handler(desktop_, 7, 0);
    ScriptedWindow window({7, "", false, layout::column({layout::edit(10, 20)}), 0}, handler);
    window.setText(10, text);
    FileForSubprocess target(window, 10);
    target.bind(nullptr, 0);
    completeRunTarget(settings(), project, target);
    return {target.name().fullName(), target.args()};
  }
};

TEST_F(RunTargetTest, ANameEndsAtABlankAndTheRestIsOneArgument) {
  const ProjectContext& project = open("");
  const auto target = typed(project, "  pkg.sub.Main   one \"two three\"  ");
  EXPECT_EQ(target.path, folder() + "pkg.sub.Main.class");
  EXPECT_EQ(target.arguments, Arguments{"one \"two three\""});
  EXPECT_EQ(typed(project, "Main").arguments, Arguments{});
}

TEST_F(RunTargetTest, ANameInDoubleQuotesEndsAtTheNextOne) {
  const ProjectContext& project = open("");
  const auto target = typed(project, "\"My Main\"  one two");
  EXPECT_EQ(target.path, folder() + "My Main.class");
  EXPECT_EQ(target.arguments, Arguments{"one two"});
}

TEST_F(RunTargetTest, ClassesLieInTheProjectsFolderOrInTheDestination) {
  const ProjectContext& project = open("");
  const std::string slash(1, platform::folderSeparator);
  const struct {
    std::string destination;
    std::string path;
  } table[] = {
      {"", folder() + "Main.class"},
      // Relative in the end, since the setting itself comes last.
      {".", '.' + slash + "Main.class"},
      {" . ", '.' + slash + "Main.class"},
      {"  ", "Main.class"},
      {"out put", folder() + "out put" + slash + "Main.class"},
      {" out put ", folder() + "out put" + slash + "Main.class"},
      {'.' + slash + "out", folder() + "out" + slash + "Main.class"},
      {quoted(userFolder()), userFolder() + "Main.class"},
  };
  for (const auto& row : table) {
    settings().javacDestination = row.destination;
    EXPECT_EQ(typed(project, "Main x").path, row.path) << "'" << row.destination << "'";
    EXPECT_EQ(typed(project, "Main x").arguments, Arguments{"x"});
  }
}

TEST_F(RunTargetTest, OnlyNameAndExtensionCount) {
  const ProjectContext& project = open("");
  const std::string slash(1, platform::folderSeparator);
  EXPECT_EQ(typed(project, "elsewhere" + slash + "p.Main").path, folder() + "p.Main.class");
}

}  // namespace
}  // namespace tarnwick::test
