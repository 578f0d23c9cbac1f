#include "dialogs/JavadocRoots.h"
#include "unit/project/ProjectFixture.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

/// Which roots of packages a run of `javadoc` gets.
class JavadocRootsTest : public ProjectFixture {
 protected:
  JavadocRootsTest() : classpath_("CLASSPATH", platform::commandLineList("env")) {
    settings().newerJava = true;
    settings().classpathFromEnvironmentNever = false;
  }
  std::string at(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return folder() + name;
  }
  std::string add(const std::string& name, const std::string& text) const {
    platform::makeFolders(Filename(at(name)).directoryNoSlash());
    writeFile(at(name), text);
    return at(name);
  }
  JavadocRun withRoots(const std::vector<std::string>& names, JavadocRun run = {}) {
    addRootsOfSources(run, settings(), names);
    return run;
  }

  ScopedEnvironment classpath_;
};

TEST_F(JavadocRootsTest, TheRootsComeBehindTheUsersPathsEachOnce) {
  const std::string one = add("src/p/A.java", "package p; class A {}");
  const std::string two = add("src/q/B.java", "package q; class B {}");
  EXPECT_EQ(withRoots({one, two}).classPath, "env;" + quoted(at("src")));
  EXPECT_EQ(withRoots({one, two}).sourcePath, "") << "then the tool looks for sources on the class path";
  JavadocRun run;
  run.classPath = "lib";
  run.sourcePath = "more";
  EXPECT_EQ(withRoots({one}, run).classPath, "lib;" + quoted(at("src")));
  EXPECT_EQ(withRoots({one}, run).sourcePath, "more;" + quoted(at("src")));
}

TEST_F(JavadocRootsTest, NamesThatAreNoFilesHaveNoShare) {
  platform::makeFolders(at("src/p"));
  EXPECT_EQ(withRoots({at("src/p"), at("None.java"), "java.util"}).classPath, "") << "nor the environment's class path";
}

TEST_F(JavadocRootsTest, TheRootsOfTheOpenProjectFollow) {
  const std::string one = add("src/p/A.java", "package p; class A {}");
  add("test/p/T.java", "package p; class T {}");
  open("NEWER_JAVA  ON\nPROJECT_SOURCES  test/p/T.java;src/p/A.java\n").update();
  settings().classpathFromEnvironmentNever = true;
  EXPECT_EQ(withRoots({one}).classPath, quoted(at("src")) + ';' + quoted(at("test")));
  settings().newerJava = false;
  EXPECT_EQ(withRoots({one}).classPath, "") << "the classic way knows no roots";
}

}  // namespace
}  // namespace tarnwick::test
