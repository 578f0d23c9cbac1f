#include "support/SettingsPageFixture.h"
#include "support/SystemWords.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

enum Control {
  SOURCE = 1179,
  OWN_SOURCE = 1186,
  TARGET = 1028,
  OWN_TARGET = 1122,
  VERSION = 1269,
  DESTINATION = 1040,
  BROWSE = 1007,
};

class JavacPageTest : public SettingsPageFixture {
 protected:
  JavacPageTest() : SettingsPageFixture(1) {}

  using Numbers = std::vector<int>;

  static Numbers shownWarnings(const ScriptedWindow& page) {
    Numbers shown;
    for (int box = 1264; box <= 1271; ++box) {
      if (box != VERSION && page.visible(box)) shown.push_back(box);
    }
    return shown;
  }
};

TEST_F(JavacPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(1040),
              "Folder where class files will be stored by the compiler. Default: Folder of the source file");
    EXPECT_EQ(page.toolTip(1007),
              "Locate the folder where the compiler should store class files. Default: Folder of the source file");
    EXPECT_EQ(page.toolTip(1024), "Optimize code for faster execution");
    EXPECT_EQ(page.toolTip(1026),
              "Store source code information within the class file to make it available to the debugger");
    EXPECT_EQ(page.toolTip(1027), "Display detail information about the compilation process");
    EXPECT_EQ(page.toolTip(1044), "Do not accept deprecated java features");
    EXPECT_EQ(page.toolTip(1021),
              said("Start the Windows Asterisk sound at the end of a compilation without diagnostics",
                   "Start the information sound at the end of a compilation without diagnostics"));
    EXPECT_EQ(page.toolTip(1022),
              said("Start the Windows Exclamation sound at the end of a compilation that produced diagnostics",
                   "Start the warning sound at the end of a compilation that produced diagnostics"));
    EXPECT_EQ(page.toolTip(1117), "Special option to be passed to the java launcher (see also JDK documentation)");
    EXPECT_EQ(page.toolTip(1179),
              "Tells the compiler how to interpret the source. Important e.g. when using assertions (see also JDK "
              "documentation)");
    EXPECT_EQ(page.toolTip(1186),
              "Enter your own source option definition here (select 'User-defined' from above dropdown list)");
    EXPECT_EQ(page.toolTip(1028),
              "Select target JVM on which the code should run: Low version for compatibility, high version for "
              "performance");
    EXPECT_EQ(page.toolTip(1122),
              "Enter your own target option definition here (select 'User-defined' from above dropdown list)");
    EXPECT_EQ(page.toolTip(1270), "Suppress compiler warnings");
    EXPECT_EQ(page.toolTip(1271),
              "Display a warning if a switch block has a fall-through case (i.e. without break statement)");
    EXPECT_EQ(page.toolTip(1264),
              "Give more detail for unchecked conversion warnings that are mandated by the Java Language "
              "Specification");
    EXPECT_EQ(page.toolTip(1265), "Warn about nonexistent path (classpath, sourcepath, etc) directories");
    EXPECT_EQ(page.toolTip(1266), "Warn about missing serialVersionUID definitions on serializable classes");
    EXPECT_EQ(page.toolTip(1267), "Warn about finally clauses that cannot complete normally");
    EXPECT_EQ(page.toolTip(1268),
              "Check switch blocks for fall-through cases, display a warning for any that are found");
  });
}

TEST_F(JavacPageTest, TheFirstOfTwoToolTipsWins) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(VERSION),
              "The options for compiler warnings depend on the JDK version od the javac compiler");
  });
}

TEST_F(JavacPageTest, Labels) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(1026), "Create debug\ntables (-g)");
    EXPECT_EQ(page.text(1024), "Fast code (-O)");
    EXPECT_EQ(page.text(1044), "-deprecation");
    EXPECT_EQ(page.text(1027), "-verbose");
    EXPECT_EQ(page.text(1021),
              said("After successful compilation\n(Asterisk)", "After successful compilation\n(information sound)"));
    EXPECT_EQ(page.text(1022), said("After compilation with\ndiagnostics\n(Exclamation)",
                                    "After compilation with\ndiagnostics\n(warning sound)"));
    EXPECT_EQ(page.text(1270), "no warnings");
    EXPECT_EQ(page.text(1271), "switchcheck");
    EXPECT_EQ(page.text(1264), "Conversions");
    EXPECT_EQ(page.text(1265), "Path");
    EXPECT_EQ(page.text(1266), "Serialization");
    EXPECT_EQ(page.text(1267), "Finally");
    EXPECT_EQ(page.text(1268), "Switch");
  });
}

