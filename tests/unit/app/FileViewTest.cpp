#include "PanelFixture.h"
#include "app/FileView.h"
#include "support/BrokenTool.h"
#include "support/SystemWords.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace tarnwick::test {
namespace {

class FileViewTest : public PanelFixture {
 protected:
  std::string makeFile(const std::string& name) {
    writeFile(userFolder() + name, "class A {}\n");
    return userFolder() + name;
  }
  /// What the second copy of the program was started with, once `last` is among it.
  std::string recordedUpTo(const std::string& last) {
    std::string recorded;
    for (int tries = 0; tries < 100 && recorded.find(last) == std::string::npos; ++tries) {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      if (platform::isFile(scratch_.file("record"))) recorded = contentOf(scratch_.file("record"));
    }
    return recorded;
  }
};

TEST_F(FileViewTest, ShowsItsLabelsAndToolTips) {
  saveEarlierRun();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(panel.tabLabels(TABS), (std::vector<std::string>{" Main program ", "  Applet  ", "  Utilities  "}));
    const char* const labels[3][3] = {{"Browse", "jdb debug", "java"},
                                      {"Browse", "appletdebug", "appletviewer"},
                                      {"jar", "javadoc", said("WinShortcut", "Shortcut")}};
    for (int tab = 0; tab < 3; ++tab) {
      EXPECT_EQ(panel.page(TABS, tab).text(LEFT), labels[tab][0]);
      EXPECT_EQ(panel.page(TABS, tab).text(MIDDLE), labels[tab][1]);
      EXPECT_EQ(panel.page(TABS, tab).text(RIGHT), labels[tab][2]);
    }
    auto& main = panel.page(TABS, 0);
    EXPECT_EQ(main.toolTip(LEFT), "Select executable class file");
    EXPECT_EQ(main.toolTip(MIDDLE), "Execute class file under debugger control");
    EXPECT_EQ(main.toolTip(RIGHT),
              "Execute class file; Ctrl+click, or Ctrl+Return in the field, compiles first what is not up to date");
    EXPECT_EQ(main.toolTip(FIELD), "File specification for executable class, optionally followed by runtime arguments");
    auto& applet = panel.page(TABS, 1);
    EXPECT_EQ(applet.toolTip(LEFT), "Select HTML file");
    EXPECT_EQ(applet.toolTip(MIDDLE), "Start appletviewer under debugger control");
    EXPECT_EQ(applet.toolTip(RIGHT), "Start appletviewer");
    EXPECT_EQ(applet.toolTip(FIELD), "HTML file specification");
    EXPECT_FALSE(panel.page(TABS, 2).visible(FIELD));
    EXPECT_EQ(bar(panel).text(SWITCH_VIEW), "Projectview");
    EXPECT_EQ(bar(panel).text(LAYOUT_LEFT), "==");
    EXPECT_EQ(bar(panel).text(LAYOUT_RIGHT), "------");
    exit(panel);
  });
}

TEST_F(FileViewTest, AnEmptyFieldTellsWhatToDo) {
  saveEarlierRun();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) {
    const std::string words = "Browse, or drop a file here";
    EXPECT_EQ(panel.wordsInPlace(SOURCE), words);
    for (const int tab : {0, 1}) EXPECT_EQ(panel.page(TABS, tab).wordsInPlace(FIELD), words);
    EXPECT_EQ(panel.text(SOURCE), "");
    panel.type(SOURCE, "A.java");
    EXPECT_EQ(panel.wordsInPlace(SOURCE), "");
    exit(panel);
  });
}

TEST_F(FileViewTest, EveryButtonCanBePressed) {
  saveEarlierRun();
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) {
    for (const int control : {NEW, EDIT, BROWSE, JAVAC}) EXPECT_TRUE(panel.enabled(control));
    for (const int control : {LEFT, MIDDLE, RIGHT}) {
      EXPECT_TRUE(panel.page(TABS, 0).enabled(control));
      EXPECT_TRUE(panel.page(TABS, 1).enabled(control));
      EXPECT_TRUE(panel.page(TABS, 2).enabled(control)) << control;
    }
    for (const int control : {SETTINGS, SWITCH_VIEW, EXIT, LAYOUT_LEFT, LAYOUT_RIGHT}) {
      EXPECT_TRUE(bar(panel).enabled(control));
    }
    exit(panel);
  });
}

