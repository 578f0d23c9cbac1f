// The buttons beside the fields of the dialog "javadoc".
#include "JavadocFixture.h"
#include "NarrowWindow.h"

namespace tarnwick::test {
namespace {

using P = JavadocPaths;
using D = DocletPaths;

class JavadocBrowseTest : public JavadocDlgFixture {
 protected:
  static std::string home() { return platform::startFolder("C:\\"); }
  /// A path without blanks.
  static std::string plain(const std::string& name) { return std::string("plain") + platform::folderSeparator + name; }
  std::string userNoSlash() const { return scratch_.file("us er"); }

  /// Presses a button whose file dialog is cancelled: where it began, and what else it was asked.
  void expectAsked(ScriptedWindow& window, int button, const std::string& filter, const std::string& preset,
                   const std::string& folder) {
    desktop_.expectOpenFile(std::nullopt);
    window.press(button);
    EXPECT_EQ(desktop_.lastRequest().filter, filter);
    EXPECT_EQ(desktop_.lastRequest().name, preset);
    EXPECT_EQ(desktop_.lastRequest().startFolder, folder);
    EXPECT_TRUE(desktop_.lastRequest().mustExist);
  }
  void expectBegins(ScriptedWindow& window, int button, const std::string& folder) {
    desktop_.expectOpenFile(std::nullopt);
    window.press(button);
    EXPECT_EQ(desktop_.lastRequest().startFolder, folder);
  }
  void choose(ScriptedWindow& window, int button, const std::string& file) {
    desktop_.expectOpenFile(file);
    window.press(button);
  }
};

// Source files

TEST_F(JavadocBrowseTest, ChosenSourcesAreAppendedInQuotes) {
  on(JAVADOC_SOURCES_PAGE, [this](ScriptedWindow& files) {
    desktop_.expectOpenFiles({userFolder() + "D.java", sources() + "B.java"});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().filter, "Java source files|*.java||");
    EXPECT_EQ(desktop_.lastRequest().name, "*.java");
    std::string list = quoted(userFolder() + "D.java") + " " + quoted(sources() + "B.java") + " ";
    EXPECT_EQ(files.text(JavadocSources::FILES), list);
    EXPECT_TRUE(files.showsEnd(JavadocSources::FILES));
    desktop_.expectOpenFiles({sources() + "C.java"});
    files.press(JavadocSources::ADD_FILES);
    list += quoted(sources() + "C.java") + " ";
    EXPECT_EQ(files.text(JavadocSources::FILES), list);
    desktop_.expectOpenFiles({});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(files.text(JavadocSources::FILES), list) << "Cancel";
    files.press(JavadocSources::CLEAR_FILES);
    EXPECT_EQ(files.text(JavadocSources::FILES), "");
  });
}

TEST_F(JavadocBrowseTest, WhatIsTypedStaysApartFromWhatIsChosen) {
  on(JAVADOC_SOURCES_PAGE, [this](ScriptedWindow& files) {
    files.type(JavadocSources::FILES, "a.java");
    desktop_.expectOpenFiles({sources() + "B.java"});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(files.text(JavadocSources::FILES), "a.java " + quoted(sources() + "B.java") + " ");
  });
}

TEST_F(JavadocBrowseTest, ANameThatTheListCanNotHoldIsToldAndTheOthersGoIn) {
  const std::string odd = sources() + "a \"b\".java";
  on(JAVADOC_SOURCES_PAGE, [&](ScriptedWindow& files) {
    desktop_.expectOpenFiles({odd, sources() + "B.java"});
    desktop_.expectMessage("Can't add " + odd + "\nIts name holds both a blank and a double quote.");
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(files.text(JavadocSources::FILES), quoted(sources() + "B.java") + " ");
  });
}

TEST_F(JavadocBrowseTest, FilesThatTheFieldDoesNotTakeAreToldAndLeaveTheList) {
  std::string files = "B.java ";
  JavadocSourcesPage sourcesPage(desktop_, settings(), files, "");
  NarrowWindow window(javadocSourcesLayout(), sourcesPage);
  sourcesPage.initialise(window);
  const std::string name(20, 'x');
  for (const bool fits : {true, false}) {
    desktop_.expectOpenFiles(std::vector<std::string>(fits ? 1 : 2, name));
    if (!fits)
      desktop_.expectMessage(
          "Can't add these files: the list would have 76 characters, which is more than its field takes.");
    window.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(window.text(JavadocSources::FILES), "B.java \"" + name + "\" ");
  }
}

TEST_F(JavadocBrowseTest, SourcesAreLookedForWhereTheLastOneWas) {
  on(JAVADOC_SOURCES_PAGE, [this](ScriptedWindow& files) {
    desktop_.expectOpenFiles({userFolder() + "D.java", sources() + "B.java"});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().startFolder, platform::startFolder("C:"));
    desktop_.expectOpenFiles({});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().startFolder, sources());
  });
}

