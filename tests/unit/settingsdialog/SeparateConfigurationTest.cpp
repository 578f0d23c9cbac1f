// "Save ..." and "Load ..." of the settings dialog.
#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsFixture.h"

#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

constexpr int TABS = 1092;
enum Control { SAVE = 1036, LOAD = 1037, FOLDER = 1041, XMS = 1129 };

class SeparateConfigurationTest : public SettingsFixture {
 protected:
  SeparateConfigurationTest() {
    settings().javaPath = "live" + separator_;
    settings().javaXms = "1m";
    settings().saveDefaultConfiguration();
    before_ = contentOf(configFile());
  }

  void play(const std::function<void(ScriptedWindow& window)>& script, int end = IDCANCEL_CONTROL) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      script(window);
      window.press(end);
    });
    SettingsDialog(settings()).runModal(0);
  }

  static std::string openFailure(const std::string& path, FileMode mode) {
    try {
      Tarnwickfile file(path, mode);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    return "";
  }

  std::string chosen() const { return userFolder() + "my own.cfg"; }

  const std::string separator_{platform::folderSeparator};
  std::string before_;
};

TEST_F(SeparateConfigurationTest, SaveWritesThePagesAndLeavesTheRunningSettings) {
  play([&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "other");
    window.page(TABS, 2).type(XMS, "9m");
    settings().tarnwickVersion = "Tarnwick V1.0";
    desktop_.expectSaveFile(chosen());
    window.press(SAVE);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "9m") << "the pages keep what they show";
  });
  EXPECT_EQ(settings().javaPath, "live" + separator_);
  EXPECT_EQ(settings().javaXms, "1m");
  EXPECT_EQ(contentOf(configFile()), before_);
  const std::string written = contentOf(chosen());
  EXPECT_NE(written.find("JAVA_PATH  other" + separator_), std::string::npos);
  EXPECT_NE(written.find("JAVA_XMS  9m"), std::string::npos);
  EXPECT_NE(written.find("TARNWICK_VERSION  Tarnwick V4.7a"), std::string::npos);
}

TEST_F(SeparateConfigurationTest, TheSaveDialogStartsInTheConfigurationsFolder) {
  play([&](ScriptedWindow& window) {
    desktop_.expectSaveFile(std::nullopt);
    window.press(SAVE);
  });
  EXPECT_EQ(desktop_.lastRequest().filter, "cfg file|*.cfg||");
  EXPECT_EQ(desktop_.lastRequest().name, "*.cfg");
  EXPECT_EQ(desktop_.lastRequest().extension, ".cfg");
  EXPECT_EQ(desktop_.lastRequest().startFolder, configFolder());
  EXPECT_TRUE(desktop_.lastRequest().confirmOverwrite) << "the system's dialog asks about a file that is there";
  EXPECT_FALSE(platform::isFile(chosen()));
}

TEST_F(SeparateConfigurationTest, SaveDoesNotWarnOfDebugTablesWithFastCode) {
  play([&](ScriptedWindow& window) {
    auto& javac = window.page(TABS, 1);
    EXPECT_TRUE(javac.checked(1026));
    javac.press(1024);
    desktop_.expectSaveFile(chosen());
    window.press(SAVE);
  });
  EXPECT_NE(contentOf(chosen()).find("JAVAC_FASTCODE  ON"), std::string::npos);
  EXPECT_FALSE(settings().javacFastcode);
}

TEST_F(SeparateConfigurationTest, SaveWithAProjectOpenWritesTheSettingsAlone) {
  struct Project : OpenProject {
    void save() override { ADD_FAILURE() << "the project is not concerned"; }
    std::string name() const override { return "garden"; }
    std::string quotedPath() const override { return "garden.twp"; }
  };
  settings().currentProject = std::make_unique<Project>();
  desktop_.expectDialog("Tarnwick settings for project garden", [&](ScriptedWindow& window) {
    window.page(TABS, 1).press(1024);
    desktop_.expectSaveFile(chosen());
    window.press(SAVE);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
  std::string written = contentOf(chosen());
  std::size_t lines = 0;
  for (const char c : written) lines += c == '\n' ? 1 : 0;
  EXPECT_EQ(lines, 113u) << "two lines of the header and the 111 rows";
}

TEST_F(SeparateConfigurationTest, ASaveThatFailsIsToldAndLosesNothing) {
  const std::string folder = userFolder() + "a folder.cfg";
  platform::makeFolders(folder);
  play([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "9m");
    desktop_.expectSaveFile(folder);
    desktop_.expectMessage(openFailure(folder, FileMode::Write) + "\nCan't save configuration data.");
    window.press(SAVE);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "9m");
    EXPECT_FALSE(window.closed());
  });
  EXPECT_EQ(settings().javaXms, "1m");
  EXPECT_EQ(contentOf(configFile()), before_);
}

