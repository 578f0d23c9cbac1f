#include "console/JdbCommands.h"
#include "resources/Menu.h"
#include "resources/Toolbar.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

TEST(JdbCommands, EachTypesItsText) {
  const std::vector<std::pair<int, std::string>> texts = {
      {32796, "run\\n"},     {32782, "step\\n"},   {32783, "next\\n"},          {32784, "step up\\n"},
      {32785, "cont\\n"},    {32786, "locals\\n"}, {32819, "dump this\\n"},     {32797, "threads\\n"},
      {32798, "where\\n"},   {32812, "list\\n"},   {32799, "clear\\n"},         {32801, "stop at "},
      {32802, "stop in "},   {32809, "clear "},    {32810, "trace methods\\n"}, {32800, "untrace methods\\n"},
      {32816, "monitor\\n"}, {32808, "monitor "},  {32805, "unmonitor "},       {57670, "help\\n"},
      {32815, "exit\\n"},    {32818, "help\\n"},
  };
  for (const auto& [command, text] : texts) {
    ASSERT_NE(jdbText(command), nullptr) << command;
    EXPECT_EQ(jdbText(command), text) << command;
  }
}

TEST(JdbCommands, WhatTypesNothingHasNoText) {
  for (const int command : {32877, 32879, int{COMMAND_HELP}, int{COMMAND_CUT}, 0}) {
    EXPECT_EQ(jdbText(command), nullptr) << command;
  }
}

TEST(JdbCommands, EveryButtonButTheTwoOfTheGuideTypesSomething) {
  for (const auto& button : debuggerToolbar()) {
    const bool guide = button.command == COMMAND_CUSTOM_BUTTONS || button.command == COMMAND_DEBUGGING_HELP;
    if (button.command == 0) continue;
    EXPECT_EQ(jdbText(button.command) == nullptr, guide) << button.toolTip;
  }
}

}  // namespace
}  // namespace tarnwick