TEST_F(JavadocBrowseTest, WithAProjectSourcesAreLookedForInItsFolder) {
  open("");
  const std::string shortLived = scratch_.file("short lived");
  platform::makeFolders(shortLived);
  on(JAVADOC_SOURCES_PAGE, [&](ScriptedWindow& files) {
    desktop_.expectOpenFiles({shortLived + platform::folderSeparator + "X.java"});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().startFolder, folder());
    desktop_.expectOpenFiles({});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().startFolder, shortLived + platform::folderSeparator) << "the last one's wins";
    removeTree(shortLived);
    desktop_.expectOpenFiles({});
    files.press(JavadocSources::ADD_FILES);
    EXPECT_EQ(desktop_.lastRequest().startFolder, folder()) << "a folder that has gone";
  });
}

// Paths

TEST_F(JavadocBrowseTest, EachPathIsAddedToAndCleared) {
  const struct {
    int field, add, clear;
    const char* name;
  } table[] = {{P::SOURCEPATH, P::ADD_TO_SOURCEPATH, P::CLEAR_SOURCEPATH, "sourcepath"},
               {P::CLASSPATH, P::ADD_TO_CLASSPATH, P::CLEAR_CLASSPATH, "classpath"},
               {P::BOOTCLASSPATH, P::ADD_TO_BOOTCLASSPATH, P::CLEAR_BOOTCLASSPATH, "bootclasspath"},
               {P::EXTDIRS, P::ADD_TO_EXTDIRS, P::CLEAR_EXTDIRS, "extdirs"}};
  on(JAVADOC_PATHS_PAGE, [&](ScriptedWindow& paths) {
    for (const auto& row : table) {
      paths.type(row.field, "old");
      desktop_.expectDialog("Add components to a path", [&](ScriptedWindow& add) {
        EXPECT_EQ(add.text(1169), "old");
        EXPECT_EQ(add.text(1170), row.name);
        desktop_.expectBrowseFolder(userNoSlash());
        add.press(1171);
      });
      paths.press(row.add);
      EXPECT_EQ(paths.text(row.field), "old;" + quoted(userNoSlash()));
      EXPECT_TRUE(paths.showsEnd(row.field));
      paths.press(row.clear);
      EXPECT_EQ(paths.text(row.field), "");
    }
  });
}

TEST_F(JavadocBrowseTest, TheOverviewGoesInUnquoted) {
  on(JAVADOC_PATHS_PAGE, [this](ScriptedWindow& paths) {
    expectAsked(paths, P::BROWSE_OVERVIEW, "html files|*.htm*||", "*.htm*", home());
    EXPECT_EQ(paths.text(P::OVERVIEW), "");
    choose(paths, P::BROWSE_OVERVIEW, userFolder() + "o.html");
    EXPECT_EQ(paths.text(P::OVERVIEW), userFolder() + "o.html");
    expectBegins(paths, P::BROWSE_OVERVIEW, userFolder());
  });
}

