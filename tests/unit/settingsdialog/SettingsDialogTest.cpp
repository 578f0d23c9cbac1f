#include "base/TagRow.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"

#include <gtest/gtest.h>
#include <map>

namespace tarnwick::test {
namespace {

constexpr int TABS = 1092;
constexpr int FOLDER = 1041;
constexpr int WITH_NOTEPAD = 1017;
constexpr int WITH_EDITOR = 1018;
constexpr int IN_MESSAGES = 2111;

class SettingsDialogTest : public SettingsFixture {
 protected:
  const std::string separator_{platform::folderSeparator};
};

TEST_F(SettingsDialogTest, OpensOnTheToolsPageWithItsValues) {
  settings().javaPath = "jdk" + separator_;
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    EXPECT_EQ(window.tabLabels(TABS), (std::vector<std::string>{"JDK tools", "javac", "java", "jdb", "appletviewer",
                                                                "Sourcecode editor", "Paths"}));
    auto& page = window.page(TABS, 0);
    EXPECT_EQ(page.text(FOLDER), "jdk" + separator_);
    EXPECT_TRUE(page.checked(WITH_NOTEPAD));
    EXPECT_FALSE(page.checked(WITH_EDITOR));
    EXPECT_EQ(page.toolTip(FOLDER),
              said("Folder containing the file javac.exe (created by the installation of the JDK)",
                   "Folder containing the file javac (created by the installation of the JDK)"));
    EXPECT_EQ(page.toolTip(1006), said("Locate the file javac.exe in the JDK installation folder",
                                       "Locate the file javac in the JDK installation folder"));
    EXPECT_EQ(page.toolTip(WITH_NOTEPAD),
              said("Display compiler (and other) diagnostics with the Windows Notepad",
                   "Display compiler (and other) diagnostics with your desktop's text editor"));
    EXPECT_EQ(page.toolTip(WITH_EDITOR),
              "Display compiler (and other) diagnostics with the editor you defined for editing source files");
    EXPECT_EQ(
        page.toolTip(IN_MESSAGES),
        "Display compiler (and other) diagnostics in a window of Tarnwick's own that stays open. A double click on "
        "a message opens your editor there; F4 leads to the next one.");
    EXPECT_EQ(page.text(IN_MESSAGES), "Messages window");
    EXPECT_FALSE(page.checked(IN_MESSAGES));
    EXPECT_EQ(page.toolTip(1204),
              said("Create an icon on the Windows desktop. A double click on it will start Tarnwick.",
                   "Create an icon on the desktop. A double click on it will start Tarnwick."));
    EXPECT_EQ(page.toolTip(1205), said("Create an entry in the Windows startmenu tree that will start Tarnwick.",
                                       "Create an entry in the applications menu that will start Tarnwick."));
    EXPECT_EQ(window.toolTip(IDOK_CONTROL), "Apply new settings and close this window");
    EXPECT_EQ(window.toolTip(IDCANCEL_CONTROL), "Continue with the previously active settings");
    EXPECT_EQ(window.toolTip(1036), "Save settings in a separate file");
    EXPECT_EQ(window.toolTip(1037), "Load settings from a separate file");
    EXPECT_EQ(window.toolTip(1168), "Start HTML browser to display the Tarnwick user's guide");
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_CANCEL);
}

TEST_F(SettingsDialogTest, OpensOnThePageThatIsAskedFor) {
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.selection(TABS), 6);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(6);
}

TEST_F(SettingsDialogTest, HelpOpensTheGuideAtThePagesAnchor) {
  std::vector<std::string> anchors;
  context_.showHelp = [&](const std::string& anchor) { anchors.push_back(anchor); };
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    for (int tab = 0; tab < 7; ++tab) {
      window.choose(TABS, tab);
      window.press(1168);
    }
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(3);
  EXPECT_EQ(anchors, (std::vector<std::string>{"#configTab1", "#javacparameters", "#javaparameters", "#jdbparams",
                                               "#appletviewerparameters", "#editorparameters", "#paths"}));
}

