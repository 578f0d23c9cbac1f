// Menus and accelerators as plain data.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

struct MenuItem {
  std::string text;  ///< with "&" before the mnemonic and the shown shortcut behind a tab; empty for a separator
  int command = 0;
  bool isMark = false;  ///< it shows whether something is on
};

struct Menu {
  std::string title;
  std::vector<MenuItem> items;
};

using MenuBar = std::vector<Menu>;

struct Accelerator {
  enum class Key { Letter, Insert, Delete, Break, F3, Plus, Minus, Zero, Tab };
  bool control = false;
  bool shift = false;
  Key key = Key::Letter;
  char letter = 0;
  int command = 0;
};

/// The commands of the console's frame.
enum ConsoleCommand {
  COMMAND_SAVE_DISPLAY = 32771,
  COMMAND_START_RECORDING = 32772,
  COMMAND_STOP_RECORDING = 32773,
  COMMAND_EXIT = 57665,
  COMMAND_COPY = 57634,
  COMMAND_CUT = 57635,
  COMMAND_PASTE = 57637,
  COMMAND_SELECT_ALL = 57642,
  COMMAND_COPY_ALL = 32851,
  COMMAND_CLEAR = 32852,
  COMMAND_COPY_OR_STOP = 32853,
  COMMAND_END_OF_INPUT = 32854,
  COMMAND_END_KEY = 32855,
  COMMAND_STOP = 32856,
  COMMAND_RUN_AGAIN = 32857,
  COMMAND_FIND = 32858,
  COMMAND_FIND_NEXT = 32859,
  COMMAND_FIND_PREVIOUS = 32860,
  COMMAND_LARGER_LETTERS = 32861,
  COMMAND_SMALLER_LETTERS = 32862,
  COMMAND_USUAL_LETTERS = 32863,
  COMMAND_WRAP_LINES = 32864,
  COMMAND_OTHER_INPUT = 32865,
  COMMAND_INPUT_TO_DEBUGGER = 32866,
  COMMAND_INPUT_TO_PROGRAM = 32867,
  COMMAND_JDB_HELP = 32818,
  COMMAND_HELP = 32817,
  COMMAND_ABOUT = 57664,
};

const MenuBar& consoleMenuBar();
const std::vector<Accelerator>& consoleAccelerators();

// The same for the console of today.
const MenuBar& newerConsoleMenuBar();
const std::vector<Accelerator>& newerConsoleAccelerators();

}  // namespace tarnwick