TEST_F(SeparateConfigurationTest, WhenTheDefaultConfigurationItselfIsChosenItTakesThePages) {
  const auto begin = std::chrono::steady_clock::now();
  play([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "9m");
    desktop_.expectSaveFile(configFile());
    window.press(SAVE);
  });
  EXPECT_NE(contentOf(configFile()).find("JAVA_XMS  9m"), std::string::npos);
  EXPECT_EQ(settings().javaXms, "9m") << "what stands in that file now";
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(900))
      << "nothing of ours holds it open while it is replaced";
}

TEST_F(SeparateConfigurationTest, WithoutADefaultConfigurationTheChosenFileIsLeftAlone) {
  writeFile(chosen(), "earlier\n");
  platform::deleteFile(configFile());
  play([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "9m");
    desktop_.expectSaveFile(chosen());
    desktop_.expectMessage(openFailure(configFile(), FileMode::Read) + "\nCan't save configuration data.");
    window.press(SAVE);
  });
  EXPECT_EQ(contentOf(chosen()), "earlier\n");
  EXPECT_EQ(settings().javaXms, "1m") << "the live values stay";
}

TEST_F(SeparateConfigurationTest, LoadPutsTheValuesOnThePagesAndOkMakesThemLive) {
  writeFile(chosen(),
            "JAVA_PATH  loaded" + separator_ +
                "\nJAVA_XMS  7m\nJAVAC_MY_JDKVERSION  1.5\nJAVAC_SOURCEOPTION  1.4\nJAVA_GARBAGECOLLECTOR  Disabled\n"
                "CP_FROM_ENV_NEVER  OFF\nCP_FROM_ENV_ALWAYS  ON\nEDITOR=NOTEPAD  ON\nAPPLETV_ENCODING  x\n"
                "FUNCTIONKEYS  a;b;c;d;e;f;g;h!;;;;;;;!;;;;;;;!;;;;;;;!;;;;;;;!;;;;;;;!;;;;;;;!;;;;;;;\n");
  play(
      [&](ScriptedWindow& window) {
        window.page(TABS, 2).type(XMS, "typed");
        desktop_.expectOpenFile(chosen());
        window.press(LOAD);
        EXPECT_EQ(window.page(TABS, 0).text(FOLDER), "loaded" + separator_);
        auto& javac = window.page(TABS, 1);
        EXPECT_EQ(javac.selection(1269), 2);
        EXPECT_EQ(javac.selection(1179), 2);
        EXPECT_TRUE(javac.visible(1264)) << "the warnings of the loaded version show";
        EXPECT_FALSE(javac.visible(1270));
        EXPECT_EQ(window.page(TABS, 2).text(XMS), "7m");
        EXPECT_EQ(window.page(TABS, 2).selection(1184), 1);
        EXPECT_EQ(window.page(TABS, 3).text(1158), "a");
        EXPECT_EQ(window.page(TABS, 4).text(1034), "x");
        EXPECT_FALSE(window.page(TABS, 5).enabled(1042));
        EXPECT_FALSE(window.page(TABS, 6).enabled(1029));
        EXPECT_EQ(settings().javaXms, "1m") << "not live yet";
      },
      IDOK_CONTROL);
  EXPECT_EQ(settings().javaPath, "loaded" + separator_);
  EXPECT_EQ(settings().javaXms, "7m");
  EXPECT_EQ(settings().functionKeys.key(0, 7), "h");
  EXPECT_NE(contentOf(configFile()).find("JAVA_XMS  7m"), std::string::npos);
}

