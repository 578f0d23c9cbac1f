#include "PanelFixture.h"
#include "app/TarnwickDlg.h"
#include "platform/OwnFiles.h"
#include "platform/SystemVersion.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

const char firstUse[] =
    "You seem to be using Tarnwick for the first time,\n"
    "as I can't find any data from a previous session.";
const char* const lookForJavac = said(
    "Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
    "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
    "Look for a file \"javac.exe\" in a \"bin\" subfolder of the JDK installation tree and\n"
    "enter it in the field \"Tools .exe directory\".\n",
    "Please make sure that you have an installation of a JDK (J2SE) on your system.\n\nOn the next display you will "
    "have to tell Tarnwick where the JDK programs are located.\nLook for a file \"javac\" in a \"bin\" subfolder of "
    "the JDK installation tree and\nenter it in the field \"Tools directory\".\n");

class TarnwickDlgTest : public PanelFixture {
 protected:
  /// The empty place of a JDK, with a release file that tells its version.
  std::string makeJdk(const std::string& version, const std::string& name = "jdk") {
    const std::string home = scratch_.file(name) + platform::folderSeparator;
    const std::string tools = home + "bin" + platform::folderSeparator;
    platform::makeFolders(tools);
    writeFile(tools + platform::toolFileName("javac"), "");
    writeFile(home + "release", "JAVA_VERSION=\"" + version + "\"\n");
    return scratch_.file(name);
  }

  void expectWelcome(const std::string& first, const std::string& second) {
    desktop_.expectDialog("Welcome to Tarnwick", [first, second](ScriptedWindow& window) {
      EXPECT_EQ(window.text(1273), first);
      EXPECT_EQ(window.text(1272), second);
      window.press(IDOK_CONTROL);
    });
  }

  /// A start that finds no tools; the user names their folder in the dialog.
  void startWhereADialogNames(const std::string& tools) {
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&tools](ScriptedWindow& window) {
      window.page(1092, 0).type(1041, tools);
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  }
};

TEST_F(TarnwickDlgTest, AFirstUseIsWelcomedAndAskedForTheTools) {
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("17.0.2"));
  std::string offered;
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    offered = window.page(1092, 0).text(1041);
    window.press(IDOK_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(platform::splitPath(offered + "x").base, "x");
  EXPECT_TRUE(platform::isFile(offered + platform::toolFileName("javac"))) << offered;
  const auto saved = freshSettings();
  int status = -1;
  saved->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(saved->javaPath, offered);
  EXPECT_FALSE(saved->javaXfuture) << "from 13 on, java refuses it or warns about it";
  EXPECT_EQ(saved->javacMyJdkVersion, "1.5") << "so that the warnings and the source option can be used";
}

TEST_F(TarnwickDlgTest, TheVersionForTheWarningsFollowsTheJdkAtTheFirstUse) {
  const struct {
    const char* release;
    const char* version;
  } table[] = {{"1.4.2_19", "Pre-1.4"}, {"1.5.0_22", "1.5"}, {"1.8.0_302", "1.5"}, {"25", "1.5"}, {"none", "Pre-1.4"}};
  for (const auto& row : table) {
    platform::deleteFile(configFile());
    settings().resetAll();
    const ScopedEnvironment javaHome("JAVA_HOME", makeJdk(row.release));
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&row](ScriptedWindow& window) {
      EXPECT_EQ(window.page(1092, 1).selection(1269), std::string(row.version) == "1.5" ? 2 : 0) << row.release;
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("JAVAC_MY_JDKVERSION"), row.version) << row.release;
  }
}

TEST_F(TarnwickDlgTest, FromVersion5OnTodaysJavaIsReadAtTheFirstUse) {
  const struct {
    const char* release;
    bool newer;
  } table[] = {{"1.4.2_19", false}, {"1.5.0_22", true}, {"25", true}, {"none", false}};
  for (const auto& row : table) {
    platform::deleteFile(configFile());
    settings().resetAll();
    const ScopedEnvironment javaHome("JAVA_HOME", makeJdk(row.release));
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&row](ScriptedWindow& window) {
      for (const int control : {2101, 2102}) EXPECT_EQ(window.page(1092, 1).checked(control), row.newer) << row.release;
      EXPECT_EQ(window.page(1092, 2).checked(2131), row.newer) << row.release;
      for (const int control : {2120, 2150}) EXPECT_EQ(window.page(1092, 0).checked(control), row.newer) << row.release;
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    const auto saved = freshSettings();
    int status = -1;
    saved->readDefaultConfiguration(status);
    EXPECT_EQ(saved->newerJava, row.newer) << row.release;
    EXPECT_EQ(saved->javacOneRun, row.newer) << row.release;
    EXPECT_EQ(saved->newerConsole, row.newer) << row.release;
    EXPECT_EQ(saved->watchRuns, row.newer) << row.release;
    EXPECT_EQ(saved->statusLine, row.newer) << row.release;
    EXPECT_EQ(saved->toolsWithoutConsole, row.newer && platform::isWindowsDesktop()) << row.release;
  }
}

