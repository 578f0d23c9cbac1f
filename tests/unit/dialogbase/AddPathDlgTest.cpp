#include "base/Filename.h"
#include "dialogbase/AddPathDlg.h"
#include "platform/Path.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

enum Control { CURRENT_PATH = 1169, DESCRIPTION = 1170, ADD_FOLDER = 1171, ADD_ARCHIVE = 1172, FIELD = 10 };

class AddPathDlgTest : public testing::Test {
 protected:
  std::string played(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("Add components to a path", script);
    return AddPathDlg(desktop_, "classpath", "a;b").runModal();
  }

  const std::string separator_{platform::folderSeparator};
  ScriptedDesktop desktop_;
};

TEST_F(AddPathDlgTest, ShowsTheListAndItsDescription) {
  EXPECT_EQ(played([](ScriptedWindow& window) {
              EXPECT_EQ(window.text(CURRENT_PATH), "a;b");
              EXPECT_EQ(window.text(DESCRIPTION), "classpath");
              EXPECT_EQ(window.text(ADD_FOLDER), "Add a folder ...");
              EXPECT_EQ(window.text(ADD_ARCHIVE), "Add an archive ...");
              window.press(IDCANCEL_CONTROL);
            }),
            "");
}

TEST_F(AddPathDlgTest, AFolderComesBackClean) {
  for (const auto& [folder, expected] : {std::pair{separator_ + "lib", separator_ + "lib"},
                                         {separator_ + "lib" + separator_, separator_ + "lib"},
                                         {separator_ + "my lib" + separator_, "\"" + separator_ + "my lib\""},
                                         {"\"" + separator_ + "my lib\"", "\"" + separator_ + "my lib\""}}) {
    EXPECT_EQ(played([&, given = folder](ScriptedWindow& window) {
                desktop_.expectBrowseFolder(given);
                window.press(ADD_FOLDER);
                EXPECT_EQ(window.result(), DIALOG_OK);
              }),
              expected);
  }
}

TEST_F(AddPathDlgTest, ACancelledChoiceLeavesTheDialogOpen) {
  EXPECT_EQ(played([this](ScriptedWindow& window) {
              desktop_.expectBrowseFolder(std::nullopt);
              window.press(ADD_FOLDER);
              EXPECT_FALSE(window.closed());
              desktop_.expectOpenFile(std::nullopt);
              window.press(ADD_ARCHIVE);
              EXPECT_FALSE(window.closed());
              window.press(IDCANCEL_CONTROL);
            }),
            "");
}

TEST_F(AddPathDlgTest, AnArchiveIsQuotedIfItHoldsABlank) {
  for (const auto& [file, expected] : {std::pair{"/x/a.jar", "/x/a.jar"},
                                       {"/x y/a.jar", "\"/x y/a.jar\""},
                                       {"  \"/x y/a.jar\"  ", "\"/x y/a.jar\""}}) {
    EXPECT_EQ(played([&, given = file](ScriptedWindow& window) {
                desktop_.expectOpenFile(given);
                window.press(ADD_ARCHIVE);
              }),
              expected);
  }
  EXPECT_EQ(desktop_.lastRequest().filter, "jar and zip archives|*.jar;*.zip||");
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
}

/// A dialog with one field for a list of paths.
class ListDlg : public ToolTipDlg {
 public:
  explicit ListDlg(Desktop& desktop) : ToolTipDlg(desktop, 1, 0) { bindings_ = {{FIELD, &text}}; }
  void runModal() {
    DialogLayout layout;
    layout.title = "List";
    layout.content = layout::column({layout::edit(FIELD, 20), layout::button(11, "ask"), layout::button(12, "folder"),
                                     layout::button(IDCANCEL_CONTROL, "Cancel")});
    desktop_.runDialog(layout, *this);
  }
  void onCommand(int control) override {
    if (control == 11) askPathEntry(FIELD, "things");
    if (control == 12) addFolderToField(FIELD);
    ToolTipDlg::onCommand(control);
  }
  std::string text;
};

TEST_F(AddPathDlgTest, EntriesAreAppendedBehindASemicolon) {
  ListDlg dialog(desktop_);
  const std::string quoted = "\"" + separator_ + "a b\"";
  desktop_.expectDialog("List", [&](ScriptedWindow& window) {
    desktop_.expectBrowseFolder(separator_ + "a b");
    window.press(12);
    EXPECT_EQ(window.text(FIELD), quoted) << "alone in an empty field";
    desktop_.expectDialog("Add components to a path", [&](ScriptedWindow& add) {
      EXPECT_EQ(add.text(CURRENT_PATH), quoted);
      EXPECT_EQ(add.text(DESCRIPTION), "things");
      desktop_.expectOpenFile("/x.zip");
      add.press(ADD_ARCHIVE);
    });
    window.press(11);
    EXPECT_EQ(window.text(FIELD), quoted + ";/x.zip");
    desktop_.expectBrowseFolder(std::nullopt);
    window.press(12);
    EXPECT_EQ(window.text(FIELD), quoted + ";/x.zip") << "a cancelled choice leaves the list";
    EXPECT_EQ(dialog.text, quoted + ";/x.zip") << "the bound variable follows";
    window.press(IDCANCEL_CONTROL);
  });
  dialog.runModal();
}

}  // namespace
}  // namespace tarnwick::test
