#include "ProjectFixture.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

class ProjectSourceListTest : public ProjectFixture {
 protected:
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (std::size_t i = 0; i < list_.size(); ++i) found.push_back(list_[i].name().nameWithExtension());
    return found;
  }

  Tarnwickfile file_{projectFile(), FileMode::Write};
  ProjectSourceList list_{settings(), file_};
};

using Names = std::vector<std::string>;

TEST_F(ProjectSourceListTest, AnEmptyTextIsAnEmptyListWithoutAMessage) {
  makeSource("A.java");
  list_.fromString("A.java");
  EXPECT_FALSE(list_.empty());
  list_.fromString("");
  EXPECT_TRUE(list_.empty());
  EXPECT_EQ(list_.toString(), "");
}

TEST_F(ProjectSourceListTest, KeepsTheOrderOfTheText) {
  for (const char* name : {"C.java", "A b.java", "B.html"}) makeSource(name);
  list_.fromString("C.java;A b.java;B.html");
  EXPECT_EQ(names(), (Names{"C.java", "A b.java", "B.html"}));
  EXPECT_EQ(list_.toString(), "C.java;A b.java;B.html") << "names only, without folder and without quotes";
}

TEST_F(ProjectSourceListTest, SourcesLieInTheProjectsFolderAndAreClosed) {
  makeSource("A.java", "class A { }");
  list_.fromString("A.java");
  ASSERT_EQ(list_.size(), 1U);
  EXPECT_EQ(list_[0].name().fullName(), folder() + "A.java");
  EXPECT_FALSE(list_[0].isOpen());
  EXPECT_TRUE(list_[0].types().empty()) << "nothing is analysed here";
  EXPECT_FALSE(list_[0].isCurrent()) << "so the first look reads it";
}

TEST_F(ProjectSourceListTest, ASeparatorOrAnEscapeInANameIsEscaped) {
  for (const char* name : {"A;1.java", "B].java"}) makeSource(name);
  list_.fromString("A];1.java;B]].java");
  EXPECT_EQ(names(), (Names{"A;1.java", "B].java"}));
  EXPECT_EQ(list_.toString(), "A];1.java;B]].java");
}

TEST_F(ProjectSourceListTest, WhiteSpaceBeforeANameGoesAndEmptyItemsAreSkipped) {
  for (const char* name : {"A.java", "B.java"}) makeSource(name);
  list_.fromString(";  ; \tA.java;;  B.java; ");
  EXPECT_EQ(names(), (Names{"A.java", "B.java"}));
}

TEST_F(ProjectSourceListTest, MissingSourcesAreCountedAndDropped) {
  makeSource("B.java");
  desktop_.expectMessage("1 source files belonging to the project could not be opened.");
  list_.fromString("A.java;B.java");
  EXPECT_EQ(list_.toString(), "B.java");
  desktop_.expectMessage("2 source files belonging to the project could not be opened.");
  list_.fromString("A.java;B.java;C.java");
  EXPECT_EQ(list_.toString(), "B.java");
}

TEST_F(ProjectSourceListTest, MalformedTextIsToldAndNothingIsThrown) {
  makeSource("A.java");
  for (const char* text : {"A.java;B]x.java", "A.java]"}) {
    list_.fromString("A.java");
    desktop_.expectMessage("Can't open project files:\nInvalid project context data");
    EXPECT_NO_THROW(list_.fromString(text));
    EXPECT_TRUE(list_.empty()) << "as it stood at that moment";
  }
}

TEST_F(ProjectSourceListTest, ANameIsHeldAsFileNamesCompareHere) {
  makeSource("Some.java");
  list_.fromString("Some.java");
  EXPECT_TRUE(list_.holds("Some.java"));
  EXPECT_FALSE(list_.holds("Other.java"));
  EXPECT_EQ(list_.holds("sOME.JAVA"), platform::sameFileName("Some.java", "sOME.JAVA"));
}

TEST_F(ProjectSourceListTest, AddingWhatIsNotThereThrowsAndAddsNothing) {
  makeSource("A.java");
  list_.add("A.java");
  EXPECT_EQ(messageOf<Tarnwickfile::FileNotOpenE>([&] { list_.add("Gone.java"); }),
            refusal(folder() + "Gone.java", FileMode::Read));
  EXPECT_EQ(names(), Names{"A.java"});
  EXPECT_FALSE(list_[0].isOpen());
}