TEST_F(FileViewTest, TheFieldsShowTheStoredFilesQuotedIfTheyHoldABlank) {
  saveEarlierRun([&](Settings& settings) {
    settings.fileviewSource.setName(userFolder() + "A.java");
    settings.fileviewClass.setName("plain.class");
    settings.fileviewTab = 1;
  });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(panel.text(SOURCE), quoted(userFolder() + "A.java"));
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "plain.class");
    EXPECT_EQ(panel.page(TABS, 1).text(FIELD), "");
    EXPECT_EQ(panel.selection(TABS), 1);
    exit(panel);
  });
}

TEST_F(FileViewTest, ATabThatIsNotThereOpensTheFirst) {
  for (const int tab : {7, 3, -1}) {
    saveEarlierRun([tab](Settings& settings) { settings.fileviewTab = tab; });
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      EXPECT_EQ(panel.selection(TABS), 0) << tab;
      panel.page(TABS, 0);
      exit(panel);
    });
  }
}

TEST_F(FileViewTest, TheOpenTabIsSavedAtOnceAndOpensAtTheNextStart) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    panel.choose(TABS, 2);
    EXPECT_EQ(settings().fileviewTab, 2);
    EXPECT_EQ(saved("FILEVIEW_TAB"), "2");
    main.closeBox();
  });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(panel.selection(TABS), 2);
    exit(panel);
  });
}

TEST_F(FileViewTest, ACleanCompileSoundsTheAsteriskAndShowsNoLog) {
  // An editor that can't be started would be told.
  saveEarlierRun([this](Settings& settings) {
    settings.displayWithNotepad = settings.editWithNotepad = false;
    settings.editorTarget = scratch_.file("no editor");
  });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk}));
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder());
  EXPECT_EQ(saved("FILEVIEW_CLASS"), ";" + userFolder()) << "the class field's dialog opens in the same folder";
}

TEST_F(FileViewTest, SoundsCanBeSwitchedOff) {
  saveEarlierRun([](Settings& settings) { settings.javacSoundOnSuccess = false; });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
}

TEST_F(FileViewTest, AnythingTheCompilerWritesSoundsTheExclamationAndShowsTheLog) {
  for (const int sound : {1, 0}) {
    saveEarlierRun([&](Settings& earlier) {
      earlier.javacSoundOnError = sound;
      // The stand-in plays the user's editor.
      earlier.displayWithNotepad = false;
      earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
    });
    const std::string source = makeFile("A.java");
    writeFile(scratch_.file("script"), "err A.java:1: warning: deprecated\n");
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.type(SOURCE, quoted(source));
      panel.press(JAVAC);
      exit(panel);
    });
    const std::string recorded = recordedUpTo(log_.path());
    EXPECT_NE(recorded.find(log_.path()), std::string::npos) << recorded;
    EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Exclamation})) << "only of the first run";
    platform::deleteFile(scratch_.file("record"));
  }
}

TEST_F(FileViewTest, WhoHasLeftMeanwhileIsShownNoLog) {
  saveEarlierRun([this](Settings& earlier) {
    earlier.displayWithNotepad = false;
    earlier.editorTarget = scratch_.file("no editor");  // which would be told
  });
  const std::string source = makeFile("A.java");
  writeFile(scratch_.file("script"), "err A.java:1: warning: deprecated\n");
  desktop_.left = true;
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_NE(contentOf(log_.path()).find("deprecated"), std::string::npos);
}

TEST_F(FileViewTest, AnUnknownToolsFolderIsAskedForAndThenTold) {
  saveEarlierRun([](Settings& earlier) { earlier.javaPath.clear(); });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    desktop_.expectMessage(said("No path to javac.exe and other tools available from settings",
                                "No path to javac and other tools available from settings"));
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder()) << "the bookkeeping still runs";
}

TEST_F(FileViewTest, AToolsFolderFromTheSettingsDialogIsUsedAtOnceAndItsClasspathFromTheNextCommandOn) {
  saveEarlierRun([](Settings& earlier) {
    earlier.javaPath.clear();
    earlier.classpath = "before";
  });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      window.page(1092, 0).type(1041, standInFolder());
      window.page(1092, 6).type(1029, "after");
      window.press(IDOK_CONTROL);
    });
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_NE(contentOf(scratch_.file("record")).find("\n-classpath\nbefore\n"), std::string::npos)
      << contentOf(scratch_.file("record"));
  EXPECT_TRUE(settings().classpath.ends_with("after")) << settings().classpath;
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk}));
}

