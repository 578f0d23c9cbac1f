// A disk that takes no more bytes, played by the limit on the size of files.
#include "support/posix/FullDisk.h"
#include "unit/app/ProjectViewFixture.h"

#include <cerrno>
#include <cstring>
#include <optional>

namespace tarnwick::test {
namespace {

class PanelOnFullDiskTest : public ProjectViewFixture {};

TEST_F(PanelOnFullDiskTest, ASaveThatFailsHalfwayIsToldLosesNothingAndThePanelGoesOn) {
  saveEarlierRun();
  const std::string before = contentOf(configFile());
  const std::string reason = std::strerror(EFBIG);
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      window.page(1092, 2).type(1129, "9m");
      desktop_.expectDialog(reason, [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
      desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
      const FullDisk full(512);
      window.press(IDOK_CONTROL);
    });
    bar(panel).press(SETTINGS);
    EXPECT_EQ(contentOf(configFile()), before) << "the file that was there is whole";
    EXPECT_EQ(settings().javaXms, "9m") << "the change holds for this run";
    exit(panel);
  });
}

TEST_F(PanelOnFullDiskTest, ASeparateFileThatFailsHalfwayIsToldAndTheOneThatWasThereStays) {
  saveEarlierRun();
  const std::string chosen = userFolder() + "own.cfg";
  writeFile(chosen, "JAVA_XMS  1m\n");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      window.page(1092, 2).type(1129, "9m");
      desktop_.expectSaveFile(chosen);
      desktop_.expectMessage(std::string(std::strerror(EFBIG)) + "\nCan't save configuration data.");
      {
        const FullDisk full(512);
        window.press(1036);
      }
      EXPECT_EQ(window.page(1092, 2).text(1129), "9m");
      window.press(IDCANCEL_CONTROL);
    });
    bar(panel).press(SETTINGS);
    exit(panel);
  });
  EXPECT_EQ(contentOf(chosen), "JAVA_XMS  1m\n");
  EXPECT_EQ(settings().javaXms, "") << "the running settings are as they were";
}

TEST_F(PanelOnFullDiskTest, ANewProjectInThePlaceOfAnotherLeavesThatOneWholeUntilItIsSaved) {
  saveEarlierRun([](Settings& earlier) { earlier.lastProjectFile = "x.twp"; });
  const std::string reason = std::strerror(EFBIG);
  makeSource("A");
  const std::string file = makeProject("JAVA_XMS  77m\nPROJECT_SOURCES  A.java\n");
  inProjectView([&](ScriptedWindow& panel) {
    desktop_.expectSaveFile(file);
    desktop_.expectDialog(reason, [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
    desktop_.expectMessage(reason + "\nCan't save settings for project.");
    std::optional<FullDisk> full;
    desktop_.expectDialog("Define which files belong to the project", [&](ScriptedWindow& dialog) {
      full.reset();
      dialog.press(IDCANCEL_CONTROL);
    });
    full.emplace(512);
    panel.press(PROJECT_NEW);
    EXPECT_EQ(contentOf(file), "JAVA_XMS  77m\nPROJECT_SOURCES  A.java\n");
    settings().currentProject.reset();
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
