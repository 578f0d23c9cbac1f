#include "PanelFixture.h"
#include "app/TarnwickDlg.h"

namespace tarnwick::test {
namespace {

const char firstUse[] =
    "You seem to be using Tarnwick for the first time,\n"
    "as I can't find any data from a previous session.";
const char lookForJavac[] =
    "Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
    "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
    "Look for a file \"javac.exe\" in a \"bin\" subfolder of the JDK installation tree and\n"
    "enter it in the field \"Tools .exe directory\".\n";

class TarnwickDlgTest : public PanelFixture {
 protected:
  /// The empty place of a JDK, with a release file that tells its version.
  std::string makeJdk(const std::string& version) {
    const std::string home = scratch_.file("jdk") + platform::folderSeparator;
    const std::string tools = home + "bin" + platform::folderSeparator;
    platform::makeFolders(tools);
    writeFile(tools + platform::toolFileName("javac"), "");
    writeFile(home + "release", "JAVA_VERSION=\"" + version + "\"\n");
    return scratch_.file("jdk");
  }

  void expectWelcome(const std::string& first, const std::string& second) {
    desktop_.expectDialog("Welcome to Tarnwick", [first, second](ScriptedWindow& window) {
      EXPECT_EQ(window.text(1273), first);
      EXPECT_EQ(window.text(1272), second);
      window.press(IDOK_CONTROL);
    });
  }
};

TEST_F(TarnwickDlgTest, AFirstUseIsWelcomedAndAskedForTheTools) {
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("17.0.2"));
  std::string offered;
  expectWelcome(firstUse, platform::localText(lookForJavac));
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
  EXPECT_EQ(saved->javaXfuture, 0) << "from 13 on, java refuses it or warns about it";
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
    expectWelcome(firstUse, platform::localText(lookForJavac));
    desktop_.expectDialog("Tarnwick settings", [&row](ScriptedWindow& window) {
      EXPECT_EQ(window.page(1092, 1).selection(1269), std::string(row.version) == "1.5" ? 2 : 0) << row.release;
      window.press(IDOK_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("JAVAC_MY_JDKVERSION"), row.version) << row.release;
  }
}

TEST_F(TarnwickDlgTest, AVersionForTheWarningsThatTheUserChoosesStays) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  const std::string tools = Filename(makeJdk("25"), "bin").fullName();
  expectWelcome(firstUse, platform::localText(lookForJavac));
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
  expectWelcome(firstUse, platform::localText(lookForJavac));
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(saved("JAVAC_MY_JDKVERSION"), "Pre-1.4");
}

TEST_F(TarnwickDlgTest, AnOlderJdkKeepsStrictChecks) {
  const ScopedEnvironment javaHome("JAVA_HOME", makeJdk("1.8.0_302"));
  expectWelcome(firstUse, platform::localText(lookForJavac));
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(settings().javaXfuture, 1);
}

TEST_F(TarnwickDlgTest, AJdkThatIsOnlyNamedInTheDialogCountsToo) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  const std::string tools = Filename(makeJdk("25"), "bin").fullName();
  expectWelcome(firstUse, platform::localText(lookForJavac));
  desktop_.expectDialog("Tarnwick settings", [&tools](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, tools);
    window.press(IDOK_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  const auto saved = freshSettings();
  int status = -1;
  saved->readDefaultConfiguration(status);
  EXPECT_EQ(saved->javaPath, tools + platform::folderSeparator);
  EXPECT_EQ(saved->javaXfuture, 0);
  EXPECT_EQ(saved->javacMyJdkVersion, "1.5");
}

TEST_F(TarnwickDlgTest, TheConfigurationIsSavedWhateverTheDialogsOutcome) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  expectWelcome(firstUse, platform::localText(lookForJavac));
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
  expectWelcome(firstUse, platform::localText(lookForJavac));
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
    expectWelcome(firstUse, platform::localText(lookForJavac));
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
      earlier.javaXfuture = 1;
    });
    writeFile(configFile(), contentOf(configFile()) + "SOMETHING  new\n");
    expectWelcome(firstUse, platform::localText(lookForJavac));
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
    EXPECT_EQ(saved->javaXfuture, 1) << "the user's own switch is left alone";
  }
}

TEST_F(TarnwickDlgTest, FromVersion13OnStrictChecksAreSwitchedOff) {
  for (const auto& [version, strict] : {std::pair{"12.0.2", 1}, {"13", 0}}) {
    platform::deleteFile(configFile());
    settings().resetAll();
    settings().javaPath.clear();
    const ScopedEnvironment javaHome("JAVA_HOME", makeJdk(version));
    expectWelcome(firstUse, platform::localText(lookForJavac));
    desktop_.expectDialog("Tarnwick settings", [expected = strict](ScriptedWindow& window) {
      EXPECT_EQ(window.page(1092, 2).checked(1123), expected == 1) << "the dialog shows it";
      window.press(IDCANCEL_CONTROL);
    });
    runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
    EXPECT_EQ(saved("JAVA_XFUTURE"), strict ? "ON" : "OFF") << version;
  }
}

TEST_F(TarnwickDlgTest, TheSettingsOpenOnTheirFirstPage) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  expectWelcome(firstUse, platform::localText(lookForJavac));
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
