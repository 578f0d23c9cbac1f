#include "support/SettingsFixture.h"
#include "tools/JavaLauncher.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class JavaLauncherTest : public SettingsFixture {
 protected:
  JavaLauncherTest() : file_(userFolder() + "My Class.class") {
    settings().javaPath = "jdk" + std::string(1, platform::folderSeparator);
    settings().javaXfuture = 0;
  }

  std::vector<std::string> arguments(const JavaRun& run = {}) { return relaunchArguments(settings(), file_, run); }
  std::string list(const std::string& text) { return platform::commandLineList(text); }

  /// What stands behind RUN.
  std::vector<std::string> behindRun(const JavaRun& run = {}) {
    const auto all = arguments(run);
    const auto mark = std::find(all.begin(), all.end(), "\\/RUN=");
    return {mark + 1, all.end()};
  }

  using Words = std::vector<std::string>;
  FileForSubprocess file_;
};

TEST_F(JavaLauncherTest, TheSwitchesOfThePlainestRun) {
  EXPECT_EQ(arguments(),
            (Words{"Tarnwick", "\\/DEFAULTDIR=" + userFolder() + "\\/",
                   "\\/EXEFILE=" + settings().javaPath + platform::toolFileName("java") + "\\/", "\\/TITLE=My Class\\/",
                   "\\/CFG=" + configFile() + "\\/", "\\/RUN=", "-classpath .", "My Class"}));
}

TEST_F(JavaLauncherTest, AnOpenProjectIsTheConfiguration) {
  struct Project : OpenProject {
    void save() override {}
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "\"a b/p.twp\""; }
  };
  settings().currentProject = std::make_unique<Project>();
  EXPECT_EQ(arguments()[4], "\\/CFG=\"a b/p.twp\"\\/");
}

TEST_F(JavaLauncherTest, EveryOptionInItsPlace) {
  Settings& s = settings();
  s.javaXfuture = s.javaXprof = s.javaJniValidate = s.javaSystemAssertEnable = s.javaSystemAssertDisable = 1;
  s.javaXrunhprof = "cpu=samples";
  s.classpath = "a;b";
  s.bootpath = "c;d";
  s.javaXms = "1m";
  s.javaXmx = "2m";
  s.javaXss = "3m";
  s.javaProperty = "-Dx=y";
  s.javaGarbageCollector = "Incremental";
  s.javaAssertEnable = "Foo.class, bar";
  s.javaAssertDisable = "baz";
  JavaRun run;
  run.extraOption = "-verbose";
  run.sourcepath = "s;t";
  EXPECT_EQ(behindRun(run),
            (Words{"-Xfuture", "-Xprof", "-Xcheck:jni", "-Xrunhprof:cpu=samples", "-classpath " + list("a;b"),
                   "-sourcepath " + list("s;t"), "-Xbootclasspath:" + list("c;d"), "-Xms1m", "-Xmx2m", "-Xss3m",
                   "-Dx=y", "-Xincgc", "-ea:Foo -ea:bar ", "-da:baz ", "-enablesystemassertions",
                   "-disablesystemassertions", "-verbose", "My Class"}));
  run.tool = "jdb";
  run.debugging = true;
  run.extraOption = "-launch";
  EXPECT_EQ(arguments(run)[5], "\\/JDEBUG\\/");
  EXPECT_EQ(behindRun(run),
            (Words{"-Xfuture", "-Xprof", "-Xcheck:jni", "-Xrunhprof:cpu=samples", "-classpath " + list("a;b"),
                   "-sourcepath " + list("s;t"), "-Xbootclasspath:" + list("c;d"), "-Xms1m", "-Xmx2m", "-Xss3m",
                   "-Dx=y", "-Xincgc", "-launch", "My Class"}))
      << "a debugging run gives no assertion options";
}

TEST_F(JavaLauncherTest, AProfileThatBeginsWithAColonGetsNoSecondOne) {
  settings().javaXrunhprof = ":cpu=samples";
  EXPECT_EQ(behindRun()[0], "-Xrunhprof:cpu=samples");
}

TEST_F(JavaLauncherTest, AnEmptyClasspathGivesNoOption) {
  settings().classpathFromEnvironmentNever = 0;
  EXPECT_EQ(behindRun(), (Words{"My Class"}));
}

TEST_F(JavaLauncherTest, AGivenClasspathWins) {
  JavaRun run;
  run.classpath = "x;y";
  settings().classpath = "other";
  EXPECT_EQ(behindRun(run), (Words{"-classpath " + list("x;y"), "My Class"}));
}

TEST_F(JavaLauncherTest, AssertionListsOfBlanksGiveNothing) {
  settings().javaAssertEnable = "  ";
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "My Class"}));
}

TEST_F(JavaLauncherTest, AnUnknownToolsFolderIsAskedForAndThenTold) {
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  desktop_.expectMessage(platform::localText("No path to javac.exe and other tools available from settings"));
  runJava(settings(), file_, nullptr);
}

TEST_F(JavaLauncherTest, AToolThatCantBeReadIsTold) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("java") +
                         "\nNo such file or directory"
                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJava(settings(), file_, nullptr);
}

TEST_F(JavaLauncherTest, AProgramThatCantBeStartedIsTold) {
  useStandIns();
  program_.programPath = scratch_.file("gone");
  desktop_.expectMessage("Unable to start " + program_.programPath + ".\n\nNo such file or directory  (2)");
  runJava(settings(), file_, nullptr);
}

}  // namespace
}  // namespace tarnwick::test
