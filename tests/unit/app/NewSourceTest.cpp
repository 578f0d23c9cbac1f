#include "app/PanelDlg.h"
#include "resources/TemplateLayouts.h"
#include "support/Children.h"
#include "unit/app/PanelFixture.h"

namespace tarnwick::test {
namespace {

/// New sources from the panel, with a stand-in as the user's editor.
class NewSourceTest : public PanelFixture {
 protected:
  NewSourceTest() {
    saveEarlierRun(
        [](Settings& earlier) { earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc"); });
  }

  /// What the editor was started with, once it has been.
  std::string editorGot(const std::string& expected) {
    waitUntil([&] { return platform::isFile(record()) && contentOf(record()) == expected; });
    return contentOf(record());
  }
  std::string record() const { return scratch_.file("record"); }
  std::string fresh() const { return userFolder() + "Fresh One.java"; }
};

TEST_F(NewSourceTest, NewCreatesTheFileAndOpensItInTheEditor) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
      EXPECT_FALSE(dialog.has(BROWSE_EXISTING));
      dialog.choose(TEMPLATE_COMBO, 1);
      desktop_.expectSaveFile(fresh());
      dialog.press(IDOK_CONTROL);
    });
    panel.press(NEW);
    EXPECT_EQ(panel.text(SOURCE), '"' + fresh() + '"');
    EXPECT_EQ(editorGot(fresh() + "\n"), fresh() + "\n");
    exit(panel);
  });
  EXPECT_NE(contentOf(fresh()).find("class Fresh One {"), std::string::npos);
}

TEST_F(NewSourceTest, CancelOfNewOpensNothing) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "kept");
    desktop_.expectDialog("Create new .java/.html file",
                          [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    panel.press(NEW);
    EXPECT_EQ(panel.text(SOURCE), "kept");
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(record()));
}

TEST_F(NewSourceTest, EditWithoutANameOffersToCreateOne) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
      EXPECT_TRUE(dialog.has(BROWSE_EXISTING));
      desktop_.expectSaveFile(fresh());
      dialog.press(IDOK_CONTROL);
    });
    panel.press(EDIT);
    EXPECT_EQ(editorGot(fresh() + "\n"), fresh() + "\n");
    exit(panel);
  });
}

TEST_F(NewSourceTest, EditWithoutANameEndsWithCancel) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Create new .java/.html file",
                          [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    panel.press(EDIT);
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(record()));
}

TEST_F(NewSourceTest, BrowsingForAnExistingFileGoesOnToTheFileDialog) {
  writeFile(userFolder() + "There.java", "class There {}");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Create new .java/.html file", [](ScriptedWindow& dialog) { dialog.press(BROWSE_EXISTING); });
    desktop_.expectOpenFile(userFolder() + "There.java");
    panel.press(EDIT);
    EXPECT_EQ(editorGot(userFolder() + "There.java\n"), userFolder() + "There.java\n");
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
