// What the user sees when the configuration can't be saved.
#include "settingsdialog/AlternateLocationDlg.h"
#include "support/SettingsFixture.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

class FailedSaveTest : public SettingsFixture {
 protected:
  FailedSaveTest() { platform::makeFolders(configFile()); }

  /// Why a folder in the file's place cannot be written.
  const std::string reason_ = platform::folderSeparator == '/' ? "Is a directory" : "Permission denied";
};

TEST_F(FailedSaveTest, AFurtherFailureTellsTheNewFile) {
  const std::string other = scratch_.file("other");
  const std::string blocked = other + platform::folderSeparator + defaultConfigurationName;
  platform::makeFolders(blocked);
  desktop_.expectDialog(reason_, [&](ScriptedWindow& window) {
    desktop_.expectBrowseFolder(other);
    window.press(1164);
  });
  desktop_.expectMessage(reason_ + "\nCan't save configuration data in " + blocked);
  settings().saveCurrent();
  EXPECT_EQ(settings().configPath(), blocked) << "the path has moved all the same";
}

TEST_F(FailedSaveTest, TheSameFolderOnceMoreIsAFurtherFailure) {
  const std::string folder = configFolder().substr(0, configFolder().size() - 1);
  desktop_.expectDialog(reason_, [&](ScriptedWindow& window) {
    desktop_.expectBrowseFolder(folder);
    window.press(1164);
  });
  desktop_.expectMessage(reason_ + "\nCan't save configuration data in " + configFile());
  settings().saveCurrent();
  EXPECT_EQ(settings().configPath(), configFile());
  EXPECT_TRUE(platform::isFolder(configFile())) << "what stands there is left alone";
}

TEST_F(FailedSaveTest, AVariableThatCannotBeDefinedIsToldAndTheDialogClosesWithOk) {
  // No system takes a variable without a name.
  program_.configDirVariable = "";
  desktop_.expectDialog(reason_, [&](ScriptedWindow& window) {
    desktop_.expectBrowseFolder("some folder");
    desktop_.expectMessage("Error defining environment variable =\"some folder\"");
    window.press(1164);
    EXPECT_TRUE(window.closed());
  });
  AlternateLocationDlg dialog(desktop_, program_, Tarnwickfile::FileNotOpenE(reason_, configFile()));
  EXPECT_EQ(dialog.runModal(), DIALOG_OK);
}

TEST_F(FailedSaveTest, TheTitleIsThePrintableStartOfTheMessage) {
  for (const char* end : {"\nsecond line", "\tx", "\x7f", ""}) {
    desktop_.expectDialog("Refused", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    AlternateLocationDlg dialog(desktop_, program_, Tarnwickfile::FileNotOpenE(std::string("Refused") + end, "x"));
    EXPECT_EQ(dialog.runModal(), DIALOG_CANCEL);
  }
}

TEST_F(FailedSaveTest, CancelSavesNothingThoughItWouldGoMeanwhile) {
  desktop_.expectDialog(reason_, [&](ScriptedWindow& window) {
    std::filesystem::remove(defaultConfigurationName);
    window.press(IDCANCEL_CONTROL);
  });
  desktop_.expectMessage(reason_ + "\nCan't save configuration data in " + configFile());
  platform::changeDirectory(configFolder());
  settings().saveCurrent();
  EXPECT_FALSE(platform::isFolder(configFile()));
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(FailedSaveTest, CancelKeepsThePathAndTheEnvironment) {
  desktop_.expectDialog(reason_, [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  desktop_.expectMessage(reason_ + "\nCan't save configuration data in " + configFile());
  settings().saveCurrent();
  EXPECT_EQ(settings().configPath(), configFile());
  EXPECT_EQ(platform::environment("TARNWICK_CFGDIR"), configFolder());
}

}  // namespace
}  // namespace tarnwick::test
