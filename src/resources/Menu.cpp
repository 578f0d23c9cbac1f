#include "resources/Menu.h"

namespace tarnwick {

namespace {

const Menu& fileMenu() {
  static const Menu menu = {"&File",
                            {{"Save current display to file", COMMAND_SAVE_DISPLAY},
                             {"Start recording lines", COMMAND_START_RECORDING},
                             {"Stop recording lines", COMMAND_STOP_RECORDING},
                             {"E&xit", COMMAND_EXIT}}};
  return menu;
}

const Menu& helpMenu() {
  static const Menu menu = {
      "&Help",
      {{"jdb Help", COMMAND_JDB_HELP}, {"Tarnwick Help", COMMAND_HELP}, {"&About Tarnwick...", COMMAND_ABOUT}}};
  return menu;
}

}  // namespace

const MenuBar& consoleMenuBar() {
  static const MenuBar bar = {
      fileMenu(),
      {"&Edit",
       {{"Copy\tCtrl+C", COMMAND_COPY}, {"Paste\tCtrl+V", COMMAND_PASTE}, {"Select all\tCtrl+A", COMMAND_SELECT_ALL}}},
      helpMenu(),
  };
  return bar;
}

const MenuBar& newerConsoleMenuBar() {
  static const MenuBar bar = {
      fileMenu(),
      {"&Edit",
       {{"Copy\tCtrl+C", COMMAND_COPY},
        {"Copy all", COMMAND_COPY_ALL},
        {"Paste\tCtrl+V", COMMAND_PASTE},
        {"Select all\tCtrl+A", COMMAND_SELECT_ALL},
        {"", 0},
        {"Find ...\tCtrl+F", COMMAND_FIND},
        {"Find next\tF3", COMMAND_FIND_NEXT},
        {"Find previous\tShift+F3", COMMAND_FIND_PREVIOUS},
        {"", 0},
        {"Clear", COMMAND_CLEAR}}},
      {"&View",
       {{"Larger letters\tCtrl++", COMMAND_LARGER_LETTERS},
        {"Smaller letters\tCtrl+-", COMMAND_SMALLER_LETTERS},
        {"Usual size\tCtrl+0", COMMAND_USUAL_LETTERS},
        {"", 0},
        {"Wrap long lines", COMMAND_WRAP_LINES, true}}},
      {"&Program",
       {{"End of input\tCtrl+D", COMMAND_END_OF_INPUT},
        {"Stop ... (Ctrl+Break)", COMMAND_STOP},
        {"Run again\tCtrl+R", COMMAND_RUN_AGAIN}}},
      helpMenu(),
  };
  return bar;
}

const std::vector<Accelerator>& consoleAccelerators() {
  using Key = Accelerator::Key;
  static const std::vector<Accelerator> accelerators = {
      {true, false, Key::Letter, 'A', COMMAND_SELECT_ALL}, {true, false, Key::Letter, 'C', COMMAND_COPY},
      {true, false, Key::Insert, 0, COMMAND_COPY},         {true, false, Key::Letter, 'V', COMMAND_PASTE},
      {false, true, Key::Insert, 0, COMMAND_PASTE},        {false, true, Key::Delete, 0, COMMAND_CUT},
  };
  return accelerators;
}

const std::vector<Accelerator>& newerConsoleAccelerators() {
  using Key = Accelerator::Key;
  static const std::vector<Accelerator> accelerators = [] {
    std::vector<Accelerator> all = consoleAccelerators();
    for (auto& accelerator : all) {
      if (accelerator.letter == 'C') accelerator.command = COMMAND_COPY_OR_STOP;
    }
    all.insert(all.end(), {{true, false, Key::Letter, 'D', COMMAND_END_KEY},
                           {true, false, Key::Letter, 'R', COMMAND_RUN_AGAIN},
                           {true, false, Key::Break, 0, COMMAND_STOP},
                           {true, false, Key::Letter, 'F', COMMAND_FIND},
                           {false, false, Key::F3, 0, COMMAND_FIND_NEXT},
                           {false, true, Key::F3, 0, COMMAND_FIND_PREVIOUS},
                           {true, false, Key::Plus, 0, COMMAND_LARGER_LETTERS},
                           {true, false, Key::Minus, 0, COMMAND_SMALLER_LETTERS},
                           {true, false, Key::Zero, 0, COMMAND_USUAL_LETTERS}});
    return all;
  }();
  return accelerators;
}

}  // namespace tarnwick