TEST_F(TarnwickDlgTest, AWayOfReadingThatTheUserChoosesStays) {
  for (const int refused : {2101, 2102, 2131, 2120, 2150}) {
    platform::deleteFile(configFile());
    settings().resetAll();
    const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("17"));
    const std::string other = Filename(makeJdk("25", "other"), "bin").fullName();
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      window.page(1092, 0).type(1041, other);
      window.page(1092, refused == 2131 ? 2 : refused == 2120 || refused == 2150 ? 0 : 1).press(refused);
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    const auto saved = freshSettings();
    int status = -1;
    saved->readDefaultConfiguration(status);
    EXPECT_EQ(saved->newerJava, refused == 2101 ? 0 : 1);
    EXPECT_EQ(saved->javacOneRun, refused == 2102 ? 0 : 1);
    EXPECT_EQ(saved->newerConsole, refused == 2131 ? 0 : 1);
    EXPECT_EQ(saved->watchRuns, refused == 2120 ? 0 : 1);
    EXPECT_EQ(saved->statusLine, refused == 2150 ? 0 : 1);
  }
}

TEST_F(TarnwickDlgTest, AVersionForTheWarningsThatTheUserChoosesStays) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  const std::string tools = Filename(makeJdk("25"), "bin").fullName();
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [&tools](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, tools);
    window.page(1092, 1).choose(1269, 1);
    window.press(IDOK_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(saved("JAVAC_MY_JDKVERSION"), "1.4");
  EXPECT_EQ(saved("JAVA_XFUTURE"), "OFF") << "the rest suits the JDK";
}

TEST_F(TarnwickDlgTest, AnExistingConfigurationKeepsItsVersionForTheWarnings) {
  saveEarlierRun([](Settings& earlier) { earlier.javacMyJdkVersion = "Pre-1.4"; });
  writeFile(configFile(), contentOf(configFile()) + "SOMETHING  new\n");
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("25"));
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(saved("JAVAC_MY_JDKVERSION"), "Pre-1.4");
  EXPECT_EQ(contentOf(configFile()).find("NEWER_JAVA"), std::string::npos) << "nor is it read another way by itself";
}

TEST_F(TarnwickDlgTest, AnOlderJdkKeepsStrictChecks) {
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("1.8.0_302"));
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_TRUE(settings().javaXfuture);
}

TEST_F(TarnwickDlgTest, AJdkThatIsOnlyNamedInTheDialogCountsToo) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  const std::string tools = Filename(makeJdk("25"), "bin").fullName();
  startWhereADialogNames(tools);
  const auto saved = freshSettings();
  int status = -1;
  saved->readDefaultConfiguration(status);
  EXPECT_EQ(saved->javaPath, tools + platform::folderSeparator);
  EXPECT_FALSE(saved->javaXfuture);
  EXPECT_EQ(saved->javacMyJdkVersion, "1.5");
  EXPECT_TRUE(saved->newerJava);
  EXPECT_TRUE(saved->javacOneRun);
}

TEST_F(TarnwickDlgTest, StrictChecksThatTheUserChoosesStay) {
  const std::string other = Filename(makeJdk("17", "other"), "bin").fullName();
  for (const bool withAnotherJdk : {false, true}) {
    platform::deleteFile(configFile());
    settings().resetAll();
    settings().javaPath.clear();
    const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("25"));
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      if (withAnotherJdk) window.page(1092, 0).type(1041, other);
      window.page(1092, 2).press(1123);
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("JAVA_XFUTURE"), "ON");
  }
}

TEST_F(TarnwickDlgTest, AnExistingConfigurationIsNotMadeToSuitAnotherJdk) {
  saveEarlierRun([](Settings& earlier) { earlier.javaXfuture = true; });
  writeFile(configFile(), contentOf(configFile()) + "SOMETHING  new\n");
  const std::string tools = Filename(makeJdk("25"), "bin").fullName();
  startWhereADialogNames(tools);
  EXPECT_EQ(saved("JAVA_PATH"), tools + platform::folderSeparator);
  EXPECT_EQ(saved("JAVA_XFUTURE"), "ON");
  EXPECT_EQ(contentOf(configFile()).find("NEWER_JAVA"), std::string::npos);
}

TEST_F(TarnwickDlgTest, PiecesThatAKilledCompilationHasLeftAreClearedAtTheStart) {
  saveEarlierRun();
  const std::string left = configFolder() + "Tarnwick_split1.tmp";
  platform::makeOwnFolder(left);
  runPanel([&left](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_FALSE(platform::isTaken(left));
    exit(panel);
  });
}

TEST_F(TarnwickDlgTest, TheConfigurationIsSavedWhateverTheDialogsOutcome) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.page(1092, 0).text(1041), "") << "nothing found leaves the field empty";
    window.press(IDCANCEL_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_TRUE(platform::isFile(configFile()));
}

