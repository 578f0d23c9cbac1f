// Where JDKs are looked for on Linux, with JDKs in all of these places.
#include "platform/FileSystem.h"
#include "settings/JdkDiscovery.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class JdkPlacesTest : public testing::Test {
 protected:
  JdkPlacesTest() {
    for (const char* variable :
         {"SDKMAN_DIR", "ASDF_DATA_DIR", "MISE_DATA_DIR", "JABBA_HOME", "JENV_ROOT", "GRADLE_USER_HOME"}) {
      unset_.push_back(std::make_unique<ScopedEnvironment>(variable, ""));
    }
  }

  /// Makes a JDK of empty files. Gives the folder of its tools.
  std::string makeJdk(const std::string& home) const {
    const std::string tools = scratch_.file(home) + "/bin/";
    platform::makeFolders(tools);
    writeFile(tools + "javac", "");
    writeFile(scratch_.file(home) + "/release", "JAVA_VERSION=\"99\"\n");
    return platform::resolvedPath(tools + "javac").substr(0, platform::resolvedPath(tools + "javac").size() - 5);
  }

  static bool found(const std::string& tools) {
    const auto jdks = installedJdks();
    return std::any_of(jdks.begin(), jdks.end(),
                       [&](const Jdk& jdk) { return jdk.toolsFolder == tools && jdk.version == "99"; });
  }

  ScratchFolder scratch_;
  ScopedEnvironment home_{"HOME", scratch_.path().substr(0, scratch_.path().size() - 1)};
  ScopedEnvironment javaHome_{"JAVA_HOME", ""};
  ScopedEnvironment path_{"PATH", scratch_.file("no such folder")};
  std::vector<std::unique_ptr<ScopedEnvironment>> unset_;
};

TEST_F(JdkPlacesTest, VersionManagersInTheHomeFolderAreKnown) {
  for (const char* home :
       {".sdkman/candidates/java/17.0.15-tem", ".jdks/corretto-17.0.9", ".asdf/installs/java/openjdk-17",
        ".local/share/mise/installs/java/openjdk-21", ".local/share/rtx/installs/java/openjdk-20",
        ".jabba/jdk/openjdk@1.17.0", ".jenv/versions/17.0", ".gradle/jdks/jdk-17.0.5+8", ".jbang/cache/jdks/17"}) {
    const std::string tools = makeJdk(home);
    EXPECT_TRUE(found(tools)) << home;
  }
}

TEST_F(JdkPlacesTest, GradleMayKeepAJdkOneFolderDeeper) {
  const std::string tools = makeJdk(".gradle/jdks/eclipse_adoptium-17-amd64-linux/jdk-17.0.5+8");
  EXPECT_TRUE(found(tools));
}

TEST_F(JdkPlacesTest, AVersionManagerThatWasMovedIsFoundByItsVariable) {
  const struct {
    const char* variable;
    const char* below;
  } table[] = {{"SDKMAN_DIR", "/candidates/java/a"},  {"ASDF_DATA_DIR", "/installs/java/b"},
               {"MISE_DATA_DIR", "/installs/java/c"}, {"JABBA_HOME", "/jdk/d"},
               {"JENV_ROOT", "/versions/e"},          {"GRADLE_USER_HOME", "/jdks/f"}};
  for (const auto& row : table) {
    const std::string place = std::string("moved ") + row.variable;
    const std::string tools = makeJdk(place + row.below);
    EXPECT_FALSE(found(tools)) << row.variable;
    const ScopedEnvironment moved(row.variable, scratch_.file(place));
    EXPECT_TRUE(found(tools)) << row.variable;
  }
}

TEST_F(JdkPlacesTest, AJdkInAFolderWithALineEndIsNoJdk) {
  const std::string tools = makeJdk("x\nJAVA_PATH  /planted");
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("x\nJAVA_PATH  /planted"));
  const ScopedEnvironment path("PATH", tools);
  EXPECT_EQ(preferredJdkTools({}), "");
  EXPECT_TRUE(findJdks({}).empty());
}

TEST_F(JdkPlacesTest, NorIsOneToWhichALinkWithoutALineEndLeads) {
  makeJdk("x\nJAVA_PATH  /planted");
  std::filesystem::create_symlink(scratch_.file("x\nJAVA_PATH  /planted"), scratch_.file("clean"));
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("clean"));
  const ScopedEnvironment path("PATH", scratch_.file("clean") + "/bin");
  EXPECT_EQ(preferredJdkTools({}), "");
  EXPECT_TRUE(findJdks({}).empty());
}

TEST_F(JdkPlacesTest, TheSystemsFoldersAreAmongThem) {
  const auto places = platform::jdkPlaces();
  for (const char* folder : {"/usr/lib/jvm", "/usr/java", "/opt"}) {
    EXPECT_NE(std::find(places.parents.begin(), places.parents.end(), folder), places.parents.end()) << folder;
  }
}

}  // namespace
}  // namespace tarnwick::test
