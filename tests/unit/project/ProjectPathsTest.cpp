#include "ProjectFixture.h"
#include "settings/PathRules.h"

namespace tarnwick::test {
namespace {

const char warning[] =
    "Warning: Unable to properly create sourcepath!\nCheck directory structure and package definitions.";

TEST(AddToPathList, AppendsWhatIsNotInTheList) {
  EXPECT_EQ(addToPathList("", "a"), "a");
  EXPECT_EQ(addToPathList("a;b", "c"), "a;b;c");
  EXPECT_EQ(addToPathList("a;b", "b"), "a;b");
  EXPECT_EQ(addToPathList("a;b", "a"), "a;b");
  EXPECT_EQ(addToPathList("ab;c", "b"), "ab;c;b") << "elements are compared whole";
}

TEST(AddToPathList, ComparesAsFileNamesDoHere) {
  const bool same = platform::sameFileName("c:\\work", "C:\\Work");
  EXPECT_EQ(addToPathList("C:\\Work", "c:\\work"), same ? "C:\\Work" : "C:\\Work;c:\\work");
}

TEST(AddToPathList, KeepsAListThatCantBeRead) {
  EXPECT_EQ(addToPathList("a]x;b", "c"), "a]x;b");
  EXPECT_EQ(addToPathList("]", "c"), "]");
}

TEST(AddToPathList, EscapesTheEntry) {
  EXPECT_EQ(addToPathList("a", "b;]c"), "a;b];]]c");
  EXPECT_EQ(addToPathList("a;b];]]c", "b;]c"), "a;b];]]c");
}

TEST(QuotedPaths, KeepAPathWithBlanksTogether) {
  EXPECT_EQ(quotedPaths(""), "");
  EXPECT_EQ(quotedPaths("a;b"), "a;b");
  EXPECT_EQ(quotedPaths(".;my lib;b"), ".;\"my lib\";b");
  EXPECT_EQ(quotedPaths("\"my lib\";b"), "\"my lib\";b") << "quotes of the user's own stay";
  EXPECT_EQ(quotedPaths("a]]b;c"), "a]b;c") << "a sign that stood for itself does so here";
  EXPECT_EQ(quotedPaths("a]x"), "a]x") << "malformed";
}

class RunClasspathTest : public ProjectFixture {};

TEST_F(RunClasspathTest, HasTheProjectsFolderWhereNoDestinationIsSet) {
  const ProjectContext& project = open("");
  settings().classpath = "lib";
  for (const char* unset : {"", ".", "  ", " . "}) {
    settings().javacDestination = unset;
    EXPECT_EQ(project.runClasspath(), "lib;" + folderNoSlash()) << "'" << unset << "'";
  }
}

TEST_F(RunClasspathTest, HasTheDestinationWithoutBlanksAround) {
  const ProjectContext& project = open("");
  settings().classpath = "lib";
  settings().javacDestination = "  out put ";
  EXPECT_EQ(project.runClasspath(), "lib;" + folder() + "out put");
  settings().javacDestination = "..";
  EXPECT_EQ(project.runClasspath(), "lib;" + folder() + "..");
  settings().javacDestination = userFolder();
  EXPECT_EQ(project.runClasspath(), "lib;" + userFolder());
}

TEST(ClassFolder, IsTheSourcesOneOrBeginsThereOrStandsForItself) {
  const std::string slash(1, platform::folderSeparator);
  const std::string sources = platform::absolutePath("my work");
  const struct {
    std::string destination;
    std::string folder;
  } table[] = {
      {"", sources},
      {".", sources},
      {"  . ", sources},
      {"out", sources + slash + "out"},
      {" out ", sources + slash + "out"},
      {"." + slash + "out", sources + slash + "out"},
      {".hidden", sources + slash + ".hidden"},
      {"..", sources + slash + ".."},
      {".." + slash + "out", sources + slash + ".." + slash + "out"},
      {"\"out put\"", sources + slash + "out put"},
      {"\"." + slash + "out put\"", sources + slash + "out put"},
      {slash + "out", slash + "out"},
      {platform::absolutePath("out"), platform::absolutePath("out")},
  };
  for (const auto& row : table) EXPECT_EQ(classFolder(row.destination, sources), row.folder) << row.destination;
}

TEST_F(RunClasspathTest, GoesByTheEffectiveClasspath) {
  const ProjectContext& project = open("");
  settings().classpath = folderNoSlash() + ";lib";
  EXPECT_EQ(project.runClasspath(), folderNoSlash() + ";lib") << "the folder is there already";
  settings().classpathFromEnvironmentAlways = true;
  EXPECT_EQ(project.runClasspath(), folderNoSlash());
  settings().classpathFromEnvironmentAlways = false;
  settings().classpathFromEnvironmentNever = true;
  settings().classpath.clear();
  EXPECT_EQ(project.runClasspath(), ".;" + folderNoSlash());
}

class DerivedSourcepathTest : public ProjectFixture {
 protected:
  /// A project in this folder below the scratch folder, whose parts are joined by "/".
  ProjectContext& openIn(std::string path) {
    for (char& c : path) c = c == '/' ? platform::folderSeparator : c;
    const std::string place = scratch_.file(path);
    EXPECT_TRUE(platform::makeFolders(place));
    ProjectContext& project = take(place + platform::folderSeparator + "p.twp", true);
    settings().sourcepath.clear();
    return project;
  }
  std::string below(std::string path) const {
    for (char& c : path) c = c == '/' ? platform::folderSeparator : c;
    return scratch_.file(path);
  }
};

TEST_F(DerivedSourcepathTest, WithoutAPackageItIsTheProjectsFolder) {
  ProjectContext& project = openIn("x/pkg");
  for (const char* name : {"Main", ""}) {
    project.mainClass = name;
    EXPECT_EQ(project.derivedSourcepath(), below("x/pkg")) << "without a warning";
  }
}

TEST_F(DerivedSourcepathTest, EachPartOfThePackageGoesUpAFolder) {
  ProjectContext& project = openIn("x/pkg");
  project.mainClass = "pkg.Main";
  EXPECT_EQ(project.derivedSourcepath(), below("x"));
  project.mainClass = "x.pkg.Main";
  std::string scratch = scratch_.path();
  scratch.pop_back();
  EXPECT_EQ(project.derivedSourcepath(), scratch);
}

TEST_F(DerivedSourcepathTest, AFolderOfAnotherNameWarnsAndStays) {
  ProjectContext& project = openIn("x/other");
  project.mainClass = "pkg.Main";
  desktop_.expectMessage(warning);
  EXPECT_EQ(project.derivedSourcepath(), below("x/other"));
}

TEST_F(DerivedSourcepathTest, AMismatchHigherUpLeavesTheFolderAsFarAsItHasBeenCut) {
  ProjectContext& project = openIn("x/pkg/sub");
  project.mainClass = "other.pkg.sub.Main";
  desktop_.expectMessage(warning);
  EXPECT_EQ(project.derivedSourcepath(), below("x"));
}

TEST_F(DerivedSourcepathTest, NamesCompareWhole) {
  ProjectContext& project = openIn("x/mypkg");
  project.mainClass = "pkg.Main";
  desktop_.expectMessage(warning);
  EXPECT_EQ(project.derivedSourcepath(), below("x/mypkg"));
}

TEST_F(DerivedSourcepathTest, NamesCompareAsFileNamesDoHere) {
  ProjectContext& project = openIn("x/Pkg");
  project.mainClass = "pKG.Main";
  const bool same = platform::sameFileName("Pkg", "pKG");
  if (!same) desktop_.expectMessage(warning);
  EXPECT_EQ(project.derivedSourcepath(), below(same ? "x" : "x/Pkg"));
}

TEST_F(DerivedSourcepathTest, GoesBehindTheSourcepathOfTheSettings) {
  ProjectContext& project = openIn("x/pkg");
  project.mainClass = "pkg.Main";
  settings().sourcepath = "lib;src";
  EXPECT_EQ(project.derivedSourcepath(), "lib;src;" + below("x"));
  settings().sourcepath = below("x") + ";src";
  EXPECT_EQ(project.derivedSourcepath(), below("x") + ";src");
}

TEST_F(DerivedSourcepathTest, AFolderAtTheTopEndsThere) {
  const bool drives = platform::folderSeparator == '\\';
  bool fits = false;
  EXPECT_EQ(packageRoot("pkg.Main", drives ? "C:\\pkg" : "/pkg", fits), drives ? "C:" : "/");
  EXPECT_TRUE(fits);
}

TEST_F(DerivedSourcepathTest, AboveTheTopNothingFits) {
  const bool drives = platform::folderSeparator == '\\';
  bool fits = true;
  EXPECT_EQ(packageRoot("a.pkg.Main", drives ? "C:\\pkg" : "/pkg", fits), drives ? "C:" : "/");
  EXPECT_FALSE(fits);
}

}  // namespace
}  // namespace tarnwick::test
