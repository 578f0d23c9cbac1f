// Where the sources of stack traces are looked for.
#include "app/TraceSources.h"
#include "platform/Process.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Files = std::vector<std::string>;

class TraceSourcesTest : public SettingsFixture {
 protected:
  TraceSourcesTest() : classpath_("CLASSPATH", "") {
    // As its own way leads there: a link may stand above it.
    EXPECT_TRUE(platform::changeDirectory(userFolder()));
    user_ = platform::currentDirectory() + platform::folderSeparator;
  }

  /// Makes an empty file, with "/" between the folders of its name, and gives its path.
  std::string make(const std::string& name) {
    const Filename file(local(name));
    platform::makeFolders(file.directoryNoSlash());
    writeFile(file.fullName(), "");
    return file.fullName();
  }
  std::string local(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return user_ + name;
  }
  std::string project(const std::string& sources) {
    const std::string file = local("p/Main.twp");
    platform::makeFolders(local("p"));
    writeFile(file, "Tarnwick\nPROJECT_SOURCES " + sources + "\nUNKNOWN x\n");
    return file;
  }
  Files find(const std::string& package, const std::string& config = "", const std::string& arguments = "") {
    return traceSources(traceFolders(settings(), config, arguments), {"A.java", 1, package, {}});
  }

  std::string user_;
  ScopedEnvironment classpath_;
};

TEST_F(TraceSourcesTest, InTheStartFolderAndBelowItByThePackage) {
  EXPECT_EQ(find(""), Files{});
  const std::string plain = make("A.java");
  const std::string packed = make("org/x/A.java");
  EXPECT_EQ(find(""), Files{plain});
  EXPECT_EQ(find("org.x"), Files{packed});
}

TEST_F(TraceSourcesTest, AStartFolderWithinThePackagesHasItsRootAbove) {
  const std::string packed = make("org/x/A.java");
  make("org/y/B.java");
  platform::changeDirectory(local("org/y"));
  EXPECT_EQ(find("org.x"), Files{}) << "that folder is of another package";
  platform::changeDirectory(local("org/x"));
  EXPECT_EQ(find("org.x"), Files{packed});
  platform::changeDirectory(user_);
}

TEST_F(TraceSourcesTest, WithoutAFolderForThePackageTheNameAloneCounts) {
  const std::string plain = make("A.java");
  EXPECT_EQ(find("org.x"), Files{plain});
  const std::string packed = make("org/x/A.java");
  EXPECT_EQ(find("org.x"), Files{packed}) << "no longer";
}

TEST_F(TraceSourcesTest, OnTheSourcePathAndTheClassPathOfTheSettings) {
  const std::string source = make("s/org/x/A.java");
  const std::string classes = make("c c/org/x/A.java");
  settings().sourcepath = "\"" + local("s") + "\"; ;none";
  settings().classpath = "lib.jar;c c";
  EXPECT_EQ(find("org.x"), (Files{source, classes}));
  settings().sourcepath = "";
  EXPECT_EQ(find("org.x"), Files{classes});
}

TEST_F(TraceSourcesTest, OnThePathsThatTheProgramWasGiven) {
  const std::string source = make("s/org/x/A.java");
  const std::string classes = make("c c/org/x/A.java");
  const std::string given = "-Xmx1m -classpath " + platform::commandLineList("\"" + local("c c") + "\";lib.jar");
  EXPECT_EQ(find("org.x", "", given + " Main -classpath s"), Files{classes});
  EXPECT_EQ(find("org.x", "", "-cp s Main"), Files{source});
  EXPECT_EQ(find("org.x", "", given + " -sourcepath s Main"), (Files{source, classes}));
  EXPECT_EQ(find("org.x", "", given + " -cp s Main"), Files{source}) << "the last one counts";
  EXPECT_EQ(find("org.x", "", "--class-path=s Main"), Files{source});
  EXPECT_EQ(find("org.x", "", "--add-modules x -Da=b --class-path s Main"), Files{source});
  EXPECT_EQ(find("org.x", "", "-Xint Main -cp s"), Files{}) << "the program's own";
  EXPECT_EQ(find("org.x", "", "-jar Main.jar -cp s"), Files{});
  EXPECT_EQ(find("org.x", "", "-cp"), Files{}) << "nothing behind it";
  settings().sourcepath = "c c";
  EXPECT_EQ(find("org.x", "", "-sourcepath s Main"), (Files{source, classes})) << "those of the settings behind it";
}

TEST_F(TraceSourcesTest, EachFileOnce) {
  const std::string source = make("s/org/x/A.java");
  settings().sourcepath = "s;./s;s/../s";
  EXPECT_EQ(find("org.x"), Files{local("s") + platform::folderSeparator + local("org/x/A.java").substr(user_.size())});
  EXPECT_EQ(find("org.x").size(), 1U);
}

TEST_F(TraceSourcesTest, AProjectsSourcesComeFirst) {
  const std::string own = make("p/src/org/x/A.java");
  make("p/src/org/y/A.java");
  const std::string file = project("src/org/x/A.java;src/org/y/A.java;Gone.java;../A.java");
  EXPECT_EQ(find("org.x", file), Files{own});
  const std::string other = make("org/x/A.java");
  EXPECT_EQ(find("org.x", file), (Files{own, other}));
  EXPECT_EQ(find("org.x", local("p/Main.cfg")), Files{other}) << "only a project's file has sources";
}

TEST_F(TraceSourcesTest, AProjectsSourceNeedNotLieByItsPackage) {
  const std::string one = make("p/A.java");
  const std::string two = make("p/more/A.java");
  make("A.java");
  const std::string file = project("A.java;more/A.java;../A.java");
  EXPECT_EQ(find("org.x", file), (Files{one, two}));
}

TEST_F(TraceSourcesTest, AProjectThatCannotBeReadHasNoSources) {
  make("p/A.java");
  EXPECT_EQ(find("", local("p/None.twp")), Files{});
  EXPECT_EQ(find("", project("A.java]")), Files{}) << "an escape with nothing behind it";
}

TEST_F(TraceSourcesTest, AFolderIsNoSource) {
  platform::makeFolders(local("A.java"));
  EXPECT_EQ(find(""), Files{});
}

}  // namespace
}  // namespace tarnwick::test