TEST_F(FileViewTest, BlanksBehindANameAreNoPartOfIt) {
  saveEarlierRun();
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "  " + quoted(source) + "   ");
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk}));
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder());
}

TEST_F(FileViewTest, ANameThatBeginsWithAMinusIsNoOption) {
  saveEarlierRun();
  makeFile("-A.java");
  platform::changeDirectory(userFolder());
  const std::string whole = Filename(platform::currentDirectory(), "-A.java").fullName();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "-A.java");
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_NE(contentOf(scratch_.file("record")).find("\n" + whole + "\n"), std::string::npos);
}

TEST_F(FileViewTest, TheUtilitiesTabMayBeTheOneThatOpens) {
  saveEarlierRun([](Settings& earlier) { earlier.fileviewTab = 2; });
  runPanel([](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(panel.selection(TABS), 2);
    EXPECT_FALSE(panel.page(TABS, 2).visible(FIELD));
    exit(panel);
  });
}

TEST_F(FileViewTest, NoSourceGivenIsTold) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No .java file known.");
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.lastRequest().filter, "Java source files|*.JAVA||");
  EXPECT_EQ(desktop_.lastRequest().startFolder, platform::startFolder("C:\\"));
  EXPECT_EQ(desktop_.lastRequest().name, "*.JAVA") << "the filter's pattern is the preset name";
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
}

TEST_F(FileViewTest, AFileThatNoLongerExistsAsksInTheLastFolder) {
  saveEarlierRun([&](Settings& settings) { settings.fileviewSource.setLastFolder(userFolder()); });
  const std::string source = makeFile("There.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(userFolder() + "Gone.java") + " one two");
    desktop_.expectOpenFile(source);
    panel.press(JAVAC);
    EXPECT_EQ(panel.text(SOURCE), quoted(source));
    exit(panel);
  });
  EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
}

TEST_F(FileViewTest, NoJdkAtThePathIsTold) {
  saveEarlierRun([&](Settings& settings) { settings.javaPath = userFolder(); });
  const std::string source = makeFile("A.java");
  const std::string javac = userFolder() + platform::toolFileName("javac");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectMessage("Can't access compiler " + javac +
                           "\nNo such file or directory"
                           "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder()) << "the bookkeeping still runs";
}

TEST_F(FileViewTest, BrowseTakesTheChosenFile) {
  saveEarlierRun();
  const std::string chosen = makeFile("B.class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    auto& main = panel.page(TABS, 0);
    desktop_.expectOpenFile(std::nullopt);
    main.press(LEFT);
    EXPECT_EQ(main.text(FIELD), "");
    desktop_.expectOpenFile(chosen);
    main.press(LEFT);
    EXPECT_EQ(main.text(FIELD), quoted(chosen));
    EXPECT_EQ(desktop_.lastRequest().filter, "Java class files|*.CLASS||");
    panel.choose(TABS, 1);
    desktop_.expectOpenFile(std::nullopt);
    panel.page(TABS, 1).press(LEFT);
    EXPECT_EQ(desktop_.lastRequest().filter, "htm* files|*.htm*||");
    exit(panel);
  });
}

TEST_F(FileViewTest, BrowseStartsWhereTheFileLies) {
  saveEarlierRun();
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectOpenFile(std::nullopt);
    panel.press(BROWSE);
    exit(panel);
  });
  EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
}

TEST_F(FileViewTest, CancelInTheFileDialogOfJavaIsTold) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No known .class file");
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
}

