#include "app/CMainFrame.h"
#include "support/Children.h"
#include "support/FakeSurface.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class CMainFrameTest : public SettingsFixture {
 protected:
  CMainFrameTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    writeFile(scratch_.file("script"), "readline\nreadline\n");
  }

  /// What "Save current display to file" writes.
  std::string savedDisplay(CMainFrame& frame) {
    desktop_.expectSaveFile(scratch_.file("display"));
    frame.onCommand(COMMAND_SAVE_DISPLAY);
    return contentOf(scratch_.file("display"));
  }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

TEST_F(CMainFrameTest, TheDebuggersHelpIsTypedAndSent) {
  CMainFrame frame(desktop_, settings(), {"Main", standInFolder() + platform::toolFileName("jdb"), " Main", true});
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_TRUE(waitUntil([&] { return platform::isFile(scratch_.file("record")); }));
  EXPECT_TRUE(frame.commandEnabled(COMMAND_JDB_HELP));
  frame.onCommand(COMMAND_JDB_HELP);
  EXPECT_TRUE(waitUntil([&] {
    desktop_.runPosted();
    if (surface.takeWake()) frame.view().onWake();
    return savedDisplay(frame).find("got: help") != std::string::npos;
  }));
  frame.view().onClose();
}

TEST_F(CMainFrameTest, WhatNobodyAnswersToIsDisabled) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", false});
  for (const int command : {COMMAND_JDB_HELP, COMMAND_HELP, COMMAND_ABOUT, COMMAND_CUT, COMMAND_STOP_RECORDING}) {
    EXPECT_FALSE(frame.commandEnabled(command)) << command;
  }
  for (const int command : {COMMAND_EXIT, COMMAND_SELECT_ALL, COMMAND_SAVE_DISPLAY, COMMAND_START_RECORDING}) {
    EXPECT_TRUE(frame.commandEnabled(command)) << command;
  }
}

}  // namespace
}  // namespace tarnwick::test
