#include "ProjectFixture.h"
#include "project/RecentProjects.h"

namespace tarnwick::test {
namespace {

class RecentProjectsTest : public ProjectFixture {
 protected:
  void save(const std::string& list) {
    const auto earlier = freshSettings();
    earlier->javaPath = standInFolder();
    earlier->recentProjects.fromString(list);
    earlier->saveDefaultConfiguration();
  }
  std::string saved() const { return valueIn(configFile(), "RECENT_PROJECTS"); }
};

using Paths = std::vector<std::string>;

TEST_F(RecentProjectsTest, AnEmptyListHasNone) {
  EXPECT_EQ(recentProjects(context_), Paths{});
}

TEST_F(RecentProjectsTest, TheNewestComesFirst) {
  updateRecentProjects(context_, "a.twp");
  updateRecentProjects(context_, "b.twp");
  updateRecentProjects(context_, "c.twp");
  EXPECT_EQ(saved(), "c.twp;b.twp;a.twp");
  EXPECT_EQ(recentProjects(context_), (Paths{"c.twp", "b.twp", "a.twp"}));
  updateRecentProjects(context_, "a.twp");
  EXPECT_EQ(saved(), "a.twp;c.twp;b.twp") << "a known one moves to the front";
}

TEST_F(RecentProjectsTest, ItsLimitIsEight) {
  save("1;2;3;4;5;6;7;8");
  updateRecentProjects(context_, "new");
  EXPECT_EQ(saved(), "new;1;2;3;4;5;6;7");
  updateRecentProjects(context_, "7");
  EXPECT_EQ(saved(), "7;new;1;2;3;4;5;6");
  save("1;2;3;4;5;6;7;8;9;10");
  updateRecentProjects(context_, "3");
  EXPECT_EQ(saved(), "3;1;2;4;5;6;7;8") << "a longer list that somebody wrote";
}

TEST_F(RecentProjectsTest, PathsCompareAsFileNamesDoHere) {
  save("C:\\Work\\A.twp;b;c:\\work\\a.twp");
  updateRecentProjects(context_, "c:\\work\\a.TWP");
  const bool same = platform::sameFileName("a", "A");
  EXPECT_EQ(saved(), same ? "c:\\work\\a.TWP;b" : "c:\\work\\a.TWP;C:\\Work\\A.twp;b;c:\\work\\a.twp");
}

TEST_F(RecentProjectsTest, ASeparatorInAPathIsEscaped) {
  updateRecentProjects(context_, "a;]b.twp");
  EXPECT_EQ(saved(), "a];]]b.twp");
  EXPECT_EQ(recentProjects(context_), Paths{"a;]b.twp"});
}

TEST_F(RecentProjectsTest, AConfigurationWithUnknownTagsIsNotTouched) {
  for (const char* line : {"FROM_ANOTHER_VERSION  x\n", "JAVAC_DEBUG  perhaps\n", "JAVAC_DEBUG\n"}) {
    const std::string content = std::string("RECENT_PROJECTS  a\n") + line;
    writeFile(configFile(), content);
    updateRecentProjects(context_, "b");
    EXPECT_EQ(contentOf(configFile()), content);
  }
}

TEST_F(RecentProjectsTest, WithoutAConfigurationNoneIsMade) {
  platform::deleteFile(configFile());
  updateRecentProjects(context_, "b");
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(RecentProjectsTest, NeitherTheLiveSettingsNorTheOpenProjectAreInvolved) {
  open("RECENT_PROJECTS  of the project\nJAVA_XMS  3m\n");
  save("of the user");
  const std::string before = contentOf(projectFile());
  updateRecentProjects(context_, "b");
  EXPECT_EQ(saved(), "b;of the user");
  EXPECT_NE(valueIn(configFile(), "JAVA_XMS"), "3m");
  EXPECT_EQ(settings().recentProjects.toString(), "of the project");
  EXPECT_EQ(contentOf(projectFile()), before);
  EXPECT_EQ(recentProjects(context_), (Paths{"b", "of the user"}));
}

}  // namespace
}  // namespace tarnwick::test
