#include "platform/FileArgument.h"
#include "support/ClassBytes.h"
#include "support/SettingsFixture.h"
#include "tools/JavaLauncher.h"
#include "tools/RunTarget.h"
#include "tools/ShortcutTexts.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

/// What is run of class files and archives in the newer way.
class NewerRunTargetTest : public SettingsFixture {
 protected:
  NewerRunTargetTest() {
    settings().newerJava = true;
    settings().javaXfuture = false;
    useJdk("17.0.15");
  }

  /// A JDK of this version; an empty one tells none.
  void useJdk(const std::string& version) {
    const std::string home =
        scratch_.file("jdk of " + (version.empty() ? "none" : version)) + platform::folderSeparator;
    settings().javaPath = home + "bin" + platform::folderSeparator;
    platform::makeFolders(settings().javaPath);
    for (const char* tool : {"java", "jdb"}) writeFile(settings().javaPath + platform::toolFileName(tool), "");
    if (!version.empty()) writeFile(home + "release", "JAVA_VERSION=\"" + version + "\"\n");
  }

  /// The path of a file below the user's folder; "/" stands between its parts.
  std::string path(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return userFolder() + name;
  }
  FileForSubprocess& makeClass(const std::string& file, const std::string& name, unsigned java = 17) {
    platform::makeFolders(Filename(path(file)).directory());
    writeFile(path(file), ClassBytes::of(name, java));
    file_.setName(path(file));
    return file_;
  }
  RunTarget target(const std::string& tool = "java") { return runTargetOf(settings(), file_.name(), tool); }

  /// What stands behind RUN.
  std::vector<std::string> behindRun(const JavaRun& run = {}) {
    const auto all = relaunchArguments(settings(), file_, run);
    return {std::find(all.begin(), all.end(), "\\/RUN=") + 1, all.end()};
  }
  std::string onPath(const std::string& list) { return "-classpath " + platform::commandLineList(list); }
  /// The user's folder as an element of a class path.
  std::string root() const { return Filename(Filename(userFolder()).directoryNoSlash()).quoted(); }

  using Words = std::vector<std::string>;
  FileForSubprocess file_;
};

TEST_F(NewerRunTargetTest, AClassInAPackageHasItsFullNameAndItsRootOnTheClassPath) {
  makeClass("shop/till/Main.class", "shop/till/Main");
  EXPECT_EQ(behindRun(), (Words{onPath(".;" + root()), "shop.till.Main"}));
  settings().classpath = ".;lib";
  EXPECT_EQ(behindRun(), (Words{onPath(".;lib;" + root()), "shop.till.Main"})) << "behind what the user has set";
  JavaRun run;
  run.tool = "jdb";
  run.debugging = true;
  EXPECT_EQ(behindRun(run), (Words{onPath(".;lib;" + root()), "shop.till.Main"}));
}

TEST_F(NewerRunTargetTest, TheClassicWayTakesTheFilesPlainName) {
  settings().newerJava = false;
  makeClass("shop/till/Main.class", "shop/till/Main", 25);
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "Main"}));
  EXPECT_EQ(target().warning, "");
  file_.setName(path("tool.jar"));
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "tool"}));
}

TEST_F(NewerRunTargetTest, AClassWithoutAPackageIsRunAsEver) {
  makeClass("Main.class", "Main");
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "Main"})) << "it is found in the current folder";
  settings().classpath = "lib;.";
  EXPECT_EQ(behindRun(), (Words{onPath("lib;."), "Main"}));
  settings().classpath = "lib";
  EXPECT_EQ(behindRun(), (Words{onPath("lib;" + root()), "Main"}));
}

TEST_F(NewerRunTargetTest, ARootThatIsOnTheClassPathIsNotAddedAgain) {
  makeClass("shop/Main.class", "shop/Main");
  const std::string plain = Filename(userFolder()).directoryNoSlash();
  for (const std::string& given :
       {plain, '"' + plain + '"', plain + platform::folderSeparator, "a;" + plain, plain + ";b"}) {
    JavaRun run;
    run.classpath = given;
    EXPECT_EQ(behindRun(run), (Words{onPath(given), "shop.Main"}));
  }
  JavaRun run;
  run.classpath = "a;b";
  EXPECT_EQ(behindRun(run), (Words{onPath("a;b;" + root()), "shop.Main"}));
  run.classpath = "";
  EXPECT_EQ(behindRun(run), (Words{onPath(root()), "shop.Main"}));
}

