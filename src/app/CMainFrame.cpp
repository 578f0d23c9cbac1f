#include "app/CMainFrame.h"

#include "console/JdbCommands.h"
#include "resources/Menu.h"

namespace tarnwick {

namespace {

ConsoleProgram programOf(const ConsoleStart& start) {
  ConsoleProgram program;
  program.exeFile = start.exeFile;
  program.runArguments = start.runArguments;
  // However a debugger ends, the program that it has run is of no use without it, and nobody would know of it.
  program.leavesNothing = start.debugging;
  return program;
}

}  // namespace

CMainFrame::CMainFrame(Desktop& desktop, Settings& settings, const ConsoleStart& start)
    : settings_(settings),
      debugging_(start.debugging),
      document_(desktop, start.title),
      view_(document_, desktop, programOf(start),
            [&settings](int group, int index) { return settings.functionKeys.key(group, index); }) {}

bool CMainFrame::commandEnabled(int command) const {
  switch (command) {
    case COMMAND_SAVE_DISPLAY:
    case COMMAND_START_RECORDING:
      return !document_.recording();
    case COMMAND_STOP_RECORDING:
      return document_.recording();
    case COMMAND_COPY:
      return view_.canCopy();
    case COMMAND_PASTE:
      return view_.canPaste();
    case COMMAND_SELECT_ALL:
    case COMMAND_EXIT:
    case COMMAND_HELP:
    case COMMAND_ABOUT:
      return true;
    // Nothing answers to Cut. The toolbar's buttons stay enabled when the debugger has ended: one of them then closes
    // the window as a key does.
    default:
      return debugging_ && command != COMMAND_CUT;
  }
}

void CMainFrame::onCommand(int command) {
  switch (command) {
    case COMMAND_SAVE_DISPLAY:
      document_.saveDisplay();
      break;
    case COMMAND_START_RECORDING:
      document_.startRecording();
      break;
    case COMMAND_STOP_RECORDING:
      document_.stopRecording();
      break;
    case COMMAND_COPY:
      view_.copy();
      break;
    case COMMAND_PASTE:
      view_.paste();
      break;
    case COMMAND_SELECT_ALL:
      view_.selectAll();
      break;
    case COMMAND_HELP:
      settings_.context().showHelp("");
      break;
    case COMMAND_ABOUT:
      settings_.context().showAbout();
      break;
    case COMMAND_CUSTOM_BUTTONS:
      settings_.context().showHelp("#jdbparams");
      break;
    case COMMAND_DEBUGGING_HELP:
      settings_.context().showHelp("#jdb");
      break;
    case COMMAND_EXIT:
      view_.closeWindow();
      break;
    default:
      if (const char* text = jdbText(command)) view_.sendKeys(text);
      break;
  }
}

}  // namespace tarnwick
