#include "resources/Drawings.h"
#include "resources/Toolbar.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

TEST(Toolbar, TheDebuggersButtonsStandInOrder) {
  std::vector<std::pair<int, std::string>> found;
  for (const auto& button : debuggerToolbar()) found.emplace_back(button.command, button.toolTip);
  const std::pair<int, std::string> separator{0, ""};
  const std::vector<std::pair<int, std::string>> expected = {
      {32796, "run"},
      separator,
      {32782, "Step in"},
      {32783, "Step over"},
      {32784, "Step out"},
      {32785, "Continue"},
      separator,
      {32786, "Show local variables"},
      {32819, "Show current object (dump this)"},
      {32797, "threads"},
      {32798, "where"},
      {32812, "Display source code (list)"},
      separator,
      {32799, "List breakpoints (clear)"},
      {32801, "stop at"},
      {32802, "stop in"},
      {32809, "Clear breakpoint (clear)"},
      {32810, "trace methods"},
      {32800, "untrace methods"},
      separator,
      {32816, "Show monitors (monitor)"},
      {32808, "Set monitor (monitor)"},
      {32805, "unmonitor"},
      separator,
      {57670, "jdb help"},
      {32877, "Custom buttons"},
      {32879, "Debugging with Tarnwick"},
      separator,
      {32815, "exit"},
  };
  EXPECT_EQ(found, expected);
}

/// The colours of a drawing, each as often as it stands there.
std::vector<std::string> coloursOf(const std::string& drawing) {
  std::vector<std::string> colours;
  for (auto at = drawing.find('#'); at != std::string::npos; at = drawing.find('#', at + 1))
    colours.push_back(drawing.substr(at, drawing.find('"', at) - at));
  return colours;
}

TEST(Toolbar, EveryButtonHasAPictureOfItsOwnForLightAndDarkGround) {
  std::set<std::string> pictures;
  for (const auto& button : debuggerToolbar()) {
    if (button.command == 0) continue;
    const std::string picture = drawing("toolbar/" + button.drawing);
    EXPECT_NE(picture.find("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"15\""), std::string::npos)
        << button.toolTip;
    EXPECT_TRUE(pictures.insert(picture).second) << button.toolTip;
    const auto light = coloursOf(picture);
    const auto dark = coloursOf(onDarkGround(picture));
    ASSERT_EQ(light.size(), dark.size());
    EXPECT_FALSE(light.empty()) << button.toolTip;
    for (std::size_t i = 0; i < light.size(); ++i)
      EXPECT_NE(light[i], dark[i]) << button.toolTip << ": a colour that has no shade for a dark ground";
  }
  EXPECT_EQ(pictures.size(), 23U);
}

TEST(Toolbar, EachColourHasItsShadeForADarkGround) {
  EXPECT_EQ(onDarkGround("a #3c3c41 #148c2d #cd1e1e #195abe #d77d00 #ffffff #141414 #12345"),
            "a #e1e1e1 #5acd69 #ff695f #6eafff #ffbe50 #141414 #141414 #12345");
}

TEST(Toolbar, WhatHasNoDrawingHasNone) {
  EXPECT_EQ(drawing("toolbar/unheard of"), "");
  EXPECT_EQ(drawing(""), "");
  EXPECT_NE(drawing("tarnwick"), "");
}

}  // namespace
}  // namespace tarnwick