TEST_F(JavacPageTest, TheListsOfTheBoxes) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.entries(SOURCE), (std::vector<std::string>{"Default", "1.3", "1.4", "1.5", "User-defined"}));
    EXPECT_EQ(page.entries(TARGET),
              (std::vector<std::string>{"Default", "1.1", "1.2", "1.3", "1.4", "1.5", "User-defined"}));
    EXPECT_EQ(page.entries(VERSION), (std::vector<std::string>{"Pre-JDK 1.4", "JDK 1.4", "JDK 1.5"}));
    EXPECT_EQ(page.selection(SOURCE), 0);
    EXPECT_EQ(page.selection(TARGET), 0);
    EXPECT_EQ(page.selection(VERSION), 0);
    EXPECT_FALSE(page.enabled(OWN_SOURCE));
    EXPECT_FALSE(page.enabled(OWN_TARGET));
  });
}

TEST_F(JavacPageTest, TheJdkVersionDecidesWhichWarningsShow) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(shownWarnings(page), Numbers{1270});
    EXPECT_FALSE(page.enabled(SOURCE));
    page.choose(VERSION, 1);
    EXPECT_EQ(shownWarnings(page), (Numbers{1270, 1271}));
    EXPECT_TRUE(page.enabled(SOURCE));
    page.choose(VERSION, 2);
    EXPECT_EQ(shownWarnings(page), (Numbers{1264, 1265, 1266, 1267, 1268}));
    EXPECT_TRUE(page.enabled(SOURCE));
    page.choose(VERSION, 0);
    EXPECT_EQ(shownWarnings(page), Numbers{1270});
    EXPECT_FALSE(page.enabled(SOURCE));
  });
}

TEST_F(JavacPageTest, AStoredVersionShowsItsWarningsAtOnce) {
  settings().javacMyJdkVersion = "1.5";
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.selection(VERSION), 2);
    EXPECT_EQ(shownWarnings(page), (Numbers{1264, 1265, 1266, 1267, 1268}));
  });
}

TEST_F(JavacPageTest, AVersionThatNobodyKnowsShowsNoWarningsAndIsKept) {
  settings().javacMyJdkVersion = "17";
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(shownWarnings(page), Numbers{});
    EXPECT_EQ(page.selection(VERSION), -1);
  });
  EXPECT_EQ(settings().javacMyJdkVersion, "17");
}

TEST_F(JavacPageTest, TheVersionIsStoredByItsLabel) {
  for (const auto& [index, label] : {std::pair{1, "1.4"}, {2, "1.5"}, {0, "Pre-1.4"}}) {
    playAndOk([chosen = index](ScriptedWindow& page) { page.choose(VERSION, chosen); });
    EXPECT_EQ(settings().javacMyJdkVersion, label);
  }
}

TEST_F(JavacPageTest, BeforeVersion14AStoredSourceOptionGoesBackToTheDefault) {
  settings().javacSourceOption = "1.5";
  playAndOk([](ScriptedWindow& page) { EXPECT_EQ(page.selection(SOURCE), 0); });
  EXPECT_EQ(settings().javacSourceOption, "");
}

TEST_F(JavacPageTest, ChoosingTheOldestVersionEmptiesTheUsersOwnSourceOption) {
  settings().javacMyJdkVersion = "1.5";
  settings().javacSourceOption = "own";
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(OWN_SOURCE), "own");
    page.choose(VERSION, 0);
    EXPECT_EQ(page.text(OWN_SOURCE), "");
    EXPECT_FALSE(page.enabled(OWN_SOURCE));
  });
  EXPECT_EQ(settings().javacSourceOption, "");
}

TEST_F(JavacPageTest, AUserDefinedOptionIsTypedIntoItsField) {
  settings().javacMyJdkVersion = "1.5";
  playAndOk([](ScriptedWindow& page) {
    page.choose(SOURCE, 4);
    EXPECT_TRUE(page.enabled(OWN_SOURCE));
    page.type(OWN_SOURCE, "17");
    page.choose(TARGET, 6);
    page.type(OWN_TARGET, "11");
  });
  EXPECT_EQ(settings().javacSourceOption, "17");
  EXPECT_EQ(settings().javacTargetSpec, "11");
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.selection(SOURCE), 4);
    EXPECT_EQ(page.text(OWN_SOURCE), "17");
    EXPECT_EQ(page.selection(TARGET), 6);
    EXPECT_EQ(page.text(OWN_TARGET), "11");
    page.choose(TARGET, 2);
    EXPECT_EQ(page.text(OWN_TARGET), "");
    EXPECT_FALSE(page.enabled(OWN_TARGET));
    page.choose(SOURCE, 0);
    EXPECT_FALSE(page.enabled(OWN_SOURCE));
  });
  EXPECT_EQ(settings().javacSourceOption, "");
  EXPECT_EQ(settings().javacTargetSpec, "1.2");
}