TEST_F(SettingsDialogTest, HelpRightAfterOpeningIsThatOfTheFirstPageShown) {
  std::string opened;
  context_.showHelp = [&](const std::string& anchor) { opened = anchor; };
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    window.press(1168);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(2);
  EXPECT_EQ(opened, "#javaparameters");
}

TEST_F(SettingsDialogTest, AboutRunsItsDialog) {
  int shown = 0;
  context_.showAbout = [&] { ++shown; };
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    window.press(1038);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
  EXPECT_EQ(shown, 1);
}

TEST_F(SettingsDialogTest, EveryRowOfThePagesHasItsControl) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    const std::map<int, int> tabOf = {{TOOLS_PAGE, 0},        {JAVAC_PAGE, 1},  {JAVA_PAGE, 2}, {JDB_PAGE, 3},
                                      {APPLETVIEWER_PAGE, 4}, {EDITOR_PAGE, 5}, {PATHS_PAGE, 6}};
    for (const auto& row : settings().tagRows) {
      if (row.owner == SETTINGS_DIALOG) {
        EXPECT_TRUE(window.page(TABS, tabOf.at(row.page)).has(row.control)) << row.tag;
      }
    }
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
}

TEST_F(SettingsDialogTest, OkWithoutAChangeKeepsEveryValue) {
  Settings& live = settings();
  live.javaPath = "jdk" + separator_;
  live.displayWithNotepad = false;
  live.editWithNotepad = true;
  live.editorOpenAll = false;
  live.editorTarget = "ed";
  live.classpath = ".;x";
  live.sourcepath = "src";
  live.bootpath = "boot";
  live.extdirs = "ext";
  live.javacMyJdkVersion = "1.5";
  live.javacSourceOption = "1.4";
  live.javacTargetSpec = "9";
  live.javacDestination = "out";
  live.javacJOption = "-Ja";
  live.javacWarnPath = false;
  live.javaXfuture = false;
  live.javaXms = "1m";
  live.javaXmx = "2m";
  live.javaXss = "3m";
  live.javaXrunhprof = "help";
  live.javaGarbageCollector = "Incremental";
  live.javaProperty = "-Da=b";
  live.javaAssertEnable = "a";
  live.javaAssertDisable = "b";
  live.javaSystemAssertEnable = true;
  live.jdbLaunch = false;
  live.appletviewerJOption = "-Jb";
  live.appletviewerEncoding = "UTF-8";
  live.saveDefaultConfiguration();
  const std::string before = contentOf(configFile());
  for (int tab = 0; tab < 7; ++tab) {
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
    EXPECT_EQ(SettingsDialog(live).runModal(tab), DIALOG_OK);
    EXPECT_EQ(contentOf(configFile()), before);
  }
}

TEST_F(SettingsDialogTest, OkStoresAndSaves) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    auto& page = window.page(TABS, 0);
    page.type(FOLDER, "/opt/jdk/bin  ");
    page.press(WITH_EDITOR);
    EXPECT_FALSE(page.checked(WITH_NOTEPAD));
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_OK);
  EXPECT_EQ(settings().javaPath, "/opt/jdk/bin" + separator_);
  EXPECT_FALSE(settings().displayWithNotepad);
  EXPECT_NE(contentOf(configFile()).find("JAVA_PATH  /opt/jdk/bin" + separator_), std::string::npos);
}

TEST_F(SettingsDialogTest, OfThreeWaysToShowDiagnosticsOneIsChosen) {
  struct Shown {
    bool notepad, editor, messages;
    bool operator==(const Shown&) const = default;
  };
  const auto shown = [](ScriptedWindow& page) {
    return Shown{page.checked(WITH_NOTEPAD), page.checked(WITH_EDITOR), page.checked(IN_MESSAGES)};
  };
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    auto& page = window.page(TABS, 0);
    for (const int control : {WITH_EDITOR, IN_MESSAGES, WITH_NOTEPAD, IN_MESSAGES}) {
      page.press(control);
      EXPECT_EQ(shown(page), (Shown{control == WITH_NOTEPAD, control == WITH_EDITOR, control == IN_MESSAGES}));
    }
    page.type(FOLDER, "typed");
    page.press(IN_MESSAGES);
    EXPECT_EQ(page.text(FOLDER), "typed");
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_OK);
  EXPECT_TRUE(settings().displayMessages);
  EXPECT_TRUE(settings().displayWithNotepad) << "for what has to be shown elsewhere";
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    auto& page = window.page(TABS, 0);
    EXPECT_EQ(shown(page), (Shown{false, false, true}));
    page.press(WITH_EDITOR);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_OK);
  EXPECT_FALSE(settings().displayMessages);
  EXPECT_FALSE(settings().displayWithNotepad);
}

