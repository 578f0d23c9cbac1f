#include "settings/JdkDiscovery.h"
#include "support/SettingsPageFixture.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class JdkDiscoveryTest : public SettingsPageFixture {
 protected:
  JdkDiscoveryTest() : SettingsPageFixture(0) {}

  /// Makes a JDK of empty files. Gives its tools' folder.
  std::string makeJdk(std::string name, const std::string& version) {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    const std::string home = scratch_.file(name) + platform::folderSeparator;
    const std::string tools = home + "bin" + platform::folderSeparator;
    platform::makeFolders(tools);
    writeFile(tools + platform::toolFileName("javac"), "");
    if (!version.empty()) writeFile(home + "release", "IMPLEMENTOR=\"x\"\nJAVA_VERSION=\"" + version + "\"\n");
    return Filename(platform::resolvedPath(tools + platform::toolFileName("javac"))).directory();
  }

  static std::vector<std::string> foldersOf(const std::vector<Jdk>& jdks) {
    std::vector<std::string> folders;
    for (const auto& jdk : jdks) folders.push_back(jdk.toolsFolder);
    return folders;
  }

  using Folders = std::vector<std::string>;

  // Nothing from the machine's own environment.
  ScopedEnvironment javaHome_{"JAVA_HOME", ""};
  ScopedEnvironment path_{"PATH", scratch_.file("no such folder")};
};

TEST_F(JdkDiscoveryTest, JavaHomeComesFirst) {
  const std::string home = makeJdk("ho me", "17.0.1");
  const std::string onPath = makeJdk("path", "25");
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("ho me"));
  const ScopedEnvironment path("PATH", onPath);
  EXPECT_EQ(preferredJdkTools(findJdks({})), home);
  EXPECT_EQ(foldersOf(findJdks({})), (Folders{onPath, home})) << "the newest first";
}

TEST_F(JdkDiscoveryTest, ThenTheSearchPath) {
  const std::string tools = makeJdk("path jdk", "17");
  const std::string newer = makeJdk("jvm/newer", "25");
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("nowhere"));
  const ScopedEnvironment path("PATH", platform::commandLineList(scratch_.file("empty") + ";" + tools));
  const auto found = findJdks({{}, {scratch_.file("jvm")}});
  EXPECT_EQ(preferredJdkTools(found), tools);
  EXPECT_EQ(foldersOf(found), (Folders{newer, tools}));
}

TEST_F(JdkDiscoveryTest, ThenTheNewestOfTheUsualPlaces) {
  makeJdk("jvm/a", "1.8.0_302");
  const std::string newest = makeJdk("jvm/b", "21.0.2");
  makeJdk("jvm/c", "21.0.1");
  EXPECT_EQ(preferredJdkTools(findJdks({{}, {scratch_.file("jvm")}})), newest);
}

TEST_F(JdkDiscoveryTest, NothingFoundIsEmpty) {
  const auto found = findJdks({{scratch_.file("no home")}, {scratch_.file("no parent")}});
  EXPECT_TRUE(found.empty());
  EXPECT_EQ(preferredJdkTools(found), "");
}

TEST_F(JdkDiscoveryTest, EveryFolderOfThePathCounts) {
  const std::string first = makeJdk("one", "11");
  const std::string second = makeJdk("two", "17");
  const ScopedEnvironment path("PATH", platform::commandLineList(first + ";" + second));
  EXPECT_EQ(foldersOf(findJdks({})), (Folders{second, first}));
  EXPECT_EQ(preferredJdkTools(findJdks({})), first);
}

TEST_F(JdkDiscoveryTest, TheNewestComesFirstByTheNumbersOfTheVersion) {
  const std::string old = makeJdk("jvm/a", "1.8.0_302");
  const std::string older = makeJdk("jvm/b", "1.8.0_41");
  const std::string nine = makeJdk("jvm/c", "9.0.4");
  const std::string ten = makeJdk("jvm/d", "10");
  const std::string seventeen = makeJdk("jvm/e", "17.0.9");
  const std::string later = makeJdk("jvm/f", "17.0.15");
  const std::string unknown = makeJdk("jvm/g", "");
  EXPECT_EQ(foldersOf(findJdks({{}, {scratch_.file("jvm")}})),
            (Folders{later, seventeen, ten, nine, old, older, unknown}));
}

