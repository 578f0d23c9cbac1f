#include "ProjectFixture.h"
#include "settingsdialog/ToolsFolder.h"
#include "source/Compiler.h"
#include "source/TypeIndex.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

using Conflict = JavaSourcefile::MultiplePublicStaticVoidMainE;

std::string conflict(const std::string& first, const std::string& second) {
  return "Files " + first + "\nand " + second +
         "\nboth have \"public static void main\" methods.\n\nEdit source files to resolve conflict\n"
         "or switch to Tarnwick's fileview\nor press Files button and allow multiple classes with a main method.";
}

class ProjectUpdateTest : public ProjectFixture {
 protected:
  static std::vector<std::string> typesOf(const ProjectContext& project, int types) {
    std::vector<std::string> names;
    for (const auto& found : project.collectClasses(types)) names.push_back(found.type.name);
    return names;
  }
};

using Names = std::vector<std::string>;

TEST_F(ProjectUpdateTest, AProjectWithoutSources) {
  ProjectContext& project = open("CLASS_WITH_MAIN  Stored\n");
  project.update();
  EXPECT_FALSE(project.upToDate());
  EXPECT_EQ(project.mainClass, "") << "without a message";
  EXPECT_EQ(desktop_.waits(), 1);
}

TEST_F(ProjectUpdateTest, WithoutAMainMethodThereIsNoMainClass) {
  makeSource("A.java", "class A { }");
  makeClassFile("A");
  ProjectContext& project = open("PROJECT_SOURCES  A.java\nCLASS_WITH_MAIN  Stored\n");
  project.update();
  EXPECT_EQ(project.mainClass, "") << "a stored one is discarded";
  EXPECT_TRUE(project.upToDate()) << "although all is";
}

TEST_F(ProjectUpdateTest, NobodyIsAskedBehindTheFirstStaleSource) {
  for (const char* name : {"A", "B", "C"}) {
    makeSource(std::string(name) + ".java", std::string("class ") + name + " { }");
    makeClassFile(name, name == std::string("B") ? start : start + 1);
  }
  ProjectContext& project = openWith("A.java;B.java;C.java");
  project.update();
  EXPECT_FALSE(project.upToDate());
  Names asked;
  const auto clock = [&asked](const std::string& path) {
    asked.push_back(Filename(path).nameWithExtension());
    return platform::lastChange(path);
  };
  const TypeIndex index(project.collectClasses(ProjectContext::ALL_TYPES), clock);
  EXPECT_FALSE(allUpToDate(project.sources, index, "", project.folderNoSlash()));
  EXPECT_EQ(asked, (Names{"C.class", "C.java", "B.class", "B.java"}));
}

TEST_F(ProjectUpdateTest, TheMainClassIsNamedWithItsPackage) {
  makeSource("A.java", "class A { }");
  makeSource("Main.java", "package pkg.sub;\nclass Main " + mainMethod());
  makeSource("Z.java", "class Z { }");
  ProjectContext& project = openWith("A.java;Main.java;Z.java");
  project.update();
  EXPECT_EQ(project.mainClass, "pkg.sub.Main");
  makeSource("Main.java", "class Main " + mainMethod(), start + 5);
  project.update();
  EXPECT_EQ(project.mainClass, "Main");
  makeSource("Main.java", "class Main { }", start + 9);
  project.update();
  EXPECT_EQ(project.mainClass, "");
}

TEST_F(ProjectUpdateTest, TwoSourcesWithMainMethodsAreAConflictThatNamesTheLaterFirst) {
  makeSource("A.java", "class A " + mainMethod());
  makeSource("B.java", "class B { }");
  makeSource("C c.java", "class C " + mainMethod());
  ProjectContext& project = openWith("A.java;B.java;C c.java");
  project.mainClass = "before";
  EXPECT_EQ(messageOf<Conflict>([&] { project.update(); }), conflict("\"C c.java\"", "A.java"));
  EXPECT_EQ(project.mainClass, "");
  EXPECT_EQ(desktop_.waits(), 1) << "and the wait cursor goes by an exception, too";
}

TEST_F(ProjectUpdateTest, AConflictLeavesTheSourcesBeforeItUnread) {
  makeSource("A.java", "class A { }");
  makeSource("B.java", "class B " + mainMethod());
  makeSource("C.java", "class C " + mainMethod());
  ProjectContext& project = openWith("A.java;B.java;C.java");
  EXPECT_EQ(messageOf<Conflict>([&] { project.update(); }), conflict("C.java", "B.java"));
  EXPECT_TRUE(project.sources[0].types().empty());
  EXPECT_FALSE(project.sources[0].isCurrent());
}

