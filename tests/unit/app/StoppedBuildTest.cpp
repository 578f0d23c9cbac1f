// Compiles of a project that the user follows, and has had enough of.
#include "../project/ProjectFixture.h"
#include "app/ProjectBuild.h"
#include "settings/SettingsContext.h"
#include "support/Children.h"

#include <optional>

namespace tarnwick::test {
namespace {

using Seen = std::vector<std::string>;

/// Keeps what it is to show, and stops one of the runs.
struct WatchingDesktop : ScriptedDesktop {
  void whileBusy(const BusyWork& busy) override {
    seen.push_back(step + busy.tool + ' ' + busy.on);
    if (busy.stop && stopped && runs++ == *stopped) busy.stop();
    ScriptedDesktop::whileBusy(busy);
  }
  bool showStep(std::size_t number, std::size_t of) override {
    step = std::to_string(number) + '/' + std::to_string(of) + ' ';
    return !enoughBefore || number < *enoughBefore;
  }
  Seen seen;
  std::string step;
  std::optional<int> stopped;               ///< this run, from 0
  std::optional<std::size_t> enoughBefore;  ///< this step: the one before it ended too soon to be stopped
  int runs = 0;
};

class StoppedBuildTest : public ProjectFixture {
 protected:
  StoppedBuildTest() {
    settings().displayWithNotepad = false;
    settings().editorTarget = standInFolder() + platform::toolFileName("javadoc");
    settings().saveDefaultConfiguration();
    for (const char* name : {"A", "B", "C"})
      makeSource(std::string(name) + ".java", std::string("class ") + name + " { }");
    writeFile(projectFile(), "PROJECT_SOURCES  A.java;B.java;C.java\n");
  }

  void open() {
    auto project = openedProject(live_, projectFile(), false);
    project_ = project.get();
    live_.currentProject = std::move(project);
    live_.watchRuns = true;
  }
  void compileAll() {
    if (!project_) open();
    compileProject(live_, *project_, true);
  }

  WatchingDesktop watching_;
  SettingsContext liveContext_ = settingsOnDesktop(watching_, program_, log_);
  Settings live_{liveContext_};
  ProjectContext* project_ = nullptr;
};

TEST_F(StoppedBuildTest, EachSourceIsAStepOfTheCommand) {
  compileAll();
  EXPECT_EQ(watching_.seen, (Seen{"1/3 javac C.java", "2/3 javac B.java", "3/3 javac A.java"}));
  EXPECT_EQ(watching_.step, "0/0 ") << "and the command has ended";
}

TEST_F(StoppedBuildTest, WhoDoesNotWantToSeeThemIsShownNothing) {
  open();
  live_.watchRuns = false;
  compileAll();
  EXPECT_EQ(watching_.seen, (Seen{"1/3  ", "2/3  ", "3/3  "}));
}

TEST_F(StoppedBuildTest, SourcesOfOneRunAreCounted) {
  open();
  live_.javacOneRun = true;
  compileAll();
  EXPECT_EQ(watching_.seen, Seen{"1/1 javac 3 sources"});
}

TEST_F(StoppedBuildTest, WhatIsStoppedEndsTheWholeCommandAndNothingSaysSuccess) {
  watching_.stopped = 1;
  compileAll();
  EXPECT_EQ(watching_.seen, (Seen{"1/3 javac C.java", "2/3 javac B.java"}));
  EXPECT_EQ(watching_.alerts(), std::vector{AlertSound::Exclamation});
  EXPECT_NE(contentOf(log_.path()).find("Stopped."), std::string::npos);
  EXPECT_EQ(log_.end(), RunEnd::Stopped);
  EXPECT_EQ(watching_.step, "0/0 ");
}

TEST_F(StoppedBuildTest, AStopThatCameTooLateForOneStepKeepsTheNextFromBeginning) {
  watching_.enoughBefore = 2;
  compileAll();
  EXPECT_EQ(watching_.seen, Seen{"1/3 javac C.java"});
  EXPECT_EQ(watching_.alerts(), std::vector{AlertSound::Exclamation}) << "the command has not done what it was to do";
  EXPECT_NE(contentOf(log_.path()).find("Stopped."), std::string::npos);
  EXPECT_EQ(log_.end(), RunEnd::Stopped);
  EXPECT_EQ(watching_.step, "0/0 ");
}

TEST_F(StoppedBuildTest, SoItDoesForTheBatchesOfOneRun) {
  makeSource("B.java", "class A { }");
  open();
  live_.javacOneRun = true;
  watching_.enoughBefore = 2;
  compileAll();
  EXPECT_EQ(watching_.seen, Seen{"1/2 javac 2 sources"});
  EXPECT_NE(contentOf(log_.path()).find("Stopped."), std::string::npos);
  EXPECT_EQ(log_.end(), RunEnd::Stopped);
}

TEST_F(StoppedBuildTest, SoAreTheBatchesOfOneRun) {
  // Two classes of one name can't go to one run.
  makeSource("B.java", "class A { }");
  open();
  live_.javacOneRun = true;
  watching_.stopped = 0;
  compileAll();
  EXPECT_EQ(watching_.seen, Seen{"1/2 javac 2 sources"});
}

}  // namespace
}  // namespace tarnwick::test