TEST_F(JdkDiscoveryTest, AnEarlyAccessVersionComesBeforeTheOneThatItLeadsTo) {
  const std::string early = makeJdk("jvm/a", "25-ea+36");
  const std::string earlyUpdate = makeJdk("jvm/b", "25.0.1-ea");
  const std::string final = makeJdk("jvm/c", "25");
  const std::string update = makeJdk("jvm/d", "25.0.1");
  const std::string next = makeJdk("jvm/e", "26-ea");
  const std::string zeros = makeJdk("jvm/f", "24.0.0");
  const std::string older = makeJdk("jvm/g", "24+9");
  const std::string rebuilt = makeJdk("jvm/h", "23.0.2+7");
  const std::string old = makeJdk("jvm/i", "1.9.0-ea");
  EXPECT_EQ(foldersOf(findJdks({{}, {scratch_.file("jvm")}})),
            (Folders{next, update, earlyUpdate, final, early, zeros, older, rebuilt, old}));
}

TEST_F(JdkDiscoveryTest, ALinkToAProgramOfAnotherNameIsTakenAsItStands) {
  const std::string manager = scratch_.file("manager") + platform::folderSeparator;
  const std::string shims = scratch_.file("shims") + platform::folderSeparator;
  platform::makeFolders(manager);
  platform::makeFolders(shims);
  writeFile(manager + "manager", "");
  const std::string javac = shims + platform::toolFileName("javac");
  std::error_code failure;
  std::filesystem::create_symlink(manager + "manager", javac, failure);
  if (failure) GTEST_SKIP() << "no links here: " << failure.message();
  const ScopedEnvironment path("PATH", shims);
  const auto found = findJdks({});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().toolsFolder, platform::resolvedPath(scratch_.file("shims")) + platform::folderSeparator);
  EXPECT_EQ(found.front().version, "");
}

TEST_F(JdkDiscoveryTest, OnThePathAJdksOwnToolsComeBeforeALauncher) {
  const std::string launcher = scratch_.file("launcher") + platform::folderSeparator;
  platform::makeFolders(launcher);
  writeFile(launcher + platform::toolFileName("javac"), "");
  const std::string real = Filename(platform::resolvedPath(launcher + platform::toolFileName("javac"))).directory();
  {
    const ScopedEnvironment path("PATH", launcher);
    EXPECT_EQ(preferredJdkTools(findJdks({})), real) << "where there is nothing else";
    const std::string newest = makeJdk("jvm/b", "25");
    makeJdk("jvm/a", "17");
    EXPECT_EQ(preferredJdkTools(findJdks({{}, {scratch_.file("jvm")}})), newest) << "it tells its version";
  }
  const std::string onPath = makeJdk("path", "11");
  const ScopedEnvironment path("PATH", platform::commandLineList(launcher + ";" + onPath));
  EXPECT_EQ(preferredJdkTools(findJdks({{}, {scratch_.file("jvm")}})), onPath);
}

TEST_F(JdkDiscoveryTest, AnOldJdkOnThePathIsKnownByItsJar) {
  const std::string old = makeJdk("old", "");
  platform::makeFolders(scratch_.file("old") + platform::folderSeparator + "lib");
  writeFile(scratch_.file("old") + platform::folderSeparator + "lib" + platform::folderSeparator + "tools.jar", "");
  makeJdk("jvm/a", "25");
  const ScopedEnvironment path("PATH", old);
  EXPECT_EQ(preferredJdkTools(findJdks({{}, {scratch_.file("jvm")}})), old);
}

TEST_F(JdkDiscoveryTest, AFolderWithoutAJavacIsNoJdk) {
  platform::makeFolders(scratch_.file("jvm/runtime/bin"));
  writeFile(scratch_.file("jvm/runtime/release"), "JAVA_VERSION=\"25\"\n");
  writeFile(scratch_.file("jvm/runtime/bin/java"), "");
  const std::string tools = makeJdk("jvm/whole", "17");
  EXPECT_EQ(foldersOf(findJdks({{scratch_.file("jvm/runtime")}, {scratch_.file("jvm")}})), Folders{tools});
}

TEST_F(JdkDiscoveryTest, WhateverLeadsThereEachJdkIsListedOnce) {
  const std::string tools = makeJdk("jvm/real", "17.0.1");
  std::error_code failure;
  std::filesystem::create_directory_symlink(scratch_.file("jvm/real"), scratch_.file("jvm/default"), failure);
  if (failure) GTEST_SKIP() << "no links here: " << failure.message();
  const ScopedEnvironment javaHome("JAVA_HOME", scratch_.file("jvm/default"));
  const ScopedEnvironment path("PATH", Filename(scratch_.file("jvm/default"), "bin").fullName());
  const auto found = findJdks({{scratch_.file("jvm/real")}, {scratch_.file("jvm"), scratch_.file("jvm")}});
  ASSERT_EQ(foldersOf(found), Folders{tools});
  EXPECT_EQ(found.front().version, "17.0.1");
  EXPECT_EQ(preferredJdkTools(found), tools) << "links lead to the real folder";
}