TEST_F(FileViewTest, JavaStartsTheProgramAgainWithTheClass) {
  saveEarlierRun();
  // The stand-in plays the second copy of the program.
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  const std::string classFile = makeFile("Main.class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, quoted(classFile) + " first second");
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("second");
  for (const std::string& word : {std::string("\\/TITLE=Main\\/"), std::string("\\/RUN="), std::string("second")}) {
    EXPECT_NE(recorded.find(word), std::string::npos) << recorded;
  }
  EXPECT_EQ(saved("FILEVIEW_CLASS"), classFile + ";" + userFolder());
  EXPECT_EQ(settings().fileviewHtml.lastFolder(), userFolder()) << "the HTML field's dialog opens there too";
}

TEST_F(FileViewTest, TheArgumentsBehindAClassThatNoLongerExistsAreKept) {
  saveEarlierRun();
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  const std::string classFile = makeFile("Main.class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, quoted(userFolder() + "Gone.class") + " first second");
    desktop_.expectOpenFile(classFile);
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
  std::string recorded = recordedUpTo("second");
  // As one argument, or as the words of one command line.
  std::replace(recorded.begin(), recorded.end(), '\n', ' ');
  EXPECT_NE(recorded.find("Main first second"), std::string::npos) << recorded;
}

TEST_F(FileViewTest, ANameWithoutItsWholePathStaysTheSameFileAfterARun) {
  saveEarlierRun();
  makeFile("A.java");
  platform::changeDirectory(scratch_.path());
  const std::string relative = "us er" + std::string(1, platform::folderSeparator) + "A.java";
  const std::string whole = Filename(platform::currentDirectory(), relative).fullName();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(relative) + " one");
    panel.press(JAVAC);
    EXPECT_EQ(panel.text(SOURCE), quoted(whole) + " one");
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts().size(), 2U);
  const std::string recorded = contentOf(scratch_.file("record"));
  const auto first = recorded.find(whole);
  ASSERT_NE(first, std::string::npos) << recorded;
  EXPECT_NE(recorded.find(whole, first + 1), std::string::npos) << recorded;
}

TEST_F(FileViewTest, TheFileDialogIsGivenAWholePath) {
  saveEarlierRun();
  makeFile("A.java");
  platform::changeDirectory(scratch_.path());
  const std::string whole = Filename(platform::currentDirectory(), "us er").fullName();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted("us er"));
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No .java file known.");
    panel.press(JAVAC);
    EXPECT_EQ(desktop_.lastRequest().startFolder, whole);
    // The search for a folder has entered it.
    panel.type(SOURCE, "A.java");
    desktop_.expectOpenFile(std::nullopt);
    panel.press(BROWSE);
    EXPECT_EQ(desktop_.lastRequest().startFolder, whole + platform::folderSeparator);
    exit(panel);
  });
}

TEST_F(FileViewTest, ALogThatCannotBeMadeIsNoSuccess) {
  saveEarlierRun();
  const std::string source = makeFile("A.java");
  writeFile(scratch_.file("script"), "err A.java:1: error\n");
  ToolLog nowhere(scratch_.file("gone") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, nowhere);
  Settings settings(context);
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    auto& panel = main.child(FILE_VIEW_SLOT);
    panel.type(SOURCE, quoted(source));
    desktop_.expectMessage("No such file or directory\nCan't open log file " + scratch_.file("gone") +
                           platform::folderSeparator + "Tarnwick_LOG1.tmp");
    panel.press(JAVAC);
    exit(panel);
  });
  TarnwickDlg(settings).runModal();
  EXPECT_TRUE(desktop_.alerts().empty()) << "what the compiler said is not known";
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder()) << "the bookkeeping still runs";
}

TEST_F(FileViewTest, ACompilerThatCannotBeStartedIsTold) {
  const BrokenTool javac(scratch_.file("broken") + platform::folderSeparator, "javac");
  saveEarlierRun([&](Settings& earlier) { earlier.javaPath = javac.folder(); });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectMessage(javac.words());
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk})) << "nothing was said";
}

TEST_F(FileViewTest, ALogThatCannotBeShownIsTold) {
  const std::string editor = scratch_.file("no editor");
  saveEarlierRun([&](Settings& earlier) {
    earlier.displayWithNotepad = earlier.editWithNotepad = false;
    earlier.editorTarget = editor;
  });
  const std::string source = makeFile("A.java");
  writeFile(scratch_.file("script"), "err A.java:1: error\n");
  const std::string reason = "No such file or directory";
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectMessage("Unable to start " + editor + " for log file display.\n\n" + reason + '\n' + reason);
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Exclamation}));
}

TEST_F(FileViewTest, SettingsOpenFromTheBar) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    bar(panel).press(SETTINGS);
    exit(panel);
  });
}

