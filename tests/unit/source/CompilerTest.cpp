#include "platform/SystemVersion.h"
#include "source/Compiler.h"
#include "support/AskingCompiler.h"
#include "support/SettingsFixture.h"
#include "support/Shown.h"
#include "support/SystemWords.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class CompilerTest : public SettingsFixture {
 protected:
  std::vector<std::string> arguments() { return javacArguments(settings(), compilerClasspath(settings())); }
  /// The command text that the arguments give.
  std::string command() {
    std::string text;
    for (const auto& argument : arguments()) {
      if (!argument.empty()) text += (text.empty() ? "" : " ") + argument;
    }
    return text;
  }

  std::string makeSource(const std::string& name) {
    writeFile(userFolder() + name, "class A {}\n");
    return userFolder() + name;
  }
  std::string list(const std::string& text) { return platform::commandLineList(text); }
  std::string compilerFile() { return settings().javaPath + platform::toolFileName("javac"); }
};

TEST_F(CompilerTest, TheDefaults) {
  EXPECT_EQ(command(), "javac -d . -g -classpath .");
}

TEST_F(CompilerTest, EveryArgumentInItsPlace) {
  Settings& s = settings();
  s.javacMyJdkVersion = "1.4";
  s.javacSourceOption = "1.4";
  s.javacTargetSpec = "1.6";
  s.javacDestination = "classes";
  s.javacFastcode = s.javacVerbose = s.javacDeprecation = s.javacNowarn = true;
  s.javacJOption = "-J-Xmx1g";
  s.sourcepath = "a;b";
  s.classpath = "c;d";
  s.bootpath = "e;f";
  s.extdirs = "g;h";
  s.javacOptions = "--enable-preview  -parameters";
  EXPECT_EQ(arguments(),
            (std::vector<std::string>{"javac", "-Xswitchcheck -nowarn ", "-source 1.4", "-target 1.6", "-d", "classes",
                                      "-g", "-O", "-verbose", "-J-Xmx1g", "-deprecation", "-sourcepath", list("a;b"),
                                      "-classpath " + list("c;d"), "-bootclasspath " + list("e;f"),
                                      "-extdirs " + list("g;h"), "--enable-preview  -parameters"}));
}

TEST_F(CompilerTest, EachSwitchGivesItsOwnOption) {
  struct Row {
    bool SettingsValues::*setting;
    const char* option;
  };
  const Row rows[] = {{&SettingsValues::javacDebug, "-g"},
                      {&SettingsValues::javacFastcode, "-O"},
                      {&SettingsValues::javacVerbose, "-verbose"},
                      {&SettingsValues::javacDeprecation, "-deprecation"}};
  Settings& s = settings();
  s.javacDebug = false;
  for (const auto& row : rows) {
    s.*row.setting = 1;
    EXPECT_EQ(command(), std::string("javac -d . ") + row.option + " -classpath .");
    s.*row.setting = 0;
  }
  EXPECT_EQ(command(), "javac -d . -classpath .");
}

TEST_F(CompilerTest, EachTextGivesItsOwnElement) {
  struct Row {
    std::string SettingsValues::*setting;
    std::vector<std::string> elements;
  };
  const Row rows[] = {{&SettingsValues::javacJOption, {"a b"}},
                      {&SettingsValues::sourcepath, {"-sourcepath", "a b"}},
                      {&SettingsValues::bootpath, {"-bootclasspath a b"}},
                      {&SettingsValues::extdirs, {"-extdirs a b"}},
                      {&SettingsValues::javacOptions, {"a b"}}};
  Settings& s = settings();
  // Without a class path of the settings nothing stands behind what is looked at.
  s.classpathFromEnvironmentAlways = true;
  const std::vector<std::string> without = {"javac", "", "", "", "-d", ".", "-g"};
  EXPECT_EQ(arguments(), without);
  for (const auto& row : rows) {
    s.*row.setting = "a b";
    std::vector<std::string> expected = without;
    expected.insert(expected.end(), row.elements.begin(), row.elements.end());
    EXPECT_EQ(arguments(), expected) << "nothing is quoted here";
    (s.*row.setting).clear();
  }
}

