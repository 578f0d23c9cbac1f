#include "support/Children.h"
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"
#include "tools/JavaLauncher.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class JavaLauncherTest : public SettingsFixture {
 protected:
  struct Project : OpenProject {
    void save() override {}
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "\"a b/p.twp\""; }
  };

  JavaLauncherTest() : file_(userFolder() + "My Class.class") {
    settings().javaPath = "jdk" + std::string(1, platform::folderSeparator);
    settings().javaXfuture = false;
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

TEST_F(JavaLauncherTest, AClassThatLooksLikeAnOptionIsNone) {
  JavaRun debugger;
  debugger.tool = "jdb";
  debugger.debugging = true;
  const struct {
    const char* file;
    const char* argument;
  } table[] = {{"@args.class", "@@args"},
               {"@@args.class", "@@@args"},
               {"-version.class", "./-version"},
               {"--x.class", "./--x"},
               {" -version.class", "./ -version"},
               {" @args.class", " @@args"},
               {"A-@.class", "A-@"},
               {"\"-version\".class", "./\"-version\""}};
  for (const auto& row : table) {
    const std::string name = row.file;
    if (platform::folderSeparator == '\\' && name.find('"') != std::string::npos) continue;  // no name there
    file_.setName(userFolder() + name);
    EXPECT_EQ(behindRun().back(), row.argument);
    EXPECT_EQ(behindRun(debugger).back(), row.argument);
  }
}

TEST_F(JavaLauncherTest, AnOpenProjectIsTheConfiguration) {
  settings().currentProject = std::make_unique<Project>();
  EXPECT_EQ(arguments()[4], "\\/CFG=\"a b/p.twp\"\\/");
}

TEST_F(JavaLauncherTest, EveryOptionInItsPlace) {
  Settings& s = settings();
  s.javaXfuture = s.javaXprof = s.javaJniValidate = s.javaSystemAssertEnable = s.javaSystemAssertDisable = true;
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

TEST_F(JavaLauncherTest, EachSettingAloneGivesItsElementInItsPlace) {
  struct Row {
    std::function<void(Settings&)> set;
    std::string element;
    bool whenDebugging;
  };
  const Row rows[] = {
      {[](Settings& s) { s.javaXfuture = true; }, "-Xfuture", true},
      {[](Settings& s) { s.javaXprof = true; }, "-Xprof", true},
      {[](Settings& s) { s.javaJniValidate = true; }, "-Xcheck:jni", true},
      {[](Settings& s) { s.javaXrunhprof = "cpu=samples"; }, "-Xrunhprof:cpu=samples", true},
      {[](Settings& s) { s.classpath = "a;b"; }, "-classpath " + list("a;b"), true},
      {[](Settings& s) { s.bootpath = "c;d"; }, "-Xbootclasspath:" + list("c;d"), true},
      {[](Settings& s) { s.javaXms = "1m"; }, "-Xms1m", true},
      {[](Settings& s) { s.javaXmx = "2m"; }, "-Xmx2m", true},
      {[](Settings& s) { s.javaXss = "3m"; }, "-Xss3m", true},
      {[](Settings& s) { s.javaProperty = "-Dx=y  -Dz"; }, "-Dx=y  -Dz", true},
      {[](Settings& s) { s.javaGarbageCollector = "Disabled"; }, "-Xnoclassgc", true},
      {[](Settings& s) { s.javaGarbageCollector = "Incremental"; }, "-Xincgc", true},
      {[](Settings& s) { s.javaGarbageCollector = "Concurrent"; }, "-Xconcgc", true},
      {[](Settings& s) { s.javaAssertEnable = "Foo.class, bar"; }, "-ea:Foo -ea:bar ", false},
      {[](Settings& s) { s.javaAssertDisable = "baz"; }, "-da:baz ", false},
      {[](Settings& s) { s.javaSystemAssertEnable = true; }, "-enablesystemassertions", false},
      {[](Settings& s) { s.javaSystemAssertDisable = true; }, "-disablesystemassertions", false},
  };
  for (const bool project : {false, true}) {
    for (const bool debugging : {false, true}) {
      for (const auto& row : rows) {
        const auto settings = freshSettings();
        settings->javaXfuture = false;
        settings->classpathFromEnvironmentNever = false;  // no class path of its own accord
        settings->javaPath = "jdk" + std::string(1, platform::folderSeparator);
        if (project) settings->currentProject = std::make_unique<Project>();
        row.set(*settings);
        JavaRun run;
        run.debugging = debugging;
        run.tool = debugging ? "jdb" : "java";
        Words expected = {"Tarnwick", "\\/DEFAULTDIR=" + userFolder() + "\\/",
                          "\\/EXEFILE=" + settings->javaPath + platform::toolFileName(run.tool) + "\\/",
                          "\\/TITLE=My Class\\/", "\\/CFG=" + (project ? "\"a b/p.twp\"" : configFile()) + "\\/"};
        if (debugging) expected.emplace_back("\\/JDEBUG\\/");
        expected.emplace_back("\\/RUN=");
        if (row.whenDebugging || !debugging) expected.push_back(row.element);
        expected.emplace_back("My Class");
        EXPECT_EQ(relaunchArguments(*settings, file_, run), expected);
      }
    }
  }
}

TEST_F(JavaLauncherTest, TheUsersWordsFollowTheClassOfEitherTool) {
  const ScopedEnvironment script("STANDIN_SCRIPT", scratch_.file("script"));
  const ScopedEnvironment record("STANDIN_RECORD", scratch_.file("record"));
  writeFile(scratch_.file("script"), "");
  useStandIns();
  file_.setName(userFolder() + "Main.class");
  file_.args() = {"one \"two three\""};
  program_.programPath = StandInScript::tool("appletviewer");
  for (const bool debugging : {false, true}) {
    settings().javaVerbose = settings().jdbLaunch = debugging ? 0 : 1;
    for (int both = 0; both < 2; ++both) {
      platform::deleteFile(scratch_.file("record"));
      if (debugging) {
        runJdb(settings(), file_, "cp", "sp");
      } else {
        runJava(settings(), file_);
      }
      // Where the arguments are one command line, the blanks between the marks split them again.
      Words words = {"\\/DEFAULTDIR=" + userFolder() + "\\/",
                     "\\/EXEFILE=" + settings().javaPath + platform::toolFileName(debugging ? "jdb" : "java") + "\\/",
                     "\\/TITLE=Main\\/", "\\/CFG=" + configFile() + "\\/"};
      if (debugging) words.insert(words.end(), {"\\/JDEBUG\\/", "\\/RUN=", "-classpath cp", "-sourcepath sp"});
      if (!debugging) words.insert(words.end(), {"\\/RUN=", "-classpath ."});
      if (settings().javaVerbose) words.emplace_back(debugging ? "-launch" : "-verbose");
      words.insert(words.end(), {"Main", "one \"two three\""});
      std::string expected;
      for (const auto& word : words) expected += word + '\n';
      const auto oneLine = [](std::string text) {
        text.erase(std::remove(text.begin(), text.end(), '"'), text.end());
        std::replace(text.begin(), text.end(), ' ', '\n');
        return text;
      };
      const bool vector = platform::folderSeparator == '/';
      EXPECT_TRUE(waitUntil([&] {
        if (!platform::isFile(scratch_.file("record"))) return false;
        const std::string got = contentOf(scratch_.file("record"));
        return vector ? got == expected : oneLine(got) == oneLine(expected);
      })) << expected
          << contentOf(scratch_.file("record"));
      settings().javaVerbose = settings().jdbLaunch = 1 - settings().javaVerbose;
    }
  }
}

TEST_F(JavaLauncherTest, AProgramWithItsOwnStreamsIsRunByJavaWithAllOfItsOptions) {
  Settings& s = settings();
  s.javaXfuture = s.javaXprof = s.javaJniValidate = s.javaSystemAssertEnable = s.javaSystemAssertDisable = true;
  s.classpath = "a;b";
  s.bootpath = "c;d";
  s.javaXmx = "2m";
  s.javaProperty = "-Dx=y";
  s.javaAssertEnable = "Foo.class, bar";
  s.javaAssertDisable = "baz";
  s.javaOptions = "--enable-preview";
  JavaRun run;
  run.tool = "jdb";
  run.debugging = run.ownStreams = true;
  run.sourcepath = "s;t";
  const std::string tools = "jdk" + std::string(1, platform::folderSeparator);
  EXPECT_EQ(arguments(run), (Words{"Tarnwick",
                                   "\\/DEFAULTDIR=" + userFolder() + "\\/",
                                   "\\/EXEFILE=" + tools + platform::toolFileName("jdb") + "\\/",
                                   "\\/TITLE=My Class\\/",
                                   "\\/CFG=" + configFile() + "\\/",
                                   "\\/JDEBUG\\/",
                                   "\\/PROGRAM=" + tools + platform::toolFileName("java") + "\\/",
                                   "\\/JDBOPTIONS=-sourcepath " + list("s;t") + "\\/",
                                   "\\/RUN=",
                                   "-Xfuture",
                                   "-Xprof",
                                   "-Xcheck:jni",
                                   "-classpath " + list("a;b"),
                                   "-Xbootclasspath:" + list("c;d"),
                                   "-Xmx2m",
                                   "-Dx=y",
                                   "-ea:Foo -ea:bar ",
                                   "-da:baz ",
                                   "-enablesystemassertions",
                                   "-disablesystemassertions",
                                   "--enable-preview",
                                   "My Class"}))
      << "no option is left out, and none bears a mark for jdb";
  for (const std::optional<std::string>& none : {std::optional<std::string>(), std::optional<std::string>("")}) {
    run.sourcepath = none;
    EXPECT_EQ(arguments(run)[7], "\\/RUN=");
  }
}

TEST_F(JavaLauncherTest, TheSettingTellsWhetherAProgramHasItsOwnStreams) {
  const ScopedEnvironment script("STANDIN_SCRIPT", scratch_.file("script"));
  const ScopedEnvironment record("STANDIN_RECORD", scratch_.file("record"));
  writeFile(scratch_.file("script"), "");
  useStandIns();
  file_.setName(userFolder() + "Main.class");
  program_.programPath = StandInScript::tool("appletviewer");
  settings().jdbLaunch = true;
  const auto words = [&](bool own) {
    settings().jdbOwnStreams = own;
    platform::deleteFile(scratch_.file("record"));
    runJdb(settings(), file_, "cp", "sp");
    EXPECT_TRUE(waitUntil([&] {
      return platform::isFile(scratch_.file("record")) &&
             contentOf(scratch_.file("record")).find("Main\n", 20) != std::string::npos;
    }));
    std::string line = contentOf(scratch_.file("record"));
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
  };
  EXPECT_TRUE(words(true).ends_with("\\/JDBOPTIONS=-sourcepath sp\\/ \\/RUN= -classpath cp Main "))
      << "it is launched anyway";
  const std::string classic = words(false);
  EXPECT_TRUE(classic.ends_with("\\/JDEBUG\\/ \\/RUN= -classpath cp -sourcepath sp -launch Main ")) << classic;
}

TEST_F(JavaLauncherTest, AProfileThatBeginsWithAColonGetsNoSecondOne) {
  settings().javaXrunhprof = ":cpu=samples";
  EXPECT_EQ(behindRun()[0], "-Xrunhprof:cpu=samples");
}

TEST_F(JavaLauncherTest, AnEmptyClasspathGivesNoOption) {
  settings().classpathFromEnvironmentNever = false;
  EXPECT_EQ(behindRun(), (Words{"My Class"}));
}

TEST_F(JavaLauncherTest, AGivenClasspathWins) {
  JavaRun run;
  run.classpath = "x;y";
  settings().classpath = "other";
  EXPECT_EQ(behindRun(run), (Words{"-classpath " + list("x;y"), "My Class"}));
}

TEST_F(JavaLauncherTest, AGivenPathIsPassedOnEvenIfItIsEmpty) {
  JavaRun run;
  run.classpath = "";
  run.sourcepath = "";
  EXPECT_EQ(behindRun(run), (Words{"-classpath ", "-sourcepath ", "My Class"}));
  run.classpath = std::nullopt;
  run.sourcepath = "s";
  settings().classpathFromEnvironmentNever = false;
  EXPECT_EQ(behindRun(run), (Words{"-sourcepath s", "My Class"}));
}

TEST_F(JavaLauncherTest, AToolsFolderThatTheUserGivesIsUsedAtOnce) {
  settings().javaPath.clear();
  const std::string folder = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    EXPECT_EQ(window.selection(1092), 0);
    window.page(1092, 0).type(1041, folder);
    window.press(IDOK_CONTROL);
  });
  desktop_.expectMessage("Can't access the JDK tool " + folder + platform::toolFileName("java") +
                         "\nNo such file or directory"
                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJava(settings(), file_);
}

TEST_F(JavaLauncherTest, AssertionListsOfBlanksGiveNothing) {
  settings().javaAssertEnable = "  ";
  EXPECT_EQ(behindRun(), (Words{"-classpath .", "My Class"}));
}

TEST_F(JavaLauncherTest, AnUnknownToolsFolderIsAskedForAndThenTold) {
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  desktop_.expectMessage(said("No path to javac.exe and other tools available from settings",
                              "No path to javac and other tools available from settings"));
  runJava(settings(), file_);
}

TEST_F(JavaLauncherTest, AToolThatCantBeReadIsTold) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("java") +
                         "\nNo such file or directory"
                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJava(settings(), file_);
}

TEST_F(JavaLauncherTest, AProgramThatCantBeStartedIsTold) {
  useStandIns();
  program_.programPath = scratch_.file("gone");
  desktop_.expectMessage("Unable to start " + program_.programPath + ".\n\nNo such file or directory  (2)");
  runJava(settings(), file_);
}

TEST_F(JavaLauncherTest, ADebuggerThatCantBeReadIsTold) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("jdb") +
                         "\nNo such file or directory"
                         "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJdb(settings(), file_);
}

}  // namespace
}  // namespace tarnwick::test