TEST_F(FileViewTest, EditOpensTheSourceInTheUsersEditor) {
  saveEarlierRun([](Settings& earlier) { earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc"); });
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source) + " ignored");
    panel.press(EDIT);
    EXPECT_EQ(recordedUpTo(source + "\n"), source + "\n");
    exit(panel);
  });
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder());
  EXPECT_EQ(saved("FILEVIEW_CLASS"), ";" + userFolder());
}

TEST_F(FileViewTest, EditAfterCancelOpensTheEditorWithNothing) {
  saveEarlierRun([](Settings& earlier) { earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc"); });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(userFolder() + "gone.java"));
    desktop_.expectOpenFile(std::nullopt);
    panel.press(EDIT);
    EXPECT_EQ(desktop_.lastRequest().filter, "Java source files|*.JAVA||");
    for (int tries = 0; tries < 100 && !platform::isFile(scratch_.file("record")); ++tries)
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(contentOf(scratch_.file("record")), "");
    exit(panel);
  });
}

TEST_F(FileViewTest, EditWithoutAnEditorAsksForOneInTheSettings) {
  saveEarlierRun();
  const std::string source = makeFile("A.java");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(source));
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    panel.press(EDIT);
    EXPECT_FALSE(platform::isFile(scratch_.file("record")));
    exit(panel);
  });
  EXPECT_EQ(saved("FILEVIEW_SOURCE"), source + ";" + userFolder()) << "the bookkeeping still runs";
}

TEST_F(FileViewTest, JdbStartsTheProgramAgainForDebugging) {
  saveEarlierRun();
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  const std::string classFile = makeFile("Main.class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, quoted(classFile) + " first");
    panel.page(TABS, 0).press(MIDDLE);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("first");
  for (const std::string word : {"\\/TITLE=Main\\/", "\\/JDEBUG\\/\n\\/RUN=\n", "-launch\nMain\nfirst\n"}) {
    EXPECT_NE(recorded.find(word), std::string::npos) << recorded;
  }
  EXPECT_NE(recorded.find(platform::toolFileName("jdb") + "\\/"), std::string::npos) << recorded;
  EXPECT_EQ(settings().fileviewHtml.lastFolder(), userFolder());
}

TEST_F(FileViewTest, NoClassForJdbIsTold) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No known .class file");
    panel.page(TABS, 0).press(MIDDLE);
    exit(panel);
  });
}

TEST_F(FileViewTest, AppletviewerRunsOnTheBareNameAndShowsWhatItSaid) {
  saveEarlierRun([](Settings& earlier) {
    earlier.fileviewTab = 1;
    earlier.displayWithNotepad = false;
    earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
  });
  const std::string page = makeFile("my page.html");
  writeFile(scratch_.file("script"), "err applet not initialised\n");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 1).type(FIELD, quoted(page) + " -x");
    panel.page(TABS, 1).press(RIGHT);
    exit(panel);
  });
  EXPECT_EQ(recordedUpTo(log_.path() + "\n"), "my page.html\n-x\n" + log_.path() + "\n");
  EXPECT_EQ(saved("FILEVIEW_HTML"), page + ";" + userFolder());
  EXPECT_TRUE(desktop_.alerts().empty()) << "only the compiler sounds";
}

TEST_F(FileViewTest, AppletdebugStartsTheProgramAgain) {
  saveEarlierRun([](Settings& earlier) { earlier.fileviewTab = 1; });
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  const std::string page = makeFile("page.html");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 1).type(FIELD, quoted(page));
    panel.page(TABS, 1).press(MIDDLE);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("page.html\n");
  EXPECT_NE(recorded.find("\\/JDEBUG\\/\n\\/RUN=\n-debug\npage.html\n"), std::string::npos) << recorded;
}

TEST_F(FileViewTest, NoHtmlFileIsTold) {
  saveEarlierRun([](Settings& earlier) { earlier.fileviewTab = 1; });
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    for (const int button : {MIDDLE, RIGHT}) {
      desktop_.expectOpenFile(std::nullopt);
      desktop_.expectHint("no htm* file known");
      panel.page(TABS, 1).press(button);
    }
    EXPECT_EQ(desktop_.lastRequest().filter, "htm* files|*.htm*||");
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
