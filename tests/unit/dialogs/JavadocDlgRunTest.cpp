// What "Run javadoc" does before the dialog closes.
#include "JavadocFixture.h"
#include "platform/Folders.h"

namespace tarnwick::test {
namespace {

class JavadocDlgRunTest : public JavadocDlgFixture {
 protected:
  const std::string inPackage_ = std::string("p") + platform::folderSeparator + "A.java";
};

TEST_F(JavadocDlgRunTest, TheFilesGoIntoAList) {
  EXPECT_EQ(handedOn("B.java \"C.java\" " + inPackage_), "B.java\nC.java\n" + inPackage_ + "\n");
  EXPECT_EQ(dialog_->run().listFile, listFile());
  EXPECT_EQ(dialog_->run().packageText, "");
  EXPECT_EQ(dialog_->inputFiles(), "B.java \"C.java\" " + inPackage_);
  dialog_.reset();
  EXPECT_FALSE(platform::isFile(listFile()));
}

TEST_F(JavadocDlgRunTest, TheListShowsItsFilesAgain) {
  run(
      [](ScriptedWindow& window) {
        EXPECT_EQ(page(window, JAVADOC_SOURCES_PAGE).text(JavadocSources::FILES), "\"B.java\" ");
        EXPECT_TRUE(page(window, JAVADOC_SOURCES_PAGE).showsEnd(JavadocSources::FILES));
        window.press(Javadoc::CANCEL);
      },
      "\"B.java\" ");
}

TEST_F(JavadocDlgRunTest, BlanksBeforeTheFilesAreDropped) {
  handedOn("   B.java ");
  EXPECT_EQ(dialog_->inputFiles(), "B.java ");
}

TEST_F(JavadocDlgRunTest, WithoutFilesTheDialogEndsAsByCancel) {
  for (const char* files : {"", "   "}) {
    EXPECT_EQ(run([this, files](ScriptedWindow& window) {
                typeFiles(window, files);
                desktop_.expectHint("No input files for javadoc selected.");
                window.press(Javadoc::RUN);
              }),
              DIALOG_CANCEL);
    EXPECT_FALSE(platform::isFile(listFile()));
  }
}

TEST_F(JavadocDlgRunTest, APackageListAloneIsNotEnough) {
  EXPECT_EQ(run([this](ScriptedWindow& window) {
              page(window, JAVADOC_SOURCES_PAGE).type(JavadocSources::PACKAGES, "p.one p.two");
              desktop_.expectHint("No input files for javadoc selected.");
              window.press(Javadoc::RUN);
            }),
            DIALOG_CANCEL);
  EXPECT_EQ(valueIn(configFile(), "JDOC_PACKAGELIST"), "p.one p.two") << "the settings are saved before";
}

TEST_F(JavadocDlgRunTest, TheOptionsAreSavedInTheDefaultConfiguration) {
  open("");
  const std::string project = contentOf(projectFile());
  change([](ScriptedWindow& window) { page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::WINDOW_TITLE, "mine"); });
  EXPECT_EQ(valueIn(configFile(), "JDOC_WINDOWTITLE"), "mine");
  EXPECT_EQ(contentOf(projectFile()), project) << "until its next save";
}

TEST_F(JavadocDlgRunTest, ANameWithABlankTakesAllAnotherWay) {
  writeFile(sources() + "two words.java", "");
  EXPECT_EQ(handedOn("B.java \"two words.java\" C.java"), "text: B.java\t\"two words.java\"\tC.java\t");
  EXPECT_EQ(handedOn("\"two words.java\""), "text: \"two words.java\"\t");
}

TEST_F(JavadocDlgRunTest, AnOpenQuoteTakesTheRestAsOneName) {
  EXPECT_EQ(handedOn("B.java \"C.java B.java"), "text: B.java\t\"C.java B.java\"\t");
}

TEST_F(JavadocDlgRunTest, NamesThatAnArgumentFileWouldChangeGoTheOtherWay) {
  for (const char* name : {"it's.java", "#C.java"}) {
    writeFile(sources() + name, "");
    EXPECT_EQ(handedOn(std::string("B.java ") + name), std::string("text: B.java\t") + name + "\t");
  }
}

TEST_F(JavadocDlgRunTest, AFileThatExistsNowhereGoesTheOtherWay) {
  EXPECT_EQ(handedOn("B.java gone.java C.java"), "text: B.java\tgone.java\tC.java\t");
  EXPECT_EQ(handedOn("gone.java", scratch_.file("no such folder")), "text: gone.java\t");
}

TEST_F(JavadocDlgRunTest, AFolderIsNoFile) {
  EXPECT_EQ(handedOn("p"), "text: p\t");
}

TEST_F(JavadocDlgRunTest, ANameSeenFromTheSourcePathIsWrittenAsGiven) {
  platform::changeDirectory(scratch_.path());
  EXPECT_EQ(handedOn("B.java " + inPackage_, sources()), "B.java\n" + inPackage_ + "\n");
  EXPECT_EQ(platform::currentDirectory(), platform::resolvedPath(scratch_.file("sources")));
}

TEST_F(JavadocDlgRunTest, ASourcePathInQuotesServesToo) {
  platform::changeDirectory(scratch_.path());
  EXPECT_EQ(handedOn("D.java", quoted(userFolder())), "D.java\n");
  EXPECT_EQ(platform::currentDirectory(), platform::resolvedPath(scratch_.file("us er")));
}

TEST_F(JavadocDlgRunTest, AFileThatIsThereLeavesTheFolder) {
  const std::string before = platform::currentDirectory();
  EXPECT_EQ(handedOn("B.java", userFolder()), "B.java\n");
  EXPECT_EQ(platform::currentDirectory(), before);
}

TEST_F(JavadocDlgRunTest, AFileThatLooksLikeAnOptionIsNamedByWayOfItsFolder) {
  for (const char* name : {"-x.java", "@y.java"}) writeFile(sources() + name, "");
  const std::string here = std::string(".") + platform::folderSeparator;
  EXPECT_EQ(handedOn("-x.java @y.java"), here + "-x.java\n" + here + "@y.java\n");
  EXPECT_EQ(handedOn("-x.java -quiet @none"), "text: " + here + "-x.java\t-quiet\t@none\t");
}

TEST_F(JavadocDlgRunTest, MarksStandForNamesAsTheSystemFillsThemIn) {
  const std::string words = "*.java\t";
  EXPECT_EQ(handedOn("*.java"), "text: " + platform::withNamesFilledIn(words));
  if (platform::folderSeparator == '/') {
    EXPECT_EQ(handedOn("*.java"), "text: B.java C.java\t");
    writeFile(sources() + "?.java", "");
    EXPECT_EQ(handedOn("?.java gone.java"), "text: \"?.java\"\tgone.java\t") << "a file of that name means itself";
  }
}

TEST_F(JavadocDlgRunTest, AListThatCanNotBeOpenedLeavesTheDialogOpen) {
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              typeFiles(window, "B.java");
              page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::HEADER, "kept");
              // A file in the place of the configuration folder.
              removeTree(configFolder());
              writeFile(scratch_.file("con fig"), "");
              const std::string reason = refusal(configFile(), FileMode::Write);
              desktop_.expectDialog(reason, [](ScriptedWindow& elsewhere) { elsewhere.press(IDCANCEL_CONTROL); });
              desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
              desktop_.expectMessage(refusal(listFile(), FileMode::Write) + "\nCan't open list file " + listFile());
              window.press(Javadoc::RUN);
              EXPECT_FALSE(window.closed());
              EXPECT_EQ(page(window, DOCLET_OPTIONS_PAGE).text(DocletOptions::HEADER), "kept");
              EXPECT_EQ(page(window, JAVADOC_SOURCES_PAGE).text(JavadocSources::FILES), "B.java");
              platform::deleteFile(scratch_.file("con fig"));
              window.press(Javadoc::RUN);
            }),
            DIALOG_OK);
  EXPECT_EQ(dialog_->run().packageText, "") << "the text of the failed attempt is forgotten";
  EXPECT_EQ(linesOf(dialog_->run().listFile), "B.java\n");
}