TEST_F(JavacPageTest, BrowseTakesTheChosenFolder) {
  settings().javacDestination = "before";
  playAndOk([this](ScriptedWindow& page) {
    desktop_.expectBrowseFolder(std::nullopt);
    page.press(BROWSE);
    EXPECT_EQ(page.text(DESTINATION), "before");
    desktop_.expectBrowseFolder("/out put");
    page.press(BROWSE);
    EXPECT_EQ(page.text(DESTINATION), "\"/out put\"");
  });
  EXPECT_EQ(settings().javacDestination, "\"/out put\"");
}

TEST_F(JavacPageTest, ValuesTravelBothWays) {
  Settings& live = settings();
  live.javacMyJdkVersion = "1.5";
  live.javacDebug = false;
  live.javacVerbose = true;
  playAndOk([](ScriptedWindow& page) {
    EXPECT_FALSE(page.checked(1026));
    EXPECT_TRUE(page.checked(1027));
    EXPECT_TRUE(page.checked(1021));
    EXPECT_TRUE(page.checked(1022));
    for (const int box : {1024, 1044, 1027, 1021, 1022, 1264, 1265, 1266, 1267, 1268}) page.press(box);
    page.type(1117, "Xmx1g");
  });
  EXPECT_TRUE(live.javacFastcode);
  EXPECT_TRUE(live.javacDeprecation);
  EXPECT_FALSE(live.javacVerbose);
  EXPECT_FALSE(live.javacSoundOnSuccess);
  EXPECT_FALSE(live.javacSoundOnError);
  EXPECT_FALSE(live.javacWarnConversion);
  EXPECT_FALSE(live.javacWarnPath);
  EXPECT_FALSE(live.javacWarnSerialize);
  EXPECT_FALSE(live.javacWarnFinally);
  EXPECT_FALSE(live.javacWarnSwitch);
  EXPECT_TRUE(live.javacXswitchcheck) << "a hidden box keeps its mark";
  EXPECT_EQ(live.javacJOption, "-JXmx1g");
}

TEST_F(JavacPageTest, TheOlderWarningsTravelToo) {
  settings().javacMyJdkVersion = "1.4";
  playAndOk([](ScriptedWindow& page) {
    page.press(1270);
    page.press(1271);
  });
  EXPECT_TRUE(settings().javacNowarn);
  EXPECT_FALSE(settings().javacXswitchcheck);
}

TEST_F(JavacPageTest, AJOptionKeepsThePrefixThatItHas) {
  playAndOk([](ScriptedWindow& page) { page.type(1117, "-J-Xmx1g"); });
  EXPECT_EQ(settings().javacJOption, "-J-Xmx1g");
  playAndOk([](ScriptedWindow& page) { page.type(1117, ""); });
  EXPECT_EQ(settings().javacJOption, "");
}

TEST_F(JavacPageTest, FurtherOptionsAreTakenAsTheyAreTyped) {
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(2103),
              "Further options for the compiler, as they are typed here, such as --enable-preview -parameters");
    page.type(2103, "--enable-preview  -parameters");
  });
  EXPECT_EQ(settings().javacOptions, "--enable-preview  -parameters");
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(2103), "--enable-preview  -parameters");
    page.type(2103, "");
  });
  EXPECT_EQ(settings().javacOptions, "");
}

TEST_F(JavacPageTest, CancelLeavesTheLiveValues) {
  settings().javacMyJdkVersion = "1.5";
  settings().javacTargetSpec = "1.4";
  playAndCancel([](ScriptedWindow& page) {
    page.choose(VERSION, 0);
    page.choose(TARGET, 1);
    page.press(1026);
  });
  EXPECT_EQ(settings().javacMyJdkVersion, "1.5");
  EXPECT_EQ(settings().javacTargetSpec, "1.4");
  EXPECT_TRUE(settings().javacDebug);
}

TEST_F(JavacPageTest, AnOptionOfTheUsersOwnStaysOnOneLine) {
  playAndOk([](ScriptedWindow& page) {
    page.choose(VERSION, 2);
    page.choose(SOURCE, 4);
    page.type(OWN_SOURCE, "1.8\nJAVA_PATH  /planted/");
    page.type(1117, "-J-Xss1m\nx");
  });
  EXPECT_EQ(settings().javacSourceOption, "1.8 JAVA_PATH  /planted/");
  EXPECT_EQ(settings().javacJOption, "-J-Xss1m x");
}

}  // namespace
}  // namespace tarnwick::test
