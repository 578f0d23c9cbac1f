// A panel that is given what is no file.
#include "support/posix/OwnDevice.h"
#include "unit/app/PanelFixture.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

class PanelOnDevicesTest : public PanelFixture {
 protected:
  void expectFirstUse() {
    desktop_.expectDialog("Welcome to Tarnwick", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      window.page(1092, 0).type(1041, standInFolder());
      window.press(IDOK_CONTROL);
    });
  }

  void makeLarge(const std::string& path, const std::string& begin) const {
    writeFile(path, begin);
    ASSERT_EQ(::truncate(path.c_str(), 64L * 1024 * 1024 + 1), 0);
  }
};

TEST_F(PanelOnDevicesTest, AConfigurationThatLeadsToADeviceIsToldAndThePanelStarts) {
  const OwnDevice device("null", 3);
  if (!device.isUsable()) GTEST_SKIP() << noOwnDevice;
  std::filesystem::create_symlink(device.path(), configFile());
  desktop_.expectMessage("Not a regular file\nFile " + configFile());
  expectFirstUse();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_TRUE(std::filesystem::is_symlink(configFile()));
}

TEST_F(PanelOnDevicesTest, AConfigurationOfMoreThan64MebibytesIsToldAndThePanelStarts) {
  makeLarge(configFile(), "JAVA_XMS  1m\n");
  desktop_.expectMessage("Larger than 64 MiB\nFile " + configFile());
  expectFirstUse();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) { exit(panel); });
  EXPECT_EQ(settings().javaXms, "") << "nothing came from it";
}

TEST_F(PanelOnDevicesTest, ASourceOfMoreThan64MebibytesIsRefusedInWords) {
  saveEarlierRun();
  makeLarge(userFolder() + "Large.java", "class Large { }\n");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(userFolder() + "Large.java"));
    desktop_.expectMessage("Larger than 64 MiB\nCan't process file " + userFolder() + "Large.java");
    panel.press(JAVAC);
    exit(panel);
  });
}

TEST_F(PanelOnDevicesTest, ADeviceAsSourceLeadsToTheFileDialog) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "/dev/zero");
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No .java file known.");
    panel.press(JAVAC);
    exit(panel);
  });
}

TEST_F(PanelOnDevicesTest, AProjectOnTheCommandLineInAFolderWithALineEndPlantsNothing) {
  saveEarlierRun();
  const std::string before = contentOf(configFile());
  const std::string folder = scratch_.file("x\nJAVA_PATH  ") + "/planted/";
  platform::makeFolders(folder);
  writeFile(folder + "p.twp", "PROJECT_SOURCES\n");
  desktop_.expectMessage("The name holds a line end\nCan't open project file.");
  desktop_.expectMainDialog([](ScriptedWindow& main) { exit(main.child(FILE_VIEW_SLOT)); });
  TarnwickDlg(settings(), folder + "p.twp").runModal();
  EXPECT_EQ(saved("JAVA_PATH"), standInFolder());
  EXPECT_EQ(contentOf(configFile()).find("planted"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::test
