#include "ProjectFixture.h"
#include "project/ProjectFilesDlg.h"
#include "resources/ProjectLayouts.h"
#include "resources/TemplateLayouts.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

class ProjectFilesDlgTest : public ProjectFixture {
 protected:
  int run(ProjectContext& project, const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("Define which files belong to the project", script);
    return ProjectFilesDlg(settings(), project).runModal();
  }
  /// What the two lists show, left and right.
  static void expectLists(const ScriptedWindow& window, const Names& members, const Names& others) {
    EXPECT_EQ(window.entries(PROJECT_FILES), members);
    EXPECT_EQ(window.entries(OTHER_FILES), others);
  }
  static void select(ScriptedWindow& window, int list, const Names& names) {
    const auto entries = window.entries(list);
    for (const auto& name : names) {
      const auto found = std::find(entries.begin(), entries.end(), name);
      ASSERT_NE(found, entries.end()) << name;
      window.setSelected(list, static_cast<int>(found - entries.begin()), true);
    }
  }
  static int selectedCount(const ScriptedWindow& window, int list) {
    int count = 0;
    for (std::size_t i = 0; i < window.entries(list).size(); ++i) count += window.selected(list, static_cast<int>(i));
    return count;
  }
  /// Presses "Create new file ....", and types this name there.
  void create(ScriptedWindow& window, const std::string& name) {
    desktop_.expectDialog("Create new sourcefile in project", [&name](ScriptedWindow& dialog) {
      dialog.type(NEW_NAME, name);
      dialog.press(IDOK_CONTROL);
    });
    window.press(CREATE_FILE);
  }
};

void collectLabels(const DialogItem& item, Names& labels) {
  if (item.kind == ItemKind::Label) labels.push_back(item.text);
  for (const auto& child : item.children) collectLabels(child, labels);
}

const DialogItem* itemOf(const DialogItem& item, int control) {
  if (item.control == control) return &item;
  for (const auto& child : item.children)
    if (const auto* found = itemOf(child, control)) return found;
  return nullptr;
}

TEST_F(ProjectFilesDlgTest, ShowsItsLabelsAndToolTips) {
  const struct {
    int control;
    const char* text;
    const char* toolTip;
  } table[] = {
      {PROJECT_FILES, "", "Files belonging to the current project"},
      {OTHER_FILES, "", "Files found in the current project directory that do not belong to the project"},
      {ADD_FILES, "<--", "Add selected files to project context"},
      {REMOVE_FILES, "-->", "Remove selected files from project context"},
      {ADD_ALL_FILES, "Add all", "Add all java files that the list of other files shows to project context"},
      {FILES_FILTER, "", "Show only the files whose names have all words that you type here"},
      {SELECT_ALL_FILES, "Select all", "Select all files in both list boxes"},
      {SELECT_NO_FILES, "Select none", "Deselect all files in both list boxes"},
      {CREATE_FILE, "Create new file ....",
       "Create a new source file in the project directory, add it to the project."},
      {ALLOW_MULTIPLE_MAIN, "Allow 'public static void main' in multiple classes",
       "[Checked: Manual] [Unchecked: Automatic] selection of class containing public static void main() method for "
       "execution."},
      {PROJECT_FILES_HELP, "Help", "Start HTML browser to display the Tarnwick user's guide"},
      {IDOK_CONTROL, "OK", "Update project context to include the files from the current selection"},
      {IDCANCEL_CONTROL, "Cancel", "Close without modifying the current project context"},
  };
  run(open(""), [&](ScriptedWindow& window) {
    for (const auto& row : table) {
      EXPECT_EQ(window.text(row.control), row.text);
      EXPECT_EQ(window.toolTip(row.control), row.toolTip);
    }
    window.press(IDCANCEL_CONTROL);
  });
  Names labels;
  collectLabels(projectFilesLayout().content, labels);
  EXPECT_EQ(labels, (Names{"Show names with", "Project files", "", "Other java/html files in directory", ""}));
  for (const int list : {PROJECT_FILES, OTHER_FILES}) EXPECT_TRUE(itemOf(projectFilesLayout().content, list)->multiple);
}

