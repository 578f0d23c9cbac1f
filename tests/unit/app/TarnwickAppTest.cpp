#include "app/TarnwickApp.h"
#include "support/SettingsFixture.h"

namespace tarnwick::test {
namespace {

/// Notes the frame that it is asked to show.
struct RecordingHost : ConsoleFrameHost {
  void runConsoleFrame(ConsoleFrame& frame) override {
    ++runs;
    title = frame.title();
    jdbHelp = frame.commandEnabled(COMMAND_JDB_HELP);
    cut = frame.commandEnabled(COMMAND_CUT);
    save = frame.commandEnabled(COMMAND_SAVE_DISPLAY);
    stop = frame.commandEnabled(COMMAND_STOP_RECORDING);
  }
  int runs = 0;
  std::string title;
  bool jdbHelp = true;
  bool cut = true;
  bool save = false;
  bool stop = true;
};

class TarnwickAppTest : public SettingsFixture {
 protected:
  TarnwickAppTest() { writeFile(configFile(), "JAVA_XMS  1m\n"); }

  TarnwickApp& app() {
    if (!app_) app_ = std::make_unique<TarnwickApp>(desktop_, host_, programFolder() + "tarnwick");
    return *app_;
  }
  std::string cfg(const std::string& path) { return "\\/CFG=" + path + "\\/ "; }

  RecordingHost host_;
  std::unique_ptr<TarnwickApp> app_;
};

TEST_F(TarnwickAppTest, SwitchesSetTheirFields) {
  EXPECT_TRUE(app().parseSwitches("\\/DEFAULTDIR=" + userFolder() + "\\/ \\/EXEFILE=java\\/ \\/TITLE=Main\\/ " +
                                  cfg(configFile()) + "\\/jdebug\\/ \\/UNKNOWN=x\\/ \\/RUN= -classpath . Main"));
  EXPECT_EQ(platform::resolvedPath(platform::currentDirectory()),
            platform::resolvedPath(Filename(userFolder(), "x").directoryNoSlash()));
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("java"));
  EXPECT_EQ(app().title(), "Main");
  EXPECT_TRUE(app().debugging()) << "names ignore case";
  EXPECT_EQ(app().runArguments(), " -classpath . Main");
  EXPECT_EQ(app().configFile().name().fullName(), configFile());
}

TEST_F(TarnwickAppTest, RunTakesTheRestWithFurtherMarks) {
  EXPECT_TRUE(app().parseSwitches("\\/RUN=a \\/b"));
  EXPECT_EQ(app().runArguments(), "a \\/b");
}

TEST_F(TarnwickAppTest, AnUnknownSwitchBetweenKnownOnesIsSkipped) {
  EXPECT_TRUE(app().parseSwitches("\\/TITLE=a\\/ \\/WHAT\\/ \\/EXEFILE=b\\/"));
  EXPECT_EQ(app().title(), "a");
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("b"));
}

TEST_F(TarnwickAppTest, TheExecutableLosesItsQuotes) {
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=\"a b\"  \\/"));
  EXPECT_EQ(app().exeFile().find('"'), std::string::npos);
}

TEST_F(TarnwickAppTest, AnEmptyDefaultFolderFails) {
  desktop_.expectMessage("Can't access folder ");
  EXPECT_FALSE(app().parseSwitches("\\/DEFAULTDIR=\\/"));
}

TEST_F(TarnwickAppTest, AMissingDefaultFolderFails) {
  desktop_.expectMessage("Can't access folder " + scratch_.file("gone"));
  EXPECT_EQ(app().run("\\/DEFAULTDIR=" + scratch_.file("gone") + "\\/ " + cfg(configFile())), 1);
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, ASwitchLineOpensTheConsole) {
  EXPECT_EQ(app().run("\\/TITLE=Main\\/ " + cfg(configFile()) + "\\/RUN=Main"), 0);
  EXPECT_EQ(host_.runs, 1);
  EXPECT_EQ(host_.title, "Main");
  EXPECT_FALSE(host_.jdbHelp);
  EXPECT_FALSE(host_.cut) << "nothing answers to Shift+Delete";
  EXPECT_TRUE(host_.save);
  EXPECT_FALSE(host_.stop);
}

TEST_F(TarnwickAppTest, ADebuggingStartEnablesTheDebuggersHelp) {
  EXPECT_EQ(app().run("\\/TITLE=Main\\/ " + cfg(configFile()) + "\\/JDEBUG\\/ \\/RUN=Main"), 0);
  EXPECT_TRUE(host_.jdbHelp);
}

