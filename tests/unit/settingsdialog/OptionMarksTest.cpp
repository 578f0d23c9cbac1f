// Options that the chosen JDK no longer knows are marked on their pages.
#include "settingsdialog/SettingsDialog.h"
#include "settingsdialog/SettingsPageLayouts.h"
#include "support/SettingsFixture.h"

namespace tarnwick::test {
namespace {

constexpr int TABS = 1092;
enum Page { TOOLS, JAVAC, JAVA, JDB, APPLETVIEWER, EDITOR, PATHS };

class OptionMarksTest : public SettingsFixture {
 protected:
  /// A JDK of this version; gives the folder of its tools.
  std::string makeJdk(const std::string& version) {
    const std::string home =
        scratch_.file("jdk of " + (version.empty() ? "none" : version)) + platform::folderSeparator;
    const std::string tools = home + "bin" + platform::folderSeparator;
    platform::makeFolders(tools);
    writeFile(tools + platform::toolFileName("javac"), "");
    if (!version.empty()) writeFile(home + "release", "JAVA_VERSION=\"" + version + "\"\n");
    return tools;
  }
  void useJdk(const std::string& version) { settings().javaPath = makeJdk(version); }

  void play(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      script(window);
      window.press(IDCANCEL_CONTROL);
    });
    SettingsDialog(settings()).runModal(0);
  }
  /// What stands at the mark's place; empty for nothing.
  static std::string markOn(ScriptedWindow& window, Page page, int mark) {
    window.choose(TABS, page);
    return window.page(TABS, page).visible(mark) ? window.page(TABS, page).text(mark) : "";
  }
};

TEST_F(OptionMarksTest, WhatTheJdkNoLongerKnowsIsMarkedBesideItAndInItsTip) {
  useJdk("25.0.1");
  play([](ScriptedWindow& window) {
    for (const int mark : {Mark::XFUTURE, Mark::XPROF, Mark::XRUNHPROF})
      EXPECT_EQ(markOn(window, JAVA, mark), "not in JDK 25");
    EXPECT_EQ(markOn(window, JAVA, Mark::COLLECTOR), "") << "none is chosen";
    EXPECT_EQ(markOn(window, PATHS, Mark::BOOTPATH), "not in JDK 25");
    EXPECT_EQ(markOn(window, PATHS, Mark::EXTDIRS), "not in JDK 25");
    EXPECT_EQ(markOn(window, APPLETVIEWER, Mark::APPLETVIEWER), "appletviewer: not in JDK 25");
    ScriptedWindow& java = window.page(TABS, JAVA);
    EXPECT_EQ(java.toolTip(1123), "Perform strict class-file format checks (not in JDK 25)");
    EXPECT_EQ(java.toolTip(1124),
              "Profile the running program, and send profiling data to standard output (not in JDK 25; ignored)");
    EXPECT_EQ(java.toolTip(1032), "Display detail information about class loading and execution");
    EXPECT_EQ(window.page(TABS, PATHS).toolTip(1045),
              "Extension folder/archive list for cross compilations. Leave empty for simple projects. See JDK "
              "documentation for details. (not in JDK 25; taken only where -source and -target are 8 or less)");
    EXPECT_EQ(window.page(TABS, APPLETVIEWER).toolTip(1034),
              "Specifies the input HTML file encoding name (appletviewer: not in JDK 25)");
  });
}

TEST_F(OptionMarksTest, EachJdkHasItsOwn) {
  const struct {
    const char* version;
    bool future, prof, hprof, applets;
  } table[] = {{"1.8.0_302", false, false, false, false}, {"9.0.4", false, false, true, false},
               {"10", false, true, true, false},          {"11.0.2", false, true, true, true},
               {"24", false, true, true, true},           {"25", true, true, true, true},
               {"", false, false, false, false}};
  for (const auto& row : table) {
    useJdk(row.version);
    play([&](ScriptedWindow& window) {
      EXPECT_EQ(!markOn(window, JAVA, Mark::XFUTURE).empty(), row.future) << row.version;
      EXPECT_EQ(!markOn(window, JAVA, Mark::XPROF).empty(), row.prof) << row.version;
      EXPECT_EQ(!markOn(window, JAVA, Mark::XRUNHPROF).empty(), row.hprof) << row.version;
      EXPECT_EQ(!markOn(window, APPLETVIEWER, Mark::APPLETVIEWER).empty(), row.applets) << row.version;
      const std::string plain = "Perform strict class-file format checks";
      EXPECT_EQ(window.page(TABS, JAVA).toolTip(1123) == plain, !row.future) << row.version;
    });
  }
}

