// However the panel is closed, a moved window is saved, and what stands in the file view's fields.
#include "ProjectViewFixture.h"

#include <filesystem>

namespace tarnwick::test {
namespace {

class PanelEndTest : public ProjectViewFixture {
 protected:
  struct End {
    const char* name;
    std::function<void(ScriptedWindow& main, ScriptedWindow& panel)> press;
  };
  static const std::vector<End>& ends() {
    static const std::vector<End> all = {
        {"Exit", [](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); }},
        {"the close box", [](ScriptedWindow& main, ScriptedWindow&) { main.closeBox(); }},
        {"Escape",
         [](ScriptedWindow& main, ScriptedWindow& panel) {
           panel.closeBox();
           main.closeBox();
         }},
        {"the session's end", [](ScriptedWindow& main, ScriptedWindow&) { main.close(IDCANCEL_CONTROL); }},
    };
    return all;
  }

  void changeFields(ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(path("Some source.java")) + " one");
    panel.page(TABS, 0).type(FIELD, "Main.class two three");
    panel.page(TABS, 1).type(FIELD, "page.html");
  }
  /// The program anew.
  void expectAtNextStart(const std::string& source, const std::string& classFile, const std::string& page) {
    const auto fresh = freshSettings();
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
      EXPECT_EQ(panel.text(SOURCE), source);
      EXPECT_EQ(panel.page(TABS, 0).text(FIELD), classFile);
      EXPECT_EQ(panel.page(TABS, 1).text(FIELD), page);
      exit(panel);
    });
    TarnwickDlg(*fresh).runModal();
  }
};

TEST_F(PanelEndTest, HoweverThePanelIsClosedAMovedWindowIsSaved) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) { earlier.windowPosition.fromString("5;6"); });
    runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
      main.moveByHand({120, 88});
      end.press(main, panel);
    });
    EXPECT_EQ(saved("WINDOW_POSITION"), "120;88") << end.name;
  }
}

TEST_F(PanelEndTest, AMovedWindowIsSavedIntoTheOpenProject) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) { earlier.windowPosition.fromString("5;6"); });
    const std::string file = makeRunnable();
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      main.moveByHand({120, 88});
      end.press(main, main.child(PROJECT_VIEW_SLOT));
    });
    TarnwickDlg(settings(), file).runModal();
    EXPECT_EQ(savedIn(file, "WINDOW_POSITION"), "120;88") << end.name;
    settings().currentProject.reset();
  }
}

TEST_F(PanelEndTest, HoweverThePanelIsClosedWhatStandsInTheFieldsIsThereAtTheNextStart) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) { earlier.fileviewClass.setName("Old.class"); });
    runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
      changeFields(panel);
      end.press(main, panel);
    });
    SCOPED_TRACE(end.name);
    expectAtNextStart(quoted(path("Some source.java")), "Main.class", "page.html");
  }
}

TEST_F(PanelEndTest, EachFieldAloneIsReasonEnough) {
  const std::vector<std::function<void(ScriptedWindow & panel)>> changes = {
      [](ScriptedWindow& panel) { panel.type(SOURCE, "B.java"); },
      [](ScriptedWindow& panel) { panel.page(TABS, 0).type(FIELD, "B.class"); },
      [](ScriptedWindow& panel) { panel.page(TABS, 1).type(FIELD, "B.html"); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    saveEarlierRun([](Settings& earlier) {
      earlier.fileviewSource.setName("A.java");
      earlier.fileviewClass.setName("A.class");
      earlier.fileviewHtml.setName("A.html");
    });
    runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
      changes[i](panel);
      main.closeBox();
    });
    expectAtNextStart(i == 0 ? "B.java" : "A.java", i == 1 ? "B.class" : "A.class", i == 2 ? "B.html" : "A.html");
  }
}

TEST_F(PanelEndTest, AFieldThatWasEmptiedStaysEmpty) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setName(path("A.java")); });
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    panel.type(SOURCE, "");
    main.closeBox();
  });
  expectAtNextStart("", "", "");
}

TEST_F(PanelEndTest, AFileThatWasOnlyBrowsedForIsThereToo) {
  saveEarlierRun();
  makeSource("A");
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    desktop_.expectOpenFile(path("A.java"));
    panel.press(BROWSE);
    main.closeBox();
  });
  expectAtNextStart(quoted(path("A.java")), "", "");
}

TEST_F(PanelEndTest, WhereNothingHasChangedNothingIsWritten) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) {
      earlier.windowPosition.fromString("40;50");
      earlier.fileviewSource.setName("A.java");
    });
    writeFile(configFile(), contentOf(configFile()) + "REM  still here\n");
    runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) { end.press(main, panel); });
    EXPECT_NE(contentOf(configFile()).find("REM  still here"), std::string::npos) << end.name;
  }
}

TEST_F(PanelEndTest, ASaveThatFailsIsToldOnce) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) { earlier.windowPosition.fromString("5;6"); });
    const std::string file = makeRunnable();
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      platform::deleteFile(file);
      // A folder in its place refuses every user.
      platform::makeFolders(file);
      main.moveByHand({120, 88});
      desktop_.expectMessage(refusal(file, FileMode::Write) + "\nCan't save settings for project.");
      end.press(main, main.child(PROJECT_VIEW_SLOT));
    });
    TarnwickDlg(settings(), file).runModal();
    settings().currentProject.reset();
    std::filesystem::remove(file);
  }
}

TEST_F(PanelEndTest, WithAProjectTheFileViewsFieldsOfTheDefaultConfigurationStay) {
  saveEarlierRun([](Settings& earlier) { earlier.fileviewSource.setName("A.java"); });
  const std::string file = makeRunnable();
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    bar(main.child(PROJECT_VIEW_SLOT)).press(SWITCH_VIEW);
    main.child(FILE_VIEW_SLOT).type(SOURCE, "B.java");
    main.closeBox();
  });
  TarnwickDlg(settings(), file).runModal();
  settings().currentProject.reset();
  expectAtNextStart("A.java", "", "");
}

TEST_F(PanelEndTest, AnEndWhileThePanelWelcomesItsUserSavesNothing) {
  struct SessionEnds {};
  desktop_.expectDialog("Welcome to Tarnwick", [](ScriptedWindow&) { throw SessionEnds(); });
  EXPECT_THROW(TarnwickDlg(settings()).runModal(), SessionEnds);
  EXPECT_FALSE(platform::isFile(configFile())) << "the next start is a first use, too";
}

TEST_F(PanelEndTest, AConfigurationThatCannotBeSavedIsToldOnceForPlaceAndFields) {
  for (const auto& end : ends()) {
    saveEarlierRun([](Settings& earlier) { earlier.windowPosition.fromString("5;6"); });
    runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
      const std::string nowhere = path("plain") + platform::folderSeparator;
      writeFile(path("plain"), "");
      writeFile(programFolder() + defaultConfigurationName, contentOf(configFile()));
      platform::setEnvironment("TARNWICK_CFGDIR=" + nowhere);
      const std::string reason = refusal(nowhere + defaultConfigurationName, FileMode::Write);
      main.moveByHand({120, 88});
      changeFields(panel);
      desktop_.expectDialog(reason, [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
      desktop_.expectMessage(reason + "\nCan't save configuration data in " + nowhere + defaultConfigurationName);
      end.press(main, panel);
    });
    platform::setEnvironment("TARNWICK_CFGDIR=" + configFolder());
  }
}

}  // namespace
}  // namespace tarnwick::test
