// The line at the panel's foot as a real window.
#include "ui/PanelsFixture.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/button.h>
#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

constexpr int LINE = PANEL_STATUS_LINE;

class StatusLineWindowTest : public PanelsFixture {
 protected:
  StatusLineWindowTest() : PanelsFixture({LayoutValue::VERTICAL, false, true}) {}

  wxWindow& line() const { return *panel().windowOf(LINE); }
  std::string shown() const { return ui::fromWx(wxControl::RemoveMnemonics(line().GetLabel())); }
  std::string tip() const { return ui::fromWx(line().GetToolTipText()); }
};

const char longText[] =
    "4 errors, 12 warnings in 3 files, 1.2 s   |   Project Äpfel & Birnen of a long name   |   Tarnwickdefault.CFG";

}  // namespace

TEST_F(StatusLineWindowTest, WhatHasNoRoomIsCutAndTheToolTipTellsTheWhole) {
  waitForView();
  steps.then("short", [this] {
    const wxRect before = line().GetRect();
    EXPECT_EQ(tip(), "");
    panel().setText(LINE, longText);
    EXPECT_EQ(panel().text(LINE), longText);
    EXPECT_TRUE(shown().ends_with("...")) << shown();
    EXPECT_TRUE(std::string(longText).starts_with(shown().substr(0, shown().size() - 3))) << shown();
    EXPECT_EQ(tip(), longText);
    EXPECT_EQ(ui::spokenName(line()), longText) << "whoever hears it hears the whole";
    EXPECT_EQ(line().GetRect(), before);
  });
  steps.settle(8);
  steps.then("look", [this] {
    shoot("status-long");
    expectGoodLooks(panel());
    press(bar(), ButtonBar::LAYOUT_LEFT);
  });
  steps.settle(8);
  steps.then("in a wider window there is more room", [this] {
    panel().setText(LINE, "Äpfel & Birnen && more");
    EXPECT_EQ(shown(), "Äpfel & Birnen && more");
    EXPECT_EQ(tip(), "");
  });
  run();
}

TEST_F(StatusLineWindowTest, ReturnOnItShowsTheLastLog) {
  log_.open(FileMode::Write);
  log_.close();
  int shows = 0;
  context_.bringMessages = [&shows] { ++shows; };
  waitForView();
  steps.then("focus", [this] { line().SetFocus(); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == &line(); });
  steps.then("Return", [] { key(WXK_RETURN); });
  steps.until("it is shown", [&shows] { return shows == 1; });
  run();
}

}  // namespace tarnwick::test
