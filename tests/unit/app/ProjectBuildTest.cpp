#include "../project/ProjectFixture.h"
#include "app/ProjectBuild.h"
#include "support/BrokenTool.h"
#include "support/Children.h"

namespace tarnwick::test {
namespace {

class ProjectBuildTest : public ProjectFixture {
 protected:
  ProjectBuildTest() {
    // The stand-in plays the user's editor.
    settings().displayWithNotepad = false;
    settings().editorTarget = standInFolder() + platform::toolFileName("javadoc");
    settings().saveDefaultConfiguration();
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
  settings().displayWithNotepad = false;
  settings().editWithNotepad = false;
  // An editor that can't be started would be told.
  settings().editorTarget = scratch_.file("no editor");
  for (const bool all : {false, true}) compileProject(settings(), project, all);
  EXPECT_EQ(compiled(), "B.java C.java B.java A.java ");
  EXPECT_EQ(desktop_.alerts(), (Sounds{AlertSound::Asterisk, AlertSound::Asterisk}));
}

TEST_F(ProjectBuildTest, ACompilerThatCannotBeStartedIsToldForEachRun) {
  const BrokenTool javac(scratch_.file("broken") + platform::folderSeparator, "javac");
  ProjectContext& project = openThree();
  settings().javaPath = javac.folder();
  for (int source = 0; source < 3; ++source) desktop_.expectMessage(javac.words());
  compileProject(settings(), project, true);
  settings().javacOneRun = true;
  desktop_.expectMessage(javac.words());
  compileProject(settings(), project, true);
  EXPECT_EQ(desktop_.alerts(), (Sounds{AlertSound::Asterisk, AlertSound::Asterisk})) << "nothing was said";
}

TEST_F(ProjectBuildTest, ALogThatCannotBeShownIsTold) {
  ProjectContext& project = openThree();
  settings().editWithNotepad = false;
  settings().editorTarget = scratch_.file("no editor");
  writeFile(scratch_.file("script"), "err said\n");
  const std::string reason = "No such file or directory";
  desktop_.expectMessage("Unable to start " + settings().editorTarget + " for log file display.\n\n" + reason + '\n' +
                         reason);
  compileProject(settings(), project, true);
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Exclamation});
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
  settings().javacSoundOnSuccess = false;
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
  settings().javacSoundOnError = false;
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
  void whileBusy(const BusyWork& busy) override {
    if (before) before(runs++);
    ScriptedDesktop::whileBusy(busy);
  }
  std::function<void(int)> before;
  int runs = 0;
};

class InterferedBuildTest : public ProjectBuildTest {
 protected:
  ProjectContext& openLive(const std::string& sources) {
    writeFile(projectFile(), "PROJECT_SOURCES  " + sources + "\n");
    auto project = openedProject(live_, projectFile(), false);
    ProjectContext& opened = *project;
    live_.currentProject = std::move(project);
    return opened;
  }

  InterferingDesktop interfering_;
  SettingsContext liveContext_ = settingsOnDesktop(interfering_, program_, log_);
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
  project.multiMain = true;
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
    FileForSubprocess target;
    target.takeTyped(text);
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

/// All sources of a project in one run. The stand-in keeps what the list says.
class OneRunTest : public ProjectBuildTest {
 protected:
  OneRunTest() { writeFile(scratch_.file("script"), "keep " + list() + "\n"); }

  ProjectContext& inOneRun(ProjectContext& project) {
    settings().javacOneRun = true;
    return project;
  }

