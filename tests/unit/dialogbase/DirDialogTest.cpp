#include "dialogbase/DirDialog.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

std::string browsed(std::optional<std::string> answer) {
  ScriptedDesktop desktop;
  desktop.expectBrowseFolder(std::move(answer));
  return DirDialog(desktop).browse();
}

TEST(DirDialog, CancelGivesTheEmptyText) {
  EXPECT_EQ(browsed(std::nullopt), "");
}

TEST(DirDialog, AFolderWithABlankIsQuoted) {
  EXPECT_EQ(browsed("C:\\a b"), "\"C:\\a b\"");
  EXPECT_EQ(browsed("/a"), "/a");
  EXPECT_EQ(browsed("\"/a b\""), "\"/a b\"");
}

TEST(DirDialog, BrowsingBeginsInTheFolderThatIsGiven) {
  ScriptedDesktop desktop;
  desktop.expectBrowseFolder("x");
  EXPECT_EQ(DirDialog(desktop, "some where").browse(), "x");
  EXPECT_EQ(desktop.lastRoot(), "some where");
  desktop.expectBrowseFolder("x");
  DirDialog(desktop).browse();
  EXPECT_EQ(desktop.lastRoot(), "");
}

TEST(DirDialog, AChoiceWithoutAPathIsReported) {
  ScriptedDesktop desktop;
  desktop.expectBrowseFolder("");
  desktop.expectMessage("Can't access folder.");
  EXPECT_EQ(DirDialog(desktop).browse(), "");
}

}  // namespace
}  // namespace tarnwick::test
