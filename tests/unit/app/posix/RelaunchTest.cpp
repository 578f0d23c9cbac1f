#include "app/TarnwickApp.h"
#include "base/Text.h"
#include "platform/Process.h"
#include "support/Children.h"
#include "support/SettingsFixture.h"
#include "tools/AppletviewerLauncher.h"
#include "tools/JavaLauncher.h"

#include <filesystem>
#include <sstream>

namespace tarnwick::test {
namespace {

struct NoHost : ConsoleFrameHost {
  void runConsoleFrame(ConsoleFrame&) override {}
};

/// The way of odd names from the panel through the second copy's command line to the tool.
class RelaunchTest : public SettingsFixture {
 protected:
  RelaunchTest()
      : script_("STANDIN_SCRIPT", scratch_.file("script")), record_("STANDIN_RECORD", scratch_.file("record")) {
    writeFile(scratch_.file("script"), "");
    writeFile(configFile(), "");
    useStandIns();
    settings().javaXfuture = false;
    program_.programPath = StandInScript::tool("jdb");
  }

  /// The second copy's command line, from the stand-in that plays it. `last` is the last argument.
  std::string commandLine(const std::string& last) {
    std::string recorded;
    EXPECT_TRUE(waitUntil([&] {
      if (platform::isFile(scratch_.file("record"))) recorded = contentOf(scratch_.file("record"));
      return recorded.ends_with(last + '\n');
    })) << recorded;
    platform::deleteFile(scratch_.file("record"));
    std::string line = "tarnwick";
    std::vector<std::string> words;
    std::istringstream lines(recorded);
    for (std::string word; std::getline(lines, word);) words.push_back(word);
    std::vector<char*> vector = {line.data()};
    for (auto& word : words) vector.push_back(word.data());
    return platform::rawCommandLine(static_cast<int>(vector.size()), vector.data());
  }

