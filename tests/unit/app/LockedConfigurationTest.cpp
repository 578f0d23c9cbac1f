// A configuration that can't be written or read as it should never locks the user out of the panel.
#include "PanelFixture.h"
#include "support/SystemWords.h"

#include <filesystem>

namespace tarnwick::test {
namespace {

class LockedConfigurationTest : public PanelFixture {
 protected:
  LockedConfigurationTest() : javaHome_("JAVA_HOME", ""), path_("PATH", scratch_.path()) {}

  void expectWelcome() {
    desktop_.expectDialog("Welcome to Tarnwick", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  }

  static std::string refusalOf(const std::string& path) {
    try {
      Tarnwickfile probe(path, FileMode::Write);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    ADD_FAILURE() << path << " could be opened for writing";
    return "";
  }

  /// A save that fails, and a user who wants no other folder.
  void expectRefusedSave(const std::string& path) {
    const std::string reason = refusalOf(path);
    desktop_.expectDialog(reason, [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    desktop_.expectMessage(reason + "\nCan't save configuration data in " + path);
  }

  std::string makeSource() const {
    const std::string source = userFolder() + "A.java";
    writeFile(source, "class A {}\n");
    return '"' + source + '"';
  }

  ScopedEnvironment javaHome_;
  ScopedEnvironment path_;
};

TEST_F(LockedConfigurationTest, AFirstUseInAPlaceThatCannotBeWrittenStillOpensThePanel) {
  // Nothing can be made below a plain file, whoever the user is.
  writeFile(scratch_.file("plain"), "");
  const std::string folder = scratch_.file("plain") + platform::folderSeparator;
  const ScopedEnvironment place("TARNWICK_CFGDIR", folder);
  const std::string path = folder + defaultConfigurationName;
  expectWelcome();
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, standInFolder());
    expectRefusedSave(path);
    window.press(IDOK_CONTROL);
    EXPECT_TRUE(window.closed()) << "what can't be saved holds for this run";
  });
  expectRefusedSave(path);
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(settings().javaPath, standInFolder());
    // A compile saves at its beginning and at its end.
    panel.type(SOURCE, makeSource());
    expectRefusedSave(path);
    expectRefusedSave(path);
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_NE(contentOf(scratch_.file("record")).find("A.java"), std::string::npos) << "javac has run";
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk}));
}

TEST_F(LockedConfigurationTest, AnotherFolderHoldsForTheWholeRun) {
  writeFile(scratch_.file("plain"), "");
  const std::string folder = scratch_.file("plain") + platform::folderSeparator;
  const ScopedEnvironment place("TARNWICK_CFGDIR", folder);
  const std::string path = folder + defaultConfigurationName;
  const std::string other = scratch_.file("other place");
  platform::makeFolders(other);
  expectWelcome();
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, standInFolder());
    desktop_.expectDialog(refusalOf(path), [&](ScriptedWindow& dialog) {
      desktop_.expectBrowseFolder(other);
      dialog.press(1164);
    });
    desktop_.expectHint("The following environment variable definition has been created:\n\nTARNWICK_CFGDIR=\"" +
                        other + "\"\n\nThis definition remains effective until you terminate Tarnwick." +
                        said("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
                             "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"));
    window.press(IDOK_CONTROL);
  });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, makeSource());
    panel.press(JAVAC);
    exit(panel);
  });
  const std::string saved = contentOf(other + platform::folderSeparator + defaultConfigurationName);
  EXPECT_NE(saved.find("JAVA_PATH  " + standInFolder()), std::string::npos);
  EXPECT_NE(saved.find("A.java"), std::string::npos) << "later saves go there without asking";
}

TEST_F(LockedConfigurationTest, AFolderChosenInAnyDialogHoldsForAllOfThem) {
  saveEarlierRun();
  const std::string other = scratch_.file("other place");
  platform::makeFolders(other);
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    // The list of templates is saved by settings of its own.
    platform::deleteFile(configFile());
    platform::makeFolders(configFile());
    desktop_.expectDialog(refusalOf(configFile()), [&](ScriptedWindow& dialog) {
      desktop_.expectBrowseFolder(other);
      dialog.press(1164);
    });
    desktop_.expectHint("The following environment variable definition has been created:\n\nTARNWICK_CFGDIR=\"" +
                        other + "\"\n\nThis definition remains effective until you terminate Tarnwick." +
                        said("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
                             "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"));
    desktop_.expectDialog("Create new .java/.html file",
                          [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    panel.press(NEW);
    bar(panel).press(LAYOUT_LEFT);
    panel.child(198).press(EXIT);
  });
  const std::string content = contentOf(other + platform::folderSeparator + defaultConfigurationName);
  EXPECT_NE(content.find("PANEL_LAYOUT  HORIZONTAL"), std::string::npos);
}

TEST_F(LockedConfigurationTest, AFolderInTheFilesPlaceIsAFirstUseThatCannotBeSaved) {
  platform::makeFolders(configFile());
  expectWelcome();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  expectRefusedSave(configFile());
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_TRUE(platform::isFolder(configFile()));
}

TEST_F(LockedConfigurationTest, AFileThatIsTooLargeIsTold) {
  writeFile(configFile(), "");
  std::filesystem::resize_file(configFile(), 64U * 1024 * 1024 + 1);
  desktop_.expectMessage("Larger than 64 MiB\nFile " + configFile());
  expectWelcome();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
}

TEST_F(LockedConfigurationTest, ADamagedFileIsWelcomedReadAsFarAsItGoesAndSavedWhole) {
  saveEarlierRun([](Settings& earlier) { earlier.javaXms = "64m"; });
  std::string content = contentOf(configFile());
  content.replace(content.find("JAVAC_DEBUG  ON"), 15, "JAVAC_DEBUG  O\xff");
  std::string noise(3000, 'z');
  noise.front() = '\0';
  noise.append("\n]]]];;;\n");
  content.insert(content.find("JAVA_VERBOSE"), noise);
  writeFile(configFile(), content.substr(0, content.find("JDOC_LINK ")));
  expectWelcome();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.page(1092, 0).text(1041), standInFolder());
    EXPECT_EQ(window.page(1092, 2).text(1129), "64m");
    EXPECT_FALSE(window.page(1092, 2).checked(1123)) << "what the user had is not touched";
    window.press(IDCANCEL_CONTROL);
  });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  const auto saved = freshSettings();
  int status = -1;
  saved->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(saved->javaPath, standInFolder());
  EXPECT_EQ(saved->javaXms, "64m");
  EXPECT_FALSE(saved->javaXfuture);
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
}

TEST_F(LockedConfigurationTest, AnEmptyFileIsNoObstacle) {
  writeFile(configFile(), "");
  expectWelcome();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_NE(contentOf(configFile()).find("TARNWICK_VERSION  Tarnwick V4.7a"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::test