TEST_F(JdkDiscoveryTest, TheReleaseFileTellsTheVersion) {
  EXPECT_EQ(jdkVersion(makeJdk("a", "1.4.2_19")), 4);
  EXPECT_EQ(jdkVersion(makeJdk("b", "1.8.0_302")), 8);
  EXPECT_EQ(jdkVersion(makeJdk("c", "17.0.15")), 17);
  EXPECT_EQ(jdkVersion(makeJdk("d", "25")), 25);
  EXPECT_EQ(jdkVersion(makeJdk("e", "26-ea")), 26);
  EXPECT_EQ(jdkVersion(makeJdk("ee", "9-Ubuntu")), 9);
  EXPECT_EQ(jdkVersion(makeJdk("f", "no number")), 0);
  EXPECT_EQ(jdkVersion(makeJdk("g", "99999999999999999999")) > 13, true) << "too long a number is still a number";
  EXPECT_EQ(jdkVersion(scratch_.file("none")), 0);
}

TEST_F(JdkDiscoveryTest, TheVersionIsThatOfTheJdkThatALinkLeadsTo) {
  const std::string tools = makeJdk("real", "25.0.1");
  const std::string links = scratch_.file("links") + platform::folderSeparator;
  platform::makeFolders(links);
  std::error_code failure;
  const std::string javac = platform::toolFileName("javac");
  std::filesystem::create_symlink(tools + javac, links + javac, failure);
  if (failure) GTEST_SKIP() << "no links here: " << failure.message();
  EXPECT_EQ(jdkVersion(links), 25);
}

TEST_F(JdkDiscoveryTest, TheUsualPlacesAreWholePaths) {
  const auto places = platform::jdkPlaces();
  EXPECT_GE(places.parents.size(), 6u);
  for (const auto& parent : places.parents) EXPECT_EQ(platform::absolutePath(parent), parent);
}

TEST_F(JdkDiscoveryTest, SeveralJdksAreOfferedUnderTheField) {
  const std::string older = makeJdk("older", "11.0.2");
  const std::string newer = makeJdk("newer", "25");
  const std::string nameless = makeJdk("nameless", "");
  context_.installedJdks = [&] {
    return findJdks({{scratch_.file("older"), scratch_.file("newer"), scratch_.file("nameless")}, {}});
  };
  settings().javaPath = older;
  playAndOk([&](ScriptedWindow& page) {
    EXPECT_TRUE(page.visible(2001));
    EXPECT_TRUE(page.visible(2002));
    EXPECT_EQ(page.entries(2002), (std::vector<std::string>{"JDK 25   " + newer, "JDK 11.0.2   " + older, nameless}));
    EXPECT_EQ(page.selection(2002), 1) << "the one in the field";
    page.choose(2002, 0);
    EXPECT_EQ(page.text(1041), newer);
  });
  EXPECT_EQ(settings().javaPath, newer);
}

TEST_F(JdkDiscoveryTest, TheListMarksTheJdkOfTheFieldWhateverPutItThere) {
  const std::string older = makeJdk("older", "11.0.2");
  const std::string newer = makeJdk("newer", "25");
  context_.installedJdks = [&] { return findJdks({{scratch_.file("older"), scratch_.file("newer")}, {}}); };
  settings().javaPath = newer;
  playAndCancel([&](ScriptedWindow& page) {
    EXPECT_EQ(page.selection(2002), 0);
    page.type(1041, "elsewhere");
    EXPECT_EQ(page.selection(2002), -1) << "so that either can be chosen again";
    page.type(1041, older.substr(0, older.size() - 1));
    EXPECT_EQ(page.selection(2002), 1) << "the last separator need not be typed";
    desktop_.expectOpenFile(newer + platform::toolFileName("javac"));
    page.press(1006);
    EXPECT_EQ(page.selection(2002), 0);
    page.choose(2002, 1);
    EXPECT_EQ(page.text(1041), older);
    EXPECT_EQ(page.selection(2002), 1);
  });
}

TEST_F(JdkDiscoveryTest, ASingleJdkIsNoChoice) {
  makeJdk("only", "17");
  context_.installedJdks = [&] { return findJdks({{scratch_.file("only")}, {}}); };
  settings().javaPath = "kept" + std::string(1, platform::folderSeparator);
  playAndOk([](ScriptedWindow& page) {
    EXPECT_FALSE(page.visible(2001));
    EXPECT_FALSE(page.visible(2002));
  });
  EXPECT_EQ(settings().javaPath, "kept" + std::string(1, platform::folderSeparator));
}

}  // namespace
}  // namespace tarnwick::test
