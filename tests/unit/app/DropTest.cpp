// Files that are dropped on the panel.
#include "ProjectViewFixture.h"
#include "base/FileForSubprocess.h"

namespace tarnwick::test {
namespace {

class DropTest : public ProjectViewFixture {
 protected:
  using Files = std::vector<std::string>;
};

TEST_F(DropTest, AFileStandsInTheFieldThatTakesIt) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(PanelPage::FIELD, "Main.class a b");
    main.drop({path("A.java")});
    EXPECT_EQ(panel.text(SOURCE), quoted(path("A.java")));
    EXPECT_EQ(panel.page(TABS, 0).text(PanelPage::FIELD), "Main.class a b") << "the other fields stay";
    main.drop({path("page.HTM")});
    EXPECT_EQ(panel.page(TABS, 1).text(PanelPage::FIELD), quoted(path("page.HTM")));
    EXPECT_EQ(panel.selection(TABS), 1);
    main.drop({path("A.class")});
    EXPECT_EQ(panel.page(TABS, 0).text(PanelPage::FIELD), quoted(path("A.class")));
    EXPECT_EQ(panel.selection(TABS), 0);
    main.drop({path("all.jar")});
    EXPECT_EQ(panel.page(TABS, 0).text(PanelPage::FIELD), quoted(path("all.jar")));
    exit(panel);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
}

TEST_F(DropTest, TheFirstOneThatHasAPlaceCounts) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    main.drop({path("notes.txt"), path("B.java"), path("C.java")});
    EXPECT_EQ(panel.text(SOURCE), quoted(path("B.java")));
    main.drop({path("notes.txt"), path("line\nend.java")});
    EXPECT_EQ(panel.text(SOURCE), quoted(path("B.java")));
    main.drop({});
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Beep, AlertSound::Beep}));
}

TEST_F(DropTest, AProjectIsOpened) {
  saveEarlierRun();
  const std::string project = makeRunnable();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& file) {
    main.drop({project});
    EXPECT_TRUE(main.child(PROJECT_VIEW_SLOT).shown());
    EXPECT_FALSE(file.shown());
    EXPECT_TRUE(settings().currentProject);
    main.drop({path("B.java")});
    EXPECT_TRUE(file.shown()) << "where its field is";
    EXPECT_EQ(file.text(SOURCE), quoted(path("B.java")));
    exit(file);
  });
}

TEST_F(DropTest, AProjectThatIsNotThereIsTold) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    desktop_.expectMessage("No such file or directory\nCan't open project file.");
    main.drop({path("none.twp")});
    EXPECT_FALSE(settings().currentProject);
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