TEST_F(SeparateConfigurationTest, ARowThatTheFileLacksShowsItsDefault) {
  writeFile(chosen(), "JAVA_XMX  2g\n");
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen());
    window.press(LOAD);
    EXPECT_EQ(window.page(TABS, 0).text(FOLDER), "");
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "");
    EXPECT_EQ(window.page(TABS, 2).text(1130), "2g");
  });
}

TEST_F(SeparateConfigurationTest, LoadAndCancelChangeNoLiveValue) {
  writeFile(chosen(), "JAVA_XMS  7m\nJAVA_PATH  loaded\nFILEVIEW_TAB  2\nHELPFILE  other\n");
  settings().fileviewTab = 1;
  settings().saveDefaultConfiguration();
  const std::string before = contentOf(configFile());
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen());
    window.press(LOAD);
  });
  EXPECT_EQ(settings().javaXms, "1m");
  EXPECT_EQ(settings().javaPath, "live" + separator_);
  EXPECT_EQ(settings().fileviewTab, 1);
  EXPECT_EQ(contentOf(configFile()), before);
  settings().saveCurrent();
  EXPECT_EQ(contentOf(configFile()), before);
}

TEST_F(SeparateConfigurationTest, ARowThatTheDefaultFileLacksKeepsItsLiveValueToo) {
  writeFile(configFile(), "JAVA_XMS  1m\n");
  writeFile(chosen(), "JAVA_XMX  2g\n");
  settings().javaXmx = "9g";
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen());
    window.press(LOAD);
  });
  EXPECT_EQ(settings().javaXmx, "9g");
}

/// With a project open the live values stand in no default configuration.
class SeparateConfigurationOfAProjectTest : public SeparateConfigurationTest {
 protected:
  SeparateConfigurationOfAProjectTest() {
    struct Project : OpenProject {
      void save() override { ADD_FAILURE() << "the project is not concerned"; }
      std::string name() const override { return "garden"; }
      std::string quotedPath() const override { return "garden.twp"; }
    };
    Settings& live = settings();
    live.currentProject = std::make_unique<Project>();
    live.javaXms = "77m";
    live.javacVerbose = true;
    live.functionKeys.setGroup(0, {"own", "", "", "", "", "", "", ""});
    live.classpath = ".;own.jar";
    live.fileviewTab = 2;
    live.fileviewSource.setName("Own.java");
    live.windowPosition.fromString("300;400");
  }

  void playAndCancel(const std::function<void(ScriptedWindow& window)>& script) {
    desktop_.expectDialog("Tarnwick settings for project garden", [&](ScriptedWindow& window) {
      script(window);
      window.press(IDCANCEL_CONTROL);
    });
    SettingsDialog(settings()).runModal(0);
  }

  void expectOwnValues() {
    Settings& live = settings();
    EXPECT_EQ(live.javaPath, "live" + separator_);
    EXPECT_EQ(live.javaXms, "77m");
    EXPECT_TRUE(live.javacVerbose);
    EXPECT_EQ(live.functionKeys.key(0, 0), "own");
    EXPECT_EQ(live.classpath, ".;own.jar");
    EXPECT_EQ(live.fileviewTab, 2);
    EXPECT_EQ(live.fileviewSource.name().fullName(), "Own.java");
    EXPECT_EQ(live.windowPosition.toString(), "300;400");
    EXPECT_EQ(contentOf(configFile()), before_);
  }
};

TEST_F(SeparateConfigurationOfAProjectTest, SaveAndCancelKeepTheProjectsOwnValues) {
  playAndCancel([&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "other");
    window.page(TABS, 1).press(1027);
    window.page(TABS, 2).type(XMS, "9m");
    window.page(TABS, 3).type(1158, "typed");
    window.page(TABS, 6).type(1029, "typed.jar");
    desktop_.expectSaveFile(chosen());
    window.press(SAVE);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "9m") << "the pages keep what they show";
  });
  EXPECT_NE(contentOf(chosen()).find("JAVA_XMS  9m"), std::string::npos);
  EXPECT_NE(contentOf(chosen()).find("FILEVIEW_TAB  2"), std::string::npos) << "what is on no page goes along";
  expectOwnValues();
}

