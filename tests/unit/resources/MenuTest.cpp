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

TEST(Menu, TheConsoleOfTodayAddsToTheClassicMenus) {
  const MenuBar& bar = newerConsoleMenuBar();
  ASSERT_EQ(bar.size(), 5U);
  EXPECT_EQ(itemsOf(bar[0]), itemsOf(consoleMenuBar()[0]));
  EXPECT_EQ(bar[1].title, "&Edit");
  EXPECT_EQ(itemsOf(bar[1]), (Items{{"Copy\tCtrl+C", COMMAND_COPY},
                                    {"Copy all", COMMAND_COPY_ALL},
                                    {"Paste\tCtrl+V", COMMAND_PASTE},
                                    {"Select all\tCtrl+A", COMMAND_SELECT_ALL},
                                    {"", 0},
                                    {"Find ...\tCtrl+F", COMMAND_FIND},
                                    {"Find next\tF3", COMMAND_FIND_NEXT},
                                    {"Find previous\tShift+F3", COMMAND_FIND_PREVIOUS},
                                    {"", 0},
                                    {"Clear", COMMAND_CLEAR}}));
  EXPECT_EQ(bar[2].title, "&View");
  EXPECT_EQ(itemsOf(bar[2]), (Items{{"Larger letters\tCtrl++", COMMAND_LARGER_LETTERS},
                                    {"Smaller letters\tCtrl+-", COMMAND_SMALLER_LETTERS},
                                    {"Usual size\tCtrl+0", COMMAND_USUAL_LETTERS},
                                    {"", 0},
                                    {"Wrap long lines", COMMAND_WRAP_LINES}}));
  EXPECT_EQ(bar[3].title, "&Program");
  EXPECT_EQ(itemsOf(bar[3]), (Items{{"End of input\tCtrl+D", COMMAND_END_OF_INPUT},
                                    {"Stop ... (Ctrl+Break)", COMMAND_STOP},
                                    {"Run again\tCtrl+R", COMMAND_RUN_AGAIN}}));
  EXPECT_EQ(itemsOf(bar[4]), itemsOf(consoleMenuBar()[2]));
}

TEST(Menu, OnlyWhatIsOnOrOffIsAMark) {
  for (const auto& menu : newerConsoleMenuBar()) {
    for (const auto& item : menu.items) EXPECT_EQ(item.isMark, item.command == COMMAND_WRAP_LINES) << item.text;
  }
}

TEST(Menu, TheConsoleOfTodayAddsToTheClassicKeys) {
  using Key = Accelerator::Key;
  const auto& classic = consoleAccelerators();
  const auto& all = newerConsoleAccelerators();
  ASSERT_EQ(all.size(), classic.size() + 9);
  for (std::size_t i = 0; i < classic.size(); ++i) {
    const bool copies = classic[i].letter == 'C';
    EXPECT_EQ(all[i].command, copies ? int{COMMAND_COPY_OR_STOP} : classic[i].command);
  }
  std::vector<std::tuple<bool, bool, Key, char, int>> added;
  for (std::size_t i = classic.size(); i < all.size(); ++i) {
    added.emplace_back(all[i].control, all[i].shift, all[i].key, all[i].letter, all[i].command);
  }
  const std::vector<std::tuple<bool, bool, Key, char, int>> expected = {
      {true, false, Key::Letter, 'D', COMMAND_END_KEY},
      {true, false, Key::Letter, 'R', COMMAND_RUN_AGAIN},
      {true, false, Key::Break, char{0}, COMMAND_STOP},
      {true, false, Key::Letter, 'F', COMMAND_FIND},
      {false, false, Key::F3, char{0}, COMMAND_FIND_NEXT},
      {false, true, Key::F3, char{0}, COMMAND_FIND_PREVIOUS},
      {true, false, Key::Plus, char{0}, COMMAND_LARGER_LETTERS},
      {true, false, Key::Minus, char{0}, COMMAND_SMALLER_LETTERS},
      {true, false, Key::Zero, char{0}, COMMAND_USUAL_LETTERS},
  };
  EXPECT_EQ(added, expected);
}

TEST(Menu, NothingInTheMenusAnswersToShiftDelete) {
  for (const auto& menu : consoleMenuBar()) {
    for (const auto& item : menu.items) EXPECT_NE(item.command, COMMAND_CUT);
  }
}

}  // namespace
}  // namespace tarnwick
