#include "app/CMainFrame.h"
#include "app/LookMemory.h"
#include "support/Children.h"
#include "support/FakeSurface.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::test {
namespace {

class CMainFrameTest : public SettingsFixture {
 protected:
  CMainFrameTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    writeFile(scratch_.file("script"), "readline\nreadline\n");
  }

  /// What "Save current display to file" writes, with line ends as on Linux.
  std::string savedDisplay(CMainFrame& frame) {
    desktop_.expectSaveFile(scratch_.file("display"));
    frame.onCommand(COMMAND_SAVE_DISPLAY);
    std::string display = contentOf(scratch_.file("display"));
    std::erase(display, '\r');
    return display;
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
  for (const int command : {COMMAND_JDB_HELP, COMMAND_CUT, COMMAND_STOP_RECORDING}) {
    EXPECT_FALSE(frame.commandEnabled(command)) << command;
  }
  for (const int command :
       {COMMAND_EXIT, COMMAND_SELECT_ALL, COMMAND_SAVE_DISPLAY, COMMAND_START_RECORDING, COMMAND_HELP, COMMAND_ABOUT}) {
    EXPECT_TRUE(frame.commandEnabled(command)) << command;
  }
}

TEST_F(CMainFrameTest, OnlyADebuggersFrameHasAToolbarAndItsButtonsAreAlwaysEnabled) {
  CMainFrame plain(desktop_, settings(), {"Main", "", "", false});
  EXPECT_EQ(plain.toolbar(), nullptr);
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  ASSERT_NE(frame.toolbar(), nullptr);
  for (const auto& button : *frame.toolbar()) {
    if (button.command == 0) continue;
    EXPECT_TRUE(frame.commandEnabled(button.command)) << button.toolTip;
  }
  EXPECT_TRUE(frame.commandEnabled(COMMAND_JDB_HELP));
  EXPECT_FALSE(frame.commandEnabled(COMMAND_CUT));
}

TEST_F(CMainFrameTest, WhereAProgramStandsBesideItsDebuggerTheInputIsAChoice) {
  ConsoleStart start{"Main", standInFolder() + platform::toolFileName("jdb"), " -ea Main", true};
  start.programFile = standInFolder() + platform::toolFileName("java");
  start.debuggerOptions = "-sourcepath s";
  CMainFrame frame(desktop_, settings(), start);
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_TRUE(waitUntil([&] { return platform::isFile(scratch_.file("record")); }));
  EXPECT_TRUE(waitUntil([&] {
    return contentOf(scratch_.file("record")) ==
           "-connect\ncom.sun.jdi.SocketListen:localAddress=127.0.0.1,timeout=30000\n-sourcepath\ns\n";
  }));
  const auto chosen = [&frame] {
    std::string labels;
    for (const auto& choice : frame.inputChoices()) labels += choice.chosen ? '[' + choice.label + ']' : choice.label;
    return labels;
  };
  EXPECT_EQ(chosen(), "[to jdb]to program");
  EXPECT_EQ(frame.inputChoices()[0].colour, classicPalette.debugger);
  EXPECT_EQ(frame.inputChoices()[1].colour, classicPalette.output);
  const Accelerator& key = frame.accelerators().back();
  EXPECT_TRUE(key.key == Accelerator::Key::Tab && key.control && !key.shift);
  EXPECT_EQ(frame.accelerators().size(), consoleAccelerators().size() + 1);
  for (const auto& [command, labels] :
       std::initializer_list<std::pair<int, const char*>>{{key.command, "to jdb[to program]"},
                                                          {key.command, "[to jdb]to program"},
                                                          {frame.inputChoices()[1].command, "to jdb[to program]"},
                                                          {frame.inputChoices()[1].command, "to jdb[to program]"},
                                                          {frame.inputChoices()[0].command, "[to jdb]to program"}}) {
    const int shown = surface.inputTargets;
    EXPECT_TRUE(frame.commandEnabled(command));
    frame.onCommand(command);
    EXPECT_EQ(chosen(), labels);
    EXPECT_GT(surface.inputTargets, shown) << "a click on what is chosen already is shown anew, too";
  }
  frame.view().onClose();
}

TEST_F(CMainFrameTest, WithoutOneThereIsNoChoice) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  EXPECT_TRUE(frame.inputChoices().empty());
  EXPECT_EQ(&frame.accelerators(), &consoleAccelerators());
}