TEST_F(TarnwickAppTest, AnUnexpectedFailureOfTheReadingIsTold) {
  writeFile(configFile(), "JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n");
  struct FailingDesktop : ScriptedDesktop {
    void message(const std::string& text) override {
      texts.push_back(text);
      if (texts.size() == 1) throw 1;
    }
    std::vector<std::string> texts;
  } desktop;
  TarnwickApp failing(desktop, host_, programFolder() + "tarnwick");
  EXPECT_EQ(failing.run(cfg(configFile())), 1);
  ASSERT_EQ(desktop.texts.size(), 2u);
  EXPECT_EQ(desktop.texts[1], "Encountered unexpected problems reading the configuration");
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, ConsoleModeWritesNoConfiguration) {
  const std::string before = contentOf(configFile());
  app().run("\\/TITLE=Main\\/ " + cfg(configFile()) + "\\/RUN=Main");
  EXPECT_EQ(contentOf(configFile()), before);
}

TEST_F(TarnwickAppTest, AMissingConfigurationIsTold) {
  const std::string missing = scratch_.file("none.CFG");
  desktop_.expectMessage("No such file or directory\nFile " + missing);
  EXPECT_EQ(app().run(cfg(missing)), 1);
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, ALineWithoutAConfigurationIsTold) {
  const std::string message = "Tarnwickfile::open(): Don't know how to open \"\"\nFile ";
  desktop_.expectMessage(message);
  EXPECT_EQ(app().run("neither a project nor a switch"), 1);
  desktop_.expectMessage(message);
  EXPECT_EQ(app().run("\\/TITLE=x\\/"), 1);
}

TEST_F(TarnwickAppTest, AProjectThatIsMissingIsNoProject) {
  desktop_.expectMessage("Tarnwickfile::open(): Don't know how to open \"\"\nFile ");
  EXPECT_EQ(app().run("\"" + userFolder() + "gone.twp\""), 1);
}

TEST_F(TarnwickAppTest, ABadValueIsTold) {
  writeFile(configFile(), "FILEVIEW_TAB  12x\n");
  desktop_.expectMessage("Encountered problems reading the configuration");
  EXPECT_EQ(app().run(cfg(configFile())), 1);
}

TEST_F(TarnwickAppTest, UnknownTagsAndMissingValuesAreTolerated) {
  writeFile(configFile(), "WHAT  is this\nFILEVIEW_TAB\n\n");
  EXPECT_EQ(app().run(cfg(configFile())), 0);
  EXPECT_EQ(host_.runs, 1);
}

TEST_F(TarnwickAppTest, DebugTablesWithFastCodeAreWarnedOfAndTheStartGoesOn) {
  writeFile(configFile(), "JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n");
  desktop_.expectMessage(
      "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
      "such as missing variables or relocated or missing code.");
  EXPECT_EQ(app().run(cfg(configFile())), 0);
  EXPECT_EQ(host_.runs, 1);
}

TEST_F(TarnwickAppTest, AConfigurationFolderWithoutItsWholePathStaysTheSameFolder) {
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration(nullptr);
  const ScopedEnvironment relative("TARNWICK_CFGDIR", "con fig");
  platform::changeDirectory(scratch_.path());
  const std::string whole = Filename(platform::currentDirectory(), "con fig").fullName();
  TarnwickApp app(desktop_, host_, programFolder() + "tarnwick");
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    platform::changeDirectory(userFolder());
    main.moveByHand({7, 9});
    main.child(1).child(197).press(2);
  });
  EXPECT_EQ(app.run(""), 0);
  EXPECT_EQ(platform::environment("TARNWICK_CFGDIR"), whole) << "what we start gets it too";
  EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  7;9"), std::string::npos);
  EXPECT_FALSE(platform::isFolder(userFolder() + "con fig"));
}

TEST_F(TarnwickAppTest, NoArgumentOrAProjectOpensThePanel) {
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration(nullptr);
  writeFile(userFolder() + "my.TWP", "REM\n");
  for (const std::string& line : {std::string(), "\"" + userFolder() + "my.TWP\""}) {
    desktop_.expectMainDialog([](ScriptedWindow& main) { main.closeBox(); });
    EXPECT_EQ(app().run(line), 0);
  }
  EXPECT_EQ(host_.runs, 0);
}

}  // namespace
}  // namespace tarnwick::test
