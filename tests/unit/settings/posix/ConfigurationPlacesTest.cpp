// A configuration file that is no ordinary one: a link, a pipe, somebody else's.
#include "base/ProgramInfo.h"
#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsFixture.h"
#include "support/posix/OrdinaryUser.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace tarnwick::test {
namespace {

class ConfigurationPlacesTest : public SettingsFixture {
 protected:
  /// A save fails for this reason; the user wants no other folder.
  void expectRefusal(const std::string& reason) {
    desktop_.expectDialog(reason, [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
  }

  int readDefault() {
    int status = -1;
    settings().readDefaultConfiguration(status);
    return status;
  }
};

TEST_F(ConfigurationPlacesTest, ALinkIsReadAndSavedThroughAndStaysOne) {
  const std::string real = userFolder() + "my settings.cfg";
  writeFile(real, "JAVA_XMS  64m\n");
  std::filesystem::create_symlink("../us er/my settings.cfg", configFile());
  EXPECT_EQ(readDefault(), 0);
  EXPECT_EQ(settings().javaXms, "64m");
  settings().javaXms = "65m";
  settings().saveCurrent();
  EXPECT_TRUE(std::filesystem::is_symlink(configFile()));
  EXPECT_NE(contentOf(real).find("\nJAVA_XMS  65m\n"), std::string::npos);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(configFolder()), {}), 1) << "nothing else is there";
}

TEST_F(ConfigurationPlacesTest, ALinkThatLeadsNowhereIsNoConfigurationAndTheSaveMakesIt) {
  std::filesystem::create_symlink(userFolder() + "new.cfg", configFile());
  EXPECT_EQ(readDefault(), READ_FILE_LOST);
  settings().saveCurrent();
  EXPECT_TRUE(std::filesystem::is_symlink(configFile()));
  EXPECT_EQ(readDefault(), 0);
  EXPECT_TRUE(std::filesystem::is_regular_file(userFolder() + "new.cfg"));
}

TEST_F(ConfigurationPlacesTest, ALinkThatLeadsToItselfIsNoConfigurationAndIsNotReplaced) {
  std::filesystem::create_symlink(defaultConfigurationName, configFile());
  EXPECT_EQ(readDefault(), READ_FILE_LOST);
  expectRefusal("Too many levels of symbolic links");
  settings().saveCurrent();
  EXPECT_TRUE(std::filesystem::is_symlink(configFile()));
}

TEST_F(ConfigurationPlacesTest, ALinkToADeviceIsNoConfiguration) {
  std::filesystem::create_symlink("/dev/zero", configFile());
  settings().javaXms = "64m";
  EXPECT_EQ(readDefault(), READ_FILE_LOST);
  EXPECT_EQ(settings().javaXms, "64m");
  writeFile(programFolder() + defaultConfigurationName, "JAVA_XMS  65m\n");
  EXPECT_EQ(readDefault(), 0) << "the one beside the program is read instead";
  EXPECT_EQ(settings().javaXms, "65m");
}

TEST_F(ConfigurationPlacesTest, ADeviceIsNotLoadedFromAndThePagesStay) {
  settings().saveDefaultConfiguration();
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(1092, 2).type(1129, "typed");
    for (const char* device : {"/dev/zero", "/proc/self/maps"}) {
      desktop_.expectOpenFile(device);
      desktop_.expectMessage("Not a regular file\nCan't load configuration data.");
      window.press(1037);
    }
    EXPECT_EQ(window.page(1092, 2).text(1129), "typed");
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(settings()).runModal(0);
}

TEST_F(ConfigurationPlacesTest, APipeIsNoConfigurationAndIsNotReplaced) {
  ASSERT_EQ(::mkfifo(configFile().c_str(), 0600), 0);
  settings().javaXms = "64m";
  EXPECT_EQ(readDefault(), READ_FILE_LOST);
  EXPECT_EQ(settings().javaXms, "64m") << "nothing came from it";
  expectRefusal("No such device or address");
  settings().saveCurrent();
  EXPECT_TRUE(std::filesystem::is_fifo(configFile()));
}

TEST_F(ConfigurationPlacesTest, AFileThatMayOnlyBeReadKeepsItsContent) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  writeFile(configFile(), "JAVA_XMS  64m\n");
  ASSERT_EQ(::chmod(configFile().c_str(), 0444), 0);
  ASSERT_EQ(::chmod(configFolder().c_str(), 0777), 0);
  ASSERT_EQ(::chmod(scratch_.path().c_str(), 0755), 0);
  const OrdinaryUser user;
  EXPECT_EQ(readDefault(), 0);
  expectRefusal("Permission denied");
  settings().javaXms = "65m";
  settings().saveCurrent();
  EXPECT_EQ(contentOf(configFile()), "JAVA_XMS  64m\n");
}

TEST_F(ConfigurationPlacesTest, AFileThatMayNotBeReadIsNoConfigurationAndIsNotReplaced) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  writeFile(configFile(), "JAVA_XMS  64m\n");
  ASSERT_EQ(::chmod(configFile().c_str(), 0), 0);
  ASSERT_EQ(::chmod(configFolder().c_str(), 0777), 0);
  ASSERT_EQ(::chmod(scratch_.path().c_str(), 0755), 0);
  {
    const OrdinaryUser user;
    EXPECT_EQ(readDefault(), READ_FILE_LOST);
    expectRefusal("Permission denied");
    settings().saveCurrent();
  }
  EXPECT_EQ(contentOf(configFile()), "JAVA_XMS  64m\n");
}

}  // namespace
}  // namespace tarnwick::test