TEST_F(ProjectUpdateTest, AConflictKeepsWhetherAllWasUpToDate) {
  makeSource("A.java", "class A " + mainMethod());
  makeSource("B.java", "class B { }");
  makeClassFile("A");
  makeClassFile("B");
  ProjectContext& project = openWith("A.java;B.java");
  project.update();
  EXPECT_TRUE(project.upToDate());
  // A second main method, from an editor.
  makeSource("B.java", "class B " + mainMethod(), start + 5);
  EXPECT_EQ(messageOf<Conflict>([&] { project.update(); }), conflict("B.java", "A.java"));
  EXPECT_TRUE(project.upToDate()) << "the old value";
  EXPECT_EQ(project.mainClass, "");
  EXPECT_EQ(recorded(), "") << "nothing is compiled";
  makeSource("B.java", "class B { }", start + 9);
  project.update();
  EXPECT_FALSE(project.upToDate());
  EXPECT_EQ(project.mainClass, "A") << "an edited source resolves it";
}

TEST_F(ProjectUpdateTest, TwoMainMethodsInOneFileHaveATextOfTheirOwn) {
  makeSource("A.java", "class A " + mainMethod() + "class B " + mainMethod());
  makeSource("C.java", "class C { }");
  ProjectContext& project = openWith("A.java;C.java");
  EXPECT_EQ(messageOf<Conflict>([&] { project.update(); }),
            "Class B(File " + quoted(folder() + "A.java") + ") has multiple main() methods.\n");
  EXPECT_EQ(project.mainClass, "");
}

TEST_F(ProjectUpdateTest, ByHandTheMainClassStaysAndNothingIsChecked) {
  makeSource("A.java", "class A " + mainMethod() + "class A2 " + mainMethod());
  makeSource("B.java", "class B " + mainMethod());
  ProjectContext& project =
      open("PROJECT_SOURCES  A.java;B.java\nPROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  NoLongerThere\n");
  project.update();
  EXPECT_EQ(project.mainClass, "NoLongerThere");
  EXPECT_EQ(typesOf(project, ProjectContext::CLASSES), (Names{"B", "A", "A2"})) << "the sources are read all the same";
}

TEST_F(ProjectUpdateTest, SwitchingTheModeKeepsOrDropsTheMainClass) {
  makeSource("A.java", "package pkg;\nclass A " + mainMethod());
  ProjectContext& project = openWith("A.java");
  project.update();
  project.multiMain = true;
  project.update();
  EXPECT_EQ(project.mainClass, "pkg.A") << "the last one that was found";
  project.mainClass = "Picked";
  project.update();
  EXPECT_EQ(project.mainClass, "Picked");
  project.multiMain = false;
  project.update();
  EXPECT_EQ(project.mainClass, "pkg.A");
}

TEST_F(ProjectUpdateTest, UpToDateNeedsEveryClassFile) {
  makeSource("A.java", "class A { } interface I { }");
  makeSource("B.java", "class B { }");
  ProjectContext& project = openWith("A.java;B.java");
  for (const std::string missing : {"A", "I", "B"}) {
    for (const char* name : {"A", "I", "B"}) makeClassFile(name);
    project.update();
    EXPECT_TRUE(project.upToDate());
    platform::deleteFile(folder() + missing + ".class");
    project.update();
    EXPECT_FALSE(project.upToDate()) << missing;
  }
}

TEST_F(ProjectUpdateTest, ASupertypeInAnotherSourceCounts) {
  makeSource("A.java", "class A extends B implements I { }");
  makeSource("B.java", "class B { }");
  makeSource("I.java", "interface I { }");
  for (const char* name : {"A", "B", "I"}) makeClassFile(name, start + 3);
  ProjectContext& project = openWith("A.java;B.java;I.java");
  project.update();
  EXPECT_TRUE(project.upToDate());
  for (const char* name : {"B", "I"}) {
    makeSource(std::string(name) + ".java", name == std::string("B") ? "class B { }" : "interface I { }", start + 5);
    makeClassFile(name, start + 6);
    project.update();
    EXPECT_FALSE(project.upToDate()) << "A is older than " << name;
    makeClassFile("A", start + 6);
    project.update();
    EXPECT_TRUE(project.upToDate());
    makeClassFile("A", start + 3);
    makeSource(std::string(name) + ".java", name == std::string("B") ? "class B { }" : "interface I { }");
  }
}

