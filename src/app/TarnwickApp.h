#pragma once

#include "app/ConsoleFrameHost.h"
#include "app/Messages.h"
#include "base/ProgramInfo.h"
#include "base/Tarnwickfile.h"
#include "platform/ProjectType.h"
#include "process/ToolLog.h"
#include "process/WinApp.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

#include <functional>
#include <string>

namespace tarnwick {

class Desktop;

/// The application: start-up, the command line, and the two personalities. Without an argument, or with a project
/// file, it is the panel; with a line of switches it is the console of one program.
class TarnwickApp {
 public:
  /// Looks at no command line and reads no configuration yet; makes a relative configuration folder in the environment
  /// a whole path. Desktop and host outlive the application.
  TarnwickApp(Desktop& desktop, ConsoleFrameHost& frameHost, const std::string& executablePath);

  /// The whole life of the process. Gives the exit code: 0, or 1 after a start that failed.
  int run(const std::string& commandLine);

  /// Makes this program the opener of project files by way of `enter`, which is given its path. Done once in a run; no
  /// failure is told.
  void registerProjectType(const std::function<void(const std::string&)>& enter = platform::registerProjectType);

  const ProgramInfo& program() const { return program_; }
  /// The child's command line, as RUN gave it.
  const std::string& runArguments() const { return runArguments_; }
  /// The child's executable, in the form in which it is kept here.
  const std::string& exeFile() const { return exeFile_; }
  /// The title of the console's document.
  const std::string& title() const { return title_; }
  /// True for the console of a debugger.
  bool debugging() const { return debugging_; }
  /// What runs the program that the debugger takes hold of; empty if the debugger runs it. RUN is its command line
  /// then, and the other what the debugger is told besides.
  const std::string& programFile() const { return programFile_; }
  const std::string& debuggerOptions() const { return debuggerOptions_; }
  /// What CFG named; without name and mode before.
  const Tarnwickfile& configFile() const { return configFile_; }
  /// What opens ".ZIP" files here, as the system told at construction; its command text is empty if nothing does.
  const WinApp& zipApplication() const { return zipApplication_; }

  /// Opens the user's guide at an anchor such as "#paths", or at its top for the empty text.
  void showHelp(const std::string& anchor);
  /// Runs the About dialog.
  void showAbout();

  /// Applies the switches of a line. False after a message about a folder that can't be entered. Throws
  /// Tarnwickfile::FileNotOpenE for a configuration that can't be read.
  bool parseSwitches(const std::string& line);

 private:
  int runPanel(const std::string& commandLine);
  int runConsole(const std::string& commandLine);
  /// Reads what CFG named; shows why not.
  bool readConsoleConfiguration(const std::string& commandLine);
  bool enterDefaultFolder(const std::string& value);

  Desktop& desktop_;
  ConsoleFrameHost& frameHost_;
  ProgramInfo program_;
  WinApp zipApplication_;
  ToolLog log_;
  SettingsContext context_;
  Settings settings_;
  Messages messages_;
  Tarnwickfile configFile_;
  std::string runArguments_;
  std::string exeFile_;
  std::string title_;
  std::string programFile_;
  std::string debuggerOptions_;
  bool debugging_ = false;
  bool shellRegistered_ = false;
};

}  // namespace tarnwick
