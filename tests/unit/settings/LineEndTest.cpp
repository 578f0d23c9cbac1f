// No value ends a line of a configuration, whatever it holds.
#include "base/TagRow.h"
#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class LineEndTest : public SettingsFixture {
 protected:
  LineEndTest() {
    settings().saveDefaultConfiguration();
    before_ = contentOf(configFile());
  }

  std::string before_;
};

TEST_F(LineEndTest, TheStoreRefusesSuchAValueInWordsAndKeepsTheFile) {
  settings().lastProjectFile = "/x\nJAVA_PATH  /planted/";
  // Another folder would not help, so none is asked for.
  desktop_.expectMessage("The value of LAST_PROJECT_FILE holds a line end\nCan't save configuration data in " +
                         configFile());
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()), before_);
  EXPECT_EQ(platform::filesIn(configFolder()).size(), 1U) << "nothing is left beside it";
}

TEST_F(LineEndTest, EveryRowWithATextIsRefused) {
  for (const auto& row : settings().tagRows) {
    if (row.kind() != TAG_STRING || std::string(row.tag) == "TARNWICK_VERSION" || std::string(row.tag) == "HELPFILE")
      continue;
    auto& text = *std::get<std::string*>(row.variable);
    const std::string value = std::exchange(text, "a\nb");
    desktop_.expectMessage(std::string("The value of ") + row.tag +
                           " holds a line end\nCan't save configuration data in " + configFile());
    settings().saveCurrent();
    text = value;
  }
  EXPECT_EQ(contentOf(configFile()), before_);
}

TEST_F(LineEndTest, ASeparateConfigurationIsRefusedToo) {
  settings().lastJarArchive = "a\nb";
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    desktop_.expectSaveFile(userFolder() + "my.cfg");
    desktop_.expectMessage("The value of LAST_JAR_ARCHIVE holds a line end\nCan't save configuration data.");
    window.press(1036);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
  EXPECT_FALSE(platform::isFile(userFolder() + "my.cfg"));
}

TEST_F(LineEndTest, AProgramInSuchAFolderForgetsItsGuideRatherThanEverySetting) {
  program_.programDirectory = programFolder() + "a\nb" + platform::folderSeparator;
  const auto fresh = freshSettings();
  EXPECT_EQ(fresh->helpFile, "");
}

TEST_F(LineEndTest, AConfigurationFolderWithALineEndIsRefusedAndAnotherOneOffered) {
  const std::string bad = scratch_.file("a\nb") + platform::folderSeparator;
  const std::string other = scratch_.file("other place");
  platform::makeFolders(other);
  const ScopedEnvironment place("TARNWICK_CFGDIR", bad);
  int status = -1;
  settings().readDefaultConfiguration(status);
  EXPECT_EQ(status, READ_FILE_LOST);
  desktop_.expectDialog("The name holds a line end", [&](ScriptedWindow& dialog) {
    desktop_.expectBrowseFolder(other);
    dialog.press(1164);
  });
  desktop_.expectHint("The following environment variable definition has been created:\n\nTARNWICK_CFGDIR=\"" + other +
                      "\"\n\nThis definition remains effective until you terminate Tarnwick." +
                      said("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
                           "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"));
  settings().saveCurrent();
  EXPECT_TRUE(platform::isFile(other + platform::folderSeparator + defaultConfigurationName));
  EXPECT_FALSE(platform::isFolder(bad));
}

}  // namespace
}  // namespace tarnwick::test
