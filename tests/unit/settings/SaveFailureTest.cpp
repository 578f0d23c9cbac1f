// Saves that fail, where no window is near.
#include "support/SettingsFixture.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

class SaveFailureTest : public SettingsFixture {
 protected:
  SaveFailureTest() { platform::makeFolders(configFile()); }

  /// A context that nobody has given a voice.
  SettingsContext plain_{desktop_, program_, log_};
  const std::string reason_ = platform::folderSeparator == '/' ? "Is a directory" : "Permission denied";
};

TEST_F(SaveFailureTest, IsToldWithItsReasonAndItsFileAndThrowsNothing) {
  std::vector<std::string> told;
  plain_.onSaveFailed = [&](const Tarnwickfile::FileNotOpenE& failure, const auto&) {
    told.push_back(failure.message + '|' + failure.file);
  };
  EXPECT_NO_THROW(Settings(plain_).saveDefaultConfiguration());
  EXPECT_EQ(told, std::vector<std::string>{reason_ + '|' + configFile()});
}

TEST_F(SaveFailureTest, SavesAgainToWhereTheConfigurationIsByThen) {
  const std::string other = scratch_.file("other") + platform::folderSeparator;
  platform::makeFolders(other);
  plain_.onSaveFailed = [&](const auto&, const std::function<void()>& saveAgain) {
    platform::setEnvironment("TARNWICK_CFGDIR=" + other);
    saveAgain();
  };
  Settings settings(plain_);
  settings.javaXms = "64m";
  settings.saveDefaultConfiguration();
  EXPECT_NE(contentOf(other + defaultConfigurationName).find("\nJAVA_XMS  64m"), std::string::npos);
}

TEST_F(SaveFailureTest, IsThrownWhereNobodyListens) {
  try {
    Settings(plain_).saveDefaultConfiguration();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, reason_);
    EXPECT_EQ(failure.file, configFile());
  }
}

TEST_F(SaveFailureTest, AValueThatCannotBeWrittenIsToldInWordsAndTriedNowhereElse) {
  std::vector<std::string> told;
  plain_.tell = [&](const std::string& text) { told.push_back(text); };
  plain_.onSaveFailed = [](const auto&, const auto&) { ADD_FAILURE() << "another folder would not help"; };
  std::filesystem::remove(configFile());
  Settings settings(plain_);
  settings.lastJarArchive = "a\nb";
  settings.saveDefaultConfiguration();
  EXPECT_EQ(told, std::vector<std::string>{"The value of LAST_JAR_ARCHIVE holds a line end\nCan't save configuration "
                                           "data in " +
                                           configFile()});
}

}  // namespace
}  // namespace tarnwick::test