TEST_F(ProjectUpdateTest, TheDestinationIsWhereTheClassFilesLie) {
  makeSource("A.java", "class A { }");
  makeClassFile("A");
  ProjectContext& project = openWith("A.java");
  settings().javacDestination = userFolder();
  project.update();
  EXPECT_FALSE(project.upToDate());
  writeFile(userFolder() + "A.class", "");
  setFileTime(userFolder() + "A.class", start + 1);
  project.update();
  EXPECT_TRUE(project.upToDate());
  settings().javacDestination = ".";
  project.update();
  EXPECT_TRUE(project.upToDate());
}

TEST_F(ProjectUpdateTest, ARelativeDestinationBeginsInTheProjectsFolder) {
  makeSource("A.java", "class A { }");
  makeClassFile("A");
  ProjectContext& project = openWith("A.java");
  platform::makeFolders(folder() + "out");
  platform::changeDirectory(scratch_.path());
  const std::string slash(1, platform::folderSeparator);
  for (const char* destination : {"out", "./out", ".hidden", ".."}) {
    settings().javacDestination = destination;
    project.update();
    EXPECT_FALSE(project.upToDate()) << destination;
  }
  makeClassFile("out" + slash + "A");
  for (const char* destination : {"out", "./out"}) {
    settings().javacDestination = destination;
    project.update();
    EXPECT_TRUE(project.upToDate()) << destination;
  }
}

TEST_F(ProjectUpdateTest, OnlyWhatHasChangedIsReadAgain) {
  makeSource("A.java", "class A { }");
  makeSource("B.java", "class B { }");
  ProjectContext& project = openWith("A.java;B.java");
  project.update();
  makeSource("A.java", "class Unseen { }", start);
  makeSource("B.java", "class Seen { }", start + 1);
  project.update();
  EXPECT_EQ(typesOf(project, ProjectContext::ALL_TYPES), (Names{"Seen", "A"}));
}

TEST_F(ProjectUpdateTest, ASourceThatCantBeReadIsToldByAnException) {
  makeSource("A.java", "class A { }");
  ProjectContext& project = openWith("A.java");
  platform::deleteFile(folder() + "A.java");
  const std::string path = folder() + "A.java";
  EXPECT_EQ(messageOf<Compiler::CannotCompileE>([&] { project.update(); }),
            refusal(path, FileMode::Read) + "\nCan't process file " + path);
  EXPECT_EQ(project.sources.size(), 1U);
}

TEST_F(ProjectUpdateTest, AnUnknownToolsFolderIsAskedForBeforeAnythingElse) {
  makeSource("A.java", "class A { }");
  ProjectContext& project = openWith("A.java");
  project.mainClass = "before";
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings for project my project",
                        [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  EXPECT_EQ(messageOf<Compiler::CannotCompileE>([&] {
              askForToolsFolder(settings());
              project.update();
            }),
            said("No path to javac.exe and other tools available from settings",
                 "No path to javac and other tools available from settings"));
  EXPECT_EQ(project.mainClass, "before");
  EXPECT_TRUE(project.sources[0].types().empty());
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  EXPECT_TRUE(messageOf<Tarnwickfile::FileNotOpenE>([&] { project.update(); }).starts_with("Can't access compiler "));
  EXPECT_EQ(desktop_.waits(), 2);
}

TEST_F(ProjectUpdateTest, TypesAreCollectedFromTheLastSourceToTheFirst) {
  makeSource("A.java", "interface I1 { } class A1 { } interface I2 { } class A2 { }");
  makeSource("B.java", "class B1 { } interface J1 { } class B2 { }");
  ProjectContext& project = openWith("A.java;B.java");
  project.update();
  EXPECT_EQ(typesOf(project, 1), (Names{"B1", "B2", "A1", "A2"}));
  EXPECT_EQ(typesOf(project, 2), (Names{"J1", "I1", "I2"}));
  EXPECT_EQ(typesOf(project, 3), (Names{"B1", "B2", "J1", "A1", "A2", "I1", "I2"}));
  EXPECT_EQ(typesOf(project, 0), Names{});
  const auto all = project.collectClasses(3);
  EXPECT_EQ(&all.front().source, &project.sources[1]);
  EXPECT_EQ(&all.back().source, &project.sources[0]);
}

}  // namespace
}  // namespace tarnwick::test
