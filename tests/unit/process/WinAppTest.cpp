#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/WinApp.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using test::StandInScript;

class WinAppTest : public testing::Test {
 protected:
  static std::string java() { return StandInScript::tool("java"); }
  static std::string quotedJava() { return '"' + java() + '"'; }

  int run(const std::string& command, const char* file, const char* extra = nullptr, int checkOnly = 0) {
    return test::shown(desktop_, WinApp::withCommand(command).runApp(file, extra, checkOnly)) ? 1 : 0;
  }

  /// Runs with the arguments behind our stand-in's name and waits for what it was given.
  void expectGiven(const std::string& arguments, const char* file, const char* extra, const std::string& given) {
    platform::deleteFile(script_.folder().file("record"));
    EXPECT_GT(run(quotedJava() + ' ' + arguments, file, extra), 0) << arguments;
    EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord() && script_.record() == given; }))
        << arguments << "\n"
        << (script_.hasRecord() ? script_.record() : "no record");
  }

  StandInScript script_{""};
  test::ScriptedDesktop desktop_;
};

TEST_F(WinAppTest, PutsTheFileInThePlaceOfTheFirstPlaceholder) {
  expectGiven("-jar \"%1\" %*", "x.jar", nullptr, "-jar\nx.jar\n%*\n");
  expectGiven("%1", "x.jar", nullptr, "x.jar\n");
  expectGiven("   %f  ", "x.jar", nullptr, "x.jar\n");
  expectGiven("-a  -b %1 -c  d", "x.jar", nullptr, "-a\n-b\nx.jar\n-c\nd\n");
  expectGiven("%1 %2", "x.jar", nullptr, "x.jar\n%2\n");
}

TEST_F(WinAppTest, AddsTheFileBehindACommandWithoutAPlaceholder) {
  expectGiven("-jar", "x.jar", nullptr, "-jar\nx.jar\n");
}

TEST_F(WinAppTest, AFileWithABlankIsOneArgument) {
  expectGiven("-jar %1", "my x.jar", nullptr, "-jar\nmy x.jar\n");
  expectGiven("-jar %1", "\"my x.jar\"", nullptr, "-jar\nmy x.jar\n");
}

TEST_F(WinAppTest, TheExtraArgumentComesLast) {
  expectGiven("%1 -last", "x.jar", "\"my log\"", "x.jar\n-last\nmy log\n");
  expectGiven("%1", "x.jar", "", "x.jar\n");
}

TEST_F(WinAppTest, NoFileIsAnEmptyText) {
  expectGiven("-a %1 -b", nullptr, nullptr, "-a\n-b\n");
}

TEST_F(WinAppTest, FailsSilentlyWhereNoProgramCanBeFound) {
  EXPECT_EQ(run("", "x.jar"), 0);
  EXPECT_EQ(run(quotedJava(), "x.jar"), 0) << "nothing behind the program";
  EXPECT_EQ(run(quotedJava() + "   ", "x.jar"), 0);
  EXPECT_EQ(run("\"never closed", "x.jar"), 0);
  EXPECT_FALSE(script_.hasRecord());
}

TEST_F(WinAppTest, CheckingOnlyStartsNothing) {
  EXPECT_EQ(run(quotedJava() + " %1", "x.jar", nullptr, 1), 1);
  EXPECT_EQ(run(quotedJava(), "x.jar", nullptr, 1), 0);
  EXPECT_FALSE(script_.hasRecord());
}

TEST_F(WinAppTest, AtMostTenArgumentsAreHeld) {
  const std::string nine = "1 2 3 4 5 6 7 8 9";
  const std::string ten = nine + " 10";
  const struct {
    std::string arguments;
    const char* extra;
    const char* message;
  } table[] = {
      {ten + " 11 %1", nullptr, "Internal error 1 in WinApp::runApp"},
      {ten + " 11", nullptr, "Internal error 1 in WinApp::runApp"},
      {ten + " %1", nullptr, "Internal error 2 in WinApp::runApp"},
      {ten, nullptr, "Internal error 2 in WinApp::runApp"},
      {nine + " %1 11", nullptr, "Internal error 3 in WinApp::runApp"},
      {"%1 2 3 4 5 6 7 8 9 10 11", nullptr, "Internal error 3 in WinApp::runApp"},
      {nine + " %1", "extra", "Internal error 4 in WinApp::runApp"},
  };
  for (const auto& row : table) {
    desktop_.expectMessage(row.message);
    EXPECT_EQ(run(quotedJava() + ' ' + row.arguments, "file", row.extra, 1), 0) << row.arguments;
  }
  EXPECT_EQ(run(quotedJava() + ' ' + nine + " %1", "file", nullptr, 1), 1);
  EXPECT_EQ(run(quotedJava() + " 1 2 3 4 5 6 7 8 %1", "file", "extra", 1), 1);
  expectGiven(nine + " %1", "file", nullptr, "1\n2\n3\n4\n5\n6\n7\n8\n9\nfile\n");
}

TEST_F(WinAppTest, AProgramThatCannotBeStartedIsTold) {
  const std::string missing = script_.folder().file("no such.exe");
  std::string reason;
  try {
    platform::startCommandLine(missing, "x");
  } catch (const platform::SystemError& error) {
    reason = error.text();
  }
  ASSERT_EQ(reason.substr(0, 22), "CreateProcess error 2\n");
  desktop_.expectMessage("Can't start \"no such.exe\" -jar \"my x.jar\" log\n" + reason);
  EXPECT_EQ(run('"' + missing + "\" -jar %1", "my x.jar", "log"), 0);
}

TEST_F(WinAppTest, AnUnknownExtensionHasNoCommand) {
  const WinApp app(".tarnwick-no-such-extension");
  EXPECT_EQ(app.commandText(), "");
  EXPECT_FALSE(test::shown(desktop_, app.runApp("x", nullptr, 0)));
}

}  // namespace
}  // namespace tarnwick