TEST_F(TarnwickDlgTest, OneUnknownTagCountsAsAFirstUseUntilItIsSavedAway) {
  saveEarlierRun();
  writeFile(configFile(), contentOf(configFile()) + "SOMETHING  new\n");
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.page(1092, 0).text(1041), standInFolder()) << "a known folder is not replaced";
    window.press(IDCANCEL_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(contentOf(configFile()).find("SOMETHING"), std::string::npos);
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
}

TEST_F(TarnwickDlgTest, ABadOrMissingValueCountsAsAFirstUseToo) {
  for (const char* row : {"FILEVIEW_TAB  12x\n", "FILEVIEW_TAB\n"}) {
    saveEarlierRun();
    writeFile(configFile(), contentOf(configFile()) + row);
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    // What was saved then is whole: the next start asks nothing.
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  }
}

TEST_F(TarnwickDlgTest, AConfigurationThatIsThereTakesAFoundJdkOnlyWithOk) {
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("25"));
  const std::string found =
      Filename(platform::resolvedPath(Filename(scratch_.file("jdk"), "bin").fullName() + platform::folderSeparator +
                                      platform::toolFileName("javac")))
          .directory();
  for (const int end : {IDCANCEL_CONTROL, IDOK_CONTROL}) {
    saveEarlierRun([](Settings& earlier) {
      earlier.javaPath.clear();
      earlier.javaXfuture = true;
    });
    writeFile(configFile(), contentOf(configFile()) + "SOMETHING  new\n");
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      EXPECT_EQ(window.page(1092, 0).text(1041), found) << "it is offered";
      window.press(end);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    const auto saved = freshSettings();
    int status = -1;
    saved->readDefaultConfiguration(status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(saved->javaPath, end == IDOK_CONTROL ? found : "");
    EXPECT_TRUE(saved->javaXfuture) << "the user's own switch is left alone";
  }
}

TEST_F(TarnwickDlgTest, FromVersion13OnStrictChecksAreSwitchedOff) {
  for (const auto& [version, strict] : {std::pair{"12.0.2", 1}, {"13", 0}}) {
    platform::deleteFile(configFile());
    settings().resetAll();
    settings().javaPath.clear();
    const std::string home = makeJdk(version);
    const std::string tools = Filename(home, "bin").fullName() + platform::folderSeparator;
    const ScopedEnvironment javaHome("JAVA_HOME", home);
    expectWelcome(firstUse, lookForJavac);
    desktop_.expectDialog("Tarnwick settings", [expected = strict](ScriptedWindow& window) {
      EXPECT_EQ(window.page(1092, 2).checked(1123), expected == 1) << "the dialog shows it";
      window.press(IDCANCEL_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("JAVA_XFUTURE"), strict ? "ON" : "OFF") << version;
    EXPECT_EQ(saved("JAVA_PATH"), tools) << "what was found serves, though the dialog was cancelled";
  }
}

TEST_F(TarnwickDlgTest, TheSettingsOpenOnTheirFirstPage) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  expectWelcome(firstUse, lookForJavac);
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.selection(1092), 0);
    window.press(IDCANCEL_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
}

TEST_F(TarnwickDlgTest, AnotherVersionIsAnUpgrade) {
  const std::string line = "TARNWICK_VERSION  Tarnwick V4.7a";
  // Versions are compared letter by letter.
  for (const char* other : {"Tarnwick V4.6", "tarnwick v4.7A", "Tarnwick V4.7", "Tarnwick V4.7a1"}) {
    saveEarlierRun();
    std::string content = contentOf(configFile());
    content.replace(content.find(line), line.size(), std::string("TARNWICK_VERSION  ") + other);
    writeFile(configFile(), content);
    expectWelcome(
        "You seem to be upgrading from a previous Tarnwick version,\n"
        "as far as I can tell from data from a previous session.",
        "You may wish to review the javac options.\n"
        "Depending on the JDK version, different options exist for\n"
        "compiler warnings. They are not compatible across JDK versions,\n"
        "so you should select the options appropriate for your JDK.");
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("TARNWICK_VERSION"), "Tarnwick V4.7a") << other;
  }
}

TEST_F(TarnwickDlgTest, AnAbsentVersionLineIsAnUpgrade) {
  writeFile(configFile(), "JAVA_XMS  1m\n");
  desktop_.expectDialog("Welcome to Tarnwick", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
}

TEST_F(TarnwickDlgTest, AnOrdinaryStartAsksNothing) {
  saveEarlierRun();
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.title(), "Tarnwick");
    exit(panel);
  });
}

TEST_F(TarnwickDlgTest, AtTheFirstStartTheWindowGoesToItsPlaceWithTheCoordinatesExchanged) {
  saveEarlierRun();
  desktop_.setWindowPosition(Point{300, 200});
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.position(), (Point{200, 300}));
    exit(panel);
  });
}

TEST_F(TarnwickDlgTest, ThePositionIsRememberedByExit) {
  saveEarlierRun();
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    main.moveByHand({120, 88});
    exit(panel);
  });
  EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  120;88"), std::string::npos);
  desktop_.setWindowPosition(Point{0, 0});
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.position(), (Point{120, 88}));
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