TEST_F(JavadocBrowseTest, TheFolderOfTheDoclet) {
  on(JAVADOC_PATHS_PAGE, [this](ScriptedWindow& paths) {
    paths.type(P::DOCLET_PATH, "old");
    desktop_.expectBrowseFolder(std::nullopt);
    paths.press(P::BROWSE_DOCLET_PATH);
    EXPECT_EQ(paths.text(P::DOCLET_PATH), "old");
    desktop_.expectBrowseFolder(userNoSlash());
    paths.press(P::BROWSE_DOCLET_PATH);
    EXPECT_EQ(paths.text(P::DOCLET_PATH), quoted(userNoSlash()));
    EXPECT_EQ(desktop_.lastRoot(), "") << "all folders";
  });
}

TEST_F(JavadocBrowseTest, TheClassOfTheDocletFillsItsFolderToo) {
  settings().javadoc.docletPath = sources();
  on(JAVADOC_PATHS_PAGE, [this](ScriptedWindow& paths) {
    expectAsked(paths, P::BROWSE_DOCLET_FILE, "doclet class file|*.class||", "*.class", sources());
    choose(paths, P::BROWSE_DOCLET_FILE, userFolder() + "My Doclet.class");
    EXPECT_EQ(paths.text(P::DOCLET_PATH), quoted(userNoSlash())) << "no separator before the closing quote";
    EXPECT_EQ(paths.text(P::DOCLET_FILE), "\"My Doclet.class\"");
    expectBegins(paths, P::BROWSE_DOCLET_FILE, userNoSlash());
    choose(paths, P::BROWSE_DOCLET_FILE, plain("Plain.class"));
    EXPECT_EQ(paths.text(P::DOCLET_PATH), "plain");
    EXPECT_EQ(paths.text(P::DOCLET_FILE), "Plain.class");
    paths.type(P::DOCLET_PATH, "");
    expectBegins(paths, P::BROWSE_DOCLET_FILE, sources());
  });
}

TEST_F(JavadocBrowseTest, AFolderThatHasGoneIsNoPlaceToBeginIn) {
  on(JAVADOC_PATHS_PAGE, [this](ScriptedWindow& paths) {
    paths.type(P::DOCLET_PATH, scratch_.file("no such folder"));
    expectBegins(paths, P::BROWSE_DOCLET_FILE, scratch_.path());
    paths.type(P::DOCLET_PATH, scratch_.file("no such folder") + platform::folderSeparator + "x");
    expectBegins(paths, P::BROWSE_DOCLET_FILE, home());
  });
}

// Doclet files and paths

TEST_F(JavadocBrowseTest, TheDestinationIsAFolder) {
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    desktop_.expectBrowseFolder(std::nullopt);
    doclet.press(D::BROWSE_DESTINATION);
    EXPECT_EQ(doclet.text(D::DESTINATION), "");
    desktop_.expectBrowseFolder(userNoSlash());
    doclet.press(D::BROWSE_DESTINATION);
    EXPECT_EQ(doclet.text(D::DESTINATION), quoted(userNoSlash()));
    EXPECT_TRUE(doclet.showsEnd(D::DESTINATION));
    EXPECT_EQ(desktop_.lastRoot(), "") << "all folders";
  });
}

TEST_F(JavadocBrowseTest, HelpFileAndStyleSheetGoInQuoted) {
  settings().javadoc.styleSheet = sources() + "style.css";
  const struct {
    int field, button;
    const char* filter;
    const char* preset;
  } table[] = {{D::HELP_FILE, D::BROWSE_HELP_FILE, "html files|*.htm*||", "*.htm*"},
               {D::STYLE_SHEET, D::BROWSE_STYLE_SHEET, "css style sheet file|*.css||", "*.css"}};
  on(DOCLET_PATHS_PAGE, [&](ScriptedWindow& doclet) {
    for (const auto& row : table) {
      doclet.type(row.field, "");
      expectAsked(doclet, row.button, row.filter, row.preset, sources());
      EXPECT_EQ(doclet.text(row.field), "");
      choose(doclet, row.button, userFolder() + "x.y");
      EXPECT_EQ(doclet.text(row.field), quoted(userFolder() + "x.y"));
      expectBegins(doclet, row.button, userFolder());
      choose(doclet, row.button, plain("x.y"));
      EXPECT_EQ(doclet.text(row.field), plain("x.y"));
    }
  });
}