  ScopedEnvironment script_;
  ScopedEnvironment record_;
  NoHost host_;
};

const char* const oddNames[] = {"two words", "100%",  "a & b",    "$HOME",    "`id`",   "say \"hi\"",
                                "\"",        "end\\", "a\\b",     "it's",     "*?[x]",  "a;b|c>d<e",
                                "#1",        "~",     " leading", "\xC3\xA4", "a=b\\c", "\\\\twice\\"};

TEST_F(RelaunchTest, AFolderOfAnyNameIsWhereTheSecondCopyWorks) {
  for (const std::string name : oddNames) {
    const std::string folder = userFolder() + name + '/';
    std::filesystem::create_directory(folder);
    FileForSubprocess file(folder, "Main.class");
    runJava(settings(), file);
    const std::string line = commandLine("Main");
    TarnwickApp copy(desktop_, host_, programFolder() + "tarnwick");
    EXPECT_TRUE(copy.parseSwitches(line)) << line;
    EXPECT_EQ(platform::currentDirectory() + '/', folder) << line;
    EXPECT_EQ(copy.title(), "Main");
    EXPECT_EQ(copy.exeFile(), standInFolder() + "java");
    EXPECT_EQ(copy.configFile().name().fullName(), configFile());
    EXPECT_EQ(copy.runArguments(), " -classpath . Main");
  }
}

TEST_F(RelaunchTest, AFileOfAnyNameReachesItsToolAsOneArgument) {
  for (const std::string name : oddNames) {
    FileForSubprocess file(userFolder() + name + ".html");
    runAppletviewer(settings(), file, false);
    EXPECT_EQ(contentOf(scratch_.file("record")), name + ".html\n");
    platform::deleteFile(scratch_.file("record"));

    runAppletviewer(settings(), file, true);
    const std::string last = platform::commandWord(name + ".html");
    TarnwickApp copy(desktop_, host_, programFolder() + "tarnwick");
    EXPECT_TRUE(copy.parseSwitches(commandLine(last)));
    EXPECT_EQ(copy.title(), trimLeft(name)) << "blanks on its left go";
    EXPECT_EQ(platform::splitCommandText(copy.runArguments()), (std::vector<std::string>{"-debug", name + ".html"}));
  }
}

TEST_F(RelaunchTest, EveryOptionReachesItsToolAsTheWordsThatWereTyped) {
  Settings& s = settings();
  s.javaXfuture = s.javaXprof = s.javaJniValidate = s.javaSystemAssertEnable = s.javaSystemAssertDisable = true;
  s.javaVerbose = s.jdbLaunch = true;
  s.javaXrunhprof = "cpu=samples";
  s.bootpath = "/boot/a;/boot/b";
  s.javaXms = "1m";
  s.javaXmx = "2m";
  s.javaXss = "3m";
  s.javaProperty = "-Dx=y  -Dz=\"two words\"";
  s.javaGarbageCollector = "Concurrent";
  s.javaAssertEnable = "Foo.class, bar";
  s.javaAssertDisable = "baz";
  FileForSubprocess file(userFolder(), "Main.class");
  file.args() = {"one \"two \\/ three\" $HOME"};
  const std::string common = "-Xfuture\n-Xprof\n-Xcheck:jni\n-Xrunhprof:cpu=samples\n-classpath\n";
  const std::string paths = "-Xbootclasspath:/boot/a:/boot/b\n-Xms1m\n-Xmx2m\n-Xss3m\n-Dx=y\n-Dz=two words\n-Xconcgc\n";
  const std::string last = "Main\none\ntwo \\/ three\n$HOME\n";
  for (const bool debugging : {false, true}) {
    if (debugging) {
      runJdb(s, file, "/my a:/b", "/src");
    } else {
      runJava(s, file, "/a;/b");
    }
    TarnwickApp copy(desktop_, host_, programFolder() + "tarnwick");
    ASSERT_TRUE(copy.parseSwitches(commandLine(file.args().front())));
    EXPECT_EQ(copy.debugging(), debugging);
    EXPECT_EQ(copy.exeFile(), standInFolder() + (debugging ? "jdb" : "java"));
    const auto tool = platform::ChildProcess::start({copy.exeFile(), copy.runArguments(), true});
    tool->wait();
    EXPECT_EQ(contentOf(scratch_.file("record")),
              debugging ? common + "/my\na:/b\n-sourcepath\n/src\n" + paths + "-launch\n" + last
                        : common + "/a:/b\n" + paths +
                              "-ea:Foo\n-ea:bar\n-da:baz\n-enablesystemassertions\n-disablesystemassertions\n"
                              "-verbose\n" +
                              last);
    platform::deleteFile(scratch_.file("record"));
  }
}

TEST_F(RelaunchTest, ADebuggerBesideItsProgramAndThatProgramGetTheWordsThatWereTyped) {
  Settings& s = settings();
  s.jdbOwnStreams = s.jdbLaunch = true;
  s.javaXfuture = false;
  s.javaOptions = "-Dz=\"two words\"";
  s.javaAssertEnable = "Main";
  FileForSubprocess file(userFolder(), "Main.class");
  file.args() = {"one \"two \\/ three\" $HOME"};
  runJdb(s, file, "/my a:/b", "/src;/more src");
  TarnwickApp copy(desktop_, host_, programFolder() + "tarnwick");
  ASSERT_TRUE(copy.parseSwitches(commandLine(file.args().front())));
  EXPECT_TRUE(copy.debugging());
  EXPECT_EQ(copy.exeFile(), standInFolder() + "jdb");
  EXPECT_EQ(copy.programFile(), standInFolder() + "java");
  EXPECT_EQ(platform::splitCommandText(copy.debuggerOptions()),
            platform::splitCommandText("-sourcepath " + platform::commandLineList("/src;/more src")));
  const auto tool = platform::ChildProcess::start({copy.programFile(), copy.runArguments(), true});
  tool->wait();
  EXPECT_EQ(contentOf(scratch_.file("record")),
            "-classpath\n/my\na:/b\n-ea:Main\n-Dz=two words\nMain\none\ntwo \\/ three\n$HOME\n");
}

TEST_F(RelaunchTest, ASourcePathThatCannotBePassedOnIsTold) {
  settings().jdbOwnStreams = true;
  FileForSubprocess file(userFolder(), "Main.class");
  desktop_.expectMessage("Can't pass on the path /odd\\/src\nThe name of a folder in it ends in a backslash.");
  runJdb(settings(), file, "/a", "/odd\\/src");
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

/// A name that ends in a backslash and the slash behind it make the mark that ends a value.
TEST_F(RelaunchTest, WhatCannotBePassedOnIsToldAndNothingIsStarted) {
  const std::string odd = scratch_.file("odd\\") + '/';
  platform::makeFolders(odd);
  for (const char* tool : {"java", "jdb", "appletviewer"}) {
    std::filesystem::copy_file(StandInScript::tool(tool), odd + tool);
  }
  const auto runAll = [&](Settings& panel, const std::vector<std::string>& paths) {
    FileForSubprocess file(userFolder(), "Main.class");
    for (const std::string& path : paths)
      desktop_.expectMessage("Can't pass on the path " + path + "\nThe name of a folder in it ends in a backslash.");
    runJava(panel, file);
    runJdb(panel, file);
    runAppletviewer(panel, file, true);
    EXPECT_FALSE(platform::isFile(scratch_.file("record")));
    // This one runs here, and needs nothing passed on.
    runAppletviewer(panel, file, false);
    EXPECT_EQ(contentOf(scratch_.file("record")), "Main.class\n");
    platform::deleteFile(scratch_.file("record"));
  };
  settings().javaPath = odd;
  runAll(settings(), {odd + "java", odd + "jdb", odd + "appletviewer"});

  const ScopedEnvironment here("TARNWICK_CFGDIR", odd);
  const auto panel = freshSettings();
  panel->javaPath = standInFolder();
  const std::string configuration = odd + defaultConfigurationName;
  runAll(*panel, {configuration, configuration, configuration});
}

}  // namespace
}  // namespace tarnwick::test