TEST_F(NewerRunTargetTest, TheEnvironmentsClassPathKeepsItsPlace) {
  settings().classpathFromEnvironmentNever = false;
  makeClass("shop/Main.class", "shop/Main");
  {
    const ScopedEnvironment none("CLASSPATH", "");
    EXPECT_EQ(behindRun(), (Words{onPath(".;" + root()), "shop.Main"}));
  }
  const ScopedEnvironment some("CLASSPATH", platform::commandLineList("some lib;other"));
  EXPECT_EQ(behindRun(), (Words{onPath("\"some lib\";other;" + root()), "shop.Main"}));
  makeClass("Main.class", "Main");
  EXPECT_EQ(behindRun(), (Words{onPath("\"some lib\";other;" + root()), "Main"}));
  const ScopedEnvironment current("CLASSPATH", platform::commandLineList("other;."));
  EXPECT_EQ(behindRun(), (Words{"Main"})) << "java reads it itself";
}

TEST_F(NewerRunTargetTest, AMembersClassFileIsCalledSo) {
  makeClass("shop/Main$In.class", "shop/Main$In");
  EXPECT_EQ(behindRun().back(), "shop.Main$In");
}

TEST_F(NewerRunTargetTest, LettersBeyondAsciiAreTakenFromTheDisk) {
  makeClass("gr\xFC\xDF/Z\xF6.class", "gr\xC3\xBC\xC3\x9F/Z\xC3\xB6");
  EXPECT_EQ(behindRun(), (Words{onPath(".;" + root()), "gr\xFC\xDF.Z\xF6"}));
  EXPECT_EQ(target().warning, "");
}

TEST_F(NewerRunTargetTest, AClassThatLooksLikeAnOptionIsNoneAndABlankSplitsNoName) {
  makeClass("-x.class", "-x");
  EXPECT_EQ(behindRun().back(), "./-x");
  makeClass("@x.class", "@x");
  EXPECT_EQ(behindRun().back(), "@@x");
  makeClass("a b/C D.class", "a b/C D");
  EXPECT_EQ(behindRun().back(), "\"a b.C D\"");
}

TEST_F(NewerRunTargetTest, AClassOutsideItsPackagesFoldersIsRunAsItIsAndTold) {
  makeClass("till/Main.class", "shop/till/Main");
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "Main"}));
  const std::string folder = std::string("shop") + platform::folderSeparator + "till";
  EXPECT_EQ(target().warning, "Main.class holds the class shop.till.Main, but does not lie in a folder " + folder +
                                  ".\nIt is run as it is. java may not find it.");
  EXPECT_TRUE(target("jdb").warning.ends_with("jdb may not find it."));
  makeClass("Other.class", "Main");
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "Other"}));
  EXPECT_EQ(target().warning,
            "Other.class holds the class Main, but does not bear its name.\nIt is run as it is. java may not find it.");
}

TEST_F(NewerRunTargetTest, AClassOfANewerJavaIsTold) {
  makeClass("shop/Main.class", "shop/Main", 25);
  EXPECT_EQ(target().warning,
            "The class shop.Main was compiled for Java 25. The JDK 17 of the settings can't run it.\nCompile its "
            "source anew, or choose a newer JDK.");
  makeClass("shop/Main.class", "shop/Main", 18);
  EXPECT_NE(target().warning.find("for Java 18. The JDK 17 of"), std::string::npos) << target().warning;
  for (const unsigned java : {1U, 8U, 17U}) {
    makeClass("shop/Main.class", "shop/Main", java);
    EXPECT_EQ(target().warning, "") << java;
  }
  useJdk("25");
  makeClass("shop/Main.class", "shop/Main", 25);
  EXPECT_EQ(target().warning, "");
  useJdk("");
  EXPECT_EQ(target().warning, "") << "of a JDK without a version nothing is known";
}

TEST_F(NewerRunTargetTest, TheWarningComesBeforeTheRun) {
  makeClass("Main.class", "Main", 25);
  program_.programPath = scratch_.file("gone");
  const std::string noStart = "Unable to start " + program_.programPath + ".\n\nNo such file or directory  (2)";
  for (const bool debugging : {false, true}) {
    desktop_.expectMessage(target().warning);
    desktop_.expectMessage(noStart);
    debugging ? runJdb(settings(), file_) : runJava(settings(), file_);
  }
}

TEST_F(NewerRunTargetTest, WhatIsNoClassFileIsRunByItsName) {
  writeFile(path("Main.class"), "no class at all");
  file_.setName(path("Main.class"));
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "Main"}));
  file_.setName(path("shop.till.Main.class"));
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "shop.till.Main"})) << "it need not even be there";
}

