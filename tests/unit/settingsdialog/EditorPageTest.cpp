#include "settings/EditorChoice.h"
#include "support/SettingsPageFixture.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

enum Control {
  WITH_NOTEPAD = 1013,
  WITH_EDITOR = 1014,
  EDITOR = 1042,
  BROWSE = 1015,
  OPEN_ALL = 1153,
  CHOOSE_FILES = 1152,
  PLACE = 2110,
};

const char nameTip[] =
    "Tip:\nWhen you enter a file name such as xy.java\nsome editors change it to xy.java.txt.\n"
    "You can avoid this by enclosing the file name in quotes:\n\n\"xy.java\" instead of xy.java";

class EditorPageTest : public SettingsPageFixture {
 protected:
  EditorPageTest() : SettingsPageFixture(5) {}
};

class AppletviewerPageTest : public SettingsPageFixture {
 protected:
  AppletviewerPageTest() : SettingsPageFixture(4) {}
};

TEST_F(EditorPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(EDITOR), "File specification for editor exe/jar file");
    EXPECT_EQ(page.toolTip(BROWSE), "Locate editor exe/jar file");
    EXPECT_EQ(page.toolTip(WITH_NOTEPAD), said("Use Windows Notepad as the java source file editor",
                                               "Use your desktop's text editor as the java source file editor"));
    EXPECT_EQ(page.toolTip(WITH_EDITOR),
              "Use a user-defined editor for java source file editing. You must provide a file specification for your "
              "editor's exe/jar file.");
    EXPECT_EQ(
        page.toolTip(CHOOSE_FILES),
        "Clicking on the Edit button in the projectview will open a file dialog for selecting multiple java files "
        "to be opened by the editor.");
    EXPECT_EQ(page.toolTip(OPEN_ALL),
              "Clicking on the Edit button in the projectview will call the editor to open all java files known in the "
              "project's context.");
    EXPECT_EQ(page.toolTip(PLACE),
              "How your editor is told to open a file at a line: its arguments, with %f for the file, %l for the line "
              "and %c for the column. If this is empty, common editors are known by their names; any other gets the "
              "file alone.");
  });
}

TEST_F(EditorPageTest, Labels) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(WITH_NOTEPAD), said("Notepad", "Text editor"));
    EXPECT_EQ(page.text(WITH_EDITOR), "some other editor");
    EXPECT_EQ(page.text(OPEN_ALL), "Single-click open all project files");
    EXPECT_EQ(page.text(CHOOSE_FILES), "Multiple-select file dialog");
  });
}

TEST_F(EditorPageTest, BeginsWithTheUsersOwnEditorAndAllFiles) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_FALSE(page.checked(WITH_NOTEPAD));
    EXPECT_TRUE(page.checked(WITH_EDITOR));
    EXPECT_TRUE(page.checked(OPEN_ALL));
    EXPECT_FALSE(page.checked(CHOOSE_FILES));
    EXPECT_TRUE(page.enabled(EDITOR));
    EXPECT_TRUE(page.enabled(BROWSE));
  });
}

TEST_F(EditorPageTest, ThePatternForALineIsKept) {
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(PLACE), "");
    page.type(PLACE, "--at %l %f");
  });
  EXPECT_EQ(settings().editorPlace, "--at %l %f");
  EXPECT_EQ(settings().editorChoice().placePattern, "--at %l %f");
}

TEST_F(EditorPageTest, NotepadDisablesTheFieldAndEitherChoiceShowsTheTip) {
  settings().editorTarget = "/usr/bin/ed";
  playAndOk([this](ScriptedWindow& page) {
    desktop_.expectHint(nameTip);
    page.press(WITH_NOTEPAD);
    EXPECT_TRUE(page.checked(WITH_NOTEPAD));
    EXPECT_FALSE(page.checked(WITH_EDITOR));
    EXPECT_FALSE(page.enabled(EDITOR));
    EXPECT_FALSE(page.enabled(BROWSE));
    EXPECT_FALSE(page.enabled(PLACE));
    desktop_.expectHint(nameTip);
    page.press(WITH_EDITOR);
    EXPECT_TRUE(page.enabled(EDITOR));
    EXPECT_TRUE(page.enabled(PLACE));
    EXPECT_FALSE(page.checked(WITH_NOTEPAD));
    desktop_.expectHint(nameTip);
    page.press(WITH_NOTEPAD);
  });
  EXPECT_TRUE(settings().editWithNotepad);
  EXPECT_EQ(settings().editorTarget, "/usr/bin/ed") << "a disabled field keeps its text";
}

TEST_F(EditorPageTest, AStoredNotepadShowsDisabledAtOnce) {
  settings().editWithNotepad = true;
  settings().editorOpenAll = false;
  playAndOk([](ScriptedWindow& page) {
    EXPECT_TRUE(page.checked(WITH_NOTEPAD));
    EXPECT_FALSE(page.enabled(EDITOR));
    EXPECT_FALSE(page.enabled(BROWSE));
    EXPECT_TRUE(page.checked(CHOOSE_FILES));
    page.press(OPEN_ALL);
    EXPECT_FALSE(page.checked(CHOOSE_FILES));
  });
  EXPECT_TRUE(settings().editorOpenAll);
  playAndOk([](ScriptedWindow& page) { page.press(CHOOSE_FILES); });
  EXPECT_FALSE(settings().editorOpenAll);
}

TEST_F(EditorPageTest, ATypedNameOutlivesAClick) {
  playAndOk([this](ScriptedWindow& page) {
    page.type(EDITOR, "typed");
    page.press(CHOOSE_FILES);
    EXPECT_EQ(page.text(EDITOR), "typed");
    desktop_.expectHint(nameTip);
    page.press(WITH_NOTEPAD);
    EXPECT_EQ(page.text(EDITOR), "typed");
  });
  EXPECT_EQ(settings().editorTarget, "typed");
}

TEST_F(EditorPageTest, BrowseTakesTheChosenProgram) {
  playAndOk([this](ScriptedWindow& page) {
    page.type(EDITOR, "typed");
    desktop_.expectOpenFile(std::nullopt);
    page.press(BROWSE);
    EXPECT_EQ(page.text(EDITOR), "typed");
    desktop_.expectOpenFile("/pro grams/ed");
    page.press(BROWSE);
    EXPECT_EQ(page.text(EDITOR), "/pro grams/ed");
  });
  EXPECT_EQ(settings().editorTarget, "/pro grams/ed");
  EXPECT_EQ(desktop_.lastRequest().filter, said("executable files and java archives|*.exe;*.com;*.jar||",
                                                "executable files and java archives|*;*.com;*.jar||"));
  EXPECT_EQ(desktop_.lastRequest().name, said("*.exe;*.com;*.jar", "*;*.com;*.jar"));
  EXPECT_EQ(desktop_.lastRequest().startFolder, platform::startFolder("C:"));
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
}

TEST_F(AppletviewerPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(1033), "String passed to the java virtual machine");
    EXPECT_EQ(page.toolTip(1034), "Specifies the input HTML file encoding name");
  });
}

TEST_F(AppletviewerPageTest, ValuesTravelBothWays) {
  settings().appletviewerEncoding = "UTF-8";
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(1034), "UTF-8");
    page.type(1033, "Xmx1g");
    page.type(1034, "Cp1252");
  });
  EXPECT_EQ(settings().appletviewerJOption, "-JXmx1g");
  EXPECT_EQ(settings().appletviewerEncoding, "Cp1252");
}

}  // namespace
}  // namespace tarnwick::test
