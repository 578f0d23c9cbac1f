// The debugger's toolbar as plain data.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// The commands of the debugger's toolbar.
enum DebuggerCommand {
  COMMAND_STEP_IN = 32782,
  COMMAND_STEP_OVER = 32783,
  COMMAND_STEP_OUT = 32784,
  COMMAND_CONTINUE = 32785,
  COMMAND_LOCALS = 32786,
  COMMAND_RUN = 32796,
  COMMAND_THREADS = 32797,
  COMMAND_WHERE = 32798,
  COMMAND_LIST_BREAKPOINTS = 32799,
  COMMAND_UNTRACE_METHODS = 32800,
  COMMAND_STOP_AT = 32801,
  COMMAND_STOP_IN = 32802,
  COMMAND_UNMONITOR = 32805,
  COMMAND_SET_MONITOR = 32808,
  COMMAND_CLEAR_BREAKPOINT = 32809,
  COMMAND_TRACE_METHODS = 32810,
  COMMAND_LIST_SOURCE = 32812,
  COMMAND_DEBUGGER_EXIT = 32815,
  COMMAND_SHOW_MONITORS = 32816,
  COMMAND_DUMP_THIS = 32819,
  COMMAND_CUSTOM_BUTTONS = 32877,
  COMMAND_DEBUGGING_HELP = 32879,
  COMMAND_DEBUGGER_HELP = 57670,
};

/// A button, or a separator where the command is 0.
struct ToolbarButton {
  int command = 0;
  std::string toolTip;
  std::string drawing;  ///< its name in the folder of the toolbar's drawings
};

using Toolbar = std::vector<ToolbarButton>;

/// Buttons and separators in their order.
const Toolbar& debuggerToolbar();

}  // namespace tarnwick
