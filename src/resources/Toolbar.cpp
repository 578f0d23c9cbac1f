#include "resources/Toolbar.h"

namespace tarnwick {

const Toolbar& debuggerToolbar() {
  static const Toolbar bar = {
      {COMMAND_RUN, "run"},
      {},
      {COMMAND_STEP_IN, "Step in"},
      {COMMAND_STEP_OVER, "Step over"},
      {COMMAND_STEP_OUT, "Step out"},
      {COMMAND_CONTINUE, "Continue"},
      {},
      {COMMAND_LOCALS, "Show local variables"},
      {COMMAND_DUMP_THIS, "Show current object (dump this)"},
      {COMMAND_THREADS, "threads"},
      {COMMAND_WHERE, "where"},
      {COMMAND_LIST_SOURCE, "Display source code (list)"},
      {},
      {COMMAND_LIST_BREAKPOINTS, "List breakpoints (clear)"},
      {COMMAND_STOP_AT, "stop at"},
      {COMMAND_STOP_IN, "stop in"},
      {COMMAND_CLEAR_BREAKPOINT, "Clear breakpoint (clear)"},
      {COMMAND_TRACE_METHODS, "trace methods"},
      {COMMAND_UNTRACE_METHODS, "untrace methods"},
      {},
      {COMMAND_SHOW_MONITORS, "Show monitors (monitor)"},
      {COMMAND_SET_MONITOR, "Set monitor (monitor)"},
      {COMMAND_UNMONITOR, "unmonitor"},
      {},
      {COMMAND_DEBUGGER_HELP, "jdb help"},
      {COMMAND_CUSTOM_BUTTONS, "Custom buttons"},
      {COMMAND_DEBUGGING_HELP, "Debugging with Tarnwick"},
      {},
      {COMMAND_DEBUGGER_EXIT, "exit"},
  };
  return bar;
}

}  // namespace tarnwick
