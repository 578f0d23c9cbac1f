#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/EditorLaunch.h"
#include "settings/EditorChoice.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"
#include "support/SystemWords.h"

#include <algorithm>
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

/// Files and logs are opened by a copy of a stand-in, by way of a small program that asks the system afresh.
class EditorLaunchTest : public testing::Test {
 protected:
  EditorLaunchTest() { std::filesystem::create_directory(script_.folder().file("programs")); }

  std::string programs() const { return script_.folder().file("programs") + platform::folderSeparator; }

  /// A stand-in under this name in a folder of programs.
  std::string makeProgram(const std::string& name) const {
    const std::string copy = programs() + name;
    std::filesystem::copy_file(StandInScript::tool("java"), copy);
    return copy;
  }

  /// What the probe prints in a world where only our own programs are found.
  std::string probe(const std::string& arguments) const {
    const test::ScopedEnvironment path("PATH", programs());
    const test::ScopedEnvironment data("XDG_DATA_HOME", script_.folder().file("data"));
    const test::ScopedEnvironment moreData("XDG_DATA_DIRS", script_.folder().file("data"));
    const test::ScopedEnvironment config("XDG_CONFIG_HOME", script_.folder().file("config"));
    const test::ScopedEnvironment moreConfig("XDG_CONFIG_DIRS", script_.folder().file("config"));
    std::string output =
        test::outputOf(platform::resolvedPath(test::standInFolder() + programName("launch_probe")), arguments);
    output.erase(std::remove(output.begin(), output.end(), '\r'), output.end());
    return output;
  }

  /// A probe's argument in double quotes.
  static std::string word(const std::string& text) { return '"' + quotesKept(text) + '"'; }

  /// The result, the working folder, then messages.
  std::string edit(const std::string& notepad, const std::string& file, const std::string& target) const {
    return probe("edit " + notepad + ' ' + word(file) + ' ' + word(target));
  }

  /// What `edit` gives when all went well.
  static std::string doneIn(const std::string& folder) { return "1 " + folder.substr(0, folder.size() - 1) + '\n'; }
  /// And where the editor could not be started.
  static std::string failedIn(const std::string& folder) { return "0" + doneIn(folder).substr(1); }

  /// The log's path, then messages. `switches` are the two for Notepad, for editing and display.
  std::string show(const std::string& switches, const std::string& target) const {
    // A backslash before a quote would quote it.
    const std::string folder = script_.folder().path() + (platform::folderSeparator == '/' ? "" : "\\");
    return probe("showlog \"" + folder + "\" " + switches + (target.empty() ? "" : " \"" + quotesKept(target) + '"'));
  }

  static std::string quotesKept(const std::string& text) {
    std::string kept;
    for (const char c : text) kept += c == '"' ? "\\\"" : std::string(1, c);
    return kept;
  }

  std::string logPath() const { return script_.folder().file("Tarnwick_LOG1.tmp"); }

  static std::string unableToStart(const std::string& editor) { return told("Unable to start " + editor); }
  static std::string told(const std::string& failure) {
    const std::string reason = "No such file or directory\n";
    return "message: " + failure + " for log file display.\n\n" + reason + reason;
  }

  bool recordIs(const std::string& expected) {
    return test::waitUntil([&] { return script_.hasRecord() && script_.record() == expected; });
  }

  static std::string programName(const std::string& name) {
    return platform::folderSeparator == '/' ? name : name + ".exe";
  }

  StandInScript script_{""};
};

using ShowLogTest = EditorLaunchTest;
using OpenEditorTest = EditorLaunchTest;

EditorSource fixedChoice(const EditorChoice& choice, bool asked = false) {
  return {[choice] { return choice; }, [asked] { return asked; }};
}

TEST(OpenEditorChoiceTest, WithoutAnEditorTheUserIsAskedAndMayDecline) {
  test::ScriptedDesktop desktop;
  EXPECT_FALSE(test::shown(desktop, openEditor(fixedChoice({}), "x.java")));
}

TEST(OpenEditorChoiceTest, AskedWithoutAnAnswerIsTold) {
  test::ScriptedDesktop desktop;
  desktop.expectMessage("No editor definition available from settings.");
  EXPECT_FALSE(test::shown(desktop, openEditor(fixedChoice({}, true), "x.java")));
  desktop.expectMessage("No editor definition available from settings.");
  EXPECT_FALSE(test::shown(desktop, openEditor(fixedChoice({false, true, "\"\""}), "x.java"))) << "nothing but quotes";
}

