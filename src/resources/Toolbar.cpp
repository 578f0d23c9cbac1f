#include "resources/Toolbar.h"

namespace tarnwick {

const Toolbar& debuggerToolbar() {
  static const Toolbar bar = {
      {COMMAND_RUN, "run", "run"},
      {},
      {COMMAND_STEP_IN, "Step in", "step-in"},
      {COMMAND_STEP_OVER, "Step over", "step-over"},
      {COMMAND_STEP_OUT, "Step out", "step-out"},
      {COMMAND_CONTINUE, "Continue", "continue"},
      {},
      {COMMAND_LOCALS, "Show local variables", "locals"},
      {COMMAND_DUMP_THIS, "Show current object (dump this)", "dump-this"},
      {COMMAND_THREADS, "threads", "threads"},
      {COMMAND_WHERE, "where", "where"},
      {COMMAND_LIST_SOURCE, "Display source code (list)", "list-source"},
      {},
      {COMMAND_LIST_BREAKPOINTS, "List breakpoints (clear)", "list-breakpoints"},
      {COMMAND_STOP_AT, "stop at", "stop-at"},
      {COMMAND_STOP_IN, "stop in", "stop-in"},
      {COMMAND_CLEAR_BREAKPOINT, "Clear breakpoint (clear)", "clear-breakpoint"},
      {COMMAND_TRACE_METHODS, "trace methods", "trace-methods"},
      {COMMAND_UNTRACE_METHODS, "untrace methods", "untrace-methods"},
      {},
      {COMMAND_SHOW_MONITORS, "Show monitors (monitor)", "show-monitors"},
      {COMMAND_SET_MONITOR, "Set monitor (monitor)", "set-monitor"},
      {COMMAND_UNMONITOR, "unmonitor", "unmonitor"},
      {},
      {COMMAND_DEBUGGER_HELP, "jdb help", "debugger-help"},
      {COMMAND_CUSTOM_BUTTONS, "Custom buttons", "custom-buttons"},
      {COMMAND_DEBUGGING_HELP, "Debugging with Tarnwick", "debugging-help"},
      {},
      {COMMAND_DEBUGGER_EXIT, "exit", "exit"},
  };
  return bar;
}

}  // namespace tarnwick