TEST_F(ProjectFilesDlgTest, ListsMembersAndTheOtherFilesOfTheFolderSorted) {
  for (const char* name : {"B.java", "a.java", "C.java", "x.htm", "Y.HTML", "my page.html", "k.JAVA", "notes.txt",
                           "B.class", "javasource", "d.htm.bak", "A.java.bak"})
    makeSource(name);
  platform::makeFolders(folder() + "sub.java");
  run(open("PROJECT_SOURCES  C.java;a.java\nPROJECT_HTMLFILE  \"my page.html\"\n"), [&](ScriptedWindow& window) {
    expectLists(window, {"a.java", "C.java", "my page.html"}, {"B.java", "d.htm.bak", "k.JAVA", "x.htm", "Y.HTML"});
    EXPECT_FALSE(window.checked(ALLOW_MULTIPLE_MAIN));
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, AnEmptyListTellsWhatToDo) {
  run(open(""), [&](ScriptedWindow& window) {
    for (const int list : {PROJECT_FILES, OTHER_FILES})
      EXPECT_EQ(window.wordsInPlace(list),
                "There is no java or html file here. Press \"Create new file ....\" to make one.");
    window.press(IDCANCEL_CONTROL);
  });
  for (const char* name : {"A.java", "B.java"}) makeSource(name);
  run(open(""), [&](ScriptedWindow& window) {
    EXPECT_EQ(window.wordsInPlace(PROJECT_FILES),
              "Select files in the other list and press \"<--\", or press \"Add all\" for all java files.");
    EXPECT_EQ(window.wordsInPlace(OTHER_FILES), "");
    window.press(ADD_ALL_FILES);
    EXPECT_EQ(window.wordsInPlace(PROJECT_FILES), "") << "gone with the first file";
    EXPECT_EQ(window.wordsInPlace(OTHER_FILES),
              "All files here belong to the project. Press \"Create new file ....\" to make another.");
    window.type(FILES_FILTER, "till");
    EXPECT_EQ(window.wordsInPlace(PROJECT_FILES),
              "No name here has all of these words. Empty the field above to see all names.");
    EXPECT_EQ(window.wordsInPlace(OTHER_FILES),
              "All files here belong to the project. Press \"Create new file ....\" to make another.");
    window.type(FILES_FILTER, "");
    EXPECT_EQ(window.wordsInPlace(PROJECT_FILES), "");
    expectLists(window, {"A.java", "B.java"}, {});
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, TheCheckBoxShowsWhoSelectsTheMainClass) {
  run(open("PROJECT_MULTIMAIN  ON\n"), [](ScriptedWindow& window) {
    EXPECT_TRUE(window.checked(ALLOW_MULTIPLE_MAIN));
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, AMemberThatIsGoneIsCountedAndLeavesWithOk) {
  for (const char* name : {"A.java", "B.java", "C.java"}) makeSource(name);
  ProjectContext& project = openWith("A.java;B.java;C.java");
  for (const char* gone : {"A.java", "C.java"}) {
    platform::deleteFile(folder() + gone);
    desktop_.expectMessage((gone[0] == 'A' ? "1" : "2") +
                           std::string(" files belonging to the project could not be opened."));
    run(project, [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  }
  EXPECT_EQ(namesOf(project), (Names{"A.java", "B.java", "C.java"})) << "Cancel keeps it";
  desktop_.expectMessage("2 files belonging to the project could not be opened.");
  run(project, [](ScriptedWindow& window) {
    expectLists(window, {"B.java"}, {});
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"B.java"});
}

TEST_F(ProjectFilesDlgTest, SelectedFilesMoveToTheLeft) {
  for (const char* name : {"A.java", "B.java", "C.java", "D.java"}) makeSource(name);
  run(openWith("B.java"), [](ScriptedWindow& window) {
    select(window, PROJECT_FILES, {"B.java"});
    select(window, OTHER_FILES, {"A.java", "D.java"});
    window.press(ADD_FILES);
    expectLists(window, {"A.java", "B.java", "D.java"}, {"C.java"});
    EXPECT_EQ(selectedCount(window, PROJECT_FILES), 0) << "all are deselected in the target";
    EXPECT_EQ(selectedCount(window, OTHER_FILES), 0);
    window.press(ADD_FILES);
    expectLists(window, {"A.java", "B.java", "D.java"}, {"C.java"});
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, SelectedFilesMoveToTheRight) {
  for (const char* name : {"A.java", "B.java", "C.java", "x.html"}) makeSource(name);
  run(open("PROJECT_SOURCES  A.java;B.java\nPROJECT_HTMLFILE  x.html\n"), [](ScriptedWindow& window) {
    select(window, PROJECT_FILES, {"A.java", "x.html"});
    select(window, OTHER_FILES, {"C.java"});
    window.press(REMOVE_FILES);
    expectLists(window, {"B.java"}, {"A.java", "C.java", "x.html"});
    EXPECT_EQ(selectedCount(window, OTHER_FILES), 0);
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, SelectAllAndNoneConcernBothLists) {
  for (const char* name : {"A.java", "B.java", "C.java"}) makeSource(name);
  run(openWith("A.java"), [](ScriptedWindow& window) {
    window.press(SELECT_ALL_FILES);
    EXPECT_EQ(selectedCount(window, PROJECT_FILES), 1);
    EXPECT_EQ(selectedCount(window, OTHER_FILES), 2);
    window.press(SELECT_NO_FILES);
    EXPECT_EQ(selectedCount(window, PROJECT_FILES), 0);
    EXPECT_EQ(selectedCount(window, OTHER_FILES), 0);
    window.press(SELECT_ALL_FILES);
    window.press(ADD_FILES);
    expectLists(window, {"A.java", "B.java", "C.java"}, {});
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, OkMakesTheProjectWhatTheListSays) {
  for (const char* name : {"b.java", "A.JAVA", "C.java", "my page.html"}) makeSource(name, "class X { }");
  ProjectContext& project = openWith("C.java");
  project.update();
  const int waits = desktop_.waits();
  const int result = run(project, [](ScriptedWindow& window) {
    window.press(SELECT_ALL_FILES);
    window.press(ADD_FILES);
    window.press(ALLOW_MULTIPLE_MAIN);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(result, DIALOG_OK);
  EXPECT_EQ(desktop_.waits(), waits + 1);
  EXPECT_EQ(namesOf(project), (Names{"A.JAVA", "b.java", "C.java"})) << "the list's order is alphabetical";
  EXPECT_EQ(project.htmlFile, "\"my page.html\"");
  EXPECT_TRUE(project.multiMain);
  EXPECT_TRUE(project.sources[2].types().empty()) << "all are fresh, so that the next look reads them";
  EXPECT_FALSE(project.sources[2].isCurrent());
  for (std::size_t i = 0; i < project.sources.size(); ++i) EXPECT_FALSE(project.sources[i].isOpen());
  EXPECT_EQ(linesOf(projectFile()), "PROJECT_SOURCES  C.java\n") << "the caller saves";
}

TEST_F(ProjectFilesDlgTest, OkOnAnEmptyListLeavesNoSourceAndNoHtmlFile) {
  makeSource("A.java");
  makeSource("x.html");
  ProjectContext& project = open("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  x.html\nPROJECT_MULTIMAIN  ON\n");
  EXPECT_EQ(run(project,
                [](ScriptedWindow& window) {
                  window.press(SELECT_ALL_FILES);
                  window.press(REMOVE_FILES);
                  window.press(ALLOW_MULTIPLE_MAIN);
                  window.press(IDOK_CONTROL);
                }),
            DIALOG_OK);
  EXPECT_TRUE(project.sources.empty());
  EXPECT_EQ(project.htmlFile, "");
  EXPECT_FALSE(project.multiMain);
}

TEST_F(ProjectFilesDlgTest, ASecondHtmlFileIsRefusedAndTheDialogStaysOpen) {
  for (const char* name : {"A.java", "m.html", "x.html", "Z.java"}) makeSource(name);
  ProjectContext& project = open("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  x.html\n");
  run(project, [&](ScriptedWindow& window) {
    window.press(ALLOW_MULTIPLE_MAIN);
    window.press(SELECT_ALL_FILES);
    window.press(ADD_FILES);
    desktop_.expectHint("You can include only 1 html file in the project!");
    window.press(IDOK_CONTROL);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(project.htmlFile, "x.html");
    EXPECT_EQ(namesOf(project), Names{"A.java"});
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(project.htmlFile, "x.html") << "what was refused and cancelled is stored nowhere";
  EXPECT_EQ(namesOf(project), Names{"A.java"});
  EXPECT_FALSE(project.multiMain);
}

TEST_F(ProjectFilesDlgTest, AFileThatGoesWhileTheDialogIsOpenIsToldAtOk) {
  for (const char* name : {"A.java", "B b.java", "x.html"}) makeSource(name);
  ProjectContext& project = open("PROJECT_SOURCES  A.java;B b.java\nPROJECT_HTMLFILE  x.html\n");
  run(project, [&](ScriptedWindow& window) {
    platform::deleteFile(folder() + "B b.java");
    const std::string path = folder() + "B b.java";
    desktop_.expectMessage(refusal(path, FileMode::Read) + "\nCan't open " + path);
    window.press(IDOK_CONTROL);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(namesOf(project), (Names{"A.java", "B b.java"}));
    EXPECT_EQ(project.htmlFile, "x.html");
    select(window, PROJECT_FILES, {"B b.java"});
    window.press(REMOVE_FILES);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"A.java"});
  EXPECT_EQ(project.htmlFile, "x.html");
}

TEST_F(ProjectFilesDlgTest, CancelKeepsAll) {
  for (const char* name : {"A.java", "B.java", "x.html"}) makeSource(name);
  ProjectContext& project = openWith("A.java");
  const auto change = [](ScriptedWindow& window) {
    window.press(SELECT_ALL_FILES);
    window.press(ADD_FILES);
    window.press(ALLOW_MULTIPLE_MAIN);
  };
  for (const bool byBox : {false, true}) {
    EXPECT_EQ(run(project,
                  [&](ScriptedWindow& window) {
                    change(window);
                    byBox ? window.closeBox() : window.press(IDCANCEL_CONTROL);
                  }),
              DIALOG_CANCEL);
    EXPECT_EQ(namesOf(project), Names{"A.java"});
    EXPECT_EQ(project.htmlFile, "");
    EXPECT_FALSE(project.multiMain);
  }
}

TEST_F(ProjectFilesDlgTest, ANewFileIsAMemberAtOnce) {
  makeSource("B.java");
  makeSource("C.java");
  ProjectContext& project = openWith("B.java");
  EXPECT_EQ(run(project,
                [&](ScriptedWindow& window) {
                  select(window, OTHER_FILES, {"C.java"});
                  window.press(ADD_FILES);
                  create(window, "A.java");
                  EXPECT_EQ(namesOf(project), (Names{"B.java", "A.java"}));
                  expectLists(window, {"A.java", "B.java"}, {"C.java"});
                  window.press(IDOK_CONTROL);
                }),
            DIALOG_OK)
      << "moves that were not confirmed are lost, and no message comes";
  EXPECT_EQ(namesOf(project), (Names{"A.java", "B.java"}));
  EXPECT_TRUE(platform::isFile(folder() + "A.java"));
}

TEST_F(ProjectFilesDlgTest, ANewHtmlFileIsSortedOutByOk) {
  makeSource("B.java");
  ProjectContext& project = openWith("B.java");
  run(project, [&](ScriptedWindow& window) {
    create(window, "my page.HTML");
    EXPECT_EQ(namesOf(project), (Names{"B.java", "my page.HTML"})) << "held as a source until then";
    EXPECT_FALSE(project.sources[1].isOpen());
    expectLists(window, {"B.java", "my page.HTML"}, {});
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"B.java"});
  EXPECT_EQ(project.htmlFile, "\"my page.HTML\"");
}

TEST_F(ProjectFilesDlgTest, GivingUpANewFileChangesNothing) {
  makeSource("B.java");
  makeSource("C.java");
  ProjectContext& project = openWith("B.java");
  run(project, [&](ScriptedWindow& window) {
    select(window, OTHER_FILES, {"C.java"});
    window.press(ADD_FILES);
    desktop_.expectDialog("Create new sourcefile in project",
                          [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    window.press(CREATE_FILE);
    expectLists(window, {"B.java", "C.java"}, {});
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"B.java"});
}

TEST_F(ProjectFilesDlgTest, OneNewFileThenCancel) {
  makeSource("B.java");
  ProjectContext& project = openWith("B.java");
  run(project, [&](ScriptedWindow& window) {
    create(window, "A.java");
    desktop_.expectHint(
        "You have created 1 new project file. \nIt will remain in your project folder,\nalthough not as part of your "
        "project.");
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"B.java"});
  EXPECT_TRUE(platform::isFile(folder() + "A.java"));
  run(project, [](ScriptedWindow& window) {
    expectLists(window, {"B.java"}, {"A.java"});
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, TwoNewFilesThenCancel) {
  ProjectContext& project = open("");
  run(project, [&](ScriptedWindow& window) {
    create(window, "A.java");
    create(window, "x.html");
    desktop_.expectHint(
        "You have created 2 new project files.\nThey will remain in your project folder,\nalthough not as part of your "
        "project.");
    window.closeBox();
  });
  EXPECT_TRUE(project.sources.empty());
  EXPECT_TRUE(platform::isFile(folder() + "A.java"));
  EXPECT_TRUE(platform::isFile(folder() + "x.html"));
}

TEST_F(ProjectFilesDlgTest, AFileWithTheNameOfAMemberAddsNothingAndDoesNotCount) {
  makeSource("B.java", "old");
  makeSource("C.java");
  ProjectContext& project = openWith("B.java");
  run(project, [&](ScriptedWindow& window) {
    select(window, OTHER_FILES, {"C.java"});
    window.press(ADD_FILES);
    desktop_.expectDialog("Create new sourcefile in project", [&](ScriptedWindow& dialog) {
      dialog.type(NEW_NAME, "B.java");
      desktop_.expectQuestion("The file " + quoted(folder() + "B.java") + " already exists. Overwrite?", true);
      dialog.press(IDOK_CONTROL);
    });
    window.press(CREATE_FILE);
    expectLists(window, {"B.java"}, {"C.java"});
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(namesOf(project), Names{"B.java"});
}

TEST_F(ProjectFilesDlgTest, AFileWithTheNameOfTheProjectsHtmlFileAddsNothingAndDoesNotCount) {
  makeSource("x.html", "old");
  ProjectContext& project = open("PROJECT_SOURCES  \nPROJECT_HTMLFILE  x.html\n");
  run(project, [&](ScriptedWindow& window) {
    desktop_.expectDialog("Create new sourcefile in project", [&](ScriptedWindow& dialog) {
      dialog.type(NEW_NAME, "x.html");
      desktop_.expectQuestion("The file " + quoted(folder() + "x.html") + " already exists. Overwrite?", true);
      dialog.press(IDOK_CONTROL);
    });
    window.press(CREATE_FILE);
    expectLists(window, {"x.html"}, {});
    EXPECT_TRUE(project.sources.empty());
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(project.htmlFile, "x.html");
}

TEST_F(ProjectFilesDlgTest, HelpOpensTheGuideAtItsPlace) {
  Names anchors;
  context_.showHelp = [&anchors](const std::string& anchor) { anchors.push_back(anchor); };
  run(open(""), [](ScriptedWindow& window) {
    window.press(PROJECT_FILES_HELP);
    EXPECT_FALSE(window.closed());
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(anchors, Names{"#projectfiles"});
}

TEST_F(ProjectFilesDlgTest, NamesOutsideTheFolderStayInTheProjectWhateverIsChosen) {
  for (const char* name : {"A.java", "B.java"}) makeSource(name);
  desktop_.expectMessage(
      "A project's sources lie in its folder. These names lead elsewhere and are not used,\n"
      "but stay in the project file:\n\n../X.java");
  ProjectContext& project = openWith("../X.java;A.java");
  const int result = run(project, [](ScriptedWindow& window) {
    expectLists(window, {"A.java"}, {"B.java"});
    select(window, OTHER_FILES, {"B.java"});
    window.press(ADD_FILES);
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(result, DIALOG_OK);
  EXPECT_EQ(project.sources.toString(), "../X.java;A.java;B.java");
}

TEST_F(ProjectFilesDlgTest, TheFilterShowsNamesThatHaveAllItsWords) {
  for (const char* name : {"Red.java", "RedApple.java", "apple.html", "Green.java"}) makeSource(name);
  ProjectContext& project = openWith("Green.java");
  run(project, [](ScriptedWindow& window) {
    window.type(FILES_FILTER, "rEd");
    expectLists(window, {}, {"Red.java", "RedApple.java"});
    window.type(FILES_FILTER, "  apple  java ");
    expectLists(window, {}, {"RedApple.java"});
    window.press(SELECT_ALL_FILES);
    window.press(ADD_FILES);
    expectLists(window, {"RedApple.java"}, {});
    window.type(FILES_FILTER, "");
    expectLists(window, {"Green.java", "RedApple.java"}, {"apple.html", "Red.java"});
    window.type(FILES_FILTER, "nothing");
    expectLists(window, {}, {});
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(namesOf(project), (Names{"Green.java", "RedApple.java"}))
      << "what does not show belongs to it all the same";
}

TEST_F(ProjectFilesDlgTest, ACountUnderEachListTellsHowManyShow) {
  const auto counts = [](const ScriptedWindow& window) {
    return Names{window.text(PROJECT_FILES_COUNT), window.text(OTHER_FILES_COUNT)};
  };
  ProjectContext& project = open("");
  run(project, [&](ScriptedWindow& window) {
    EXPECT_EQ(counts(window), (Names{"The project has no files yet.", "There are no other files."}));
    window.press(IDCANCEL_CONTROL);
  });
  for (const char* name : {"A.java", "B.java", "C.java"}) makeSource(name);
  run(project, [&](ScriptedWindow& window) {
    EXPECT_EQ(counts(window), (Names{"The project has no files yet.", "3 of 3"}));
    select(window, OTHER_FILES, {"A.java"});
    window.press(ADD_FILES);
    EXPECT_EQ(counts(window), (Names{"1 of 1", "2 of 2"}));
    window.type(FILES_FILTER, "b");
    EXPECT_EQ(counts(window), (Names{"0 of 1: none has such a name", "1 of 2"}));
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(ProjectFilesDlgTest, AddAllTakesTheSourcesThatShow) {
  for (const char* name : {"Red.java", "RedApple.JAVA", "red.html", "Green.java"}) makeSource(name);
  run(open(""), [](ScriptedWindow& window) {
    select(window, OTHER_FILES, {"red.html"});
    window.type(FILES_FILTER, "red");
    window.press(ADD_ALL_FILES);
    expectLists(window, {"Red.java", "RedApple.JAVA"}, {"red.html"});
    window.type(FILES_FILTER, "");
    expectLists(window, {"Red.java", "RedApple.JAVA"}, {"Green.java", "red.html"});
    window.press(IDCANCEL_CONTROL);
  });
}

/// The newer way, in which the sources of all folders below the project's are shown.
class PackageFilesDlgTest : public ProjectFilesDlgTest {
 protected:
  void makeIn(const std::string& name) {
    std::string path = name;
    std::replace(path.begin(), path.end(), '/', platform::folderSeparator);
    platform::makeFolders(Filename(folder() + path).directoryNoSlash());
    makeSource(path);
  }
};

TEST_F(PackageFilesDlgTest, SourcesOfAllFoldersBelowAreShown) {
  for (const char* name : {"A.java", "org/x/B b.java", "org/C.java", "page.html", "org/page.html", ".git/D.java",
                           "org/.hidden/E.java", "out/F.java", "notes/x.txt"})
    makeIn(name);
  ProjectContext& project = open("NEWER_JAVA  ON\nJAVAC_DESTINATION  out\nPROJECT_SOURCES  org/C.java\n");
  run(project, [](ScriptedWindow& window) {
    expectLists(window, {"org/C.java"}, {"A.java", "org/x/B b.java", "page.html"});
    window.type(FILES_FILTER, "x/b");
    window.press(ADD_ALL_FILES);
    window.press(IDOK_CONTROL);
  });
  project.save();
  EXPECT_EQ(valueIn(projectFile(), "PROJECT_SOURCES"), "org/C.java;org/x/B b.java");
  settings().javacDestination = ".";
  run(project, [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(OTHER_FILES), (Names{"A.java", "out/F.java", "page.html"}));
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(PackageFilesDlgTest, WhereThereIsTooMuchTheCountSaysSo) {
  for (const char* name : {"A.java", "B.java", "org/C.java"}) makeIn(name);
  ProjectContext& project = open("NEWER_JAVA  ON\nPROJECT_SOURCES  A.java\n");
  const int waits = desktop_.waits();
  desktop_.expectDialog("Define which files belong to the project", [](ScriptedWindow& window) {
    EXPECT_EQ(window.text(PROJECT_FILES_COUNT), "1 of 1");
    EXPECT_EQ(window.text(OTHER_FILES_COUNT), "1 of 1, and more further down");
    window.press(IDCANCEL_CONTROL);
  });
  ProjectFilesDlg(settings(), project, 4).runModal();
  EXPECT_EQ(desktop_.waits(), waits + 1) << "it may take a moment";
  run(project, [](ScriptedWindow& window) {
    EXPECT_EQ(window.text(OTHER_FILES_COUNT), "2 of 2");
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(PackageFilesDlgTest, TheClassicWayShowsTheProjectsFolderAlone) {
  for (const char* name : {"A.java", "org/C.java"}) makeIn(name);
  run(open(""), [](ScriptedWindow& window) {
    expectLists(window, {}, {"A.java"});
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(PackageFilesDlgTest, ANewSourceMayHaveFoldersOfItsOwn) {
  ProjectContext& project = open("NEWER_JAVA  ON\n");
  run(project, [&](ScriptedWindow& window) {
    create(window, "org/x/New.java");
    expectLists(window, {"org/x/New.java"}, {});
    create(window, "org/page.html");
    create(window, "../Up.java");
    expectLists(window, {"org/x/New.java", "page.html", "Up.java"}, {});
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(project.sources.toString(), "org/x/New.java;Up.java") << "other names lose their folders, as ever";
  EXPECT_TRUE(platform::isFile(project.sources[0].name().fullName()));
}

TEST_F(PackageFilesDlgTest, TheClassicWayDropsTheFoldersOfANewSource) {
  ProjectContext& project = open("");
  run(project, [&](ScriptedWindow& window) {
    create(window, "org/x/New.java");
    expectLists(window, {"New.java"}, {});
    window.press(IDOK_CONTROL);
  });
}

}  // namespace
}  // namespace tarnwick::test