TEST_F(CMainFrameTest, TheConsoleOfTodayHasItsOwnMenusAndKeys) {
  const std::set<int> ofToday = {COMMAND_COPY_ALL,      COMMAND_CLEAR,          COMMAND_COPY_OR_STOP,
                                 COMMAND_END_OF_INPUT,  COMMAND_END_KEY,        COMMAND_STOP,
                                 COMMAND_RUN_AGAIN,     COMMAND_FIND,           COMMAND_FIND_NEXT,
                                 COMMAND_FIND_PREVIOUS, COMMAND_LARGER_LETTERS, COMMAND_SMALLER_LETTERS,
                                 COMMAND_USUAL_LETTERS, COMMAND_WRAP_LINES};
  CMainFrame classic(desktop_, settings(), {"Main", "", "", false});
  EXPECT_EQ(&classic.menuBar(), &consoleMenuBar());
  EXPECT_EQ(&classic.accelerators(), &consoleAccelerators());
  for (const int command : ofToday) EXPECT_FALSE(classic.commandEnabled(command)) << command;
  settings().newerConsole = true;
  CMainFrame frame(desktop_, settings(), {"Main", "", "", false});
  EXPECT_EQ(&frame.menuBar(), &newerConsoleMenuBar());
  EXPECT_EQ(&frame.accelerators(), &newerConsoleAccelerators());
  const std::set<int> always = {COMMAND_COPY_ALL,  COMMAND_CLEAR,         COMMAND_END_KEY,       COMMAND_FIND,
                                COMMAND_FIND_NEXT, COMMAND_FIND_PREVIOUS, COMMAND_USUAL_LETTERS, COMMAND_WRAP_LINES};
  for (const int command : ofToday) EXPECT_EQ(frame.commandEnabled(command), always.contains(command)) << command;
  EXPECT_FALSE(frame.commandEnabled(COMMAND_CUT));
  EXPECT_TRUE(frame.commandEnabled(COMMAND_SELECT_ALL));
}

TEST_F(CMainFrameTest, TheLettersSizeIsRememberedForTheNextConsole) {
  settings().newerConsole = true;
  const ConsoleStart start{"Main", StandInScript::tool("java"), " Main", false};
  {
    CMainFrame frame(desktop_, settings(), start);
    FakeSurface surface;
    frame.view().onStart(surface);
    EXPECT_TRUE(frame.commandEnabled(COMMAND_LARGER_LETTERS));
    frame.onCommand(COMMAND_LARGER_LETTERS);
    frame.onCommand(COMMAND_LARGER_LETTERS);
    frame.onCommand(COMMAND_SMALLER_LETTERS);
    EXPECT_EQ(surface.letters, 11);
    frame.view().onClose();
  }
  EXPECT_EQ(rememberedLook(program_), (TextLook{11, false}));
  CMainFrame frame(desktop_, settings(), start);
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_EQ(surface.letters, 11);
  frame.onCommand(COMMAND_USUAL_LETTERS);
  frame.view().onClose();
  EXPECT_EQ(rememberedLook(program_), TextLook{});
}

