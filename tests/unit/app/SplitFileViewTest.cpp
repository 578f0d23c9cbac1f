#include "PanelFixture.h"
#include "app/FileView.h"
#include "support/KilledSplit.h"

namespace tarnwick::test {
namespace {

const char warning[] = "Java Portability Warning";
const char twoPublic[] = "public class A {}\npublic class B {}\n";

class SplitFileViewTest : public PanelFixture {
 protected:
  std::string source() { return userFolder() + "X.java"; }

  /// Types the source into the panel and presses "javac"; the panel can be used afterwards.
  void compile(const std::string& text, const std::function<void()>& expectations) {
    saveEarlierRun();
    writeFile(source(), text);
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.type(SOURCE, "\"" + source() + "\"");
      expectations();
      panel.press(JAVAC);
      EXPECT_EQ(panel.text(SOURCE), "\"" + source() + "\"");
      EXPECT_EQ(settings().fileviewSource.lastFolder(), userFolder()) << "the bookkeeping still runs";
      EXPECT_EQ(settings().fileviewClass.lastFolder(), userFolder());
      EXPECT_TRUE(panel.enabled(JAVAC));
      exit(panel);
    });
    EXPECT_FALSE(platform::isFile(userFolder() + "A.java"));
    EXPECT_FALSE(platform::isFile(userFolder() + "B.java"));
    EXPECT_EQ(contentOf(source()), text);
  }
};

TEST_F(SplitFileViewTest, ASplitSourceCompilesWithTheSoundOfSuccess) {
  compile(twoPublic,
          [this] { desktop_.expectDialog(warning, [](ScriptedWindow& window) { window.press(IDOK_CONTROL); }); });
  EXPECT_EQ(desktop_.alerts(), (std::vector<AlertSound>{AlertSound::Asterisk}));
  EXPECT_TRUE(contentOf(scratch_.file("record")).ends_with("\nA.java\nB.java\n"));
}

TEST_F(SplitFileViewTest, CancelShowsNothingAndMakesNoSound) {
  compile(twoPublic,
          [this] { desktop_.expectDialog(warning, [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); }); });
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(SplitFileViewTest, AComplaintIsShownWithoutASound) {
  compile("class A {}\n;", [this] {
    desktop_.expectMessage("X.java :\nLine 2 doesn't seem to make sense.\nPossibly unbalanced { and }.\n\n;");
    // The newer way would take it.
    desktop_.expectQuestion(
        "This source may be of a newer Java than Tarnwick's classic way of reading knows.\n\n"
        "Read sources the newer way from now on (generics, enums, records ...)?\n"
        "You can change that on the page \"javac\" of the settings.",
        false);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(SplitFileViewTest, WhatAKilledRunHasLeftBesideItsSourceIsClearedByTheNextStart) {
  saveEarlierRun([this](Settings& settings) { settings.fileviewSource.setName(source()); });
  leaveKilledSplit(userFolder());
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_EQ(contentOf(userFolder() + "A.java"), "mine");
    EXPECT_FALSE(platform::isFile(userFolder() + "B.java"));
    EXPECT_FALSE(platform::isFolder(userFolder() + "Tarnwick_split1.tmp"));
    exit(panel);
  });
}

TEST_F(SplitFileViewTest, TheCheckBoxHoldsForTheRunOfTheProgram) {
  saveEarlierRun();
  writeFile(source(), twoPublic);
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "\"" + source() + "\"");
    desktop_.expectDialog(warning, [](ScriptedWindow& window) {
      window.press(1274);
      window.press(IDOK_CONTROL);
    });
    panel.press(JAVAC);
    panel.press(JAVAC);
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts().size(), 2U);
}

}  // namespace
}  // namespace tarnwick::test
