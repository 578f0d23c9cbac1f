#include "support/SettingsFixture.h"
#include "templates/AddTemplateDlg.h"
#include "templates/FileNameMark.h"
#include "templates/NewSourceFileDlg.h"

#include <cstring>

namespace tarnwick::test {
namespace {

class NewSourceFileDlgTest : public SettingsFixture {
 protected:
  NewSourceFileDlgTest() {
    freshSettings()->saveDefaultConfiguration();
    context_.showHelp = [this](const std::string& anchor) { help_.push_back(anchor); };
  }

  std::string target(const std::string& name) const { return userFolder() + name; }
  /// A file's text, with line ends as on Linux.
  static std::string linesOf(const std::string& path) {
    std::string text = contentOf(path);
    std::erase(text, '\r');
    return text;
  }
  static const char* titleOf(NewSourceMode mode) {
    return mode == NewSourceMode::InProject ? "Create new sourcefile in project" : "Create new .java/.html file";
  }
  /// Runs the dialog; the script plays its user.
  int run(NewSourceMode mode, const std::function<void(ScriptedWindow&)>& script) {
    desktop_.expectDialog(titleOf(mode), script);
    NewSourceFileDlg dialog(settings(), mode, &file_, userFolder());
    const int result = dialog.runModal();
    created_ = dialog.createdFile();
    return result;
  }
  /// Creates a file in the mode of "New" from the template of this label.
  int create(const std::string& label, const std::string& path) {
    return run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
      choose(dialog, label);
      desktop_.expectSaveFile(path);
      dialog.press(IDOK_CONTROL);
    });
  }
  static void choose(ScriptedWindow& dialog, const std::string& label) {
    const auto entries = dialog.entries(TEMPLATE_COMBO);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (entries[i] == label) dialog.choose(TEMPLATE_COMBO, static_cast<int>(i));
    }
  }
  void addTemplate(const std::string& description, const std::string& path) {
    const auto earlier = freshSettings();
    TokenString pair;
    pair.add(description);
    pair.add(path);
    earlier->personalTemplates.add(pair.toString());
    earlier->saveDefaultConfiguration();
  }
  static std::string refusal(const std::string& path, FileMode mode) {
    try {
      Tarnwickfile file(path, mode);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    return "opened";
  }

  FileForSubprocess file_;
  std::string created_;
  std::vector<std::string> help_;
};

TEST_F(NewSourceFileDlgTest, EachModeShowsWhatItNeeds) {
  run(NewSourceMode::InProject, [](ScriptedWindow& dialog) {
    EXPECT_TRUE(dialog.has(NEW_NAME));
    EXPECT_FALSE(dialog.has(BROWSE_EXISTING));
    dialog.press(IDCANCEL_CONTROL);
  });
  run(NewSourceMode::NothingToEdit, [](ScriptedWindow& dialog) {
    EXPECT_FALSE(dialog.has(NEW_NAME));
    EXPECT_TRUE(dialog.has(BROWSE_EXISTING));
    dialog.press(IDCANCEL_CONTROL);
  });
  run(NewSourceMode::NewFile, [](ScriptedWindow& dialog) {
    EXPECT_FALSE(dialog.has(NEW_NAME));
    EXPECT_FALSE(dialog.has(BROWSE_EXISTING));
    EXPECT_EQ(dialog.selection(TEMPLATE_COMBO), 0) << "the first template is chosen";
    EXPECT_EQ(dialog.entries(TEMPLATE_COMBO),
              (std::vector<std::string>{"Blank file", "Java mainprogram", "Applet", "Http servlet", ".html file"}));
    dialog.press(IDCANCEL_CONTROL);
  });
}

TEST_F(NewSourceFileDlgTest, EveryControlHasItsToolTip) {
  run(NewSourceMode::NothingToEdit, [](ScriptedWindow& dialog) {
    EXPECT_EQ(dialog.toolTip(IDOK_CONTROL), "Create a new source file");
    EXPECT_EQ(dialog.toolTip(TEMPLATE_COMBO), "Select a template to initialize the new sourcefile");
    EXPECT_EQ(dialog.toolTip(BROWSE_EXISTING), "Locate an existing .java file to be opened in the editor");
    EXPECT_EQ(dialog.toolTip(ADD_TEMPLATE),
              "Add your own template to the list of filetypes. A template must be supplied as a file.");
    EXPECT_EQ(dialog.toolTip(NEW_SOURCE_HELP), "Start HTML browser to display the Tarnwick user's guide");
    EXPECT_EQ(dialog.toolTip(IDCANCEL_CONTROL), "Close this window without creating a new sourcefile");
    dialog.press(IDCANCEL_CONTROL);
  });
  run(NewSourceMode::InProject, [](ScriptedWindow& dialog) {
    EXPECT_EQ(dialog.toolTip(NEW_NAME), "Enter the name for the new source file. Must be a .java, .htm or .html file");
    dialog.press(IDCANCEL_CONTROL);
  });
}

