// The last files that each field of the file view offers.
#include "ProjectViewFixture.h"
#include "base/FileForSubprocess.h"

namespace tarnwick::test {
namespace {

using Files = std::vector<std::string>;

class LastFilesTest : public ProjectViewFixture {
 protected:
  static Files offered(ScriptedWindow& panel, int tab) { return panel.page(TABS, tab).entries(FIELD); }
  static Files offered(ScriptedWindow& panel) { return panel.entries(SOURCE); }

  void compile(ScriptedWindow& panel, const std::string& name) {
    writeFile(path(name + ".java"), "class A {}\n");
    panel.type(SOURCE, quoted(path(name + ".java")));
    panel.press(JAVAC);
  }
  static std::string listed(const Files& files) {
    TokenString list;
    for (const auto& file : files) list.add(file);
    return list.toString();
  }
};

TEST_F(LastFilesTest, ASourceThatWasUsedIsOfferedNowAndAtTheNextStart) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(offered(panel), Files{});
    compile(panel, "A");
    compile(panel, "B \xC3\x9C\xE6\x97\xA5");
    EXPECT_EQ(offered(panel), (Files{path("B \xC3\x9C\xE6\x97\xA5.java"), path("A.java")}));
    EXPECT_EQ(offered(panel, 0), Files{}) << "each field has its own";
    exit(panel);
  });
  EXPECT_EQ(saved("LAST_SOURCES"), listed({path("B \xC3\x9C\xE6\x97\xA5.java"), path("A.java")}));
  EXPECT_EQ(saved("LAST_CLASSES"), "(none)");
  const auto fresh = freshSettings();
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
    EXPECT_EQ(offered(panel), (Files{path("B \xC3\x9C\xE6\x97\xA5.java"), path("A.java")}));
    exit(panel);
  });
  TarnwickDlg(*fresh).runModal();
}

TEST_F(LastFilesTest, OneThatIsChosenStandsInTheFieldQuotedIfItHoldsABlank) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.lastSources.fromString(listed({path("A.java"), "plain.java"}));
    earlier.lastClasses.fromString(listed({path("A.class")}));
    earlier.lastPages.fromString(listed({path("a.html"), path("b.html")}));
    earlier.fileviewSource.setName("Old.java");
  });
  const std::string before = contentOf(configFile());
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    panel.type(SOURCE, "Typed.java with arguments");
    panel.choose(SOURCE, 0);
    EXPECT_EQ(panel.text(SOURCE), quoted(path("A.java")));
    panel.choose(SOURCE, 1);
    EXPECT_EQ(panel.text(SOURCE), "plain.java");
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "");
    panel.page(TABS, 0).choose(FIELD, 0);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), quoted(path("A.class")));
    panel.choose(TABS, 1);
    panel.page(TABS, 1).choose(FIELD, 1);
    EXPECT_EQ(panel.page(TABS, 1).text(FIELD), quoted(path("b.html")));
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), quoted(path("A.class")));
    EXPECT_EQ(offered(panel), (Files{path("A.java"), "plain.java"})) << "to choose one is not yet to use it";
    main.closeBox();
  });
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), "plain.java;");
}

TEST_F(LastFilesTest, AnEntryThatIsNotThereChangesNothing) {
  saveEarlierRun([](Settings& earlier) { earlier.lastSources.fromString("a.java"); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "Typed.java");
    for (const int index : {-1, 1}) panel.choose(SOURCE, index);
    EXPECT_EQ(panel.text(SOURCE), "Typed.java");
    exit(panel);
  });
}

TEST_F(LastFilesTest, TenAreKeptTheNewestFirstAndNoneTwice) {
  saveEarlierRun();
  Files expected;
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    for (int i = 0; i < 12; ++i) compile(panel, "A" + std::to_string(i));
    compile(panel, "A5");
    // The same file in other words.
    ASSERT_TRUE(platform::changeDirectory(userFolder()));
    panel.type(SOURCE, "A7.java");
    panel.press(JAVAC);
    for (const int i : {7, 5, 11, 10, 9, 8, 6, 4, 3, 2}) expected.push_back(path("A" + std::to_string(i) + ".java"));
    EXPECT_EQ(offered(panel), expected);
    exit(panel);
  });
  EXPECT_EQ(saved("LAST_SOURCES"), listed(expected));
}

TEST_F(LastFilesTest, WhatWasBrowsedForAndWhatWasDroppedCounts) {
  saveEarlierRun();
  makeSource("A");
  makeCurrent("A");
  writeFile(path("page.html"), "");
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    desktop_.expectOpenFile(path("A.java"));
    panel.press(BROWSE);
    EXPECT_EQ(offered(panel), Files{path("A.java")});
    desktop_.expectOpenFile(std::nullopt);
    panel.press(BROWSE);
    EXPECT_EQ(offered(panel), Files{path("A.java")});
    main.drop({path("A.class")});
    EXPECT_EQ(offered(panel, 0), Files{path("A.class")});
    main.drop({path("page.html")});
    EXPECT_EQ(offered(panel, 1), Files{path("page.html")});
    main.closeBox();
  });
  EXPECT_EQ(saved("LAST_SOURCES"), path("A.java"));
  EXPECT_EQ(saved("LAST_CLASSES"), path("A.class"));
  EXPECT_EQ(saved("LAST_PAGES"), path("page.html"));
}