TEST_F(CMainFrameTest, WrappingIsAMarkInTheMenuAndRememberedForTheNextConsole) {
  settings().newerConsole = true;
  const ConsoleStart start{"Main", StandInScript::tool("java"), " Main", false};
  for (const bool on : {true, false}) {
    CMainFrame frame(desktop_, settings(), start);
    FakeSurface surface;
    frame.view().onStart(surface);
    EXPECT_EQ(frame.commandMarked(COMMAND_WRAP_LINES), !on);
    frame.onCommand(COMMAND_WRAP_LINES);
    EXPECT_EQ(frame.commandMarked(COMMAND_WRAP_LINES), on);
    EXPECT_FALSE(frame.commandMarked(COMMAND_COPY));
    frame.view().onClose();
    EXPECT_EQ(rememberedLook(program_).wrapLines, on);
  }
}

TEST_F(CMainFrameTest, TheClassicConsoleKeepsItsLetters) {
  rememberLook(program_, {20, true});
  CMainFrame frame(desktop_, settings(), {"Main", StandInScript::tool("java"), " Main", false});
  FakeSurface surface;
  frame.view().onStart(surface);
  frame.onCommand(COMMAND_LARGER_LETTERS);
  EXPECT_EQ(surface.letters, 0);
  frame.onCommand(COMMAND_WRAP_LINES);
  EXPECT_FALSE(frame.commandMarked(COMMAND_WRAP_LINES));
  frame.view().onClose();
  EXPECT_EQ(rememberedLook(program_), (TextLook{20, true}));
}

TEST_F(CMainFrameTest, AProgramThatReadsToTheEndIsEndedAndRunAgain) {
  settings().newerConsole = true;
  CMainFrame frame(desktop_, settings(), {"Main", StandInScript::tool("java"), " Main", false});
  FakeSurface surface;
  frame.view().onStart(surface);
  const auto serve = [&] {
    desktop_.runPosted();
    if (surface.takeWake()) frame.view().onWake();
  };
  const auto ended = [&] { return frame.commandEnabled(COMMAND_RUN_AGAIN); };
  for (const char* const expected : {"got: one", "end of input"}) {
    EXPECT_TRUE(waitUntil([&] {
      serve();
      return frame.commandEnabled(COMMAND_END_OF_INPUT) && !ended();
    }));
    EXPECT_TRUE(frame.commandEnabled(COMMAND_STOP));
    if (std::string(expected) == "got: one") frame.view().onCharacter("one\r", 1);
    frame.onCommand(COMMAND_END_KEY);
    EXPECT_FALSE(frame.commandEnabled(COMMAND_END_OF_INPUT));
    EXPECT_TRUE(waitUntil([&] {
      serve();
      return ended() && !surface.titles.empty() && surface.titles.back() != "Main";
    }));
    EXPECT_NE(savedDisplay(frame).find(expected), std::string::npos);
    EXPECT_EQ(surface.titles.back().substr(0, 24), "Main - ended with 0 afte");
    frame.onCommand(COMMAND_RUN_AGAIN);
  }
  frame.view().onClose();
}

TEST_F(CMainFrameTest, ControlCCopiesWhereSomethingIsSelectedAndElseAsksToStop) {
  settings().newerConsole = true;
  CMainFrame frame(desktop_, settings(), {"Main", StandInScript::tool("java"), " Main", false});
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_TRUE(waitUntil([&] { return frame.commandEnabled(COMMAND_STOP); }));
  desktop_.expectQuestion("Stop the program?", false);
  frame.onCommand(COMMAND_COPY_OR_STOP);
  frame.onCommand(COMMAND_SELECT_ALL);
  frame.onCommand(COMMAND_COPY_OR_STOP);
  EXPECT_TRUE(desktop_.clipboardText().has_value());
  frame.view().onClose();
}