TEST_F(JavadocDlgRunTest, ACommandLineThatIsTooLongIsToldBeforeTheRun) {
  const std::size_t most = platform::longestCommandLine();
  // Names that need the command line: they are nowhere.
  const std::string name(199, 'x');
  std::string files;
  std::size_t words = 0;
  for (; words * (name.size() + 1) <= most; ++words) files += name + ' ';
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              typeFiles(window, files);
              // "javadoc", "-classpath" and the class path, two empty elements, and the names.
              const std::size_t length = words * (name.size() + 1) + 8 + 13 + 1 + 1 + 1;
              desktop_.expectMessage("The command line for javadoc is too long: it has " + std::to_string(length) +
                                     " characters, and this system takes " + std::to_string(most) +
                                     ".\nSelect fewer files at a time, or files whose whole names hold no blanks.");
              window.press(Javadoc::RUN);
              EXPECT_FALSE(window.closed());
              EXPECT_FALSE(platform::isFile(listFile()));
              typeFiles(window, "B.java");
              window.press(Javadoc::RUN);
            }),
            DIALOG_OK);
  EXPECT_EQ(linesOf(dialog_->run().listFile), "B.java\n");
}

TEST_F(JavadocDlgRunTest, AListHoldsWhatNoCommandLineWould) {
  const std::string name(199, 'x');
  writeFile(sources() + name, "");
  std::string files;
  std::string lines;
  for (std::size_t length = 0; length <= platform::longestCommandLine(); length += name.size() + 1) {
    files += name + ' ';
    lines += name + '\n';
  }
  EXPECT_EQ(handedOn(files), lines);
}

TEST_F(JavadocDlgRunTest, ReadTheNewerWaySourcesTellTheirRoots) {
  const ScopedEnvironment noClasspath("CLASSPATH", "");
  settings().newerJava = true;
  settings().classpath = "lib";
  writeFile(sources() + inPackage_, "package p; class A {}");
  writeFile(sources() + "B.java", "package other; class B {}");
  const std::string root = sources().substr(0, sources().size() - 1);
  const std::string quotedRoot = Filename(root).quoted();
  handedOn(inPackage_ + " B.java none.java p.q");
  EXPECT_EQ(dialog_->run().classPath, "lib;" + quotedRoot) << "each once";
  EXPECT_EQ(dialog_->run().sourcePath, "") << "then the class path counts for sources, too";
  handedOn(inPackage_, "src");
  EXPECT_EQ(dialog_->run().sourcePath, "src;" + quotedRoot);
  settings().newerJava = false;
  handedOn(inPackage_, "src");
  EXPECT_EQ(dialog_->run().classPath, "lib");
  EXPECT_EQ(dialog_->run().sourcePath, "src");
}

TEST_F(JavadocDlgRunTest, ThoseOfTheOpenProjectFollow) {
  makeSource("X.java", "class X {}");
  openWith("X.java").update();
  settings().newerJava = true;
  settings().classpath = "lib";
  const std::string ends = ';' + Filename(folderNoSlash()).quoted();
  handedOn("B.java");
  const std::string found = dialog_->run().classPath;
  EXPECT_TRUE(found.starts_with("lib;") && found.ends_with(ends)) << found;
}

}  // namespace
}  // namespace tarnwick::test
