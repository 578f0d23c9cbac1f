#include "support/SettingsPageFixture.h"

#include <array>

namespace tarnwick::test {
namespace {

constexpr std::array<int, 8> keyFields = {1158, 1162, 1163, 1164, 1166, 1167, 1168, 1169};
enum Control {
  LAUNCH = 1125,
  OWN_STREAMS = 2160,
  F5 = 1158,
  F6 = 1162,
  F12 = 1169,
  SHIFT = 1261,
  CTRL = 1262,
  ALT = 1263
};

class JdbPageTest : public SettingsPageFixture {
 protected:
  JdbPageTest() : SettingsPageFixture(3) {}

  using Keys = std::vector<std::string>;

  static Keys shown(const ScriptedWindow& page) {
    Keys keys;
    for (const int field : keyFields) keys.push_back(page.text(field));
    return keys;
  }
};

TEST_F(JdbPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(LAUNCH), "Launch application upon jdb startup (removes the need for the run command)");
    EXPECT_EQ(page.toolTip(OWN_STREAMS),
              "A program that reads its input can be debugged: java runs it, and jdb takes hold of it. In the console "
              "you choose who gets what you type. The program always waits at its start; run or cont lets it go on.");
    EXPECT_EQ(page.toolTip(F5), "String sent to jdb when pressing key F5 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(F6),
              "String sent to jdb when pressing key F6 (Alt+F6 and Alt+Shift+F6 not available on Win98!)");
    EXPECT_EQ(page.toolTip(1163), "String sent to jdb when pressing key F7 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(1164), "String sent to jdb when pressing key F8 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(1166), "String sent to jdb when pressing key F9 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(1167), "String sent to jdb when pressing key F10 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(1168), "String sent to jdb when pressing key F11 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(F12), "String sent to jdb when pressing key F12 (possibly with Shift, Ctrl or Alt)");
    EXPECT_EQ(page.toolTip(SHIFT),
              "Function key definitions for Shift+Functionkey. Shift/Ctrl/Alt combinations possible");
    EXPECT_EQ(page.toolTip(CTRL),
              "Function key definitions for Ctrl+Functionkey. Shift/Ctrl/Alt combinations possible");
    EXPECT_EQ(page.toolTip(ALT), "Function key definitions for Alt+Functionkey. Shift/Ctrl/Alt combinations possible");
  });
}

TEST_F(JdbPageTest, Labels) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(LAUNCH), "launch option");
    EXPECT_EQ(page.text(OWN_STREAMS), "The program has its own input and output");
    EXPECT_EQ(page.text(SHIFT), "Shift");
    EXPECT_EQ(page.text(CTRL), "Ctrl");
    EXPECT_EQ(page.text(ALT), "Alt");
  });
}

TEST_F(JdbPageTest, TheModifiersChooseTheGroupThatShows) {
  playAndCancel([](ScriptedWindow& page) {
    for (const int box : {SHIFT, CTRL, ALT}) EXPECT_FALSE(page.checked(box));
    EXPECT_EQ(shown(page), (Keys{"cont\\n", "monitor list\\n", "list\\n", "locals\\n", "trace methods\\n", "next\\n",
                                 "step\\n", "step up\\n"}));
    page.press(SHIFT);
    EXPECT_EQ(shown(page), (Keys{"", "", "", "", "untrace methods\\n", "", "", ""}));
    page.press(CTRL);
    EXPECT_EQ(shown(page), (Keys{"", "", "", "", "unmonitor ", "", "", ""}));
    page.press(SHIFT);
    EXPECT_EQ(shown(page), (Keys{"", "monitor\\n", "where\\n", "dump this\\n", "monitor ", "stepi\\n", "", ""}));
    page.press(CTRL);
    page.press(ALT);
    EXPECT_EQ(shown(page), (Keys{"lock ", "monitor ", "list ", "dump ", "trace methods ", "watch ", "", ""}));
    page.press(SHIFT);
    EXPECT_EQ(shown(page), (Keys{"", "unmonitor ", "", "", "untrace methods ", "unwatch ", "", ""}));
    page.press(CTRL);
    EXPECT_EQ(shown(page), Keys(8)) << "all three";
    EXPECT_TRUE(page.enabled(F6));
  });
}

