#include "app/AboutDlg.h"
#include "app/TarnwickApp.h"
#include "app/WelcomeDlg.h"
#include "resources/HelpLayouts.h"
#include "support/SettingsFixture.h"

namespace tarnwick::test {
namespace {

class LinkedDialogsTest : public SettingsFixture {};

TEST_F(LinkedDialogsTest, AboutShowsTheVersionAndTheLinks) {
  desktop_.expectDialog("About Tarnwick", [&](ScriptedWindow& dialog) {
    EXPECT_EQ(dialog.text(1112), "Tarnwick V4.7a");
    EXPECT_EQ(dialog.text(HOME_LINK), webAddresses().home);
    EXPECT_EQ(dialog.text(MIRROR_LINK), webAddresses().mirror);
    dialog.press(IDOK_CONTROL);
    EXPECT_TRUE(dialog.closed());
  });
  AboutDlg(desktop_, program_).runModal();
}

TEST_F(LinkedDialogsTest, WelcomeShowsItsTextsAndTheLinks) {
  desktop_.expectDialog("Welcome to Tarnwick", [&](ScriptedWindow& dialog) {
    EXPECT_EQ(dialog.text(1273), "one");
    EXPECT_EQ(dialog.text(1272), "two");
    EXPECT_EQ(dialog.text(HOME_LINK), webAddresses().home);
    EXPECT_EQ(dialog.text(MIRROR_LINK), webAddresses().mirror);
    dialog.press(IDOK_CONTROL);
  });
  WelcomeDlg(desktop_, "one", "two").runModal();
}

TEST_F(LinkedDialogsTest, TheSystemMenusEntryOpensAbout) {
  struct NoConsole : ConsoleFrameHost {
    void runConsoleFrame(ConsoleFrame&) override { ADD_FAILURE() << "no console was asked for"; }
  } noConsole;
  settings().javaPath = standInFolder();
  settings().saveDefaultConfiguration();
  TarnwickApp app(desktop_, noConsole, programFolder() + "tarnwick");
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    desktop_.expectDialog("About Tarnwick", [](ScriptedWindow& dialog) { dialog.press(IDOK_CONTROL); });
    main.chooseSystemCommand("About Tarnwick ..");
    main.closeBox();
  });
  EXPECT_EQ(app.run(""), 0);
}

}  // namespace
}  // namespace tarnwick::test