TEST_F(LastFilesTest, AClassThatRanAndAPageThatWasShownCount) {
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  saveEarlierRun();
  makeCurrent("A");
  writeFile(path("page.html"), "");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    ScriptedWindow& program = panel.page(TABS, 0);
    program.type(FIELD, quoted(path("A.class")) + " one \"two three\"");
    program.press(RIGHT);
    EXPECT_EQ(offered(panel, 0), Files{path("A.class")}) << "without its arguments";
    EXPECT_EQ(saved("LAST_CLASSES"), path("A.class")) << "by the save before the run";
    panel.choose(TABS, 1);
    panel.page(TABS, 1).type(FIELD, quoted(path("page.html")));
    panel.page(TABS, 1).press(RIGHT);
    EXPECT_EQ(saved("LAST_PAGES"), path("page.html"));
    exit(panel);
  });
  recordedUpTo("page.html");
}

TEST_F(LastFilesTest, WhatNamesNoFileIsNotKept) {
  saveEarlierRun();
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
    EXPECT_EQ(panel.text(SOURCE), quoted(path("Not yet.java")));
    EXPECT_EQ(offered(panel), Files{});
    for (const std::string& typed : {quoted(path("Not yet.java")), std::string()}) {
      panel.type(SOURCE, typed);
      desktop_.expectOpenFile(std::nullopt);
      desktop_.expectHint("No .java file known.");
      panel.press(JAVAC);
      EXPECT_EQ(offered(panel), Files{});
    }
    exit(panel);
  });
  TarnwickDlg(settings(), path("Not yet.java")).runModal();
  EXPECT_EQ(contentOf(configFile()).find("LAST_SOURCES"), std::string::npos);
}

TEST_F(LastFilesTest, TheListAloneIsNoReasonToSave) {
  makeSource("A");
  makeSource("B");
  saveEarlierRun([this](Settings& earlier) {
    earlier.windowPosition.fromString("40;50");
    earlier.fileviewSource.setName(path("A.java"));
  });
  writeFile(configFile(), contentOf(configFile()) + "REM  still here\n");
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    for (const auto* name : {"B.java", "A.java"}) {
      desktop_.expectOpenFile(path(name));
      panel.press(BROWSE);
    }
    EXPECT_EQ(offered(panel), (Files{path("A.java"), path("B.java")}));
    main.closeBox();
  });
  EXPECT_NE(contentOf(configFile()).find("REM  still here"), std::string::npos);
}

TEST_F(LastFilesTest, WhatAnotherHandMadeOfTheListIsOfferedAsFarAsItGoes) {
  saveEarlierRun();
  const std::string configuration = contentOf(configFile());
  for (const auto& [value, expected] :
       {std::pair<std::string, Files>{";a.java;;b.java;", {"a.java", "b.java"}},
        {"a]x", {}},
        {"", {}},
        {"1;2;3;4;5;6;7;8;9;10;11;12", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}}}) {
    writeFile(configFile(), configuration + "LAST_SOURCES  " + value + "\n");
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      EXPECT_EQ(offered(panel), expected) << value;
      exit(panel);
    });
  }
}

TEST_F(LastFilesTest, AProjectHasItsOwn) {
  saveEarlierRun([this](Settings& earlier) { earlier.lastSources.fromString(listed({path("Of all.java")})); });
  const std::string file = makeRunnable();
  makeSource("B");
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    ScriptedWindow& project = main.child(PROJECT_VIEW_SLOT);
    ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
    EXPECT_EQ(offered(panel), Files{});
    bar(project).press(SWITCH_VIEW);
    panel.type(SOURCE, quoted(path("B.java")));
    panel.press(JAVAC);
    EXPECT_EQ(offered(panel), Files{path("B.java")});
    EXPECT_EQ(savedIn(file, "LAST_SOURCES"), path("B.java"));
    bar(panel).press(SWITCH_VIEW);
    desktop_.expectDialog("Select existing project", [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    desktop_.expectQuestion("No new project opened. Continue with " + quoted(file) + " ?", false);
    project.press(OPEN);
    EXPECT_EQ(offered(panel), Files{path("Of all.java")}) << "without a project the default configuration counts";
    main.closeBox();
  });
  TarnwickDlg(settings(), file).runModal();
  EXPECT_EQ(saved("LAST_SOURCES"), path("Of all.java"));
}

TEST_F(LastFilesTest, TheProjectsPagesOfferNone) {
  saveEarlierRun([](Settings& earlier) { earlier.lastClasses.fromString("a.class"); });
  inProjectView([](ScriptedWindow& panel) {
    for (const int tab : {0, 1}) EXPECT_EQ(offered(panel, tab), Files{});
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
