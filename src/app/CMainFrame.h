#pragma once

#include "app/ConsoleFrameHost.h"
#include "app/TraceEditor.h"
#include "console/ConsoleFiles.h"
#include "console/TarnwickDoc.h"
#include "console/TarnwickView.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class Desktop;
class Settings;

/// What a console is started with.
struct ConsoleStart {
  std::string title;
  std::string exeFile;
  std::string runArguments;
  bool debugging = false;
  std::string configFile = {};  ///< from which the settings came: the default one, or the project
  /// What runs the program with `runArguments` while `exeFile` is the debugger that takes hold of it; empty where the
  /// debugger runs it by itself.
  std::string programFile = {};
  std::string debuggerOptions = {};  ///< what only the debugger is told then
};

/// The window of console mode: its commands and their rules.
class CMainFrame : public ConsoleFrame {
 public:
  CMainFrame(Desktop& desktop, Settings& settings, const ConsoleStart& start);

  const MenuBar& menuBar() const override { return view_.ofToday() ? newerConsoleMenuBar() : consoleMenuBar(); }
  const std::vector<Accelerator>& accelerators() const override {
    return view_.hasTwoInputs() ? acceleratorsOfTwo_ : plainAccelerators();
  }
  const Toolbar* toolbar() const override { return debugging_ ? &debuggerToolbar() : nullptr; }
  std::vector<InputChoice> inputChoices() const override;
  std::string title() const override { return document_.title(); }
  bool isOfToday() const override { return view_.ofToday(); }
  bool commandEnabled(int command) const override;
  bool commandMarked(int command) const override;
  void onCommand(int command) override;
  ConsoleSurfaceClient& view() override { return view_; }

 private:
  const std::vector<Accelerator>& plainAccelerators() const {
    return view_.ofToday() ? newerConsoleAccelerators() : consoleAccelerators();
  }
  /// Those that only the console of today has; they give nothing and false for any other.
  std::optional<bool> todayEnabled(int command) const;
  bool onCommandOfToday(int command);

  Settings& settings_;
  bool debugging_;
  TarnwickDoc document_;
  ConsoleFiles files_;
  TraceEditor traceEditor_;
  TarnwickView view_;
  std::vector<Accelerator> acceleratorsOfTwo_;  ///< where there are two inputs
};

}  // namespace tarnwick