TEST_F(JdbPageTest, OkWithoutAChangeKeepsTheText) {
  playAndOk([](ScriptedWindow& page) {
    page.press(ALT);
    page.press(CTRL);
  });
  EXPECT_EQ(settings().functionKeys.toString(), FunctionKeys::defaultText);
}

TEST_F(JdbPageTest, EveryGroupThatWasEditedIsStored) {
  playAndOk([](ScriptedWindow& page) {
    page.type(F5, "run;now!]\\n");
    page.press(SHIFT);
    page.type(F12, "shifted");
    page.press(ALT);
    page.type(F6, "both ");
    page.press(LAUNCH);
  });
  const FunctionKeys& keys = settings().functionKeys;
  EXPECT_EQ(keys.key(0, 0), "run;now!]\\n");
  EXPECT_EQ(keys.key(0, 7), "step up\\n");
  EXPECT_EQ(keys.key(1, 7), "shifted");
  EXPECT_EQ(keys.key(1, 4), "untrace methods\\n");
  EXPECT_EQ(keys.key(5, 1), "both ");
  EXPECT_FALSE(settings().jdbLaunch);
  const auto other = freshSettings();
  int status = -1;
  other->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(other->functionKeys.key(0, 0), "run;now!]\\n") << "separators in a text survive the file";
}

TEST_F(JdbPageTest, InputAndOutputOfTheProgramsOwnAreAChoice) {
  EXPECT_FALSE(settings().jdbOwnStreams);
  playAndOk([](ScriptedWindow& page) {
    EXPECT_FALSE(page.checked(OWN_STREAMS));
    page.press(OWN_STREAMS);
  });
  EXPECT_TRUE(settings().jdbOwnStreams);
  EXPECT_NE(contentOf(configFile()).find("JDB_OWN_STREAMS  ON"), std::string::npos);
  playAndOk([](ScriptedWindow& page) {
    EXPECT_TRUE(page.checked(OWN_STREAMS));
    page.press(OWN_STREAMS);
  });
  EXPECT_FALSE(settings().jdbOwnStreams);
  EXPECT_EQ(contentOf(configFile()).find("JDB_OWN_STREAMS"), std::string::npos) << "only where it is used";
}

TEST_F(JdbPageTest, CancelLeavesTheKeys) {
  playAndCancel([](ScriptedWindow& page) {
    page.type(F5, "other");
    page.press(SHIFT);
  });
  EXPECT_EQ(settings().functionKeys.toString(), FunctionKeys::defaultText);
}

TEST_F(JdbPageTest, EachOpeningBeginsWithThePlainKeys) {
  playAndCancel([](ScriptedWindow& page) { page.press(ALT); });
  playAndCancel([](ScriptedWindow& page) { EXPECT_EQ(page.text(F5), "cont\\n"); });
}

TEST_F(JdbPageTest, OnWindows98AltEmptiesTheFieldOfF6AndAStoreWritesThat) {
  context_.isWindows98 = [] { return true; };
  playAndOk([](ScriptedWindow& page) {
    EXPECT_TRUE(page.enabled(F6));
    page.press(ALT);
    EXPECT_FALSE(page.enabled(F6));
    EXPECT_EQ(page.text(F6), "");
    page.press(CTRL);
    EXPECT_TRUE(page.enabled(F6)) << "Ctrl+Alt+F6 is free";
    page.press(CTRL);
    page.press(SHIFT);
    EXPECT_FALSE(page.enabled(F6)) << "Alt and Shift";
    EXPECT_EQ(page.text(F6), "");
  });
  EXPECT_EQ(settings().functionKeys.key(4, 1), "");
  EXPECT_EQ(settings().functionKeys.key(5, 1), "");
  EXPECT_EQ(settings().functionKeys.key(0, 1), "monitor list\\n");
}

TEST_F(JdbPageTest, ATextThatIsPastedWithALineEndStaysOnOneLine) {
  playAndOk([](ScriptedWindow& page) { page.type(F6, "stop in\nA.main\n"); });
  EXPECT_EQ(settings().functionKeys.key(0, 1), "stop in A.main ");
  EXPECT_EQ(settings().functionKeys.key(0, 0), "cont\\n") << "the sign for Return is two characters";
}

}  // namespace
}  // namespace tarnwick::test
