#pragma once

#include "app/TarnwickApp.h"
#include "resources/Menu.h"
#include "support/SettingsFixture.h"

#include <memory>
#include <string>

namespace tarnwick::test {

/// Notes the frame that it is asked to show.
struct RecordingHost : ConsoleFrameHost {
  void runConsoleFrame(ConsoleFrame& frame) override {
    ++runs;
    title = frame.title();
    jdbHelp = frame.commandEnabled(COMMAND_JDB_HELP);
    cut = frame.commandEnabled(COMMAND_CUT);
    save = frame.commandEnabled(COMMAND_SAVE_DISPLAY);
    stop = frame.commandEnabled(COMMAND_STOP_RECORDING);
  }
  int runs = 0;
  std::string title;
  bool jdbHelp = true;
  bool cut = true;
  bool save = false;
  bool stop = true;
};

/// The application with a configuration that a console may be given.
class AppFixture : public SettingsFixture {
 protected:
  AppFixture() { writeFile(configFile(), "JAVA_XMS  1m\n"); }

  TarnwickApp& app() {
    if (!app_) app_ = std::make_unique<TarnwickApp>(desktop_, host_, programFolder() + "tarnwick");
    return *app_;
  }
  static std::string cfg(const std::string& path) { return "\\/CFG=" + path + "\\/ "; }

  RecordingHost host_;
  std::unique_ptr<TarnwickApp> app_;
};

}  // namespace tarnwick::test
