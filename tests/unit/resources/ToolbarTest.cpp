#include "resources/Toolbar.h"
#include "resources/ToolbarIcons.h"

#include <gtest/gtest.h>
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

TEST(Toolbar, EveryButtonHasAPictureWithinItsBorders) {
  for (const auto& button : debuggerToolbar()) {
    if (button.command == 0) continue;
    const auto& shapes = toolbarIcon(button.command);
    EXPECT_FALSE(shapes.empty()) << button.toolTip;
    for (const auto& shape : shapes) {
      EXPECT_FALSE(shape.spots.empty()) << button.toolTip;
      for (const auto& spot : shape.spots) {
        EXPECT_GE(spot.x, 0) << button.toolTip;
        EXPECT_LE(spot.x, toolbarIconWidth) << button.toolTip;
        EXPECT_GE(spot.y, 0) << button.toolTip;
        EXPECT_LE(spot.y, toolbarIconHeight) << button.toolTip;
      }
    }
  }
}

TEST(Toolbar, ACommandWithoutAButtonHasNoPicture) {
  EXPECT_TRUE(toolbarIcon(1).empty());
}

}  // namespace
}  // namespace tarnwick