TEST_F(NewSourceFileDlgTest, AMainProgramBeginsWithAnEmptyLineAndNamesItsClass) {
  EXPECT_EQ(create("Java mainprogram", target("Foo.java")), DIALOG_OK);
  EXPECT_EQ(linesOf(target("Foo.java")),
            "\nclass Foo {\n    public static void main(String[] args) {\n        // TODO: Add your program logic "
            "here.\n    }\n}\n");
  EXPECT_EQ(created_, target("Foo.java"));
  EXPECT_EQ(file_.name().fullName(), target("Foo.java")) << "the caller's file takes the name";
  EXPECT_EQ(desktop_.lastRequest().extension, ".java");
  EXPECT_EQ(desktop_.lastRequest().name, "*.java");
  EXPECT_EQ(desktop_.lastRequest().filter, "java source files (*.java)|*.java||");
}

TEST_F(NewSourceFileDlgTest, EveryBuiltInTextIsWrittenAsItStandsWithItsNames) {
  TemplateList templates(settings());
  templates.build();
  for (const auto& row : templates.rows()) {
    const std::string path = target("Gar_" + std::to_string(row.kind) + ".java");
    EXPECT_EQ(create(row.label, path), DIALOG_OK);
    EXPECT_EQ(linesOf(path), withFileName(row.option, "Gar_" + std::to_string(row.kind))) << row.label;
  }
}

TEST_F(NewSourceFileDlgTest, WhateverTheNameIsItsBaseNameBecomesTheClass) {
  for (const char* name : {"Größe", "class", "my-test", "a.b", "Two words", "2nd", "$_"}) {
    const std::string path = target(std::string(name) + ".java");
    EXPECT_EQ(create("Java mainprogram", path), DIALOG_OK);
    EXPECT_EQ(linesOf(path).find("\nclass " + std::string(name) + " {\n"), 0U) << name;
    EXPECT_EQ(file_.name().fullName(), path);
  }
}

TEST_F(NewSourceFileDlgTest, ATemplateWithNoPathIsABlankFile) {
  addTemplate("Nothing", "");
  desktop_.expectQuestion("Can't access file  for template Nothing. Remove template from list?", false);
  EXPECT_EQ(create("Nothing", target("Foo.java")), DIALOG_OK);
  EXPECT_EQ(contentOf(target("Foo.java")), "") << "the first row that holds the same decides";
}

TEST_F(NewSourceFileDlgTest, ABlankFileHasNoBytes) {
  EXPECT_EQ(create("Blank file", target("Foo.java")), DIALOG_OK);
  EXPECT_TRUE(platform::isFile(target("Foo.java")));
  EXPECT_EQ(contentOf(target("Foo.java")), "");
}

TEST_F(NewSourceFileDlgTest, TheSaveDialogStartsAtTheCallersFile) {
  file_.setName(userFolder() + "Old.java");
  create("Blank file", target("Foo.java"));
  EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
  EXPECT_EQ(desktop_.lastRequest().name, "Old.java");
}

TEST_F(NewSourceFileDlgTest, TheSaveDialogStartsAtTheNameBeforeWhereThereIsNone) {
  file_.setName(userFolder() + "Before.java");
  file_.setName("");
  create("Blank file", target("Foo.java"));
  EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
  EXPECT_EQ(desktop_.lastRequest().name, "Before.java");
}

TEST_F(NewSourceFileDlgTest, CancellingTheSaveDialogClosesWithCancel) {
  const int result = run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectSaveFile(std::nullopt);
    dialog.press(IDOK_CONTROL);
    EXPECT_TRUE(dialog.closed());
  });
  EXPECT_EQ(result, DIALOG_CANCEL);
  EXPECT_EQ(created_, "");
  EXPECT_TRUE(file_.isEmpty());
}

TEST_F(NewSourceFileDlgTest, AnExistingFileAndTheAnswerNoChangeNothing) {
  writeFile(target("a b.java"), "precious");
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectSaveFile(target("a b.java"));
    desktop_.expectQuestion("The file \"" + target("a b.java") + "\" already exists. Overwrite?", false);
    dialog.press(IDOK_CONTROL);
    EXPECT_FALSE(dialog.closed());
    dialog.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(contentOf(target("a b.java")), "precious");
}

TEST_F(NewSourceFileDlgTest, TheAnswerYesOverwrites) {
  writeFile(target("ab.java"), "precious");
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectSaveFile(target("ab.java"));
    desktop_.expectQuestion("The file " + Filename(target("ab.java")).quoted() + " already exists. Overwrite?", true);
    dialog.press(IDOK_CONTROL);
    EXPECT_TRUE(dialog.closed());
  });
  EXPECT_EQ(contentOf(target("ab.java")), "");
}

