#include "ShortcutFixture.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

using Control = ShortcutControls;
using Names = std::vector<std::string>;

using ShortcutDlgTest = ShortcutFixture;

TEST_F(ShortcutDlgTest, ShowsItsLabelsAndToolTips) {
  const struct {
    int control;
    const char* text;
    const char* toolTip;
  } table[] = {
      {Control::APPLICATION, "",
       said(".class or .jar file to be represented by a Windows shortcut",
            ".class or .jar file to be represented by a shortcut")},
      {Control::BROWSE_APPLICATION, "Browse",
       said("Locate class or jar file to be represented by a Windows shortcut",
            "Locate class or jar file to be represented by a shortcut")},
      {Control::NAME, "", "Name to be used for shortcut to java application"},
      {Control::DESCRIPTION, "", "Description of shortcut (will appear in tooltip)"},
      {Control::ON_DESKTOP, "Create shortcut on desktop",
       "Create an icon on the desktop that can be used to start your java application"},
      {Control::IN_STARTMENU, said("Create shortcut in startmenu", "Create shortcut in applications menu"),
       said("Create an entry for your java application in the Windows startbutton menu",
            "Create an entry for your java application in the applications menu")},
      {Control::STARTMENU_FOLDER, "",
       said("Folder location corresponding to a lower level popup menu for the Windows startbutton",
            "Folder below the one of the applications menu, where the entry will be placed")},
      {Control::BROWSE_STARTMENU, "Browse",
       said("Find the folder location corresponding to a lower level popup menu for the Windows startbutton",
            "Find the folder below the one of the applications menu, where the entry will be placed")},
      {Control::IN_FOLDER, "Create shortcut in arbitrary location",
       said("Create a Windows shortcut to your java application in a folder of your choice",
            "Create a shortcut to your java application in a folder of your choice")},
      {Control::FOLDER, "", "Folder location where a shortcut to your java application will be placed"},
      {Control::BROWSE_FOLDER, "Browse",
       "Find the folder location where a shortcut to your java application will be placed"},
      {Control::UNDER_CONTROL, "Execute under Tarnwick's control",
       "Execute java application under Tarnwick's control (with a text window for system streams)"},
      {Control::WITHOUT_CONTROL, "Execute without Tarnwick",
       "Execute java application without Tarnwick (no text window for system streams)"},
      {Control::SETTINGS, "Settings", "Set java execution options"},
      {Control::CREATE, "Create Shortcut", "Create shortcut to java application"},
      {Control::HELP, "Help", ""},
      {Control::CLOSE, "Close", "Close this window without further action"},
  };
  run([&](ScriptedWindow& window) {
    for (const auto& row : table) {
      EXPECT_EQ(window.text(row.control), row.text);
      EXPECT_EQ(window.toolTip(row.control), row.toolTip);
    }
  });
}

void collect(const DialogItem& item, ItemKind kind, Names& texts) {
  if (item.kind == kind) texts.push_back(item.text);
  for (const auto& child : item.children) collect(child, kind, texts);
}

TEST_F(ShortcutDlgTest, ShowsItsGroupsAndTheNamesOfItsFields) {
  Names groups;
  Names labels;
  collect(shortcutLayout().content, ItemKind::Group, groups);
  collect(shortcutLayout().content, ItemKind::Label, labels);
  EXPECT_EQ(groups, (Names{" Shortcut placement ", " Java application execution "}));
  EXPECT_EQ(labels, (Names{"Java application\n(with arguments)", "Shortcut name", "Description\n(optional)"}));
}

TEST_F(ShortcutDlgTest, HelpOpensTheGuideAtItsChapter) {
  std::string anchor;
  context_.showHelp = [&anchor](const std::string& place) { anchor = place; };
  run([](ScriptedWindow& window) { window.press(Control::HELP); });
  EXPECT_EQ(anchor, "#shortcut");
}

