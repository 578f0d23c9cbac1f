#include "resources/Menu.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

using Items = std::vector<std::pair<std::string, int>>;

Items itemsOf(const Menu& menu) {
  Items items;
  for (const auto& item : menu.items) items.emplace_back(item.text, item.command);
  return items;
}

TEST(Menu, ConsoleHasThreeMenusInOrder) {
  const MenuBar& bar = consoleMenuBar();
  ASSERT_EQ(bar.size(), 3U);
  EXPECT_EQ(bar[0].title, "&File");
  EXPECT_EQ(itemsOf(bar[0]), (Items{{"Save current display to file", 32771},
                                    {"Start recording lines", 32772},
                                    {"Stop recording lines", 32773},
                                    {"E&xit", 57665}}));
  EXPECT_EQ(bar[1].title, "&Edit");
  EXPECT_EQ(itemsOf(bar[1]), (Items{{"Copy\tCtrl+C", 57634}, {"Paste\tCtrl+V", 57637}, {"Select all\tCtrl+A", 57642}}));
  EXPECT_EQ(bar[2].title, "&Help");
  EXPECT_EQ(itemsOf(bar[2]), (Items{{"jdb Help", 32818}, {"Tarnwick Help", 32817}, {"&About Tarnwick...", 57664}}));
}

TEST(Menu, ConsoleAcceleratorsReachTheirCommands) {
  using Key = Accelerator::Key;
  std::vector<std::tuple<bool, bool, Key, char, int>> found;
  for (const auto& a : consoleAccelerators()) found.emplace_back(a.control, a.shift, a.key, a.letter, a.command);
  const std::vector<std::tuple<bool, bool, Key, char, int>> expected = {
      {true, false, Key::Letter, 'A', 57642},     {true, false, Key::Letter, 'C', 57634},
      {true, false, Key::Insert, char{0}, 57634}, {true, false, Key::Letter, 'V', 57637},
      {false, true, Key::Insert, char{0}, 57637}, {false, true, Key::Delete, char{0}, 57635},
  };
  EXPECT_EQ(found, expected);
}

TEST(Menu, NothingInTheMenusAnswersToShiftDelete) {
  for (const auto& menu : consoleMenuBar()) {
    for (const auto& item : menu.items) EXPECT_NE(item.command, COMMAND_CUT);
  }
}

}  // namespace
}  // namespace tarnwick