TEST_F(SettingsDialogTest, OkWithAnEmptyFolderStoresTheSeparatorAlone) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  SettingsDialog(settings()).runModal(0);
  EXPECT_EQ(settings().javaPath, separator_);
}

TEST_F(SettingsDialogTest, CancelLeavesTheLiveValues) {
  settings().javaPath = "before";
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "after");
    window.page(TABS, 0).press(WITH_EDITOR);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
  EXPECT_EQ(settings().javaPath, "before");
  EXPECT_TRUE(settings().displayWithNotepad);
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(SettingsDialogTest, CancelOnTheWarningLeavesTheDialogOpen) {
  const std::string warning =
      "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
      "such as missing variables or relocated or missing code.";
  settings().javacFastcode = true;
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "taken" + separator_);
    desktop_.expectQuestion(warning, false);
    window.press(IDOK_CONTROL);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(settings().javaPath, "taken" + separator_) << "what was taken from the pages stays";
    desktop_.expectQuestion(warning, true);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_OK);
}

TEST_F(SettingsDialogTest, EitherOfTheTwoOptionsAloneIsNotWarnedOf) {
  for (const int debug : {0, 1}) {
    settings().javacDebug = debug;
    settings().javacFastcode = 1 - debug;
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      window.press(IDOK_CONTROL);
      EXPECT_TRUE(window.closed());
    });
    EXPECT_EQ(SettingsDialog(settings()).runModal(0), DIALOG_OK);
  }
}

TEST_F(SettingsDialogTest, CollectPagesPrefixesTheOptions) {
  Settings& live = settings();
  live.javacJOption = "Xmx1g";
  live.javaProperty = "a=b";
  live.appletviewerJOption = "-Jx";
  live.classpath = "lib";
  SettingsDialog(live).collectPages();
  EXPECT_EQ(live.javacJOption, "-JXmx1g");
  EXPECT_EQ(live.javaProperty, "-Da=b");
  EXPECT_EQ(live.appletviewerJOption, "-Jx");
  EXPECT_EQ(live.classpath, ".;lib");
}

TEST_F(SettingsDialogTest, BrowseTakesTheFolderOfTheChosenFile) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    auto& page = window.page(TABS, 0);
    page.type(FOLDER, "typed");
    desktop_.expectOpenFile(std::nullopt);
    page.press(1006);
    EXPECT_EQ(page.text(FOLDER), "typed");
    desktop_.expectOpenFile(separator_ + "jdk" + separator_ + "bin" + separator_ + platform::toolFileName("javac"));
    page.press(1006);
    EXPECT_EQ(page.text(FOLDER), separator_ + "jdk" + separator_ + "bin" + separator_);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
  EXPECT_EQ(desktop_.lastRequest().filter, said("javac.exe|javac.exe|all files|*.*||", "javac|javac|all files|*.*||"));
  EXPECT_EQ(desktop_.lastRequest().startFolder, platform::startFolder("C:\\"));
  EXPECT_EQ(desktop_.lastRequest().name, platform::toolFileName("javac"));
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
}

TEST_F(SettingsDialogTest, TheTitleNamesTheProject) {
  struct Project : OpenProject {
    void save() override {}
    std::string name() const override { return "garden"; }
    std::string quotedPath() const override { return "garden.twp"; }
  };
  settings().currentProject = std::make_unique<Project>();
  desktop_.expectDialog("Tarnwick settings for project garden",
                        [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  SettingsDialog(settings()).runModal(0);
}

}  // namespace
}  // namespace tarnwick::test