TEST_F(OptionMarksTest, OfAListTheChoiceCounts) {
  useJdk("17.0.15");
  settings().javaGarbageCollector = "Incremental";
  play([](ScriptedWindow& window) {
    EXPECT_EQ(markOn(window, JAVA, Mark::COLLECTOR), "not in JDK 17");
    const std::pair<int, bool> collectors[] = {{1, false}, {2, true}, {3, true}, {0, false}};
    for (const auto& [index, marked] : collectors) {
      window.page(TABS, JAVA).choose(1184, index);
      EXPECT_EQ(window.page(TABS, JAVA).visible(Mark::COLLECTOR), marked) << index;
    }
    EXPECT_EQ(window.page(TABS, JAVA).toolTip(1184),
              "Define how the java virtual machine should clean-up unused memory resources");
  });
}

TEST_F(OptionMarksTest, TheCompilersListsAreMarkedToo) {
  useJdk("17.0.15");
  settings().javacMyJdkVersion = "1.4";
  settings().javacSourceOption = "1.3";
  settings().javacTargetSpec = "17";
  play([](ScriptedWindow& window) {
    EXPECT_EQ(markOn(window, JAVAC, Mark::SWITCHCHECK), "not in JDK 17");
    EXPECT_EQ(markOn(window, JAVAC, Mark::SOURCE), "not in JDK 17");
    EXPECT_EQ(markOn(window, JAVAC, Mark::TARGET), "") << "the user's own";
    ScriptedWindow& page = window.page(TABS, JAVAC);
    page.choose(1028, 1);
    EXPECT_EQ(markOn(window, JAVAC, Mark::TARGET), "not in JDK 17");
    page.choose(1179, 0);
    EXPECT_EQ(markOn(window, JAVAC, Mark::SOURCE), "");
    page.choose(1179, 3);
    EXPECT_EQ(markOn(window, JAVAC, Mark::SOURCE), "not in JDK 17");
    page.choose(1269, 2);
    EXPECT_EQ(markOn(window, JAVAC, Mark::SWITCHCHECK), "") << "its box is hidden";
    page.choose(1269, 0);
    EXPECT_EQ(markOn(window, JAVAC, Mark::SOURCE), "") << "the oldest have no source option";
  });
}

TEST_F(OptionMarksTest, AnotherJdkOnTheFirstPageCountsAtOnce) {
  useJdk("1.8.0_302");
  const std::string newer = makeJdk("25");
  play([&](ScriptedWindow& window) {
    EXPECT_EQ(markOn(window, JAVA, Mark::XPROF), "");
    window.choose(TABS, TOOLS);
    window.page(TABS, TOOLS).type(1041, newer);
    EXPECT_EQ(markOn(window, JAVA, Mark::XPROF), "not in JDK 25");
    EXPECT_EQ(markOn(window, JAVAC, Mark::SOURCE), "");
    EXPECT_EQ(markOn(window, PATHS, Mark::EXTDIRS), "not in JDK 25");
    EXPECT_EQ(markOn(window, APPLETVIEWER, Mark::APPLETVIEWER), "appletviewer: not in JDK 25");
  });
}

TEST_F(OptionMarksTest, ValuesThatAreLoadedAreMarked) {
  useJdk("17");
  settings().saveDefaultConfiguration();
  const std::string chosen = userFolder() + "own.cfg";
  writeFile(chosen, "JAVA_GARBAGECOLLECTOR  Concurrent\nJAVAC_TARGET_SPEC  1.1\nJAVA_PATH  " + makeJdk("18") + "\n");
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen);
    window.press(1037);
    for (const Page page : {JAVA, JAVAC}) {
      const int mark = page == JAVA ? int{Mark::COLLECTOR} : int{Mark::TARGET};
      EXPECT_TRUE(window.page(TABS, page).visible(mark));
      EXPECT_EQ(window.page(TABS, page).text(mark), "not in JDK 18");
    }
  });
}

TEST_F(OptionMarksTest, AMarkedOptionIsStillTheUsersOwn) {
  useJdk("25");
  settings().javaXfuture = settings().javaXprof = true;
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_TRUE(window.page(TABS, JAVA).checked(1123));
    window.page(TABS, JAVA).press(1124);
    window.press(IDOK_CONTROL);
  });
  SettingsDialog(settings()).runModal(2);
  EXPECT_TRUE(settings().javaXfuture);
  EXPECT_FALSE(settings().javaXprof);
}

}  // namespace
}  // namespace tarnwick::test