TEST_F(NewSourceFileDlgTest, InAProjectANameHasToBeTyped) {
  run(NewSourceMode::InProject, [](ScriptedWindow& dialog) {
    EXPECT_FALSE(dialog.enabled(IDOK_CONTROL));
    dialog.type(NEW_NAME, "F");
    EXPECT_TRUE(dialog.enabled(IDOK_CONTROL));
    dialog.type(NEW_NAME, "");
    EXPECT_FALSE(dialog.enabled(IDOK_CONTROL));
    dialog.press(IDCANCEL_CONTROL);
  });
}

TEST_F(NewSourceFileDlgTest, InAProjectTheExtensionDecidesAndAFolderIsThrownAway) {
  const int result = run(NewSourceMode::InProject, [&](ScriptedWindow& dialog) {
    desktop_.expectMessage("Filename has invalid extension");
    dialog.type(NEW_NAME, "Foo.txt");
    dialog.press(IDOK_CONTROL);
    EXPECT_FALSE(dialog.closed());
    dialog.type(NEW_NAME, " \"" + scratch_.file("elsewhere") + platform::folderSeparator + "Foo.HTML\" ");
    choose(dialog, ".html file");
    dialog.press(IDOK_CONTROL);
  });
  EXPECT_EQ(result, DIALOG_OK);
  EXPECT_EQ(created_, target("Foo.HTML"));
  EXPECT_NE(contentOf(target("Foo.HTML")).find("<title>Foo</title>"), std::string::npos);
}

TEST_F(NewSourceFileDlgTest, ATemplateOfTheUsersComesOutWithThreeNames) {
  const std::string bytes = "%FILENAME% %FILENAME%\n\xE4%FILENAME%";
  writeFile(target("my template.txt"), bytes + "\xFFnot this");
  addTemplate("Mine", target("my template.txt"));
  EXPECT_EQ(create("Mine", target("Foo.java")), DIALOG_OK);
  EXPECT_EQ(linesOf(target("Foo.java")),
            "Foo Foo\n\xE4"
            "Foo")
      << "a byte of 255 ends the template";
}

TEST_F(NewSourceFileDlgTest, ATemplateThatVanishesCreatesNothing) {
  writeFile(target("mine.txt"), "x");
  writeFile(target("Foo.java"), "precious");
  addTemplate("Mine", target("mine.txt"));
  const int result = run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    choose(dialog, "Mine");
    std::remove(target("mine.txt").c_str());
    desktop_.expectSaveFile(target("Foo.java"));
    desktop_.expectQuestion("The file " + Filename(target("Foo.java")).quoted() + " already exists. Overwrite?", true);
    desktop_.expectMessage("Can't copy user-defined file template " + target("mine.txt") + "\n" +
                           refusal(target("mine.txt"), FileMode::Read));
    dialog.press(IDOK_CONTROL);
    EXPECT_TRUE(dialog.closed());
  });
  EXPECT_EQ(result, DIALOG_CANCEL);
  EXPECT_EQ(contentOf(target("Foo.java")), "precious") << "nothing is lost";
  EXPECT_EQ(created_, "");
}

TEST_F(NewSourceFileDlgTest, ATargetThatCantBeOpenedIsToldAndTheDialogStays) {
  platform::makeFolders(target("Foo.java") + platform::folderSeparator + "in the way");
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectSaveFile(target("Foo.java"));
    if (canBeRead(target("Foo.java")))
      desktop_.expectQuestion("The file " + Filename(target("Foo.java")).quoted() + " already exists. Overwrite?",
                              true);
    desktop_.expectMessage("Can't open " + target("Foo.java") + "\n" + refusal(target("Foo.java"), FileMode::Write));
    dialog.press(IDOK_CONTROL);
    EXPECT_FALSE(dialog.closed());
    dialog.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(created_, "");
}

TEST_F(NewSourceFileDlgTest, BrowsingForAnExistingFileEmptiesTheCallersFile) {
  file_.setName(target("Old.java"));
  file_.args().emplace_back("behind the name");
  const int result = run(NewSourceMode::NothingToEdit, [](ScriptedWindow& dialog) { dialog.press(BROWSE_EXISTING); });
  EXPECT_EQ(result, DIALOG_OK);
  EXPECT_TRUE(file_.isEmpty());
  EXPECT_TRUE(file_.args().empty());
  EXPECT_EQ(created_, "");
}

