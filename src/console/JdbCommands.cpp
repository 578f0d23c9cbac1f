#include "console/JdbCommands.h"

#include "resources/Menu.h"
#include "resources/Toolbar.h"

namespace tarnwick {

namespace {

struct JdbCommand {
  int command;
  const char* text;
};

constexpr JdbCommand commands[] = {
    {COMMAND_RUN, "run\\n"},
    {COMMAND_STEP_IN, "step\\n"},
    {COMMAND_STEP_OVER, "next\\n"},
    {COMMAND_STEP_OUT, "step up\\n"},
    {COMMAND_CONTINUE, "cont\\n"},
    {COMMAND_LOCALS, "locals\\n"},
    {COMMAND_DUMP_THIS, "dump this\\n"},
    {COMMAND_THREADS, "threads\\n"},
    {COMMAND_WHERE, "where\\n"},
    {COMMAND_LIST_SOURCE, "list\\n"},
    {COMMAND_LIST_BREAKPOINTS, "clear\\n"},
    {COMMAND_STOP_AT, "stop at "},
    {COMMAND_STOP_IN, "stop in "},
    {COMMAND_CLEAR_BREAKPOINT, "clear "},
    {COMMAND_TRACE_METHODS, "trace methods\\n"},
    {COMMAND_UNTRACE_METHODS, "untrace methods\\n"},
    {COMMAND_SHOW_MONITORS, "monitor\\n"},
    {COMMAND_SET_MONITOR, "monitor "},
    {COMMAND_UNMONITOR, "unmonitor "},
    {COMMAND_DEBUGGER_HELP, "help\\n"},
    {COMMAND_JDB_HELP, "help\\n"},
    {COMMAND_DEBUGGER_EXIT, "exit\\n"},
};

}  // namespace

const char* jdbText(int command) {
  for (const auto& entry : commands) {
    if (entry.command == command) return entry.text;
  }
  return nullptr;
}

}  // namespace tarnwick
