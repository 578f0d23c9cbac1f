#include "AppFixture.h"
#include "resources/PanelLayouts.h"

namespace tarnwick::test {
namespace {

using TarnwickAppTest = AppFixture;

TEST_F(TarnwickAppTest, ItKnowsItsFixedNamesAndWhereItLies) {
  EXPECT_EQ(app().program().version, "Tarnwick V4.7a");
  EXPECT_EQ(app().program().configDirVariable, "TARNWICK_CFGDIR");
  EXPECT_EQ(app().program().programDirectory, programFolder()) << "with its last separator";
  EXPECT_EQ(app().program().programPath, programFolder() + "tarnwick");
}

TEST_F(TarnwickAppTest, TheProjectTypeIsRegisteredOnceInARun) {
  std::vector<std::string> openers;
  for (int press = 0; press < 2; ++press)
    app().registerProjectType([&](const std::string& program) { openers.push_back(program); });
  EXPECT_EQ(openers, std::vector<std::string>{programFolder() + "tarnwick"});
}

TEST_F(TarnwickAppTest, NothingIsReadBeforeTheCommandLineIsLookedAt) {
  // Reading this would bring a warning, which nobody expects here.
  writeFile(configFile(), "JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n");
  app();
  EXPECT_TRUE(platform::deleteFile(configFile())) << "nor is it open";
}

TEST_F(TarnwickAppTest, AProjectsExtensionIgnoresCaseAndQuotes) {
  useStandIns();
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration();
  writeFile(userFolder() + "a.twp", "REM\n");
  writeFile(userFolder() + "my b.TwP", "REM\n");
  for (const std::string& line : {userFolder() + "a.twp", "  " + userFolder() + "a.twp ", userFolder() + "my b.TwP",
                                  "\"" + userFolder() + "my b.TwP\"", " \"" + userFolder() + "my b.TwP\" "}) {
    desktop_.expectMainDialog([](ScriptedWindow& main) { main.closeBox(); });
    EXPECT_EQ(app().run(line), 0) << line;
  }
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, ASourceAClassFileOrAnArchiveStandsInItsField) {
  useStandIns();
  settings().tarnwickVersion = program_.version;
  settings().fileviewTab = 2;
  settings().fileviewClass.takeTyped("Old.class with arguments");
  settings().saveDefaultConfiguration();
  const std::string old = settings().fileviewClass.name().quoted();
  const struct {
    std::string name;
    int page;  ///< of the class's field; -1: the source's field
  } table[] = {{"My Main.java", -1}, {"a.JAVA", -1}, {"Main.class", 0}, {"my lib.jar", 0}};
  for (const auto& row : table) {
    const std::string file = userFolder() + row.name;
    writeFile(file, "content");
    settings().saveDefaultConfiguration();
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
      EXPECT_EQ(panel.text(1009), row.page < 0 ? '"' + file + '"' : "") << row.name;
      EXPECT_EQ(panel.page(1231, 0).text(1223), row.page < 0 ? old : '"' + file + '"') << row.name;
      EXPECT_EQ(panel.selection(1231), row.page < 0 ? 2 : 0) << row.name;
      main.closeBox();
    });
    EXPECT_EQ(app().run('"' + file + '"'), 0);
  }
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, AFileFromTheCurrentFolderStandsInItsFieldWithItsWholePath) {
  useStandIns();
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration();
  writeFile(userFolder() + "Main.java", "content");
  ASSERT_TRUE(platform::changeDirectory(userFolder()));
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    EXPECT_EQ(main.child(FILE_VIEW_SLOT).text(1009), '"' + userFolder() + "Main.java\"");
    main.closeBox();
  });
  EXPECT_EQ(app().run("Main.java"), 0);
}