TEST_F(OpenEditorTest, WhatTheUserAnswersIsStarted) {
  const std::string editor = makeProgram(programName("my editor"));
  test::ScriptedDesktop desktop;
  EditorChoice choice;
  const std::string file = script_.folder().file("A.java");
  const auto ask = [&] {
    choice.target = editor;
    return true;
  };
  EXPECT_TRUE(test::shown(desktop, openEditor({[&] { return choice; }, ask}, file)));
  EXPECT_TRUE(recordIs(file + '\n'));
}

TEST_F(OpenEditorTest, TheEditorGetsTheFileAsOneArgumentInTheFilesFolder) {
  const std::string editor = makeProgram(programName("my editor"));
  const std::string file = script_.folder().file("my A.java");
  EXPECT_EQ(edit("0", file, editor), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs(file + '\n'));
  platform::deleteFile(script_.folder().file("record"));
  EXPECT_EQ(edit("0", file, '"' + editor + '"'), doneIn(script_.folder().path())) << "quotes around it go";
  EXPECT_TRUE(recordIs(file + '\n'));
}

TEST_F(OpenEditorTest, AFileThatLooksLikeAnOptionIsNone) {
  const std::string editor = makeProgram(programName("myeditor"));
  const std::string here = std::string(".") + platform::folderSeparator;
  const std::string before = platform::currentDirectory();
  for (const char* file : {"-x.java", "@x.java", "+!x.java"}) {
    platform::deleteFile(script_.folder().file("record"));
    EXPECT_EQ(edit("0", file, editor), "1 " + before + '\n');
    EXPECT_TRUE(recordIs(here + file + '\n')) << file;
  }
}

TEST_F(OpenEditorTest, AKnownEditorGetsTheLineInItsOwnForm) {
  const std::string editor = makeProgram(programName("geany"));
  const std::string file = script_.folder().file("my A.java");
  EXPECT_EQ(probe("edit 0 " + word(file) + ' ' + word(editor) + " 12 5"), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs("-l\n12\n--column\n5\n" + file + '\n'));
}

TEST_F(OpenEditorTest, TheUsersPatternTellsAnUnknownEditorTheLine) {
  const std::string editor = makeProgram(programName("my editor"));
  const std::string file = script_.folder().file("my A.java");
  const std::string open = "edit 0 " + word(file) + ' ' + word(editor) + " 12 5";
  EXPECT_EQ(probe(open), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs(file + '\n')) << "without a pattern the file alone";
  platform::deleteFile(script_.folder().file("record"));
  EXPECT_EQ(probe(open + ' ' + word("--at %l,%c \"go to %l\" %f")), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs("--at\n12,5\ngo to 12\n" + file + '\n'));
}

TEST_F(OpenEditorTest, ThePatternIsNoneForNotepad) {
  makeProgram(programName(platform::folderSeparator == '/' ? "gedit" : "Notepad"));
  const std::string file = script_.folder().file("A.java");
  EXPECT_EQ(probe("edit 1 " + word(file) + " \"never tried\" 12 5 " + word("--at %l %f")),
            doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs((platform::folderSeparator == '/' ? "+12:5\n" : "") + file + '\n'));
}

TEST_F(OpenEditorTest, NotepadIsUsedOnlyWhereItsOwnSettingSaysSo) {
  makeProgram(programName(platform::folderSeparator == '/' ? "gedit" : "Notepad"));
  const std::string file = script_.folder().file("A.java");
  EXPECT_EQ(edit("1", file, programs() + "nothing.exe"), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs(file + '\n'));
}

TEST_F(OpenEditorTest, NotepadIsUsedThoughTheOtherEditorWouldBeAJar) {
  makeProgram(programName(platform::folderSeparator == '/' ? "gedit" : "Notepad"));
  const std::string file = script_.folder().file("A.java");
  EXPECT_EQ(edit("1", file, programs() + "my editor.jar"), doneIn(script_.folder().path()));
  EXPECT_TRUE(recordIs(file + '\n'));
}

TEST_F(OpenEditorTest, WithoutAFileTheEditorOpensWithNothing) {
  makeProgram(programName("myeditor"));
  const std::string before = platform::currentDirectory();
  EXPECT_EQ(edit("0", "", programName("myeditor")), "1 " + before + '\n');
  EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord(); }));
  EXPECT_EQ(script_.record(), "");
}