TEST_F(ShortcutDlgTest, SettingsOpensThePageOfJava) {
  run([this](ScriptedWindow& window) {
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& dialog) {
      EXPECT_EQ(dialog.selection(1092), 2);
      EXPECT_EQ(dialog.tabLabels(1092).at(2), "java");
      dialog.press(IDCANCEL_CONTROL);
    });
    window.press(Control::SETTINGS);
  });
}

// The start

TEST_F(ShortcutDlgTest, AtTheStartNothingIsChosen) {
  run([](ScriptedWindow& window) {
    for (const int field :
         {Control::APPLICATION, Control::NAME, Control::DESCRIPTION, Control::STARTMENU_FOLDER, Control::FOLDER})
      EXPECT_EQ(window.text(field), "");
    for (const int box : {Control::ON_DESKTOP, Control::IN_STARTMENU, Control::IN_FOLDER, Control::UNDER_CONTROL,
                          Control::WITHOUT_CONTROL})
      EXPECT_FALSE(window.checked(box)) << box;
    for (const int control : {Control::STARTMENU_FOLDER, Control::BROWSE_STARTMENU, Control::FOLDER,
                              Control::BROWSE_FOLDER, Control::CREATE})
      EXPECT_FALSE(window.enabled(control)) << control;
  });
}

TEST_F(ShortcutDlgTest, AProjectProposesItsMainClass) {
  const struct {
    const char* mainClass;
    const char* name;
  } table[] = {{"Main", "Main"}, {"pkg.Main", "pkg"}};
  for (const auto& row : table) {
    open("CLASS_WITH_MAIN  " + std::string(row.mainClass) + "\n");
    run([&](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Control::APPLICATION), quoted(folder() + row.mainClass));
      EXPECT_EQ(window.text(Control::NAME), row.name);
      window.press(Control::ON_DESKTOP);
      window.press(Control::WITHOUT_CONTROL);
      window.press(Control::CREATE);
    });
    EXPECT_TRUE(told_.written.back().shortcut.arguments.ends_with(std::string(" ") + row.name));
    EXPECT_EQ(told_.written.back().shortcut.workingFolder, folder());
  }
}

TEST_F(ShortcutDlgTest, AProjectWithoutAMainClassProposesNothing) {
  open("");
  run([](ScriptedWindow& window) { EXPECT_EQ(window.text(Control::APPLICATION), ""); });
}

// The name

TEST_F(ShortcutDlgTest, TheNameFollowsTheApplication) {
  run([](ScriptedWindow& window) {
    const struct {
      std::string application;
      const char* name;
    } table[] = {{"App.class", "App"},
                 {"App.class one two", "App"},
                 {"\"my folder" + std::string(1, platform::folderSeparator) + "My App.class\" one", "My App"},
                 {"tool.jar", "tool"},
                 {"a.b.class", "a.b"},
                 {"", ""}};
    for (const auto& row : table) {
      window.type(Control::APPLICATION, row.application);
      EXPECT_EQ(window.text(Control::NAME), row.name);
    }
  });
}

TEST_F(ShortcutDlgTest, ATypedNameStopsFollowingForTheRestOfTheDialogsLife) {
  run([](ScriptedWindow& window) {
    window.type(Control::APPLICATION, "App.class");
    window.type(Control::NAME, "App");
    window.type(Control::APPLICATION, "Other.class");
    EXPECT_EQ(window.text(Control::NAME), "Other") << "the same name is none of the user's own";
    window.type(Control::NAME, "Mine");
    window.type(Control::APPLICATION, "Third.class");
    EXPECT_EQ(window.text(Control::NAME), "Mine");
    window.type(Control::NAME, "Third");
    window.type(Control::APPLICATION, "Fourth.class");
    EXPECT_EQ(window.text(Control::NAME), "Third") << "it is never forgotten";
  });
}

TEST_F(ShortcutDlgTest, AClearedNameIsTheUsersOwnToo) {
  run([](ScriptedWindow& window) {
    window.type(Control::APPLICATION, "App.class");
    window.type(Control::NAME, "");
    window.type(Control::APPLICATION, "Other.class");
    EXPECT_EQ(window.text(Control::NAME), "");
  });
}