TEST_F(CMainFrameTest, ShiftDeleteDoesNothing) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  FakeSurface surface;
  frame.view().onStart(surface);
  frame.view().onCharacter("word", 1);
  frame.view().onKey(ConsoleKey::Home, 0);
  frame.onCommand(COMMAND_SELECT_ALL);
  int found = 0;
  for (const auto& accelerator : frame.accelerators()) {
    if (accelerator.key != Accelerator::Key::Delete) continue;
    ++found;
    EXPECT_TRUE(accelerator.shift);
    EXPECT_FALSE(frame.commandEnabled(accelerator.command));
    frame.onCommand(accelerator.command);
  }
  EXPECT_EQ(found, 1);
  EXPECT_TRUE(frame.commandEnabled(COMMAND_COPY)) << "the selection stands";
  EXPECT_EQ(savedDisplay(frame), "word\n");
  frame.view().onClose();
}

// Killed, say, while its program goes on.
TEST_F(CMainFrameTest, WhatADebuggerHasStartedEndsWithItWhatAProgramHasStartedDoesNot) {
  for (const bool debugging : {true, false}) {
    const StandInScript script("grandchild 60000\nout done");
    CMainFrame frame(desktop_, settings(), {"Main", StandInScript::tool("jdb"), " Main", debugging});
    FakeSurface surface;
    frame.view().onStart(surface);
    const int grandchild = script.grandchildren(1).at(0);
    EXPECT_TRUE(waitUntil([&] { return savedDisplay(frame).find("E n d   o f") != std::string::npos; }));
    if (debugging) {
      EXPECT_TRUE(waitUntil([&] { return !processLives(grandchild); }));
    } else {
      EXPECT_TRUE(processLives(grandchild));
    }
    frame.view().onClose();
  }
}

TEST_F(CMainFrameTest, TheFramesTitleIsTheDocuments) {
  CMainFrame frame(desktop_, settings(), {"Größe of x", "", "", false});
  EXPECT_EQ(frame.title(), "Größe of x");
}

TEST_F(CMainFrameTest, SomeCommandsOpenTheGuideAtTheirAnchors) {
  std::vector<std::string> anchors;
  settings().context().showHelp = [&anchors](const std::string& anchor) { anchors.push_back(anchor); };
  int abouts = 0;
  settings().context().showAbout = [&abouts] { ++abouts; };
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  for (const int command :
       {int{COMMAND_HELP}, int{COMMAND_CUSTOM_BUTTONS}, int{COMMAND_DEBUGGING_HELP}, int{COMMAND_ABOUT}}) {
    frame.onCommand(command);
  }
  EXPECT_EQ(anchors, (std::vector<std::string>{"", "#jdbparams", "#jdb"}));
  EXPECT_EQ(abouts, 1);
}

TEST_F(CMainFrameTest, AButtonsTextJoinsWhatWasTypedAndWaitsForItsEnd) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  FakeSurface surface;
  frame.view().onStart(surface);
  frame.view().onCharacter("x", 1);
  frame.onCommand(COMMAND_STOP_AT);
  const std::string display = savedDisplay(frame);
  EXPECT_NE(display.find("xstop at \n"), std::string::npos) << display;
  frame.view().onClose();
}

TEST_F(CMainFrameTest, WhileARecordingRunsItCanOnlyBeStopped) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", false});
  desktop_.expectSaveFile(scratch_.file("recorded"));
  frame.onCommand(COMMAND_START_RECORDING);
  EXPECT_FALSE(frame.commandEnabled(COMMAND_SAVE_DISPLAY));
  EXPECT_FALSE(frame.commandEnabled(COMMAND_START_RECORDING));
  EXPECT_TRUE(frame.commandEnabled(COMMAND_STOP_RECORDING));
  frame.onCommand(COMMAND_STOP_RECORDING);
  EXPECT_TRUE(frame.commandEnabled(COMMAND_SAVE_DISPLAY));
  EXPECT_TRUE(frame.commandEnabled(COMMAND_START_RECORDING));
  EXPECT_FALSE(frame.commandEnabled(COMMAND_STOP_RECORDING));
  EXPECT_TRUE(platform::isFile(scratch_.file("recorded")));
}