TEST_F(CompilerTest, EachWarningOfVersion15GivesItsOwnOption) {
  struct Row {
    bool SettingsValues::*setting;
    const char* option;
  };
  const Row rows[] = {{&SettingsValues::javacWarnConversion, "-Xlint:unchecked "},
                      {&SettingsValues::javacWarnPath, "-Xlint:path "},
                      {&SettingsValues::javacWarnSerialize, "-Xlint:serial "},
                      {&SettingsValues::javacWarnFinally, "-Xlint:finally "},
                      {&SettingsValues::javacWarnSwitch, "-Xlint:fallthrough "}};
  Settings& s = settings();
  s.javacMyJdkVersion = "1.5";
  for (const auto& row : rows) s.*row.setting = 0;
  for (const auto& row : rows) {
    s.*row.setting = 1;
    EXPECT_EQ(arguments()[1], row.option);
    s.*row.setting = 0;
  }
}

TEST_F(CompilerTest, NoWarningsIsSaidToTheVersionsThatKnowIt) {
  settings().javacNowarn = true;
  settings().javacXswitchcheck = false;
  const struct {
    const char* version;
    const char* options;
  } table[] = {{"", "-nowarn "},      {"Pre-1.4", "-nowarn "}, {"1.4", "-nowarn "},
               {" 1.4 ", "-nowarn "}, {"1.5", "-Xlint:path "}, {"1.6", ""},
               {"pre-1.4", ""},       {"JDK 1.5", ""}};
  for (const auto& row : table) {
    settings().javacWarnConversion = settings().javacWarnSerialize = false;
    settings().javacWarnFinally = settings().javacWarnSwitch = false;
    settings().javacMyJdkVersion = row.version;
    EXPECT_EQ(arguments()[1], row.options) << "'" << row.version << "'";
  }
}

TEST_F(CompilerTest, DestinationOfClasses) {
  settings().javacDestination = "classes";
  EXPECT_EQ(command(), "javac -d classes -g -classpath .");
}

TEST_F(CompilerTest, AUserDefinedTarget) {
  settings().javacTargetSpec = "1.6";
  EXPECT_EQ(command(), "javac -target 1.6 -d . -g -classpath .");
}

TEST_F(CompilerTest, WarningsOfTheOldestVersion) {
  settings().javacNowarn = true;
  EXPECT_EQ(arguments()[1], "-nowarn ");
  settings().javacNowarn = false;
  EXPECT_EQ(arguments()[1], "");
}

TEST_F(CompilerTest, WarningsOfVersion14) {
  settings().javacMyJdkVersion = "1.4";
  EXPECT_EQ(arguments()[1], "-Xswitchcheck ");
  settings().javacXswitchcheck = false;
  EXPECT_EQ(arguments()[1], "");
}

TEST_F(CompilerTest, WarningsOfVersion15) {
  Settings& s = settings();
  s.javacMyJdkVersion = "1.5";
  s.javacNowarn = true;
  EXPECT_EQ(arguments()[1], "-Xlint:unchecked -Xlint:path -Xlint:serial -Xlint:finally -Xlint:fallthrough ");
  s.javacWarnConversion = s.javacWarnPath = s.javacWarnSerialize = s.javacWarnFinally = s.javacWarnSwitch = false;
  EXPECT_EQ(arguments()[1], "-Xlint:none ");
  s.javacWarnPath = true;
  EXPECT_EQ(arguments()[1], "-Xlint:path ");
}

TEST_F(CompilerTest, AnAlternativeClasspathWinsEvenIfEmpty) {
  EXPECT_EQ(javacArguments(settings(), "").back(), "-classpath ");
  EXPECT_EQ(javacArguments(settings(), "x;y").back(), "-classpath " + list("x;y"));
}