TEST_F(NewSourceFileDlgTest, HelpOpensTheGuideAtItsMark) {
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    dialog.press(NEW_SOURCE_HELP);
    desktop_.expectDialog("Add template for new sourcefiles", [](ScriptedWindow& add) {
      add.press(TEMPLATE_HELP);
      add.press(IDCANCEL_CONTROL);
    });
    dialog.press(ADD_TEMPLATE);
    dialog.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(help_, (std::vector<std::string>{"#newfile", "#usertemplate"}));
}

TEST_F(NewSourceFileDlgTest, ATemplateIsAddedAfterItsFieldsAreRight) {
  const std::string path = target("mine.txt");
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectDialog("Add template for new sourcefiles", [&](ScriptedWindow& add) {
      desktop_.expectHint(
          "Please enter a description.\nIt is needed to create an entry in the dropdown list for file templates.");
      add.type(TEMPLATE_DESCRIPTION, "  ");
      add.press(IDOK_CONTROL);
      add.type(TEMPLATE_DESCRIPTION, " My bean ");
      desktop_.expectHint("Please enter a filename for your template file");
      add.press(IDOK_CONTROL);
      desktop_.expectOpenFile(path);
      add.press(TEMPLATE_BROWSE);
      EXPECT_EQ(desktop_.lastRequest().filter, "all files|*.*||");
      EXPECT_TRUE(desktop_.lastRequest().mustExist);
      EXPECT_EQ(add.text(TEMPLATE_FILE), path);
      desktop_.expectMessage("Can't open file " + path + "\n" + refusal(path, FileMode::Read));
      add.press(IDOK_CONTROL);
      EXPECT_FALSE(add.closed());
      writeFile(path, "bean %FILENAME%");
      add.type(TEMPLATE_FILE, " \t" + path);
      add.press(IDOK_CONTROL);
      EXPECT_TRUE(add.closed());
    });
    dialog.press(ADD_TEMPLATE);
    EXPECT_EQ(dialog.entries(TEMPLATE_COMBO).back(), "My bean");
    EXPECT_EQ(dialog.selection(TEMPLATE_COMBO), 0);
    choose(dialog, "My bean");
    desktop_.expectSaveFile(target("Foo.java"));
    dialog.press(IDOK_CONTROL);
  });
  EXPECT_EQ(contentOf(target("Foo.java")), "bean Foo");
  EXPECT_EQ(settings().personalTemplates.toString(), "My bean];" + path) << "without the blanks before the name";
}

TEST_F(NewSourceFileDlgTest, ATemplatesPathInQuotesOrWithABlankBehindItIsFoundAgain) {
  const std::string path = target("my template.txt");
  writeFile(path, "bean %FILENAME%");
  platform::changeDirectory(Filename(path).directory());
  for (const auto& typed : {'"' + path + '"', path + "  ", " \"" + path + "\" ", std::string("my template.txt")}) {
    settings().personalTemplates.fromString("");
    settings().saveDefaultConfiguration();
    run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
      desktop_.expectDialog("Add template for new sourcefiles", [&](ScriptedWindow& add) {
        add.type(TEMPLATE_DESCRIPTION, "My bean");
        add.type(TEMPLATE_FILE, typed);
        add.press(IDOK_CONTROL);
      });
      dialog.press(ADD_TEMPLATE);
      EXPECT_EQ(dialog.entries(TEMPLATE_COMBO).back(), "My bean") << typed;
      dialog.press(IDCANCEL_CONTROL);
    });
    EXPECT_EQ(settings().personalTemplates.toString(), "My bean];" + path) << typed;
  }
}

TEST_F(NewSourceFileDlgTest, PastedLineEndsInANewTemplateAreBlanks) {
  writeFile(target("my template.txt"), "");
  run(NewSourceMode::NewFile, [&](ScriptedWindow& dialog) {
    desktop_.expectDialog("Add template for new sourcefiles", [&](ScriptedWindow& add) {
      add.type(TEMPLATE_DESCRIPTION, "My\r\nbean\n");
      add.type(TEMPLATE_FILE, target("my\ntemplate.txt"));
      add.press(IDOK_CONTROL);
    });
    dialog.press(ADD_TEMPLATE);
    dialog.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(settings().personalTemplates.toString(), "My bean];" + target("my template.txt"));
}

TEST_F(NewSourceFileDlgTest, WithoutACallersFileTheNewOneIsOnlyTold) {
  desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
    desktop_.expectSaveFile(target("Foo.java"));
    dialog.press(IDOK_CONTROL);
  });
  NewSourceFileDlg dialog(settings(), NewSourceMode::NewFile, nullptr);
  EXPECT_EQ(dialog.runModal(), DIALOG_OK);
  EXPECT_EQ(dialog.createdFile(), target("Foo.java"));
}

}  // namespace
}  // namespace tarnwick::test