// What enables the creation

TEST_F(ShortcutDlgTest, WithoutAPlaceNothingCanBeCreated) {
  run([this](ScriptedWindow& window) {
    fillIn(window);
    EXPECT_FALSE(canCreate(window));
    for (const int box : {Control::ON_DESKTOP, Control::IN_STARTMENU}) {
      window.press(box);
      EXPECT_TRUE(canCreate(window)) << box;
      window.press(box);
      EXPECT_FALSE(canCreate(window)) << box;
    }
  });
}

TEST_F(ShortcutDlgTest, TheButtonTellsHowManyAreCreated) {
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcut");
    window.press(Control::ON_DESKTOP);
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcut");
    window.press(Control::IN_STARTMENU);
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcuts");
    window.press(Control::IN_FOLDER);
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcuts");
    window.press(Control::IN_STARTMENU);
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcuts");
    window.press(Control::ON_DESKTOP);
    EXPECT_EQ(window.text(Control::CREATE), "Create Shortcut");
  });
}

TEST_F(ShortcutDlgTest, EachFolderIsAskedForOnlyWithItsPlace) {
  run([](ScriptedWindow& window) {
    const auto expect = [&window](bool menu, bool folder) {
      for (const int control : {Control::STARTMENU_FOLDER, Control::BROWSE_STARTMENU})
        EXPECT_EQ(window.enabled(control), menu) << control;
      for (const int control : {Control::FOLDER, Control::BROWSE_FOLDER})
        EXPECT_EQ(window.enabled(control), folder) << control;
    };
    window.press(Control::ON_DESKTOP);
    expect(false, false);
    window.press(Control::IN_STARTMENU);
    expect(true, false);
    window.press(Control::IN_FOLDER);
    expect(true, true);
    window.press(Control::IN_STARTMENU);
    expect(false, true);
  });
}

TEST_F(ShortcutDlgTest, AnArbitraryLocationWantsAFolder) {
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    EXPECT_TRUE(canCreate(window));
    window.press(Control::IN_FOLDER);
    EXPECT_FALSE(canCreate(window));
    window.type(Control::FOLDER, " ");
    EXPECT_FALSE(canCreate(window));
    window.type(Control::FOLDER, "x");
    EXPECT_TRUE(canCreate(window));
    window.type(Control::FOLDER, "");
    window.press(Control::IN_FOLDER);
    EXPECT_TRUE(canCreate(window));
  });
}

TEST_F(ShortcutDlgTest, ApplicationAndNameAreWanted) {
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::ON_DESKTOP);
    window.type(Control::NAME, "");
    EXPECT_FALSE(canCreate(window));
    window.type(Control::NAME, "n");
    EXPECT_TRUE(canCreate(window));
    window.type(Control::APPLICATION, "");
    EXPECT_FALSE(canCreate(window));
    window.type(Control::APPLICATION, "x.jar");
    EXPECT_TRUE(canCreate(window));
  });
}

TEST_F(ShortcutDlgTest, TheTwoWaysOfExecutionExcludeOneAnother) {
  for (const auto& [first, second] : {std::pair<int, int>{Control::UNDER_CONTROL, Control::WITHOUT_CONTROL},
                                      {Control::WITHOUT_CONTROL, Control::UNDER_CONTROL}}) {
    run([first = first, second = second](ScriptedWindow& window) {
      window.type(Control::APPLICATION, "App.class");
      window.press(Control::ON_DESKTOP);
      EXPECT_FALSE(canCreate(window)) << "neither is chosen";
      window.press(first);
      EXPECT_TRUE(window.checked(first));
      EXPECT_FALSE(window.checked(second));
      EXPECT_TRUE(canCreate(window));
      window.press(first);
      EXPECT_FALSE(window.checked(first));
      EXPECT_TRUE(window.checked(second));
      EXPECT_TRUE(canCreate(window));
      window.press(first);
      EXPECT_TRUE(window.checked(first));
      EXPECT_FALSE(window.checked(second));
    });
  }
}

