#include "resources/Menu.h"

namespace tarnwick {

const MenuBar& consoleMenuBar() {
  static const MenuBar bar = {
      {"&File",
       {{"Save current display to file", COMMAND_SAVE_DISPLAY},
        {"Start recording lines", COMMAND_START_RECORDING},
        {"Stop recording lines", COMMAND_STOP_RECORDING},
        {"E&xit", COMMAND_EXIT}}},
      {"&Edit",
       {{"Copy\tCtrl+C", COMMAND_COPY}, {"Paste\tCtrl+V", COMMAND_PASTE}, {"Select all\tCtrl+A", COMMAND_SELECT_ALL}}},
      {"&Help",
       {{"jdb Help", COMMAND_JDB_HELP}, {"Tarnwick Help", COMMAND_HELP}, {"&About Tarnwick...", COMMAND_ABOUT}}},
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

}  // namespace tarnwick
