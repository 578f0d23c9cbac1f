#include "platform/SystemVersion.h"
#include "process/Subprocess.h"
#include "support/SettingsFixture.h"
#include "tools/RunForUser.h"

#include <vector>

namespace tarnwick::test {
namespace {

/// What is told of a tool's run while it is on its way.
class RunForUserTest : public SettingsFixture {
 protected:
  RunForUserTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    context_.onRunBegins = [this](const std::string& what, std::size_t sources) {
      told_.push_back("begins " + what + ' ' + std::to_string(sources));
    };
    context_.onRunEnds = [this](std::optional<bool> said) {
      told_.push_back(!said ? "ends" : *said ? "ends: said something" : "ends: said nothing");
    };
    context_.showMessages = [](bool) {};
    settings().displayMessages = true;
    writeFile(scratch_.file("script"), "");
  }

  void run(Silence silence = Silence::Shown) {
    Subprocess tool(desktop_, log_, standInFolder() + platform::toolFileName("jar"));
    tool.addArg("jar");
    tool.addArg("cf");
    runForUser(settings(), tool, nullptr, silence);
  }

  using Told = std::vector<std::string>;
  ScopedEnvironment record_;
  ScopedEnvironment script_;
  Told told_;
};

TEST_F(RunForUserTest, ItsBeginAndItsEndAreTold) {
  run();
  EXPECT_EQ(told_, (Told{"begins jar 0", "ends: said nothing"}));
  told_.clear();
  writeFile(scratch_.file("script"), "out something\n");
  run();
  EXPECT_EQ(told_, (Told{"begins jar 0", "ends: said something"}));
}

TEST_F(RunForUserTest, AConsoleWindowIsTheUsersChoice) {
  writeFile(scratch_.file("script"), "console\n");
  for (const bool without : {false, true}) {
    settings().toolsWithoutConsole = without;
    run();
    const bool expected = platform::isWindowsDesktop() && !without;
    EXPECT_EQ(contentOf(log_.path()).find("no console") == std::string::npos, expected);
  }
}

TEST_F(RunForUserTest, OfWhatGoesItsOwnWayNothingIsTold) {
  run(Silence::Kept);
  EXPECT_TRUE(told_.empty());
}

TEST_F(RunForUserTest, ALogThatCannotBeWrittenIsNoEndToSpeakOf) {
  ToolLog nowhere(scratch_.file("no folder") + platform::folderSeparator);
  Subprocess tool(desktop_, nowhere, standInFolder() + platform::toolFileName("jar"));
  tool.addArg("jar");
  std::string reason;
  try {
    nowhere.open(FileMode::Write);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    reason = failure.message + "\nCan't open log file " + failure.file;
  }
  desktop_.expectMessage(reason);
  runForUser(settings(), tool);
  EXPECT_EQ(told_, (Told{"begins jar 0", "ends"}));
}

}  // namespace
}  // namespace tarnwick::test
