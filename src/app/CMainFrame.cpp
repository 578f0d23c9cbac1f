#include "app/CMainFrame.h"

#include "app/LookMemory.h"
#include "base/ProgramInfo.h"
#include "console/DebuggedRun.h"
#include "console/JdbCommands.h"
#include "resources/Menu.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

namespace {

ConsoleProgram programOf(const ConsoleStart& start, const Settings& settings) {
  ConsoleProgram program;
  program.today = settings.newerConsole;
  program.exeFile = start.exeFile;
  program.runArguments = start.runArguments;
  // However a debugger ends, the program that it has run is of no use without it, and nobody would know of it.
  program.leavesNothing = start.debugging;
  if (!start.programFile.empty()) {
    program.runArguments = listeningArguments(start.debuggerOptions);
    program.debugged = DebuggedProgram{start.programFile, start.runArguments};
  }
  return program;
}

/// Both tell where sources and classes lie.
std::string allArguments(const ConsoleStart& start) {
  return start.debuggerOptions.empty() ? start.runArguments : start.debuggerOptions + start.runArguments;
}

}  // namespace

CMainFrame::CMainFrame(Desktop& desktop, Settings& settings, const ConsoleStart& start)
    : settings_(settings),
      debugging_(start.debugging),
      document_(start.title),
      files_(document_, desktop),
      traceEditor_(settings, start.configFile, allArguments(start)),
      view_(document_, desktop, programOf(start, settings),
            [&settings](int group, int index) { return settings.functionKeys.key(group, index); }),
      acceleratorsOfTwo_(plainAccelerators()) {
  acceleratorsOfTwo_.push_back({true, false, Accelerator::Key::Tab, 0, COMMAND_OTHER_INPUT});
  view_.openTracesBy([this](const TraceLink& trace) { traceEditor_.open(trace); });
  if (!view_.ofToday()) return;
  const ProgramInfo& info = settings.context().program;
  view_.lookLike(rememberedLook(info),
                 [&info](const TextLook& before, const TextLook& now) { rememberChange(info, before, now); });
}

std::optional<bool> CMainFrame::todayEnabled(int command) const {
  if (!view_.ofToday()) return std::nullopt;
  switch (command) {
    case COMMAND_COPY_ALL:
    case COMMAND_CLEAR:
    case COMMAND_END_KEY:
    case COMMAND_FIND:
    case COMMAND_FIND_NEXT:
    case COMMAND_FIND_PREVIOUS:
    case COMMAND_USUAL_LETTERS:
    case COMMAND_WRAP_LINES:
      return true;
    case COMMAND_LARGER_LETTERS:
    case COMMAND_SMALLER_LETTERS:
      return view_.canStepLetters(command == COMMAND_LARGER_LETTERS ? 1 : -1);
    case COMMAND_COPY_OR_STOP:
      return view_.canCopy() || view_.canStop();
    case COMMAND_END_OF_INPUT:
      return view_.canEndInput();
    case COMMAND_STOP:
      return view_.canStop();
    case COMMAND_RUN_AGAIN:
      return view_.canRunAgain();
    default:
      return std::nullopt;
  }
}

bool CMainFrame::commandEnabled(int command) const {
  if (const auto enabled = todayEnabled(command)) return *enabled;
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

std::vector<InputChoice> CMainFrame::inputChoices() const {
  if (!view_.hasTwoInputs()) return {};
  const auto choice = [this](const char* label, const char* toolTip, int command, InputTarget target) {
    return InputChoice{label, toolTip, view_.colourOf(target), command, view_.inputTarget() == target};
  };
  return {choice("to jdb", "What you type goes to the debugger.", COMMAND_INPUT_TO_DEBUGGER, InputTarget::Debugger),
          choice("to program", "What you type goes to the program, which reads it as its input.",
                 COMMAND_INPUT_TO_PROGRAM, InputTarget::Program)};
}

bool CMainFrame::commandMarked(int command) const {
  return command == COMMAND_WRAP_LINES && view_.textLook().wrapLines;
}

bool CMainFrame::onCommandOfToday(int command) {
  if (!view_.ofToday()) return false;
  switch (command) {
    case COMMAND_COPY_ALL:
      view_.copyAll();
      return true;
    case COMMAND_CLEAR:
      view_.clear();
      return true;
    case COMMAND_FIND:
      view_.find();
      return true;
    case COMMAND_FIND_NEXT:
    case COMMAND_FIND_PREVIOUS:
      view_.findNext(command == COMMAND_FIND_PREVIOUS);
      return true;
    case COMMAND_COPY_OR_STOP:
      onCommand(view_.canCopy() ? COMMAND_COPY : COMMAND_STOP);
      return true;
    case COMMAND_END_OF_INPUT:
      view_.endInput();
      return true;
    case COMMAND_END_KEY:
      // It depends on what has been typed, so it is typed itself.
      view_.onCharacter("\x04", 1);
      return true;
    case COMMAND_STOP:
      view_.askToStop();
      return true;
    case COMMAND_RUN_AGAIN:
      view_.runAgain();
      return true;
    case COMMAND_LARGER_LETTERS:
    case COMMAND_SMALLER_LETTERS:
      view_.stepLetters(command == COMMAND_LARGER_LETTERS ? 1 : -1);
      return true;
    case COMMAND_USUAL_LETTERS:
      view_.useUsualLetters();
      return true;
    case COMMAND_WRAP_LINES:
      view_.setWrapLines(!view_.textLook().wrapLines);
      return true;
    default:
      return false;
  }
}

void CMainFrame::onCommand(int command) {
  if (onCommandOfToday(command)) return;
  switch (command) {
    case COMMAND_SAVE_DISPLAY:
      files_.saveDisplay();
      break;
    case COMMAND_START_RECORDING:
      files_.startRecording();
      break;
    case COMMAND_STOP_RECORDING:
      files_.stopRecording();
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
    case COMMAND_OTHER_INPUT:
      view_.directInput(view_.inputTarget() == InputTarget::Program ? InputTarget::Debugger : InputTarget::Program);
      break;
    case COMMAND_INPUT_TO_DEBUGGER:
      view_.directInput(InputTarget::Debugger);
      break;
    case COMMAND_INPUT_TO_PROGRAM:
      view_.directInput(InputTarget::Program);
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