TEST_F(CompilerTest, TheEnvironmentsClasspathGivesNoOption) {
  settings().classpathFromEnvironmentAlways = true;
  EXPECT_EQ(command(), "javac -d . -g");
}

TEST_F(CompilerTest, AnUnknownFolderIsThrownAndNothingIsShown) {
  try {
    Compiler compiler = askingCompiler(settings());
    FAIL() << "no exception";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, said("No path to javac.exe and other tools available from settings",
                                    "No path to javac and other tools available from settings"));
  }
}

TEST_F(CompilerTest, ACompilerThatCantBeReadIsTold) {
  const std::string folder = scratch_.file("no jdk");
  platform::makeFolders(folder);
  // What stands behind the folder is up to whoever set it: no separator is added.
  for (const std::string& path : {folder + platform::folderSeparator, folder}) {
    settings().javaPath = path;
    try {
      Compiler compiler = askingCompiler(settings());
      FAIL() << "no exception";
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      EXPECT_EQ(failure.message, "Can't access compiler " + compilerFile() +
                                     "\nNo such file or directory"
                                     "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
      EXPECT_EQ(failure.file, compilerFile());
    }
  }
}

class CompileTest : public CompilerTest {
 protected:
  CompileTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    useStandIns();
    writeFile(scratch_.file("script"), "");
  }
  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

TEST_F(CompileTest, ASilentCompilerHasSucceeded) {
  FileForSubprocess source(makeSource("A b.java"));
  EXPECT_FALSE(shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)));
  const std::string recorded = contentOf(scratch_.file("record"));
  for (const std::string& argument : {std::string("-d"), std::string("-classpath"), userFolder() + "A b.java"}) {
    EXPECT_NE(recorded.find(argument), std::string::npos) << recorded;
  }
  EXPECT_TRUE(platform::isFile(configFile())) << "the settings are saved before the tool runs";
}

TEST_F(CompileTest, ANameMayHoldDoubleQuotesWhereTheSystemAllowsThem) {
  if (platform::folderSeparator == '\\') GTEST_SKIP() << "no file name holds a double quote here";
  for (const char* name : {"A\"b.java", "\"A\" b\\.java"}) {
    const std::string path = makeSource(name);
    FileForSubprocess source(path);
    shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write));
    EXPECT_NE(contentOf(scratch_.file("record")).find("\n" + path + "\n"), std::string::npos)
        << contentOf(scratch_.file("record"));
  }
}

TEST_F(CompileTest, AnyOutputHasFailed) {
  writeFile(scratch_.file("script"), "err A.java:1: warning: deprecated\n");
  FileForSubprocess source(makeSource("A.java"));
  EXPECT_TRUE(shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)));
  EXPECT_NE(contentOf(log_.path()).find("A.java:1: warning: deprecated"), std::string::npos);
  EXPECT_NE(contentOf(log_.path()).find("javac -d . -g -classpath . "), std::string::npos);
}

TEST_F(CompileTest, AConsoleWindowIsTheUsersChoice) {
  writeFile(scratch_.file("script"), "console\n");
  FileForSubprocess source(makeSource("A.java"));
  for (const bool without : {false, true}) {
    settings().toolsWithoutConsole = without;
    EXPECT_TRUE(shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)));
    const bool expected = platform::isWindowsDesktop() && !without;
    EXPECT_EQ(contentOf(log_.path()).find("no console") == std::string::npos, expected);
  }
}