TEST_F(OpenEditorTest, AnEditorThatCannotBeStartedIsTold) {
  const std::string missing = programs() + "nothing.exe";
  EXPECT_EQ(edit("0", script_.folder().file("A.java"), missing), failedIn(script_.folder().path()) +
                                                                     "message: Unable to start " + missing +
                                                                     ".\n\nNo such file or directory  (2)\n");
}

TEST_F(OpenEditorTest, WithoutAnyNotepadTheUserIsToldSo) {
  EXPECT_EQ(edit("1", script_.folder().file("A.java"), "never tried"),
            failedIn(script_.folder().path()) +
                "message: " + test::said("Unable to start Notepad", "Unable to start a text editor") +
                ".\n\nNo such file or directory  (2)\n");
}

TEST_F(OpenEditorTest, AFolderThatCannotBeEnteredIsTold) {
  const std::string editor = makeProgram(programName("my editor"));
  const std::string file = script_.folder().file("nothing") + platform::folderSeparator + "A.java";
  const std::string before = platform::currentDirectory();
  EXPECT_EQ(edit("0", file, editor), "0 " + before + "\nmessage: Subprocess::run(): _chdir error\n");
  EXPECT_FALSE(script_.hasRecord());
}

TEST_F(OpenEditorTest, AJarThatCannotBeActivatedIsTold) {
  if (probe("open .jar") != "\n") GTEST_SKIP() << "this system has a program for .jar files";
  const std::string jar = programs() + "my editor.jar";
  const std::string file = script_.folder().file("A.java");
  const std::string before = platform::currentDirectory();
  EXPECT_EQ(edit("0", file, jar), "0 " + before + "\nmessage: Unable to activate " + jar + ' ' + file + '\n');
}

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
  makeProgram(programName(platform::folderSeparator == '/' ? "gedit" : "Notepad"));
  const std::string missing = programs() + "nothing.exe";
  const struct {
    const char* switches;
    std::string target;
    bool notepad;
  } table[] = {
      {"0 0", missing, false}, {"0 1", missing, true}, {"1 0", missing, true},
      {"1 1", missing, true},  {"0 0", "", true},      {"0 1", "", true},
  };
  for (const auto& row : table) {
    platform::deleteFile(script_.folder().file("record"));
    const std::string output = show(row.switches, row.target);
    if (row.notepad) {
      EXPECT_EQ(output, logPath() + '\n') << row.switches;
      EXPECT_TRUE(recordIs(logPath() + '\n')) << row.switches;
    } else {
      EXPECT_EQ(output, logPath() + '\n' + unableToStart(missing)) << row.switches;
      EXPECT_FALSE(script_.hasRecord());
    }
  }
}

TEST_F(ShowLogTest, NotepadShowsTheLogThoughTheOtherEditorWouldBeAJar) {
  makeProgram(programName(platform::folderSeparator == '/' ? "gedit" : "Notepad"));
  for (const char* switches : {"0 1", "1 0", "1 1"}) {
    platform::deleteFile(script_.folder().file("record"));
    EXPECT_EQ(show(switches, programs() + "my editor.jar"), logPath() + '\n') << switches;
    EXPECT_TRUE(recordIs(logPath() + '\n')) << switches;
  }
}

TEST_F(ShowLogTest, WithoutAnyNotepadTheUserIsToldSo) {
  EXPECT_EQ(show("0 1", "never tried"),
            logPath() + '\n' + told(test::said("Unable to start Notepad", "Unable to start a text editor")));
}

TEST_F(ShowLogTest, AnEditorThatCannotBeStartedIsToldWithBothReasons) {
  const std::string missing = programs() + "nothing.exe";
  EXPECT_EQ(show("0 0", missing), logPath() + "\nmessage: Unable to start " + missing +
                                      " for log file display.\n\nNo such file or directory\n"
                                      "No such file or directory\n");
}

TEST_F(ShowLogTest, AJarThatCannotBeActivatedIsToldAndThenTriedAsAProgram) {
  if (probe("open .jar") != "\n") GTEST_SKIP() << "this system has a program for .jar files";
  const std::string jar = programs() + "editor.jar";
  EXPECT_EQ(show("0 0", jar),
            logPath() + "\nmessage: Unable to activate jar: " + jar + " \"" + logPath() + "\"\n" + unableToStart(jar));
}

}  // namespace
}  // namespace tarnwick
