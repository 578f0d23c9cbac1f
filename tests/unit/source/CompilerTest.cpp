#include "source/Compiler.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class CompilerTest : public SettingsFixture {
 protected:
  std::vector<std::string> arguments(const char* alternativeClasspath) {
    return javacArguments(settings(), compilerClasspath(settings(), alternativeClasspath));
  }
  /// The command text that the arguments give.
  std::string command(const char* alternativeClasspath = nullptr) {
    std::string text;
    for (const auto& argument : arguments(alternativeClasspath)) {
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
  s.javacFastcode = s.javacVerbose = s.javacDeprecation = s.javacNowarn = 1;
  s.javacJOption = "-J-Xmx1g";
  s.sourcepath = "a;b";
  s.classpath = "c;d";
  s.bootpath = "e;f";
  s.extdirs = "g;h";
  EXPECT_EQ(arguments(nullptr),
            (std::vector<std::string>{"javac", "-Xswitchcheck -nowarn ", "-source 1.4", "-target 1.6", "-d", "classes",
                                      "-g", "-O", "-verbose", "-J-Xmx1g", "-deprecation", "-sourcepath", list("a;b"),
                                      "-classpath " + list("c;d"), "-bootclasspath " + list("e;f"),
                                      "-extdirs " + list("g;h")}));
}

TEST_F(CompilerTest, EachSwitchGivesItsOwnOption) {
  struct Row {
    int SettingsValues::*setting;
    const char* option;
  };
  const Row rows[] = {{&SettingsValues::javacDebug, "-g"},
                      {&SettingsValues::javacFastcode, "-O"},
                      {&SettingsValues::javacVerbose, "-verbose"},
                      {&SettingsValues::javacDeprecation, "-deprecation"}};
  Settings& s = settings();
  s.javacDebug = 0;
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
                      {&SettingsValues::extdirs, {"-extdirs a b"}}};
  Settings& s = settings();
  // Without a class path of the settings nothing stands behind what is looked at.
  s.classpathFromEnvironmentAlways = 1;
  const std::vector<std::string> without = {"javac", "", "", "", "-d", ".", "-g"};
  EXPECT_EQ(arguments(nullptr), without);
  for (const auto& row : rows) {
    s.*row.setting = "a b";
    std::vector<std::string> expected = without;
    expected.insert(expected.end(), row.elements.begin(), row.elements.end());
    EXPECT_EQ(arguments(nullptr), expected) << "nothing is quoted here";
    (s.*row.setting).clear();
  }
}

TEST_F(CompilerTest, EachWarningOfVersion15GivesItsOwnOption) {
  struct Row {
    int SettingsValues::*setting;
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
    EXPECT_EQ(arguments(nullptr)[1], row.option);
    s.*row.setting = 0;
  }
}

TEST_F(CompilerTest, NoWarningsIsSaidToTheVersionsThatKnowIt) {
  settings().javacNowarn = 1;
  settings().javacXswitchcheck = 0;
  const struct {
    const char* version;
    const char* options;
  } table[] = {{"", "-nowarn "},      {"Pre-1.4", "-nowarn "}, {"1.4", "-nowarn "},
               {" 1.4 ", "-nowarn "}, {"1.5", "-Xlint:path "}, {"1.6", ""},
               {"pre-1.4", ""},       {"JDK 1.5", ""}};
  for (const auto& row : table) {
    settings().javacWarnConversion = settings().javacWarnSerialize = 0;
    settings().javacWarnFinally = settings().javacWarnSwitch = 0;
    settings().javacMyJdkVersion = row.version;
    EXPECT_EQ(arguments(nullptr)[1], row.options) << "'" << row.version << "'";
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
  settings().javacNowarn = 1;
  EXPECT_EQ(arguments(nullptr)[1], "-nowarn ");
  settings().javacNowarn = 0;
  EXPECT_EQ(arguments(nullptr)[1], "");
}

TEST_F(CompilerTest, WarningsOfVersion14) {
  settings().javacMyJdkVersion = "1.4";
  EXPECT_EQ(arguments(nullptr)[1], "-Xswitchcheck ");
  settings().javacXswitchcheck = 0;
  EXPECT_EQ(arguments(nullptr)[1], "");
}

TEST_F(CompilerTest, WarningsOfVersion15) {
  Settings& s = settings();
  s.javacMyJdkVersion = "1.5";
  s.javacNowarn = 1;
  EXPECT_EQ(arguments(nullptr)[1], "-Xlint:unchecked -Xlint:path -Xlint:serial -Xlint:finally -Xlint:fallthrough ");
  s.javacWarnConversion = s.javacWarnPath = s.javacWarnSerialize = s.javacWarnFinally = s.javacWarnSwitch = 0;
  EXPECT_EQ(arguments(nullptr)[1], "-Xlint:none ");
  s.javacWarnPath = 1;
  EXPECT_EQ(arguments(nullptr)[1], "-Xlint:path ");
}

TEST_F(CompilerTest, AnAlternativeClasspathWinsEvenIfEmpty) {
  EXPECT_EQ(arguments("").back(), "-classpath ");
  EXPECT_EQ(arguments("x;y").back(), "-classpath " + list("x;y"));
}

TEST_F(CompilerTest, TheEnvironmentsClasspathGivesNoOption) {
  settings().classpathFromEnvironmentAlways = 1;
  EXPECT_EQ(command(), "javac -d . -g");
}

TEST_F(CompilerTest, AnUnknownFolderOpensTheSettingsOnTheirFirstPage) {
  const auto cancelOnPage = [this](int page) {
    desktop_.expectDialog("Tarnwick settings", [page](ScriptedWindow& window) {
      EXPECT_EQ(window.selection(1092), page);
      window.press(IDCANCEL_CONTROL);
    });
  };
  cancelOnPage(3);
  settings().runModal(3);
  cancelOnPage(0);
  try {
    Compiler compiler(settings(), nullptr);
    FAIL() << "no exception";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, platform::localText("No path to javac.exe and other tools available from settings"));
  }
}

