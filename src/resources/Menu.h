// Menus and accelerators as plain data.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

struct MenuItem {
  std::string text;  ///< with "&" before the mnemonic and the shown shortcut behind a tab; empty for a separator
  int command = 0;
};

struct Menu {
  std::string title;
  std::vector<MenuItem> items;
};

using MenuBar = std::vector<Menu>;

struct Accelerator {
  enum class Key { Letter, Insert, Delete };
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
  COMMAND_JDB_HELP = 32818,
  COMMAND_HELP = 32817,
  COMMAND_ABOUT = 57664,
};

const MenuBar& consoleMenuBar();
const std::vector<Accelerator>& consoleAccelerators();

}  // namespace tarnwick