TEST_F(SeparateConfigurationOfAProjectTest, LoadAndCancelKeepTheProjectsOwnValues) {
  writeFile(chosen(),
            "JAVA_XMS  7m\nJAVA_PATH  loaded\nFILEVIEW_TAB  1\nFILEVIEW_SOURCE  Other.java;\n"
            "CLASSPATH  loaded.jar\nWINDOW_POSITION  1;2\n");
  playAndCancel([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen());
    window.press(LOAD);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "7m");
    EXPECT_EQ(window.page(TABS, 6).text(1029), "loaded.jar");
  });
  expectOwnValues();
}

TEST_F(SeparateConfigurationOfAProjectTest, ASaveThatFailsKeepsThemToo) {
  platform::makeFolders(chosen());
  playAndCancel([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "9m");
    desktop_.expectSaveFile(chosen());
    desktop_.expectMessage(openFailure(chosen(), FileMode::Write) + "\nCan't save configuration data.");
    window.press(SAVE);
  });
  expectOwnValues();
}

TEST_F(SeparateConfigurationOfAProjectTest, SavingOverTheDefaultConfigurationKeepsThemToo) {
  playAndCancel([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "9m");
    desktop_.expectSaveFile(configFile());
    window.press(SAVE);
  });
  EXPECT_NE(contentOf(configFile()).find("JAVA_XMS  9m"), std::string::npos);
  EXPECT_EQ(settings().javaXms, "77m") << "the project's own";
}

TEST_F(SeparateConfigurationTest, AMovedWindowIsStillMovedAfterASave) {
  const auto layout = layout::label("", 1);
  DialogLayout content;
  content.content = layout;
  struct Handler : DialogHandler {
    void initialise(DialogWindow&) override {}
    void onCommand(int) override {}
    void onCloseRequest() override {}
  } handler;
  ScriptedWindow main(content, handler);
  main.setKnownPosition(Point{10, 20});
  context_.mainWindow = &main;
  settings().windowPosition.fromString("10;20");
  main.moveByHand({30, 40});
  play([&](ScriptedWindow& window) {
    desktop_.expectSaveFile(chosen());
    window.press(SAVE);
  });
  EXPECT_TRUE(settings().windowPosition.hasMoved()) << "so that it is saved where it belongs";
  context_.mainWindow = nullptr;
}

TEST_F(SeparateConfigurationTest, TheOpenDialogWantsAFileThatIsThere) {
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(std::nullopt);
    window.press(LOAD);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "1m");
  });
  EXPECT_EQ(desktop_.lastRequest().filter, "cfg file|*.cfg||");
  EXPECT_EQ(desktop_.lastRequest().name, "*.cfg");
  EXPECT_EQ(desktop_.lastRequest().startFolder, configFolder());
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
}

TEST_F(SeparateConfigurationTest, ALoadThatFailsIsToldAndLosesNothing) {
  play([&](ScriptedWindow& window) {
    window.page(TABS, 2).type(XMS, "typed");
    desktop_.expectOpenFile(chosen());
    desktop_.expectMessage(openFailure(chosen(), FileMode::Read) + "\nCan't load configuration data.");
    window.press(LOAD);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "typed");
  });
  EXPECT_EQ(settings().javaXms, "1m");
  EXPECT_EQ(contentOf(configFile()), before_);
}

TEST_F(SeparateConfigurationTest, ADamagedFileLoadsWhatItHolds) {
  std::string content = "JAVA_XMS  7m\nJAVAC_DEBUG  MAYBE\nFILEVIEW_TAB  many\nNOBODY  knows\n";
  std::string noise(5000, 'x');
  noise.front() = '\0';
  noise.append("\nFUNCTIONKEYS  ]\nJAVA_XSS  3m\n");
  content += noise;
  writeFile(chosen(), content);
  play([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(chosen());
    window.press(LOAD);
    EXPECT_EQ(window.page(TABS, 2).text(XMS), "7m");
    EXPECT_EQ(window.page(TABS, 2).text(1131), "3m");
    EXPECT_TRUE(window.page(TABS, 1).checked(1026));
    EXPECT_EQ(window.page(TABS, 3).text(1158), "cont\\n");
  });
  EXPECT_EQ(settings().javaXms, "1m");
}

}  // namespace
}  // namespace tarnwick::test
