#include "source/Compiler.h"
#include "source/CompilerPaths.h"
#include "source/JavaReading.h"
#include "support/SettingsFixture.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

class CompilerPathsTest : public SettingsFixture {
 protected:
  CompilerPathsTest() : classpath_("CLASSPATH", "") {}

  CompilerPaths paths(const SourcePlaces& places) { return pathsFor(settings(), places); }
  /// A JDK that says of itself which version it is.
  void useJdk(const std::string& version) {
    writeFile(userFolder() + "release", "JAVA_VERSION=\"" + version + "\"\n");
    platform::makeFolders(userFolder() + "bin");
    settings().javaPath = userFolder() + "bin" + platform::folderSeparator;
  }

  ScopedEnvironment classpath_;
};

using Arguments = std::vector<std::string>;

TEST_F(CompilerPathsTest, ARootThatIsTheFolderItselfIsTheCurrentOne) {
  const auto found = paths({"here", "here"});
  EXPECT_EQ(found.destination, ".");
  EXPECT_EQ(found.classpath, ".");
  EXPECT_EQ(found.sourcepath, "");
  EXPECT_FALSE(found.onlyGiven);
}

TEST_F(CompilerPathsTest, ClassesGoToTheRootWhichStandsOnTheClassPath) {
  for (const char* unset : {"", ".", " . "}) {
    settings().javacDestination = unset;
    const auto found = paths({"src/org", "src"});
    EXPECT_EQ(found.destination, "src") << "'" << unset << "'";
    EXPECT_EQ(found.classpath, "src");
    EXPECT_EQ(found.sourcepath, "") << "then the class path counts for sources, too";
  }
}

TEST_F(CompilerPathsTest, TheRootComesBehindWhatTheUserHasSet) {
  settings().classpath = "lib;more";
  settings().sourcepath = "other";
  const auto found = paths({"src/org", "src"});
  EXPECT_EQ(found.classpath, "lib;more;src");
  EXPECT_EQ(found.sourcepath, "other;src");
}

TEST_F(CompilerPathsTest, TheEnvironmentsClassPathCountsWhereTheUserWantsIt) {
  const ScopedEnvironment set("CLASSPATH", platform::commandLineList("env;a.jar"));
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "src") << "it never counts by default";
  settings().classpathFromEnvironmentNever = false;
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "env;a.jar;src");
  settings().classpath = "lib";
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "lib;src");
  settings().classpathFromEnvironmentAlways = true;
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "env;a.jar;src");
  settings().classpathFromEnvironmentNever = true;
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "env;a.jar;src") << "\"always\" wins";
}

TEST_F(CompilerPathsTest, BlanksInTheEnvironmentsAreInQuotes) {
  const ScopedEnvironment set("CLASSPATH", platform::commandLineList("my lib;a.jar"));
  settings().classpathFromEnvironmentNever = false;
  EXPECT_EQ(paths({"src/org", "src"}).classpath, "\"my lib\";a.jar;src");
}

TEST_F(CompilerPathsTest, BlanksAreInQuotes) {
  const auto found = paths({"my src/org", "my src", {"my tests"}, "my project"});
  EXPECT_EQ(found.destination, "\"my src\"");
  EXPECT_EQ(found.classpath, "\"my src\";\"my tests\";\"my project\"");
}

TEST_F(CompilerPathsTest, OtherRootsFollowAndTheirSourcesBecomeNoClassesHere) {
  useJdk("17.0.1");
  auto found = paths({"p", "main", {"test", "p"}, "p"});
  EXPECT_EQ(found.classpath, "main;test;.");
  EXPECT_TRUE(found.onlyGiven);
  found = paths({"p", "main", {}, "p"});
  EXPECT_EQ(found.classpath, "main;.");
  EXPECT_FALSE(found.onlyGiven) << "with one root there is one place for all classes";
  useJdk("1.6.0_45");
  EXPECT_TRUE(paths({"p", "main", {"test"}, "p"}).onlyGiven);
  useJdk("1.5.0");
  EXPECT_FALSE(paths({"p", "main", {"test"}, "p"}).onlyGiven) << "its compiler does not know the option";
  EXPECT_FALSE(pathsFor(settings(), {"p", "main", {"test"}, "p"}).onlyGiven);
}

TEST_F(CompilerPathsTest, ADestinationOfTheUsersTakesAllClasses) {
  useJdk("17.0.1");
  const std::string slash(1, platform::folderSeparator);
  settings().javacDestination = "classes";
  const auto found = paths({"p", "main", {"test"}, "p"});
  EXPECT_EQ(found.destination, "classes");
  EXPECT_EQ(found.classpath, "p" + slash + "classes;main;test;.");
  EXPECT_FALSE(found.onlyGiven);
}

TEST_F(CompilerPathsTest, SourcesAreReadAsTheSettingsAndTheirJdkSay) {
  useJdk("17.0.1");
  EXPECT_EQ(javaReading(settings()), JavaReading{});
  settings().newerJava = true;
  EXPECT_EQ(javaReading(settings()), (JavaReading{true, 17}));
}

TEST_F(CompilerPathsTest, TheArgumentsCarryThem) {
  settings().bootpath = "boot";
  const Arguments all = javacArguments(settings(), {"root", "s1;s2", "c1;c2", true});
  const auto destination = std::find(all.begin(), all.end(), "-d");
  ASSERT_NE(destination, all.end());
  EXPECT_EQ(destination[1], "root");
  const Arguments expected = {"-implicit:none", "-sourcepath", platform::commandLineList("s1;s2"),
                              "-classpath " + platform::commandLineList("c1;c2"), "-bootclasspath boot"};
  EXPECT_NE(std::search(all.begin(), all.end(), expected.begin(), expected.end()), all.end());
  const Arguments few = javacArguments(settings(), CompilerPaths{".", "", std::nullopt});
  for (const char* none : {"-implicit:none", "-sourcepath"})
    EXPECT_EQ(std::find(few.begin(), few.end(), none), few.end()) << none;
}

}  // namespace
}  // namespace tarnwick::test
