#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/EditorLaunch.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using test::StandInScript;

TEST(JarEditorTest, ANameIsAJarWhereJarStandsBehindExeOrCom) {
  const std::string folder = std::string("some.jar") + platform::folderSeparator;
  const struct {
    std::string target;
    bool jar;
  } table[] = {
      {"", false},
      {"x", false},
      {"x.exe", false},
      {"x.com", false},
      {"x.jar", true},
      {"X.JAR", true},
      {"\"x y.jar\"", true},
      {folder + "x.jar", true},
      {folder + "x.exe", false},
      {folder + "x", false},
      {"x.jar.exe", true},
      {"x.exe.jar", true},
      {"x.jar.com", true},
      {"x.jar.com.exe", false},
      {"x.com.jar.exe", true},
      {"x.jar.exe.com", false},
  };
  for (const auto& row : table) EXPECT_EQ(isJarEditor(row.target), row.jar) << row.target;
}

/// Logs are shown by a copy of a stand-in, by way of a small program that asks the system afresh.
class ShowLogTest : public testing::Test {
 protected:
  ShowLogTest() { std::filesystem::create_directory(script_.folder().file("programs")); }

  std::string programs() const { return script_.folder().file("programs") + platform::folderSeparator; }

  /// A stand-in under this name in a folder of programs.
  std::string makeProgram(const std::string& name) const {
    const std::string copy = programs() + name;
    std::filesystem::copy_file(StandInScript::tool("java"), copy);
    return copy;
  }

  /// What the probe prints: the log's path, then messages. `switches` are the two for Notepad, for editing and display.
  std::string show(const std::string& switches, const std::string& target) {
    const test::ScopedEnvironment path("PATH", programs());
    const test::ScopedEnvironment data("XDG_DATA_HOME", script_.folder().file("data"));
    const test::ScopedEnvironment moreData("XDG_DATA_DIRS", script_.folder().file("data"));
    const test::ScopedEnvironment config("XDG_CONFIG_HOME", script_.folder().file("config"));
    const test::ScopedEnvironment moreConfig("XDG_CONFIG_DIRS", script_.folder().file("config"));
    const std::string suffix = platform::folderSeparator == '/' ? "" : ".exe";
    // A backslash before a quote would quote it.
    const std::string folder = script_.folder().path() + (suffix.empty() ? "" : "\\");
    std::string output = test::outputOf(
        platform::resolvedPath(test::standInFolder() + "launch_probe" + suffix),
        "showlog \"" + folder + "\" " + switches + (target.empty() ? "" : " \"" + quotesKept(target) + '"'));
    output.erase(std::remove(output.begin(), output.end(), '\r'), output.end());
    return output;
  }

  static std::string quotesKept(const std::string& text) {
    std::string kept;
    for (const char c : text) kept += c == '"' ? "\\\"" : std::string(1, c);
    return kept;
  }

  std::string logPath() const { return script_.folder().file("Tarnwick_LOG1.tmp"); }

  bool recordIs(const std::string& expected) {
    return test::waitUntil([&] { return script_.hasRecord() && script_.record() == expected; });
  }

  static std::string programName(const std::string& name) {
    return platform::folderSeparator == '/' ? name : name + ".exe";
  }

  StandInScript script_{""};
};

TEST_F(ShowLogTest, TheUsersEditorGetsTheLogsPathAsOneArgument) {
  const std::string editor = makeProgram(programName("my editor"));
  EXPECT_EQ(show("0 0", editor), logPath() + '\n');
  EXPECT_TRUE(recordIs(logPath() + '\n')) << "though blanks stand in it";
}

TEST_F(ShowLogTest, AnEditorWithoutAFolderIsSearchedFor) {
  makeProgram(programName("myeditor"));
  EXPECT_EQ(show("0 0", programName("myeditor")), logPath() + '\n');
  EXPECT_TRUE(recordIs(logPath() + '\n'));
}

TEST_F(ShowLogTest, AnEditorInQuotesIsStartedToo) {
  const std::string editor = makeProgram(programName("my editor"));
  EXPECT_EQ(show("0 0", '"' + editor + '"'), logPath() + '\n');
  EXPECT_TRUE(recordIs(logPath() + '\n'));
}

TEST_F(ShowLogTest, NotepadIsUsedWhereASettingSaysSo) {
  const std::string editor = makeProgram(programName("editor"));
  const std::string reason = "No such file or directory";
  const std::string message =
      "message: Unable to start Notepad for log file display.\n\n" + reason + '\n' + reason + '\n';
  const struct {
    const char* switches;
    std::string target;
    bool notepad;
  } table[] = {
      {"0 0", editor, false}, {"0 1", editor, true}, {"1 0", editor, true},
      {"1 1", editor, true},  {"0 0", "", true},     {"0 1", "", true},
  };
  if (platform::folderSeparator != '/') GTEST_SKIP() << "Windows always finds its own Notepad, and would open it";
  for (const auto& row : table) {
    platform::deleteFile(script_.folder().file("record"));
    EXPECT_EQ(show(row.switches, row.target), logPath() + '\n' + (row.notepad ? message : "")) << row.switches;
    EXPECT_EQ(test::waitUntil([&] { return row.notepad || script_.hasRecord(); }), true) << row.switches;
  }
}

TEST_F(ShowLogTest, AnEditorThatCannotBeStartedIsToldWithBothReasons) {
  const std::string missing = programs() + "nothing.exe";
  const std::string reason = "No such file or directory";
  EXPECT_EQ(show("0 0", missing), logPath() + "\nmessage: Unable to start " + missing + " for log file display.\n\n" +
                                      reason + '\n' + reason + '\n');
}

TEST_F(ShowLogTest, AJarThatCannotBeActivatedIsToldAndThenTriedAsAProgram) {
  const std::string jar = programs() + "editor.tarnwick.jar";
  const std::string reason = "No such file or directory";
  if (platform::folderSeparator != '/') GTEST_SKIP() << "the test's own associations are Linux's";
  EXPECT_EQ(show("0 0", jar), logPath() + "\nmessage: Unable to activate jar: " + jar + " \"" + logPath() +
                                  "\"\nmessage: Unable to start " + jar + " for log file display.\n\n" + reason + '\n' +
                                  reason + '\n');
}

}  // namespace
}  // namespace tarnwick