TEST_F(CompilerTest, TheFolderFromTheSettingsDialogIsUsed) {
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, standInFolder());
    window.press(IDOK_CONTROL);
  });
  EXPECT_NO_THROW(Compiler(settings(), nullptr));
}

TEST_F(CompilerTest, ACompilerThatCantBeReadIsTold) {
  const std::string folder = scratch_.file("no jdk");
  platform::makeFolders(folder);
  // What stands behind the folder is up to whoever set it: no separator is added.
  for (const std::string& path : {folder + platform::folderSeparator, folder}) {
    settings().javaPath = path;
    try {
      Compiler compiler(settings(), nullptr);
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
  EXPECT_FALSE(Compiler(settings(), nullptr).compile(source, FileMode::Write));
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
    Compiler(settings(), nullptr).compile(source, FileMode::Write);
    EXPECT_NE(contentOf(scratch_.file("record")).find("\n" + path + "\n"), std::string::npos)
        << contentOf(scratch_.file("record"));
  }
}

TEST_F(CompileTest, AnyOutputHasFailed) {
  writeFile(scratch_.file("script"), "err A.java:1: warning: deprecated\n");
  FileForSubprocess source(makeSource("A.java"));
  EXPECT_TRUE(Compiler(settings(), nullptr).compile(source, FileMode::Write));
  EXPECT_NE(contentOf(log_.path()).find("A.java:1: warning: deprecated"), std::string::npos);
  EXPECT_NE(contentOf(log_.path()).find("javac -d . -g -classpath . "), std::string::npos);
}

TEST_F(CompileTest, WithoutAFolderNothingIsCompiled) {
  FileForSubprocess source(makeSource("A.java"));
  Compiler compiler(settings(), nullptr);
  settings().javaPath.clear();
  try {
    compiler.compile(source, FileMode::Write);
    FAIL() << "no exception";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, platform::localText("No path to javac.exe and other tools available from settings"));
  }
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(CompileTest, SettingsThatChangeAfterwardsAreNotSeen) {
  FileForSubprocess source(makeSource("A.java"));
  settings().javacDestination = "before";
  Compiler compiler(settings(), nullptr);
  settings().javacDestination = "after";
  settings().classpath = "after";
  compiler.compile(source, FileMode::Write);
  EXPECT_TRUE(contentOf(scratch_.file("record")).starts_with("-d\nbefore\n-g\n-classpath\n.\n"))
      << contentOf(scratch_.file("record"));
}

TEST_F(CompileTest, AClasspathFromTheSettingsDialogCountsFromTheNextCommandOn) {
  FileForSubprocess source(makeSource("A.java"));
  settings().javaPath.clear();
  settings().classpath = "before";
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    window.page(1092, 0).type(1041, standInFolder());
    window.page(1092, 6).type(1029, "after");
    window.press(IDOK_CONTROL);
  });
  Compiler(settings(), nullptr).compile(source, FileMode::Write);
  EXPECT_NE(contentOf(scratch_.file("record")).find("\n-classpath\nbefore\n"), std::string::npos)
      << contentOf(scratch_.file("record"));
  EXPECT_TRUE(settings().classpath.ends_with("after")) << settings().classpath;
}

}  // namespace
}  // namespace tarnwick::test