const char outsideWords[] =
    "A project's sources lie in its folder. These names lead elsewhere and are not used,\n"
    "but stay in the project file:\n";

TEST_F(ProjectSourceListTest, ANameOutsideTheFolderIsToldAndKeptAsItStands) {
  for (const char* name : {"A.java", "B.java", "X.java"}) makeSource(name);
  writeFile(scratch_.file("X.java"), "class X { }");
  desktop_.expectMessage(std::string(outsideWords) + "\n../X.java\nsub/Y.java");
  const std::string text = "A.java;../X.java;B.java; sub/Y.java";
  list_.fromString(text);
  EXPECT_EQ(names(), (Names{"A.java", "B.java"}));
  EXPECT_EQ(list_.toString(), text) << "in its place, and never under another name";
}

TEST_F(ProjectSourceListTest, ADeviceOutsideIsNotEvenLookedAt) {
  const std::string device = "../../../../../../../dev/zero";
  desktop_.expectMessage(std::string(outsideWords) + '\n' + device);
  list_.fromString(device);
  EXPECT_TRUE(list_.empty());
  EXPECT_EQ(list_.toString(), device);
}

TEST_F(ProjectSourceListTest, AWholePathIsOutsideToo) {
  makeSource("A.java");
  const std::string path = folder() + "A.java";
  desktop_.expectMessage(outsideWords + ('\n' + path));
  list_.fromString(path);
  EXPECT_EQ(list_.toString(), path);
}

TEST_F(ProjectSourceListTest, ADotBeforeANameIsTheFolderItself) {
  makeSource("A.java");
  list_.fromString("./A.java;././A.java");
  EXPECT_EQ(list_.toString(), "A.java;A.java");
}

TEST_F(ProjectSourceListTest, ManyNamesOutsideAreToldInPart) {
  std::string text;
  std::string told;
  for (int i = 0; i < 12; ++i) {
    text += (i > 0 ? ";../X" : "../X") + std::to_string(i);
    if (i < 10) told += "\n../X" + std::to_string(i);
  }
  desktop_.expectMessage(outsideWords + told + "\n...");
  list_.fromString(text);
  EXPECT_EQ(list_.toString(), text);
}

TEST_F(ProjectSourceListTest, WhatLiesOutsideIsKeptWhenTheSourcesChange) {
  for (const char* name : {"A.java", "B.java", "C.java"}) makeSource(name);
  desktop_.expectMessage(std::string(outsideWords) + "\n../X.java");
  list_.fromString("A.java;B.java;../X.java;C.java");
  list_.clear();
  EXPECT_EQ(list_.toString(), "../X.java");
  list_.add("C.java");
  EXPECT_EQ(list_.toString(), "C.java;../X.java");
  list_.fromString("");
  EXPECT_EQ(list_.toString(), "") << "another text is another list";
}

TEST_F(ProjectSourceListTest, AListOfVeryManyNamesIsReadInOneWalk) {
  std::string text;
  for (int i = 0; i < 300000; ++i) text += "../X;";
  desktop_.expectMessage(outsideWords +
                         std::string("\n../X\n../X\n../X\n../X\n../X\n../X\n../X\n../X\n../X\n../X\n..."));
  list_.fromString(text);
  EXPECT_EQ(list_.toString().size() + 1, text.size());
}

class SourcesOfProjectTest : public ProjectFixture {};

TEST_F(SourcesOfProjectTest, ANameOutsideStaysInTheFileThroughASave) {
  makeSource("A.java");
  writeFile(scratch_.file("X.java"), "class X { }");
  desktop_.expectMessage(std::string(outsideWords) + "\n../X.java");
  ProjectContext& project = openWith("../X.java;A.java");
  project.save();
  EXPECT_EQ(valueIn(projectFile(), "PROJECT_SOURCES"), "../X.java;A.java");
}

