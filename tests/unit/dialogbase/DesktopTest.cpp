#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(Desktop, AChosenNameWithALineEndIsToldAndDoesNotComeBack) {
  ScriptedDesktop desktop;
  const std::string told = "A name with a line end can't be used:\n/a b/X.java";
  desktop.expectOpenFile("/a\nb/X.java");
  desktop.expectMessage(told);
  EXPECT_EQ(desktop.openFile({}), std::nullopt);
  desktop.expectSaveFile("/a\r\nb/X.java");
  desktop.expectMessage(told);
  EXPECT_EQ(desktop.saveFile({}), std::nullopt);
  desktop.expectBrowseFolder("/a b/X.java\n");
  desktop.expectMessage(told + ' ');
  EXPECT_EQ(desktop.browseFolder(), std::nullopt);
}

TEST(Desktop, OfSeveralFilesOnlyThoseWithALineEndAreLeftOut) {
  ScriptedDesktop desktop;
  desktop.expectOpenFiles({"/a/X.java", "/a/Y\n.java", "/a/Z.java"});
  desktop.expectMessage("A name with a line end can't be used:\n/a/Y .java");
  EXPECT_EQ(desktop.openFiles({}), (std::vector<std::string>{"/a/X.java", "/a/Z.java"}));
}

TEST(Desktop, OtherNamesAndCancelComeBackAsTheyAre) {
  ScriptedDesktop desktop;
  desktop.expectOpenFile(" /a b/\tX.java ");
  EXPECT_EQ(desktop.openFile({}), " /a b/\tX.java ");
  desktop.expectSaveFile(std::nullopt);
  EXPECT_EQ(desktop.saveFile({}), std::nullopt);
  desktop.expectBrowseFolder("");
  EXPECT_EQ(desktop.browseFolder(), "") << "what is no folder has words of its own";
  desktop.expectOpenFiles({});
  EXPECT_TRUE(desktop.openFiles({}).empty());
}

}  // namespace
}  // namespace tarnwick::test
