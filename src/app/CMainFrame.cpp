#include "app/CMainFrame.h"

#include "resources/Menu.h"

namespace tarnwick {

namespace {

ConsoleProgram programOf(const ConsoleStart& start) {
  ConsoleProgram program;
  program.exeFile = start.exeFile;
  program.runArguments = start.runArguments;
  return program;
}

}  // namespace

CMainFrame::CMainFrame(Desktop& desktop, const Settings& settings, const ConsoleStart& start)
    : debugging_(start.debugging),
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
      return true;
    case COMMAND_JDB_HELP:
      return debugging_;
    // The guide and the About dialog are not there yet; nothing answers to Cut.
    default:
      return false;
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
    case COMMAND_JDB_HELP:
      view_.sendKeys("help\\n");
      break;
    case COMMAND_EXIT:
      view_.closeWindow();
      break;
    default:
      break;
  }
}

}  // namespace tarnwick
