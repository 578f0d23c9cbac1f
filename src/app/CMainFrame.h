#pragma once

#include "app/ConsoleFrameHost.h"
#include "console/TarnwickDoc.h"
#include "console/TarnwickView.h"
#include "dialogbase/Desktop.h"
#include "settings/Settings.h"

#include <string>
#include <vector>

namespace tarnwick {

/// What a console is started with.
struct ConsoleStart {
  std::string title;
  std::string exeFile;
  std::string runArguments;
  bool debugging = false;
};

/// The window of console mode: its commands and their rules.
class CMainFrame : public ConsoleFrame {
 public:
  CMainFrame(Desktop& desktop, Settings& settings, const ConsoleStart& start);

  const MenuBar& menuBar() const override { return consoleMenuBar(); }
  const std::vector<Accelerator>& accelerators() const override { return consoleAccelerators(); }
  const Toolbar* toolbar() const override { return debugging_ ? &debuggerToolbar() : nullptr; }
  std::string title() const override { return document_.title(); }
  bool commandEnabled(int command) const override;
  void onCommand(int command) override;
  ConsoleSurfaceClient& view() override { return view_; }

 private:
  Settings& settings_;
  bool debugging_;
  TarnwickDoc document_;
  TarnwickView view_;
};

}  // namespace tarnwick