// Browsing

TEST_F(ShortcutDlgTest, TheApplicationIsBrowsedFor) {
  run([this](ScriptedWindow& window) {
    desktop_.expectOpenFile(std::nullopt);
    window.press(Control::BROWSE_APPLICATION);
    EXPECT_EQ(window.text(Control::APPLICATION), "");
    EXPECT_EQ(desktop_.lastRequest().filter, "java class files and archives|*.class;*.jar||");
    EXPECT_EQ(desktop_.lastRequest().name, "*.class;*.jar");
    EXPECT_TRUE(desktop_.lastRequest().mustExist);
    desktop_.expectOpenFile(userFolder() + "My App.class");
    window.press(Control::BROWSE_APPLICATION);
    EXPECT_EQ(window.text(Control::APPLICATION), quoted(userFolder() + "My App.class"));
    EXPECT_TRUE(window.showsEnd(Control::APPLICATION));
    EXPECT_EQ(window.text(Control::NAME), "My App");
    desktop_.expectOpenFile("App.class");
    window.press(Control::BROWSE_APPLICATION);
    EXPECT_EQ(window.text(Control::APPLICATION), "App.class");
  });
}

TEST_F(ShortcutDlgTest, TheApplicationIsLookedForWhereTheFirstFileOfTheseLies) {
  const auto expectStart = [this](const std::string& start) {
    run([&](ScriptedWindow& window) {
      desktop_.expectOpenFile(std::nullopt);
      window.press(Control::BROWSE_APPLICATION);
      EXPECT_EQ(desktop_.lastRequest().startFolder, start);
    });
  };
  expectStart(platform::startFolder("C:"));
  settings().fileviewSource.setName(userFolder() + "A.java");
  expectStart(userFolder());
  settings().fileviewClass.setName("A.class");
  expectStart(userFolder());
  settings().fileviewClass.setName(programFolder() + "A.class");
  expectStart(programFolder());
  open("");
  settings().fileviewClass.setName(programFolder() + "A.class");
  expectStart(folder());
}

TEST_F(ShortcutDlgTest, FoldersAreBrowsedFor) {
  run([this](ScriptedWindow& window) {
    window.press(Control::IN_STARTMENU);
    window.press(Control::IN_FOLDER);
    const struct {
      int button;
      int field;
      std::string root;
    } table[] = {{Control::BROWSE_STARTMENU, Control::STARTMENU_FOLDER, told_.startMenu},
                 {Control::BROWSE_FOLDER, Control::FOLDER, ""}};
    for (const auto& row : table) {
      desktop_.expectBrowseFolder("a b");
      window.press(row.button);
      EXPECT_EQ(desktop_.lastRoot(), row.root);
      EXPECT_EQ(window.text(row.field), "\"a b\"");
      EXPECT_TRUE(window.showsEnd(row.field));
      desktop_.expectBrowseFolder(std::nullopt);
      window.press(row.button);
      EXPECT_EQ(window.text(row.field), "\"a b\"") << "Cancel";
      desktop_.expectBrowseFolder("plain");
      window.press(row.button);
      EXPECT_EQ(window.text(row.field), "plain");
    }
  });
}

TEST_F(ShortcutDlgTest, ABrowsedFolderEnablesTheCreation) {
  run([this](ScriptedWindow& window) {
    fillIn(window);
    window.press(Control::IN_FOLDER);
    desktop_.expectBrowseFolder("x");
    window.press(Control::BROWSE_FOLDER);
    EXPECT_TRUE(canCreate(window));
  });
}

TEST_F(ShortcutDlgTest, WithoutAKnownStartMenuAllFoldersCanBeBrowsed) {
  told_.knowsFolders = false;
  run([this](ScriptedWindow& window) {
    window.press(Control::IN_STARTMENU);
    desktop_.expectBrowseFolder(std::nullopt);
    window.press(Control::BROWSE_STARTMENU);
    EXPECT_EQ(desktop_.lastRoot(), "");
  });
}

}  // namespace
}  // namespace tarnwick::test