TEST_F(NewerRunTargetTest, AnArchiveIsRunAsOne) {
  const struct {
    const char* file;
    std::string words;
  } table[] = {{"tool.jar", "-jar tool.jar"},
               {"My Tool.JAR", "-jar \"My Tool.JAR\""},
               {"-x.jar", "-jar " + platform::fileWord("-x.jar")}};
  for (const auto& row : table) {
    file_.setName(path(row.file));
    EXPECT_EQ(behindRun(), (Words{"-classpath .", row.words}));
    EXPECT_EQ(target().warning, "");
  }
}

TEST_F(NewerRunTargetTest, TheDebuggerTellsThatItTakesNoArchive) {
  file_.setName(path("tool.jar"));
  desktop_.expectMessage("jdb can't run an archive: tool.jar\nChoose the class file of the program's main class.");
  runJdb(settings(), file_);
}

TEST_F(NewerRunTargetTest, AProgramWithItsOwnStreamsIsRunAsJavaRunsIt) {
  JavaRun run;
  run.tool = "jdb";
  run.debugging = run.ownStreams = true;
  file_.setName(path("tool.jar"));
  EXPECT_EQ(behindRun(run), (Words{"-classpath .", "-jar tool.jar"}));
  makeClass("shop/till/Main.class", "shop/Main");
  settings().jdbOwnStreams = true;
  desktop_.expectMessage(
      "Main.class holds the class shop.Main, but does not lie in a folder shop.\n"
      "It is run as it is. java may not find it.");
  program_.programPath = path("nothing");
  desktop_.expectMessage("Unable to start " + program_.programPath + ".\n\nNo such file or directory  (2)");
  runJdb(settings(), file_);
}

TEST_F(NewerRunTargetTest, ShortcutsTellTheSame) {
  makeClass("shop/till/Main.class", "shop/till/Main");
  const std::string line = onPath(".;" + root()) + " shop.till.Main";
  EXPECT_EQ(shortcutWithoutControl(settings(), file_).arguments, line);
  EXPECT_EQ(shortcutWithoutControl(settings(), file_).workingFolder, path("shop/till/"));
  EXPECT_TRUE(shortcutUnderControl(settings(), file_).arguments.ends_with("\\/RUN=" + line));
  settings().newerJava = false;
  EXPECT_EQ(shortcutWithoutControl(settings(), file_).arguments, "-classpath . Main");
}

TEST_F(NewerRunTargetTest, TheUsersFurtherOptionsStandBeforeTheClass) {
  makeClass("Main.class", "Main");
  settings().javaOptions = "--enable-preview  --add-modules java.sql";
  JavaRun run;
  run.extraOption = "-verbose";
  EXPECT_EQ(behindRun(run), (Words{"-classpath .", "-verbose", "--enable-preview  --add-modules java.sql", "Main"}));
  file_.setName(path("tool.jar"));
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "--enable-preview  --add-modules java.sql", "-jar tool.jar"}));
  EXPECT_TRUE(shortcutWithoutControl(settings(), file_)
                  .arguments.ends_with(" --enable-preview  --add-modules java.sql -jar tool.jar"));
}

TEST_F(NewerRunTargetTest, TheDebuggerIsToldToHandOnWhatItDoesNotHandOnByItself) {
  const struct {
    const char* options;
    const char* words;
  } table[] = {{"", ""},
               {"  ", "  "},
               {"--enable-preview", "-R--enable-preview"},
               {" --add-modules  java.sql ", " -R--add-modules  -Rjava.sql "},
               {"-Xint -Dx=y -verbose:gc -ea", "-Xint -Dx=y -verbose:gc -R-ea"},
               {"\"-Dx=y z\" -Dx=\"y z\"", "-R\"-Dx=y z\" -Dx=\"y z\""},
               {"--a=\"b c\" d", "-R--a=\"b c\" -Rd"},
               {"-a\t-b", "-R-a\t-R-b"}};
  for (const auto& row : table) EXPECT_EQ(debuggerOptions(row.options), row.words);
  settings().javaOptions = "--enable-preview";
  makeClass("Main.class", "Main");
  JavaRun run;
  run.tool = "jdb";
  run.debugging = true;
  run.extraOption = "-launch";
  EXPECT_EQ(behindRun(run), (Words{"-classpath .", "-launch", "-R--enable-preview", "Main"}));
}

}  // namespace
}  // namespace tarnwick::test