TEST_F(SourcesOfProjectTest, ADeletedSourceVanishesWithTheNextSave) {
  makeSource("A.java");
  makeSource("B.java");
  openWith("A.java;B.java");
  platform::deleteFile(folder() + "A.java");
  desktop_.expectMessage("1 source files belonging to the project could not be opened.");
  ProjectContext& project = openAgain();
  EXPECT_EQ(linesOf(projectFile()), "PROJECT_SOURCES  A.java;B.java\n");
  project.save();
  EXPECT_EQ(valueIn(projectFile(), "PROJECT_SOURCES"), "B.java");
}

TEST_F(SourcesOfProjectTest, AMalformedListOpensTheProjectWithWhatElseIsThere) {
  makeSource("A.java");
  desktop_.expectMessage("Can't open project files:\nInvalid project context data");
  const ProjectContext& project = open("PROJECT_SOURCES  A.java;]x\nPROJECT_HTMLFILE  a.html\n");
  EXPECT_TRUE(project.sources.empty());
  EXPECT_EQ(project.htmlFile, "a.html");
}

TEST_F(SourcesOfProjectTest, AProjectMovedWithItsSourcesStaysValid) {
  makeSource("A.java");
  const std::string moved = userFolder() + "moved.twp";
  openWith("A.java").save();
  writeFile(moved, contentOf(projectFile()));
  writeFile(userFolder() + "A.java", "");
  const ProjectContext& project = take(moved, false);
  ASSERT_EQ(project.sources.size(), 1U);
  EXPECT_EQ(project.sources[0].name().fullName(), userFolder() + "A.java");
}

/// The newer way, in which sources may lie below the project's folder.
class PackagesListTest : public ProjectSourceListTest {
 protected:
  PackagesListTest() {
    settings().newerJava = true;
    platform::makeFolders(folder() + local("org/x"));
    for (const char* name : {"A.java", "org/B b.java", "org/x/A.java"}) makeSource(local(name));
  }
  static std::string local(std::string name) {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return name;
  }
};

TEST_F(PackagesListTest, NamesBeginInTheProjectsFolder) {
  const std::string text = "org/x/A.java;A.java;org/B b.java";
  list_.fromString(text);
  ASSERT_EQ(list_.size(), 3U);
  EXPECT_EQ(list_[0].name().fullName(), folder() + local("org/x/A.java")) << "as the system writes it";
  EXPECT_EQ(list_.nameOf(0), "org/x/A.java");
  EXPECT_EQ(list_.toString(), text);
  EXPECT_TRUE(list_.holds("org/x/A.java"));
  EXPECT_FALSE(list_.holds("org/A.java"));
}

TEST_F(PackagesListTest, TheSystemsSeparatorIsReadAndNotWritten) {
  list_.fromString("./" + local("org/x/A.java") + ";./A.java");
  EXPECT_EQ(list_.toString(), "org/x/A.java;A.java");
}

TEST_F(PackagesListTest, WhatLeadsUpOrComesFromTheTopLiesOutside) {
  const std::string whole = folder() + "A.java";
  desktop_.expectMessage(
      "A project's sources lie in its folder. These names lead elsewhere and are not used,\n"
      "but stay in the project file:\n\n../X.java\norg/../A.java\n" +
      whole);
  list_.fromString("../X.java;org/../A.java;" + whole + ";org/x/A.java");
  EXPECT_EQ(list_.size(), 1U);
  EXPECT_EQ(list_.toString(), "../X.java;org/../A.java;" + whole + ";org/x/A.java");
}

TEST_F(PackagesListTest, TheClassicWayKeepsSuchNamesUnused) {
  settings().newerJava = false;
  desktop_.expectMessage(
      "A project's sources lie in its folder. These names lead elsewhere and are not used,\n"
      "but stay in the project file:\n\norg/x/A.java");
  list_.fromString("org/x/A.java;A.java");
  EXPECT_EQ(names(), Names{"A.java"});
  EXPECT_EQ(list_.toString(), "org/x/A.java;A.java");
  settings().newerJava = true;
  list_.followSettings();
  EXPECT_EQ(list_.size(), 2U) << "switched on, they are used at the next look";
  EXPECT_EQ(list_.toString(), "org/x/A.java;A.java");
  const JavaSourcefile* const before = &list_[0];
  list_.followSettings();
  EXPECT_EQ(&list_[0], before) << "nothing is read again without need";
}

}  // namespace
}  // namespace tarnwick::test
