// Words that are looked for in a console.
#include "app/CMainFrame.h"
#include "console/ConsolePaint.h"
#include "console/FindDlg.h"
#include "support/Children.h"
#include "support/FakeSurface.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

class ConsoleFindTest : public SettingsFixture {
 protected:
  ConsoleFindTest() : script_(lines()) {
    settings().newerConsole = true;
    frame_.emplace(desktop_, settings(), ConsoleStart{"Main", StandInScript::tool("java"), " Main", false});
    frame_->view().onStart(surface_);
    EXPECT_TRUE(waitUntil([&] {
      desktop_.runPosted();
      if (surface_.takeWake()) frame_->view().onWake();
      frame_->onCommand(COMMAND_COPY_ALL);
      return desktop_.clipboardText().value_or("").find("HIT 2") != std::string::npos && surface_.position.y > 0;
    }));
  }
  ~ConsoleFindTest() override { frame_->view().onClose(); }

  /// Two blank lines, "hit 1", 60 lines and "HIT 2".
  static std::string lines() {
    std::string script = "out hit 1\n";
    for (int line = 0; line < 60; ++line) script += "out x\n";
    return script + "out HIT 2\nsleep 600000\n";
  }
  void lookFor(const std::string& text, int button = IDOK_CONTROL) {
    desktop_.expectDialog("Find", [text, button](ScriptedWindow& window) {
      window.type(FIND_TEXT, text);
      window.press(button);
    });
  }
  std::string selected() {
    desktop_.setClipboard(std::nullopt);
    if (frame_->commandEnabled(COMMAND_COPY)) frame_->onCommand(COMMAND_COPY);
    return desktop_.clipboardText().value_or("(none)");
  }
  /// The rectangles that are marked in sight.
  std::vector<Rect> marked() {
    FakePainter painter({0, surface_.position.y, 644, surface_.position.y + 400});
    frame_->view().paint(painter);
    std::vector<Rect> rects;
    for (const auto& [rect, colour] : painter.filled) {
      if (colour == lightPalette.mark.ground) rects.push_back(rect);
    }
    return rects;
  }
  static Rect rowOf(int line) { return {4, 16 * line, 4 + 3 * 8, 16 * line + 16}; }

  StandInScript script_;
  std::optional<CMainFrame> frame_;
  FakeSurface surface_;
};

TEST_F(ConsoleFindTest, HitsAreMarkedSelectedAndBroughtIntoView) {
  const int end = surface_.position.y;
  lookFor("hit");
  frame_->onCommand(COMMAND_FIND);
  EXPECT_EQ(selected(), "HIT") << "the last one first";
  EXPECT_EQ(surface_.position.y, end);
  EXPECT_EQ(marked(), std::vector<Rect>{rowOf(63)});
  frame_->onCommand(COMMAND_FIND_NEXT);
  EXPECT_EQ(selected(), "hit");
  EXPECT_EQ(surface_.position.y, 0);
  EXPECT_EQ(marked(), std::vector<Rect>{rowOf(2)});
  EXPECT_EQ(surface_.titles.back(), "Main - scrolled back");
  frame_->onCommand(COMMAND_FIND_PREVIOUS);
  EXPECT_EQ(selected(), "HIT");
  EXPECT_GE(surface_.position.y + 400, 64 * 16) << "in sight";
}

TEST_F(ConsoleFindTest, WhatIsNotThereIsTold) {
  lookFor("nowhere");
  desktop_.expectHint("There is no \"nowhere\" in the console.");
  frame_->onCommand(COMMAND_FIND);
  EXPECT_EQ(selected(), "(none)");
}

TEST_F(ConsoleFindTest, TheNextTimeTheWordsStandInTheFieldAndCancelChangesNothing) {
  lookFor("hit");
  frame_->onCommand(COMMAND_FIND);
  desktop_.expectDialog("Find", [](ScriptedWindow& window) {
    EXPECT_EQ(window.text(FIND_TEXT), "hit");
    window.type(FIND_TEXT, "x");
    window.press(IDCANCEL_CONTROL);
  });
  frame_->onCommand(COMMAND_FIND);
  EXPECT_EQ(marked(), std::vector<Rect>{rowOf(63)});
}

TEST_F(ConsoleFindTest, NothingRemovesTheMarksAndTheNextHitIsAskedForAnew) {
  lookFor("hit");
  frame_->onCommand(COMMAND_FIND);
  lookFor("");
  frame_->onCommand(COMMAND_FIND);
  EXPECT_TRUE(marked().empty());
  lookFor("x", IDCANCEL_CONTROL);
  frame_->onCommand(COMMAND_FIND_NEXT);
}

}  // namespace
}  // namespace tarnwick::test
