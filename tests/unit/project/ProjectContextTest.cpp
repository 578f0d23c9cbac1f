#include "ProjectFixture.h"
#include "base/TagRow.h"
#include "dialogbase/ToolTipDlg.h"
#include "support/KilledSplit.h"

namespace tarnwick::test {
namespace {

class ProjectContextTest : public ProjectFixture {};

const char header[] = "REM  This configuration file was written by Tarnwick V4.7a\nREM\n";

TEST_F(ProjectContextTest, TheRowsOfItsTable) {
  const auto opened = openedProject(settings(), projectFile(), true);
  ProjectContext& project = *opened;
  const struct {
    const char* tag;
    TagVariable variable;
    bool isLater = false;
  } expected[] = {{"PROJECT_SOURCES", &project.sources},
                  {"PROJECT_HTMLFILE", &project.htmlFile},
                  {"CLASS_WITH_MAIN", &project.mainClass},
                  {"PROJECT_MULTIMAIN", &project.multiMain},
                  {"CLASS_WITH_MAIN_SOURCE", &project.mainSource, true},
                  {"", std::monostate()}};
  const TagRow* row = project.rows();
  for (const auto& wanted : expected) {
    EXPECT_STREQ(row->tag, wanted.tag);
    EXPECT_TRUE(row->variable == wanted.variable) << wanted.tag;
    EXPECT_EQ(row->defaultText, nullptr) << wanted.tag;
    EXPECT_EQ(row->defaultNumber, 0) << wanted.tag;
    EXPECT_EQ(row->page, 0) << wanted.tag;
    EXPECT_EQ(row->owner, 0) << wanted.tag;
    EXPECT_EQ(row->control, 0) << wanted.tag;
    EXPECT_EQ(row->isLater, wanted.isLater) << wanted.tag;
    ++row;
  }
}

TEST_F(ProjectContextTest, ASourceThatAKilledSplitHasSetAsideIsThereAgain) {
  leaveKilledSplit(folder());
  platform::deleteFile(folder() + "A.java");
  const ProjectContext& project = openWith("A.java");
  EXPECT_EQ(namesOf(project), std::vector<std::string>{"A.java"}) << "it has not gone";
  EXPECT_EQ(contentOf(folder() + "A.java"), "mine");
  EXPECT_FALSE(platform::isFile(folder() + "B.java"));
}

TEST_F(ProjectContextTest, ANewOneIsEmptyAndItsFileIsLeftToItsSave) {
  writeFile(projectFile(), "PROJECT_HTMLFILE  old.html\nPROJECT_MULTIMAIN  ON\n");
  const auto opened = openedProject(settings(), projectFile(), true);
  const ProjectContext& project = *opened;
  EXPECT_EQ(project.mainClass, "");
  EXPECT_EQ(project.htmlFile, "");
  EXPECT_FALSE(project.multiMain);
  EXPECT_FALSE(project.upToDate());
  EXPECT_TRUE(project.sources.empty());
  EXPECT_FALSE(project.file.isOpen());
  EXPECT_EQ(contentOf(projectFile()), "PROJECT_HTMLFILE  old.html\nPROJECT_MULTIMAIN  ON\n")
      << "the caller saves it; until then nothing of the one before is lost";
  platform::deleteFile(projectFile());
  openedProject(settings(), projectFile(), true);
  EXPECT_EQ(contentOf(projectFile()), "") << "the file is made at once";
}

TEST_F(ProjectContextTest, ItsConstructionTouchesNothing) {
  settings().lastProjectFile = "before";
  settings().javaXms = "live";
  const std::string configuration = contentOf(configFile());
  const ProjectContext project(settings(), projectFile());
  EXPECT_FALSE(platform::isFile(projectFile()));
  EXPECT_EQ(contentOf(configFile()), configuration);
  EXPECT_EQ(settings().lastProjectFile, "before");
  EXPECT_EQ(settings().javaXms, "live");
  EXPECT_EQ(project.name(), "my project");
}

TEST_F(ProjectContextTest, ThePathMayStandInQuotesWithBlanksAround) {
  for (const std::string& path :
       {quoted(projectFile()), "  " + quoted(projectFile()) + " ", " " + projectFile() + " "}) {
    const auto opened = openedProject(settings(), path, true);
    const ProjectContext& project = *opened;
    EXPECT_EQ(project.file.name().fullName(), projectFile());
  }
}

TEST_F(ProjectContextTest, AFileNameAloneLiesInTheWorkingFolder) {
  ASSERT_TRUE(platform::changeDirectory(folder()));
  const auto opened = openedProject(settings(), "my project.twp", true);
  const ProjectContext& project = *opened;
  ASSERT_TRUE(platform::changeDirectory(programFolder()));
  EXPECT_EQ(platform::resolvedPath(project.file.name().fullName()), platform::resolvedPath(projectFile()));
}

TEST_F(ProjectContextTest, ItsFolderInEachForm) {
  const auto opened = openedProject(settings(), projectFile(), true);
  const ProjectContext& project = *opened;
  EXPECT_EQ(project.folderNoSlash(), folderNoSlash());
  EXPECT_EQ(project.folder(), folder());
  EXPECT_EQ(project.quotedFolder(), quoted(folder()));
  EXPECT_EQ(project.quotedPath(), quoted(projectFile()));
  EXPECT_EQ(project.name(), "my project");
}

TEST_F(ProjectContextTest, AFileThatCantBeOpenedLeavesAllAsItWas) {
  settings().lastProjectFile = "before";
  settings().javaXms = "7m";
  const std::string before = contentOf(configFile());
  const std::string missing = scratch_.file("missing") + platform::folderSeparator + "a.twp";
  for (const bool create : {false, true}) {
    const std::string reason = refusal(missing, create ? FileMode::Write : FileMode::Read);
    try {
      openedProject(settings(), missing, create);
      FAIL() << "no exception";
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      EXPECT_EQ(failure.message, reason);
      EXPECT_EQ(failure.file, missing);
    }
    EXPECT_EQ(settings().lastProjectFile, "before");
    EXPECT_EQ(settings().javaXms, "7m");
    EXPECT_EQ(contentOf(configFile()), before);
  }
}

TEST_F(ProjectContextTest, NoValueOfTheProjectBeforeStaysBehind) {
  settings().javaXms = "7m";
  settings().classpath = "left behind";
  open("JAVA_XMS  3m\n");
  EXPECT_EQ(settings().javaXms, "3m");
  EXPECT_NE(settings().classpath, "left behind");
  settings().javaXms = "7m";
  take(projectFile(), true);
  EXPECT_NE(settings().javaXms, "7m") << "a new one, too, begins with the default configuration";
}

TEST_F(ProjectContextTest, TheDefaultConfigurationNamesTheProjectBeforeItIsRead) {
  open("JAVA_XMS  3m\nLAST_PROJECT_FILE  elsewhere.twp\n");
  EXPECT_EQ(valueIn(configFile(), "LAST_PROJECT_FILE"), quoted(projectFile()));
  EXPECT_EQ(settings().lastProjectFile, "elsewhere.twp") << "the project file overrides value by value";
  EXPECT_NE(valueIn(configFile(), "JAVA_XMS"), "3m");
  take(projectFile(), true);
  EXPECT_EQ(settings().lastProjectFile, quoted(projectFile()));
}

TEST_F(ProjectContextTest, AFileOfTheProjectsTagsAloneKeepsTheDefaultConfigurationsValues) {
  makeSource("A.java");
  const auto earlier = freshSettings();
  earlier->javaPath = standInFolder();
  earlier->javaXms = "5m";
  earlier->saveDefaultConfiguration();
  const ProjectContext& project =
      open("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  \"a b.html\"\nCLASS_WITH_MAIN  p.Main\nPROJECT_MULTIMAIN  ON\n");
  EXPECT_EQ(namesOf(project), std::vector<std::string>{"A.java"});
  EXPECT_EQ(project.htmlFile, "\"a b.html\"");
  EXPECT_EQ(project.mainClass, "p.Main");
  EXPECT_TRUE(project.multiMain);
  EXPECT_FALSE(project.upToDate());
  EXPECT_FALSE(project.file.isOpen());
  EXPECT_EQ(settings().javaXms, "5m");
}

TEST_F(ProjectContextTest, APlainConfigurationIsAProjectWithoutSources) {
  const auto earlier = freshSettings();
  earlier->javaXms = "5m";
  earlier->saveDefaultConfiguration();
  const ProjectContext& project = open(contentOf(configFile()));
  EXPECT_TRUE(project.sources.empty());
  EXPECT_EQ(project.mainClass, "");
  EXPECT_EQ(settings().javaXms, "5m");
}

TEST_F(ProjectContextTest, UnknownTagsOpenWithoutAWord) {
  const ProjectContext& project = open("FROM_ANOTHER_VERSION  x\nPROJECT_HTMLFILE  a.html\n");
  EXPECT_EQ(project.htmlFile, "a.html");
}

TEST_F(ProjectContextTest, ABadValueInEitherTableIsTold) {
  for (const char* line : {"JAVAC_DEBUG  perhaps\n", "PROJECT_MULTIMAIN  perhaps\n"}) {
    desktop_.expectMessage("Unable to fully establish project environment.\nCheck settings and project files!");
    const ProjectContext& project = open(line + std::string("PROJECT_HTMLFILE  a.html\nJAVA_XMS  3m\n"));
    EXPECT_EQ(project.htmlFile, "a.html") << "it stays open with what was read";
    EXPECT_EQ(settings().javaXms, "3m");
    EXPECT_FALSE(project.file.isOpen());
  }
}

TEST_F(ProjectContextTest, AMissingValueIsNoFailure) {
  EXPECT_EQ(open("JAVAC_DEBUG\nPROJECT_MULTIMAIN\n").multiMain, 0);
}

TEST_F(ProjectContextTest, TheWarningOfTheSettingsComesFirst) {
  desktop_.expectMessage(
      "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
      "such as missing variables or relocated or missing code.");
  desktop_.expectMessage("1 source files belonging to the project could not be opened.");
  desktop_.expectMessage("Unable to fully establish project environment.\nCheck settings and project files!");
  open("JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\nPROJECT_SOURCES  Gone.java\nPROJECT_MULTIMAIN  perhaps\n");
}

TEST_F(ProjectContextTest, AFileThatGoesBeforeItIsReadIsTold) {
  ProjectContext& project = open("PROJECT_HTMLFILE  a.html\nCLASS_WITH_MAIN  Main\n");
  platform::deleteFile(projectFile());
  desktop_.expectMessage(refusal(projectFile(), FileMode::Read) + "\nCan't read settings for project.");
  project.load();
  EXPECT_EQ(project.htmlFile, "a.html");
  EXPECT_EQ(project.mainClass, "Main");
  EXPECT_FALSE(project.file.isOpen());
}

TEST_F(ProjectContextTest, ASavedFileHoldsTheSettingsAndThenTheProject) {
  program_.version = "Tarnwick V4.7a";
  makeSource("A.java");
  makeSource("B b.java");
  ProjectContext& project = openWith("A.java;B b.java");
  project.htmlFile = "\"a b.html\"";
  project.mainClass = "p.Main";
  project.multiMain = true;
  settings().recentProjects.add("some.twp");
  settings().javaXms = "9m";
  project.save();
  const std::string saved = linesOf(projectFile());
  settings().saveDefaultConfiguration();
  EXPECT_EQ(saved, linesOf(configFile()) + header +
                       "PROJECT_SOURCES  A.java;B b.java\nPROJECT_HTMLFILE  \"a b.html\"\nCLASS_WITH_MAIN  p.Main\n"
                       "PROJECT_MULTIMAIN  ON\n");
  EXPECT_TRUE(saved.starts_with(header));
  EXPECT_EQ(valueIn(projectFile(), "LAST_PROJECT_FILE"), quoted(projectFile()));
  EXPECT_EQ(valueIn(projectFile(), "RECENT_PROJECTS"), "some.twp");
  EXPECT_EQ(valueIn(projectFile(), "JAVA_XMS"), "9m");
  EXPECT_FALSE(project.file.isOpen());
}

TEST_F(ProjectContextTest, AnEmptyProjectIsWrittenWithEmptyValues) {
  program_.version = "Tarnwick V4.7a";
  ProjectContext& project = take(projectFile(), true);
  project.save();
  EXPECT_TRUE(linesOf(projectFile())
                  .ends_with(std::string(header) +
                             "PROJECT_SOURCES  \nPROJECT_HTMLFILE \nCLASS_WITH_MAIN \nPROJECT_MULTIMAIN  OFF\n"))
      << linesOf(projectFile());
}

TEST_F(ProjectContextTest, WhatWasSavedIsReadAgain) {
  makeSource("A].java");
  makeSource("B b.java");
  ProjectContext& project = openWith("A]].java;B b.java");
  project.htmlFile = "\"a b.html\"";
  project.mainClass = "p.Main";
  project.multiMain = true;
  settings().javaXms = "9m";
  project.save();
  settings().javaXms = "1m";
  const ProjectContext& again = openAgain();
  EXPECT_EQ(namesOf(again), (std::vector<std::string>{"A].java", "B b.java"}));
  EXPECT_EQ(again.htmlFile, "\"a b.html\"");
  EXPECT_EQ(again.mainClass, "p.Main");
  EXPECT_TRUE(again.multiMain);
  EXPECT_EQ(settings().javaXms, "9m");
}

TEST_F(ProjectContextTest, AFileThatCantBeSavedIsTold) {
  ProjectContext& project = open("PROJECT_HTMLFILE  a.html\n");
  platform::deleteFile(projectFile());
  // A folder in its place refuses every user.
  platform::makeFolders(projectFile());
  desktop_.expectMessage(refusal(projectFile(), FileMode::Write) + "\nCan't save settings for project.");
  project.save();
  EXPECT_EQ(project.htmlFile, "a.html");
  EXPECT_FALSE(project.file.isOpen());
}

TEST_F(ProjectContextTest, SavingTakesTheGuidesPlaceFromTheDefaultConfiguration) {
  ProjectContext& project = open("HELPFILE  of the project\n");
  // As another run would leave it.
  writeFile(configFile(), "HELPFILE  repaired\n");
  project.save();
  EXPECT_EQ(valueIn(projectFile(), "HELPFILE"), "repaired");
}

TEST_F(ProjectContextTest, WhileItIsOpenTheSettingsAreSavedIntoIt) {
  open("");
  const std::string before = contentOf(configFile());
  settings().javaXms = "9m";
  settings().saveCurrent();
  EXPECT_EQ(valueIn(projectFile(), "JAVA_XMS"), "9m");
  EXPECT_EQ(contentOf(configFile()), before);
  settings().currentProject.reset();
  settings().saveCurrent();
  EXPECT_EQ(valueIn(configFile(), "JAVA_XMS"), "9m");
}

TEST_F(ProjectContextTest, AMovedWindowIsSavedIntoTheOpenProject) {
  ToolTipDlg handler(desktop_, 1, 0);
  ScriptedWindow window({1, "Main", false, layout::column({}), 0}, handler);
  window.setKnownPosition(Point{11, 12});
  context_.mainWindow = &window;
  Settings live(context_);
  live.javaPath = standInFolder();
  live.saveDefaultConfiguration();
  writeFile(projectFile(), "");
  live.currentProject = openedProject(live, projectFile(), false);
  live.currentProject->save();
  window.moveByHand(Point{500, 400});
  live.javaXms = "9m";
  live.saveIfWindowMoved();
  EXPECT_EQ(valueIn(projectFile(), "JAVA_XMS"), "9m");
  EXPECT_NE(valueIn(configFile(), "JAVA_XMS"), "9m");
  context_.mainWindow = nullptr;
}

TEST_F(ProjectContextTest, AnEndOfItSavesNothing) {
  open("PROJECT_HTMLFILE  a.html\n").htmlFile = "b.html";
  settings().javaXms = "9m";
  settings().currentProject.reset();
  EXPECT_EQ(linesOf(projectFile()), "PROJECT_HTMLFILE  a.html\n");
  EXPECT_EQ(settings().javaXms, "9m") << "nor does it reset the settings";
}

}  // namespace
}  // namespace tarnwick::test
