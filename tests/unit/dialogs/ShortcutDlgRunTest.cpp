// What "Create Shortcut" does.
#include "ShortcutFixture.h"
#include "platform/Shortcuts.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

using Control = ShortcutControls;
using Names = std::vector<std::string>;

using ShortcutDlgRunTest = ShortcutFixture;

TEST_F(ShortcutDlgRunTest, ShortcutsAreMadeInEachPlaceInTheirOrder) {
  const std::string folder = made("any where");
  run([&](ScriptedWindow& window) {
    fillIn(window);
    window.type(Control::NAME, "My Name");
    window.type(Control::DESCRIPTION, "what it is");
    for (const int box : {Control::IN_FOLDER, Control::IN_STARTMENU, Control::ON_DESKTOP}) window.press(box);
    window.type(Control::FOLDER, quoted(folder));
    window.press(Control::CREATE);
  });
  EXPECT_EQ(told_.files(), (Names{in(told_.desktop, "My Name.shortcut"), in(told_.startMenu, "My Name.shortcut"),
                                  in(folder, "My Name.shortcut")}));
  EXPECT_EQ(told_.opened, 1);
  EXPECT_EQ(told_.alive, 0) << "only for the time of one creation";
  for (const auto& one : told_.written) {
    EXPECT_EQ(one.shortcut.name, "My Name");
    EXPECT_EQ(one.shortcut.description, "what it is");
    EXPECT_EQ(one.shortcut.picture, program_.programPath);
  }
}

TEST_F(ShortcutDlgRunTest, WithoutTarnwickTheToolIsTheTarget) {
  run([this](ScriptedWindow& window) {
    window.type(Control::APPLICATION, quoted(userFolder() + "My Tool.jar") + " one two");
    window.press(Control::WITHOUT_CONTROL);
    window.press(Control::ON_DESKTOP);
    window.press(Control::CREATE);
  });
  const platform::Shortcut& made = told_.written.at(0).shortcut;
  EXPECT_EQ(made.target, settings().javaPath + platform::toolFileName("javaw"));
  EXPECT_EQ(made.arguments, "-classpath . -jar \"My Tool.jar\" one two");
  EXPECT_FALSE(made.oneArgument);
  EXPECT_EQ(made.workingFolder, userFolder());
}

TEST_F(ShortcutDlgRunTest, UnderControlTheProgramIsTheTarget) {
  run([this](ScriptedWindow& window) {
    fillIn(window, Control::UNDER_CONTROL);
    window.press(Control::ON_DESKTOP);
    window.press(Control::CREATE);
  });
  const platform::Shortcut& made = told_.written.at(0).shortcut;
  EXPECT_EQ(made.target, quoted(program_.programPath));
  EXPECT_EQ(made.arguments, "\\/EXEFILE=" + settings().javaPath + platform::toolFileName("java") +
                                "\\/ \\/TITLE=App\\/ \\/CFG=" + configFile() + "\\/ \\/DEFAULTDIR=" + userFolder() +
                                "\\/\\/RUN=-classpath . App");
  EXPECT_TRUE(made.oneArgument);
  EXPECT_EQ(made.workingFolder, programFolder());
}

TEST_F(ShortcutDlgRunTest, AnEmptyStartMenuFolderPlacesItDirectlyThere) {
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::IN_STARTMENU);
    window.press(Control::CREATE);
    window.type(Control::STARTMENU_FOLDER, "Java");
    window.press(Control::CREATE);
  });
  EXPECT_EQ(told_.files(),
            (Names{in(told_.startMenu, "App.shortcut"), in(in(told_.startMenu, "Java"), "App.shortcut")}));
}

TEST_F(ShortcutDlgRunTest, ARefusedOverwriteDoesNotStopTheOthers) {
  writeFile(in(told_.desktop, "App.shortcut"), "old");
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    window.press(Control::IN_STARTMENU);
    desktop_.expectQuestion("Shortcut App already exists. Overwrite?", false);
    window.press(Control::CREATE);
  });
  EXPECT_EQ(contentOf(in(told_.desktop, "App.shortcut")), "old");
  EXPECT_EQ(told_.files(), Names{in(told_.startMenu, "App.shortcut")});
}

TEST_F(ShortcutDlgRunTest, AWantedOverwriteReplacesTheShortcut) {
  writeFile(in(told_.desktop, "App.shortcut"), "old");
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    desktop_.expectQuestion("Shortcut App already exists. Overwrite?", true);
    window.press(Control::CREATE);
  });
  EXPECT_EQ(contentOf(in(told_.desktop, "App.shortcut")), "App");
}

TEST_F(ShortcutDlgRunTest, AFailureIsShownSkipsTheRestAndKeepsTheDialog) {
  told_.refusal = "Disk full";
  told_.refused = "App.shortcut";
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    window.press(Control::IN_STARTMENU);
    desktop_.expectMessage("Can't create shortcut to " + settings().javaPath + platform::toolFileName("javaw") +
                           " in " + quoted(in(told_.desktop, "App.shortcut")) + "\nDisk full");
    window.press(Control::CREATE);
    EXPECT_EQ(window.text(Control::APPLICATION), quoted(userFolder() + "App.class"));
    EXPECT_TRUE(canCreate(window)) << "once there is room it can be tried again";
  });
  EXPECT_TRUE(told_.written.empty());
  EXPECT_EQ(told_.alive, 0);
}

TEST_F(ShortcutDlgRunTest, AnUnknownDesktopIsToldByItsNumber) {
  told_.knowsFolders = false;
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    desktop_.expectMessage("SHGetSpecialFolderLocation(0) error ");
    window.press(Control::CREATE);
  });
}

TEST_F(ShortcutDlgRunTest, TruncatedArgumentsAreWarnedOfInEachPlaceAndTheLinksStay) {
  told_.kept = "cut";
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    window.press(Control::IN_STARTMENU);
    for (int i = 0; i < 2; ++i)
      desktop_.expectMessage(said("Warning: Windows may have truncated shortcut arguments!",
                                  "Warning: Your desktop may have truncated shortcut arguments!"));
    window.press(Control::CREATE);
  });
  EXPECT_TRUE(platform::isFile(in(told_.desktop, "App.shortcut")));
  EXPECT_TRUE(platform::isFile(in(told_.startMenu, "App.shortcut")));
}

TEST_F(ShortcutDlgRunTest, APathThatCanNotBePassedOnIsToldAndNothingIsMade) {
  run([this](ScriptedWindow& window) {
    const std::string folder = "x\\/y" + std::string(1, platform::folderSeparator);
    window.type(Control::APPLICATION, folder + "App.class");
    window.press(Control::UNDER_CONTROL);
    window.press(Control::ON_DESKTOP);
    desktop_.expectMessage("Can't pass on the path " + folder + "\nThe name of a folder in it ends in a backslash.");
    window.press(Control::CREATE);
  });
  EXPECT_TRUE(told_.written.empty());
}

}  // namespace
}  // namespace tarnwick::test
