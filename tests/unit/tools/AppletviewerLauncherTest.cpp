#include "support/BrokenTool.h"
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"
#include "tools/AppletviewerLauncher.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class AppletviewerLauncherTest : public SettingsFixture {
 protected:
  using Words = std::vector<std::string>;

  AppletviewerLauncherTest()
      : script_("STANDIN_SCRIPT", scratch_.file("script")), record_("STANDIN_RECORD", scratch_.file("record")) {
    writeFile(scratch_.file("script"), "");
  }

  ScopedEnvironment script_;
  ScopedEnvironment record_;
  FileForSubprocess file_{userFolder() + "page.html"};
};

TEST_F(AppletviewerLauncherTest, ThePlainestRunHasTheBareName) {
  EXPECT_EQ(appletviewerArguments(settings(), file_, false), (Words{"appletviewer", "page.html"}));
}

TEST_F(AppletviewerLauncherTest, EncodingAndOptionComeBeforeTheFile) {
  settings().appletviewerEncoding = "UTF-8";
  EXPECT_EQ(appletviewerArguments(settings(), file_, false), (Words{"appletviewer", "-encoding UTF-8", "page.html"}));
  settings().appletviewerJOption = "-J-Xmx9m  -J-Xms1m";
  EXPECT_EQ(appletviewerArguments(settings(), file_, false),
            (Words{"appletviewer", "-encoding UTF-8", "-J-Xmx9m  -J-Xms1m", "page.html"}));
  settings().appletviewerEncoding.clear();
  EXPECT_EQ(appletviewerArguments(settings(), file_, false),
            (Words{"appletviewer", "-J-Xmx9m  -J-Xms1m", "page.html"}));
}

TEST_F(AppletviewerLauncherTest, ANameWithABlankIsQuoted) {
  file_.setName(userFolder() + "my page.html");
  EXPECT_EQ(appletviewerArguments(settings(), file_, false), (Words{"appletviewer", "\"my page.html\""}));
}

TEST_F(AppletviewerLauncherTest, ANameThatLooksLikeAnOptionIsNone) {
  const std::string here = std::string(".") + platform::folderSeparator;
  const struct {
    const char* name;
    std::string argument;
  } table[] = {{"@page.html", here + "@page.html"},
               {"-J-version.html", here + "-J-version.html"},
               {"-my page.html", "\"" + here + "-my page.html\""},
               {"a@-page.html", "a@-page.html"}};
  for (const auto& row : table) {
    file_.setName(userFolder() + row.name);
    EXPECT_EQ(appletviewerArguments(settings(), file_, false).back(), row.argument);
    EXPECT_EQ(appletviewerArguments(settings(), file_, true).back(), row.argument);
  }
}

TEST_F(AppletviewerLauncherTest, DebuggingTravelsBetweenMarks) {
  settings().javaPath = "jdk" + std::string(1, platform::folderSeparator);
  settings().appletviewerEncoding = "UTF-8";
  file_.setName(userFolder() + "my page.html");
  EXPECT_EQ(appletviewerArguments(settings(), file_, true),
            (Words{"Tarnwick", "\\/DEFAULTDIR=" + userFolder() + "\\/",
                   "\\/EXEFILE=" + settings().javaPath + platform::toolFileName("appletviewer") + "\\/",
                   "\\/TITLE=my page\\/", "\\/CFG=" + configFile() + "\\/", "\\/JDEBUG\\/", "\\/RUN=", "-debug",
                   "-encoding UTF-8", "\"my page.html\""}));
}

TEST_F(AppletviewerLauncherTest, AnOpenProjectIsTheConfiguration) {
  struct Project : OpenProject {
    void save() override {}
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "\"a b/p.twp\""; }
  };
  settings().currentProject = std::make_unique<Project>();
  EXPECT_EQ(appletviewerArguments(settings(), file_, true)[4], "\\/CFG=\"a b/p.twp\"\\/");
}

TEST_F(AppletviewerLauncherTest, ASilentRunShowsNothing) {
  useStandIns();
  // An editor that could not be started would be told.
  settings().editorTarget = scratch_.file("no editor");
  settings().displayWithNotepad = false;
  file_.args() = {"a \"b c\""};
  runAppletviewer(settings(), file_, false);
  EXPECT_EQ(contentOf(scratch_.file("record")), "page.html\na\nb c\n") << "the user's words follow the name";
  EXPECT_EQ(platform::currentDirectory() + platform::folderSeparator, userFolder());
}

TEST_F(AppletviewerLauncherTest, WhatTheToolSaidIsShown) {
  useStandIns();
  settings().editorTarget = scratch_.file("no editor");
  settings().displayWithNotepad = false;
  const std::string reason = "No such file or directory";
  const std::string failure =
      "Unable to start " + settings().editorTarget + " for log file display.\n\n" + reason + "\n";
  for (const std::string word : {"first", "second"}) {
    writeFile(scratch_.file("script"), "err " + word + "\n");
    // The attempt to show it tells that it is shown.
    desktop_.expectMessage(failure + reason);
    runAppletviewer(settings(), file_, false);
    const std::string end = platform::lineEnd;
    EXPECT_EQ(contentOf(log_.path()), end + end + "appletviewer page.html" + end + end + word + "\n")
        << "each run begins a new log";
  }
}

TEST_F(AppletviewerLauncherTest, AToolsFolderThatStaysUnknownIsTold) {
  settings().javaPath.clear();
  for (const bool debugging : {false, true}) {
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    desktop_.expectMessage(said("No path to javac.exe and other tools available from settings",
                                "No path to javac and other tools available from settings"));
    runAppletviewer(settings(), file_, debugging);
  }
}

TEST_F(AppletviewerLauncherTest, AToolThatCantBeReadIsTold) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  for (const bool debugging : {false, true}) {
    desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("appletviewer") +
                           "\nNo such file or directory"
                           "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
    runAppletviewer(settings(), file_, debugging);
  }
}

TEST_F(AppletviewerLauncherTest, AToolThatCannotBeStartedIsTold) {
  const BrokenTool viewer(scratch_.file("broken") + platform::folderSeparator, "appletviewer");
  settings().javaPath = viewer.folder();
  desktop_.expectMessage(viewer.words());
  runAppletviewer(settings(), file_, false);
  program_.programPath = scratch_.file("no program");
  desktop_.expectMessage("Unable to start " + program_.programPath + ".\n\nNo such file or directory  (2)");
  runAppletviewer(settings(), file_, true);
}

TEST_F(AppletviewerLauncherTest, ALogThatCannotBeMadeIsTold) {
  useStandIns();
  writeFile(scratch_.file("script"), "out x\n");
  ToolLog nowhere(scratch_.file("gone") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, nowhere);
  Settings other(context);
  other.javaPath = standInFolder();
  desktop_.expectMessage("No such file or directory\nCan't open log file " + scratch_.file("gone") +
                         platform::folderSeparator + "Tarnwick_LOG1.tmp");
  runAppletviewer(other, file_, false);
}

}  // namespace
}  // namespace tarnwick::test
