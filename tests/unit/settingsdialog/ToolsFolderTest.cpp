#include "settingsdialog/SettingsDialog.h"
#include "settingsdialog/ToolsFolder.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class ToolsFolderTest : public SettingsFixture {};

TEST_F(ToolsFolderTest, AnUnknownFolderOpensTheSettingsOnTheirFirstPage) {
  const auto cancelOnPage = [this](int page) {
    desktop_.expectDialog("Tarnwick settings", [page](ScriptedWindow& window) {
      EXPECT_EQ(window.selection(1092), page);
      window.press(IDCANCEL_CONTROL);
    });
  };
  cancelOnPage(3);
  SettingsDialog(settings()).runModal(3);
  cancelOnPage(0);
  askForToolsFolder(settings());
  EXPECT_EQ(settings().javaPath, "");
}

TEST_F(ToolsFolderTest, TheFolderFromTheDialogIsKept) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, standInFolder());
    window.press(IDOK_CONTROL);
  });
  askForToolsFolder(settings());
  EXPECT_EQ(settings().javaPath, standInFolder());
}

TEST_F(ToolsFolderTest, AKnownFolderIsNotAskedFor) {
  useStandIns();
  askForToolsFolder(settings());
  EXPECT_EQ(settings().javaPath, standInFolder());
}

}  // namespace
}  // namespace tarnwick::test
