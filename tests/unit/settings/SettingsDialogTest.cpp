#include "settings/JdkDiscovery.h"
#include "support/SettingsFixture.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

constexpr int TABS = 1092;
constexpr int FOLDER = 1041;
constexpr int WITH_NOTEPAD = 1017;
constexpr int WITH_EDITOR = 1018;

class SettingsDialogTest : public SettingsFixture {
 protected:
  const std::string separator_{platform::folderSeparator};
};

TEST_F(SettingsDialogTest, OpensOnTheToolsPageWithItsValues) {
  settings().javaPath = "jdk" + separator_;
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    EXPECT_EQ(window.tabLabels(TABS), (std::vector<std::string>{"JDK tools"}));
    auto& page = window.page(TABS, 0);
    EXPECT_EQ(page.text(FOLDER), "jdk" + separator_);
    EXPECT_TRUE(page.checked(WITH_NOTEPAD));
    EXPECT_FALSE(page.checked(WITH_EDITOR));
    EXPECT_EQ(page.toolTip(FOLDER),
              platform::localText("Folder containing the file javac.exe (created by the installation of the JDK)"));
    EXPECT_EQ(page.toolTip(1006), platform::localText("Locate the file javac.exe in the JDK installation folder"));
    EXPECT_EQ(page.toolTip(WITH_NOTEPAD), "Display compiler (and other) diagnostics with the Windows Notepad");
    EXPECT_EQ(page.toolTip(WITH_EDITOR),
              "Display compiler (and other) diagnostics with the editor you defined for editing source files");
    EXPECT_EQ(page.toolTip(1204), "Create an icon on the Windows desktop. A double click on it will start Tarnwick.");
    EXPECT_EQ(page.toolTip(1205), "Create an entry in the Windows startmenu tree that will start Tarnwick.");
    EXPECT_EQ(window.toolTip(IDOK_CONTROL), "Apply new settings and close this window");
    EXPECT_EQ(window.toolTip(IDCANCEL_CONTROL), "Continue with the previously active settings");
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(settings().runModal(0), DIALOG_CANCEL);
}

TEST_F(SettingsDialogTest, OkStoresAndSaves) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    auto& page = window.page(TABS, 0);
    page.type(FOLDER, "/opt/jdk/bin  ");
    page.press(WITH_EDITOR);
    EXPECT_FALSE(page.checked(WITH_NOTEPAD));
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(settings().runModal(0), DIALOG_OK);
  EXPECT_EQ(settings().javaPath, "/opt/jdk/bin" + separator_);
  EXPECT_EQ(settings().displayWithNotepad, 0);
  EXPECT_NE(contentOf(configFile()).find("JAVA_PATH  /opt/jdk/bin" + separator_), std::string::npos);
}

TEST_F(SettingsDialogTest, OkWithAnEmptyFolderStoresTheSeparatorAlone) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  settings().runModal(0);
  EXPECT_EQ(settings().javaPath, separator_);
}

TEST_F(SettingsDialogTest, CancelLeavesTheLiveValues) {
  settings().javaPath = "before";
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "after");
    window.page(TABS, 0).press(WITH_EDITOR);
    window.press(IDCANCEL_CONTROL);
  });
  settings().runModal(0);
  EXPECT_EQ(settings().javaPath, "before");
  EXPECT_EQ(settings().displayWithNotepad, 1);
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(SettingsDialogTest, CancelOnTheWarningLeavesTheDialogOpen) {
  const std::string warning =
      "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
      "such as missing variables or relocated or missing code.";
  settings().javacFastcode = 1;
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(TABS, 0).type(FOLDER, "taken" + separator_);
    desktop_.expectQuestion(warning, false);
    window.press(IDOK_CONTROL);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(settings().javaPath, "taken" + separator_) << "what was taken from the pages stays";
    desktop_.expectQuestion(warning, true);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(settings().runModal(0), DIALOG_OK);
}

TEST_F(SettingsDialogTest, CollectPagesPrefixesTheOptions) {
  Settings& live = settings();
  live.javacJOption = "Xmx1g";
  live.javaProperty = "a=b";
  live.appletviewerJOption = "-Jx";
  live.classpath = "lib";
  live.collectPages();
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
  settings().runModal(0);
  EXPECT_EQ(desktop_.lastRequest().filter, platform::localText("javac.exe|javac.exe|all files|*.*||"));
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
  settings().runModal(0);
}

class JdkDiscoveryTest : public SettingsFixture {
 protected:
  /// Makes a JDK of empty files. Gives its tools' folder.
  std::string makeJdk(const std::string& name, const std::string& version) {
    const std::string home = scratch_.file(name) + platform::folderSeparator;
    const std::string tools = home + "bin" + platform::folderSeparator;
    platform::makeFolders(tools);
    writeFile(tools + platform::toolFileName("javac"), "");
    writeFile(home + "release", "IMPLEMENTOR=\"x\"\nJAVA_VERSION=\"" + version + "\"\n");
    return platform::splitPath(platform::resolvedPath(tools + platform::toolFileName("javac"))).drive +
           platform::splitPath(platform::resolvedPath(tools + platform::toolFileName("javac"))).folder;
  }
};

TEST_F(JdkDiscoveryTest, JavaHomeComesFirst) {
  const std::string home = makeJdk("ho me", "17.0.1");
  const std::string onPath = makeJdk("path", "17.0.1");
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("ho me"));
  const ScopedEnvironment path("PATH", onPath);
  EXPECT_EQ(discoverJdkTools(), home);
}

TEST_F(JdkDiscoveryTest, ThenTheSearchPath) {
  const std::string tools = makeJdk("path jdk", "25");
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("nowhere"));
  const ScopedEnvironment path("PATH", platform::commandLineList(scratch_.file("empty") + ";" + tools));
  EXPECT_EQ(discoverJdkTools(), tools);
}

TEST_F(JdkDiscoveryTest, NothingFoundIsEmpty) {
  const ScopedEnvironment javaHome("JAVA_HOME", "");
  const ScopedEnvironment path("PATH", scratch_.path());
  EXPECT_EQ(discoverJdkTools(), "");
}

TEST_F(JdkDiscoveryTest, TheReleaseFileTellsTheVersion) {
  EXPECT_EQ(jdkVersion(makeJdk("a", "1.4.2_19")), 4);
  EXPECT_EQ(jdkVersion(makeJdk("b", "1.8.0_302")), 8);
  EXPECT_EQ(jdkVersion(makeJdk("c", "17.0.15")), 17);
  EXPECT_EQ(jdkVersion(makeJdk("d", "25")), 25);
  EXPECT_EQ(jdkVersion(scratch_.file("none")), 0);
}

TEST_F(JdkDiscoveryTest, TheVersionIsThatOfTheJdkThatALinkLeadsTo) {
  const std::string tools = makeJdk("real", "25.0.1");
  const std::string links = scratch_.file("links") + platform::folderSeparator;
  platform::makeFolders(links);
  std::error_code failure;
  const std::string javac = platform::toolFileName("javac");
  std::filesystem::create_symlink(tools + javac, links + javac, failure);
  if (failure) GTEST_SKIP() << "no links here: " << failure.message();
  EXPECT_EQ(jdkVersion(links), 25);
}

}  // namespace
}  // namespace tarnwick::test