TEST_F(JavadocBrowseTest, ATagletIsNamedByItsClassAndItsFolderJoinsThePath) {
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    expectAsked(doclet, D::ADD_TAGLET, "taglet class file|*.class||", "*.class", home());
    choose(doclet, D::ADD_TAGLET, userFolder() + "One.class");
    EXPECT_EQ(doclet.text(D::TAGLET), "One");
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), quoted(userNoSlash()));
    expectBegins(doclet, D::ADD_TAGLET, userNoSlash());
    choose(doclet, D::ADD_TAGLET, sources() + "Two.class");
    EXPECT_EQ(doclet.text(D::TAGLET), "One;Two");
    const std::string both = quoted(userNoSlash()) + ";" + quoted(scratch_.file("sources"));
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), both);
    expectBegins(doclet, D::ADD_TAGLET, scratch_.file("sources"));
    choose(doclet, D::ADD_TAGLET, userFolder() + "Three.class");
    EXPECT_EQ(doclet.text(D::TAGLET), "One;Two;Three");
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), both) << "it is there already";
    doclet.press(D::CLEAR_TAGLET);
    EXPECT_EQ(doclet.text(D::TAGLET), "");
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), both);
    doclet.press(D::CLEAR_TAGLET_PATH);
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), "");
  });
}

TEST_F(JavadocBrowseTest, TheSavedTagletPathTellsOnlyWhereToBegin) {
  settings().javadoc.tagletPath = "x;" + quoted(userNoSlash());
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    doclet.press(D::CLEAR_TAGLET_PATH);
    expectBegins(doclet, D::ADD_TAGLET, userNoSlash());
    choose(doclet, D::ADD_TAGLET, userFolder() + "One.class");
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), quoted(userNoSlash()));
  });
}

TEST_F(JavadocBrowseTest, ATagletsFolderIsKnownAsTheSystemComparesNames) {
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    std::string other = scratch_.file("sources");
    other.replace(other.size() - 7, 7, "SOURCES");
    doclet.type(D::TAGLET_PATH, other);
    choose(doclet, D::ADD_TAGLET, sources() + "One.class");
    const bool same = platform::sameFileName(other, scratch_.file("sources"));
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), same ? other : other + ";" + quoted(scratch_.file("sources")));
  });
}

TEST_F(JavadocBrowseTest, ATagletIsAddedToAMalformedListToo) {
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    doclet.type(D::TAGLET, "odd]");
    choose(doclet, D::ADD_TAGLET, sources() + "One.class");
    EXPECT_EQ(doclet.text(D::TAGLET), "odd];One");
  });
}

TEST_F(JavadocBrowseTest, AFolderIsAddedToTheTagletPath) {
  on(DOCLET_PATHS_PAGE, [this](ScriptedWindow& doclet) {
    for (const char* expected : {"", "x;"}) {
      doclet.type(D::TAGLET_PATH, *expected ? "x" : "");
      desktop_.expectBrowseFolder(userNoSlash());
      doclet.press(D::ADD_TO_TAGLET_PATH);
      EXPECT_EQ(doclet.text(D::TAGLET_PATH), expected + quoted(userNoSlash()));
    }
    desktop_.expectBrowseFolder(std::nullopt);
    doclet.press(D::ADD_TO_TAGLET_PATH);
    EXPECT_EQ(doclet.text(D::TAGLET_PATH), "x;" + quoted(userNoSlash()));
    EXPECT_EQ(desktop_.lastRoot(), "") << "all folders";
  });
}

}  // namespace
}  // namespace tarnwick::test