TEST_F(CompileTest, WithoutAFolderNothingIsCompiled) {
  FileForSubprocess source(makeSource("A.java"));
  Compiler compiler = askingCompiler(settings());
  settings().javaPath.clear();
  try {
    shown(desktop_, compiler.compile(source, FileMode::Write));
    FAIL() << "no exception";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, said("No path to javac.exe and other tools available from settings",
                                    "No path to javac and other tools available from settings"));
  }
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(CompileTest, SettingsThatChangeAfterwardsAreNotSeen) {
  FileForSubprocess source(makeSource("A.java"));
  settings().javacDestination = "before";
  Compiler compiler = askingCompiler(settings());
  settings().javacDestination = "after";
  settings().classpath = "after";
  shown(desktop_, compiler.compile(source, FileMode::Write));
  EXPECT_TRUE(contentOf(scratch_.file("record")).starts_with("-d\nbefore\n-g\n-classpath\n.\n"))
      << contentOf(scratch_.file("record"));
}

TEST_F(CompileTest, TheSettingsAreSavedBeforeTheFirstCompileAndBehindAChange) {
  FileForSubprocess source(makeSource("A.java"));
  Compiler compiler = askingCompiler(settings());
  shown(desktop_, compiler.compile(source, FileMode::Write));
  ASSERT_TRUE(platform::deleteFile(configFile()));
  shown(desktop_, compiler.compile(source, FileMode::Append));
  EXPECT_FALSE(platform::isFile(configFile())) << "nothing has changed";
  settings().javaXms = "9m";
  shown(desktop_, compiler.compile(source, FileMode::Append));
  EXPECT_NE(contentOf(configFile()).find("\nJAVA_XMS  9m"), std::string::npos);
}

TEST_F(CompileTest, EachCompilerSavesTheSettings) {
  FileForSubprocess source(makeSource("A.java"));
  for (int i = 0; i < 2; ++i) {
    shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write));
    EXPECT_TRUE(platform::deleteFile(configFile())) << "another run may have changed the file";
  }
}

TEST_F(CompileTest, SeveralSourcesGoThroughAListThatTheCompilerReads) {
  writeFile(scratch_.file("script"), "keep " + configFolder() + "Tarnwick_javac_list1.tmp\n");
  const std::vector<std::string> sources = {makeSource("A b.java"), makeSource("@c.java")};
  EXPECT_FALSE(shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write)));
  std::string list = contentOf(scratch_.file("record.kept"));
  std::erase(list, '\r');
  std::string folder = userFolder();
  for (std::size_t at = 0; (at = folder.find('\\', at)) != std::string::npos; at += 2) folder.insert(at, 1, '\\');
  EXPECT_TRUE(list.ends_with(":\"" + folder + "A b.java\"\n\"" + folder + "@c.java\"\n\n")) << list;
  EXPECT_FALSE(platform::isFile(configFolder() + "Tarnwick_javac_list1.tmp"));
}

TEST_F(CompileTest, NamesWithQuotesAreWholeInTheList) {
  if (platform::folderSeparator == '\\') GTEST_SKIP() << "no file name holds a double quote here";
  writeFile(scratch_.file("script"), "keep " + configFolder() + "Tarnwick_javac_list1.tmp\n");
  shown(desktop_, askingCompiler(settings()).compileTogether({makeSource("\"A\" b\\.java")}, FileMode::Write));
  const std::string list = contentOf(scratch_.file("record.kept"));
  EXPECT_TRUE(list.ends_with("\\\"A\\\" b\\\\.java\"\n\n")) << list;
}

TEST_F(CompileTest, TheLogShowsTheFirstTwentyOfManySources) {
  writeFile(scratch_.file("script"), "err said\n");
  std::vector<std::string> sources;
  for (int i = 1; i <= 21; ++i) sources.push_back(makeSource("N" + std::to_string(i) + ".java"));
  EXPECT_TRUE(shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write)));
  const std::string log = contentOf(log_.path());
  EXPECT_NE(log.find(userFolder() + "N20.java ... (21 files)"), std::string::npos) << log;
  EXPECT_EQ(log.find("N21.java"), std::string::npos) << log;
}

}  // namespace
}  // namespace tarnwick::test