TEST_F(CMainFrameTest, CopyWantsASelectionAndPasteATextOnTheClipboard) {
  CMainFrame frame(desktop_, settings(), {"Main", "", "", false});
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_FALSE(frame.commandEnabled(COMMAND_COPY));
  EXPECT_FALSE(frame.commandEnabled(COMMAND_PASTE));
  for (const char* letter : {"w", "o", "r", "d"}) frame.view().onCharacter(letter, 1);
  frame.onCommand(COMMAND_SELECT_ALL);
  EXPECT_TRUE(frame.commandEnabled(COMMAND_COPY));
  frame.onCommand(COMMAND_COPY);
  EXPECT_TRUE(frame.commandEnabled(COMMAND_PASTE));
  frame.onCommand(COMMAND_PASTE);
  EXPECT_FALSE(frame.commandEnabled(COMMAND_COPY));
  EXPECT_NE(savedDisplay(frame).find("wordword"), std::string::npos) << savedDisplay(frame);
  frame.onCommand(COMMAND_EXIT);
  EXPECT_EQ(surface.closes, 1);
  frame.view().onClose();
}

// The group is the sum of the held modifiers: Shift 1, Ctrl 2, Alt 4.
TEST_F(CMainFrameTest, TheFunctionKeysOfAllEightGroupsTypeTheirTexts) {
  const std::vector<std::vector<std::string>> expected = {
      {"cont", "monitor list", "list", "locals", "trace methods", "next", "step", "step up"},
      {"", "", "", "", "untrace methods", "", "", ""},
      {"", "monitor", "where", "dump this", "monitor ", "stepi", "", ""},
      {"", "", "", "", "unmonitor ", "", "", ""},
      {"lock ", "monitor ", "list ", "dump ", "trace methods ", "watch ", "", ""},
      {"", "unmonitor ", "", "", "untrace methods ", "unwatch ", "", ""},
      {"", "", "", "", "", "", "", ""},
      {"", "", "", "", "", "", "", ""},
  };
  const std::set<std::string> leftToTheUser = {
      "monitor ", "unmonitor ", "lock ", "list ", "dump ", "watch ", "trace methods ", "untrace methods ", "unwatch "};
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  FakeSurface surface;
  frame.view().onStart(surface);
  std::string display;
  for (int group = 0; group < 8; ++group) {
    for (int index = 0; index < 8; ++index) {
      const std::string& text = expected[static_cast<std::size_t>(group)][static_cast<std::size_t>(index)];
      const auto key = static_cast<ConsoleKey>(static_cast<int>(ConsoleKey::F5) + index);
      EXPECT_TRUE(frame.view().onKey(key, group)) << group << ' ' << index;
      display += text;
      // A text that ends with Return has left its line by itself.
      if (leftToTheUser.count(text) > 0) frame.view().onCharacter("\r", 1);
      if (!text.empty()) display += "\n";
      EXPECT_EQ(savedDisplay(frame), display + "\n") << group << ' ' << index;
    }
  }
  frame.view().onClose();
}

TEST_F(CMainFrameTest, AKeysOwnTextKeepsALoneBackslashAndSendsItsLinesWithPauses) {
  settings().functionKeys.setGroup(6, {"C:\\dir", "", "", "", "", "", "", "first\\nsecond\\nrest"});
  CMainFrame frame(desktop_, settings(), {"Main", "", "", true});
  FakeSurface surface;
  frame.view().onStart(surface);
  EXPECT_TRUE(frame.view().onKey(ConsoleKey::F5, CTRL_BIT | ALT_BIT));
  frame.view().onCharacter("\r", 1);
  EXPECT_TRUE(frame.view().onKey(ConsoleKey::F12, CTRL_BIT | ALT_BIT));
  // One line only: the next one waits for the timer.
  EXPECT_EQ(savedDisplay(frame), "C:\\dir\nfirst\n\n");
  frame.view().onClose();
}

}  // namespace
}  // namespace tarnwick::test
