// The shortcuts to the program itself.
#include "support/FakeShortcutShell.h"
#include "support/SettingsPageFixture.h"

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

enum Control { ON_DESKTOP = 1204, IN_STARTMENU = 1205 };

class ToolsPageShortcutTest : public SettingsPageFixture {
 protected:
  ToolsPageShortcutTest() : SettingsPageFixture(0) {
    for (auto* folder : {&told_.desktop, &told_.startMenu}) {
      *folder = scratch_.file(folder == &told_.desktop ? "Desk top" : "Start Menu");
      platform::makeFolders(*folder);
    }
    context_.shortcutShells = told_.shells();
  }
  std::string onDesktop() const { return told_.desktop + platform::folderSeparator + "Tarnwick.shortcut"; }

  FakeShortcuts told_;
};

TEST_F(ToolsPageShortcutTest, OneIsMadeOnTheDesktop) {
  playAndCancel([](ScriptedWindow& page) { page.press(ON_DESKTOP); });
  ASSERT_EQ(told_.files(), Names{onDesktop()});
  const platform::Shortcut& made = told_.written.at(0).shortcut;
  EXPECT_EQ(made.name, "Tarnwick");
  EXPECT_EQ(made.target, program_.programPath);
  EXPECT_EQ(made.description, "Tarnwick");
  EXPECT_EQ(made.arguments, "");
  EXPECT_EQ(made.workingFolder, "");
  EXPECT_EQ(made.picture, program_.programPath);
  EXPECT_EQ(told_.alive, 0);
}

TEST_F(ToolsPageShortcutTest, OneIsMadeInAFolderOfTheStartMenu) {
  const std::string folder = told_.startMenu + platform::folderSeparator + "my tools";
  platform::makeFolders(folder);
  playAndCancel([&](ScriptedWindow& page) {
    desktop_.expectBrowseFolder(std::nullopt);
    page.press(IN_STARTMENU);
    EXPECT_EQ(desktop_.lastRoot(), told_.startMenu);
    EXPECT_TRUE(told_.written.empty()) << "none was chosen";
    desktop_.expectBrowseFolder(folder);
    page.press(IN_STARTMENU);
  });
  EXPECT_EQ(told_.files(), Names{folder + platform::folderSeparator + "Tarnwick.shortcut"});
}

TEST_F(ToolsPageShortcutTest, OneThatIsThereIsReplacedOnlyIfTheUserSaysSo) {
  writeFile(onDesktop(), "old");
  playAndCancel([this](ScriptedWindow& page) {
    for (const bool answer : {false, true}) {
      desktop_.expectQuestion("Shortcut Tarnwick already exists. Overwrite?", answer);
      page.press(ON_DESKTOP);
      EXPECT_EQ(contentOf(onDesktop()), answer ? "Tarnwick" : "old");
    }
  });
}

TEST_F(ToolsPageShortcutTest, AFailureIsShown) {
  told_.refusal = "Disk full";
  playAndCancel([this](ScriptedWindow& page) {
    desktop_.expectMessage("Can't create shortcut to " + program_.programPath + " in \"" + onDesktop() +
                           "\"\nDisk full");
    page.press(ON_DESKTOP);
    told_.knowsFolders = false;
    desktop_.expectMessage("SHGetSpecialFolderLocation(0) error ");
    page.press(ON_DESKTOP);
  });
}

}  // namespace
}  // namespace tarnwick::test