  std::string list() const { return configFolder() + "Tarnwick_javac_list1.tmp"; }
  /// The lists of all runs, without the folder and with one blank behind each name.
  std::string listed() const {
    std::string text = linesOf(scratch_.file("record.kept"));
    std::string names;
    const std::string begin = "\"" + inQuotes(folder());
    for (auto at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1)) {
      const auto name = at + begin.size();
      names += text.substr(name, text.find('"', name) - name) + ' ';
    }
    return names;
  }
  int runs() const {
    int count = 0;
    const std::string text = recorded();
    for (auto at = text.find('@'); at != std::string::npos; at = text.find('@', at + 1)) ++count;
    return count;
  }
  static std::string inQuotes(std::string path) {
    for (std::size_t at = 0; (at = path.find('\\', at)) != std::string::npos; at += 2) path.insert(at, 1, '\\');
    return path;
  }
};

TEST_F(OneRunTest, AllGoToOneCompilerFromTheLastToTheFirst) {
  compileProject(settings(), inOneRun(openThree()), true);
  EXPECT_EQ(runs(), 1);
  EXPECT_TRUE(recorded().ends_with("\n@" + list() + "\n")) << recorded();
  EXPECT_EQ(listed(), "C.java B.java A.java ");
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Asterisk});
  EXPECT_FALSE(platform::isFile(list())) << "gone afterwards";
}

TEST_F(OneRunTest, OnlyWhatIsOutOfDateIsAmongThem) {
  ProjectContext& project = inOneRun(openThree());
  makeClassFile("A", start);
  compileProject(settings(), project, false);
  EXPECT_EQ(listed(), "B.java A.java ");
}

TEST_F(OneRunTest, WithNothingToDoNoCompilerRuns) {
  ProjectContext& project = inOneRun(openThree());
  makeClassFile("B");
  compileProject(settings(), project, false);
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(desktop_.alerts(), Sounds{AlertSound::Asterisk});
}

TEST_F(OneRunTest, SourcesThatDeclareTheSameTypeDoNotShareARun) {
  makeSource("A.java", "class A { } class Helper { }");
  makeSource("B.java", "class B { } class Helper { }");
  makeSource("C.java", "class C { }");
  compileProject(settings(), inOneRun(openWith("A.java;B.java;C.java")), true);
  EXPECT_EQ(runs(), 2);
  EXPECT_EQ(listed(), "C.java B.java A.java ");
}

TEST_F(OneRunTest, TypesOfTwoPackagesMayHaveOneName) {
  makeSource("A.java", "package a; class Helper { }");
  makeSource("B.java", "package b; class Helper { }");
  compileProject(settings(), inOneRun(openWith("A.java;B.java")), true);
  EXPECT_EQ(runs(), 1);
}

TEST_F(OneRunTest, TheLogShowsTheNames) {
  settings().javacSoundOnError = false;
  writeFile(scratch_.file("script"), "err said\n");
  compileProject(settings(), inOneRun(openThree()), true);
  EXPECT_TRUE(logWasShown());
  const std::string log = contentOf(log_.path());
  EXPECT_NE(log.find(folder() + "C.java " + folder() + "B.java " + folder() + "A.java"), std::string::npos) << log;
  EXPECT_EQ(log.find("Tarnwick_javac_list"), std::string::npos) << log;
}

TEST_F(OneRunTest, PiecesOfSplitSourcesAreAmongThem) {
  settings().context().warnAboutSplitting = false;
  makeSource("A.java", "package a; public class A { } public class P { }");
  makeSource("B.java", "package b; public class B { } public class P { }");
  makeSource("C.java", "class C { }");
  ProjectContext& project = inOneRun(openWith("A.java;B.java;C.java"));
  settings().newerJava = true;
  compileProject(settings(), project, true);
  EXPECT_EQ(runs(), 1);
  const std::string text = linesOf(scratch_.file("record.kept"));
  const std::string separator(1, platform::folderSeparator);
  for (const std::string piece :
       {"1.tmp/writing/A.java", "1.tmp/writing/P.java", "2.tmp/writing/B.java", "2.tmp/writing/P.java"}) {
    std::string path = configFolder() + "Tarnwick_split" + piece;
    std::replace(path.begin(), path.end(), '/', platform::folderSeparator);
    // The last of the sources comes first.
    path.replace(path.rfind("Tarnwick_split") + 14, 1, piece[0] == '1' ? "2" : "1");
    EXPECT_NE(text.find('"' + inQuotes(path) + '"'), std::string::npos) << path << '\n' << text;
  }
  EXPECT_FALSE(platform::isFolder(configFolder() + "Tarnwick_split1.tmp"));
  EXPECT_FALSE(platform::isFolder(configFolder() + "Tarnwick_split2.tmp"));
}

}  // namespace
}  // namespace tarnwick::test