TEST_F(TarnwickAppTest, WhatIsNoProjectFileIsNeitherAPanelNorAConsole) {
  writeFile(userFolder() + "a.txt", "REM\n");
  writeFile(userFolder() + "a.twp.bak", "REM\n");
  platform::makeFolders(userFolder() + "folder.twp");
  for (const std::string& line :
       {userFolder() + "a.txt", userFolder() + "a.twp.bak", userFolder() + "folder.twp", userFolder() + "gone.twp",
        userFolder() + "gone.java", userFolder() + "a.twp \\/JDEBUG\\/", std::string(" "), std::string("\""),
        std::string("--help")}) {
    desktop_.expectMessage("Tarnwickfile::open(): Don't know how to open \"\"\nFile ");
    EXPECT_EQ(app().run(line), 1) << line;
  }
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, ConsoleModeDoesNotReadTheDefaultConfiguration) {
  writeFile(configFile(), "FILEVIEW_TAB  12x\nTARNWICK_VERSION  Tarnwick V1\nJAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n");
  writeFile(userFolder() + "own.cfg", "TARNWICK_VERSION  Tarnwick V2\n");
  EXPECT_EQ(app().run("\\/TITLE=Main\\/ " + cfg(userFolder() + "own.cfg") + "\\/RUN=Main"), 0);
  EXPECT_EQ(host_.runs, 1) << "no welcome, no warning, whatever the version";
}

TEST_F(TarnwickAppTest, AConfigurationThatIsNoFileIsTold) {
  const bool windows = platform::folderSeparator == '\\';
  platform::makeFolders(userFolder() + "folder.CFG");
  desktop_.expectMessage((windows ? "Permission denied\nFile " : "Is a directory\nFile ") + userFolder() +
                         "folder.CFG");
  EXPECT_EQ(app().run(cfg(userFolder() + "folder.CFG")), 1);
  desktop_.expectMessage("No such file or directory\nFile ");
  EXPECT_EQ(app().run("\\/CFG=\\/"), 1);
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, AConfigurationThatIsGoneWhenItIsReadIsTold) {
  platform::changeDirectory(configFolder());
  desktop_.expectMessage(std::string("No such file or directory\nFile ") + defaultConfigurationName);
  EXPECT_EQ(app().run(cfg(defaultConfigurationName) + "\\/DEFAULTDIR=" + userFolder() + "\\/"), 1)
      << "the name counts from the current folder, and that has changed";
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(TarnwickAppTest, NothingIsSavedAtExitUnlessTheWindowMoved) {
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration();
  const auto exit = [this] {
    desktop_.expectMainDialog([](ScriptedWindow& main) { main.child(FILE_VIEW_SLOT).child(197).press(2); });
    EXPECT_EQ(app().run(""), 0);
  };
  exit();
  const std::string before = contentOf(configFile()) + "REM  by hand\n";
  writeFile(configFile(), before);
  exit();
  EXPECT_EQ(contentOf(configFile()), before);
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
  EXPECT_FALSE(app().configFile().isOpen()) << "the configuration is free again";
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
  settings().saveDefaultConfiguration();
  const ScopedEnvironment relative("TARNWICK_CFGDIR", "con fig");
  platform::changeDirectory(scratch_.path());
  const std::string whole = Filename(platform::currentDirectory(), "con fig").fullName();
  TarnwickApp app(desktop_, host_, programFolder() + "tarnwick");
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    platform::changeDirectory(userFolder());
    main.moveByHand({7, 9});
    main.child(FILE_VIEW_SLOT).child(197).press(2);
  });
  EXPECT_EQ(app.run(""), 0);
  EXPECT_EQ(platform::environment("TARNWICK_CFGDIR"), whole) << "what we start gets it too";
  EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  7;9"), std::string::npos);
  EXPECT_FALSE(platform::isFolder(userFolder() + "con fig"));
}

TEST_F(TarnwickAppTest, NoArgumentOrAProjectOpensThePanel) {
  useStandIns();
  settings().tarnwickVersion = program_.version;
  settings().saveDefaultConfiguration();
  writeFile(userFolder() + "my.TWP", "REM\n");
  for (const std::string& line : {std::string(), "\"" + userFolder() + "my.TWP\""}) {
    desktop_.expectMainDialog([](ScriptedWindow& main) { main.closeBox(); });
    EXPECT_EQ(app().run(line), 0);
  }
  EXPECT_EQ(host_.runs, 0);
}

}  // namespace
}  // namespace tarnwick::test
