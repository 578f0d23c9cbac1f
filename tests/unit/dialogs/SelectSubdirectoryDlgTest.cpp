#include "dialogs/JarLayout.h"
#include "dialogs/SelectSubdirectoryDlg.h"
#include "platform/FileSystem.h"
#include "support/ScriptedDesktop.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

class SelectSubdirectoryDlgTest : public testing::Test {
 protected:
  SelectSubdirectoryDlgTest() {
    for (const char* name : {"b", "A", "two words"}) platform::makeFolders(scratch_.file(name));
    writeFile(scratch_.file("file"), "");
  }

  std::string resultOf(const ScriptedDesktop::DialogScript& script, int expected = DIALOG_OK) {
    desktop_.expectDialog("Select folder", script);
    SelectSubdirectoryDlg dialog(desktop_, scratch_.path());
    EXPECT_EQ(dialog.runModal(), expected);
    return dialog.result();
  }
  static void select(ScriptedWindow& window, const std::vector<int>& indexes) {
    for (const int index : indexes) window.setSelected(SelectSubdirectory::FOLDERS, index, true);
  }

  ScratchFolder scratch_;
  ScriptedDesktop desktop_;
};

TEST_F(SelectSubdirectoryDlgTest, ListsTheFoldersSortedAndQuoted) {
  EXPECT_EQ(resultOf(
                [](ScriptedWindow& window) {
                  EXPECT_EQ(window.entries(SelectSubdirectory::FOLDERS), (Names{"A", "b", "\"two words\""}));
                  EXPECT_EQ(window.text(SelectSubdirectory::OK), "OK");
                  EXPECT_EQ(window.text(SelectSubdirectory::CANCEL), "Cancel");
                  select(window, {0});
                  window.press(SelectSubdirectory::CANCEL);
                },
                DIALOG_CANCEL),
            "");
}

TEST_F(SelectSubdirectoryDlgTest, TheResultIsInReverseOrderWithABlankBehindEach) {
  EXPECT_EQ(resultOf([](ScriptedWindow& window) {
              select(window, {0, 2});
              window.press(SelectSubdirectory::OK);
            }),
            "\"two words\" A ");
  EXPECT_EQ(resultOf([](ScriptedWindow& window) { window.press(SelectSubdirectory::OK); }), "");
}

TEST_F(SelectSubdirectoryDlgTest, ADoubleClickIsAnOk) {
  EXPECT_EQ(resultOf([](ScriptedWindow& window) {
              select(window, {1});
              window.doubleClick(SelectSubdirectory::FOLDERS, 1);
            }),
            "b ");
}

TEST_F(SelectSubdirectoryDlgTest, AFolderWithoutSubfoldersIsTold) {
  desktop_.expectHint("This folder has no subfolders.");
  desktop_.expectDialog("Select folder", [](ScriptedWindow&) {});
  SelectSubdirectoryDlg dialog(desktop_, scratch_.file("A"));
  EXPECT_EQ(dialog.runModal(), DIALOG_CANCEL);
}

TEST_F(SelectSubdirectoryDlgTest, AFolderThatCanNotBeEnteredIsRefused) {
  for (const char* name : {"none", "file"})
    EXPECT_THROW(SelectSubdirectoryDlg(desktop_, scratch_.file(name)), SelectSubdirectoryDlg::NoSuchBasedirE);
}

TEST_F(SelectSubdirectoryDlgTest, NoFolderStandsForTheCurrentOne) {
  const std::string before = platform::currentDirectory();
  ASSERT_TRUE(platform::changeDirectory(scratch_.path()));
  desktop_.expectDialog("Select folder", [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(SelectSubdirectory::FOLDERS).size(), 3U);
    window.press(SelectSubdirectory::CANCEL);
  });
  SelectSubdirectoryDlg(desktop_, "").runModal();
  platform::changeDirectory(before);
}

}  // namespace
}  // namespace tarnwick::test
