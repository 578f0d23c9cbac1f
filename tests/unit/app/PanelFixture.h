#pragma once

#include "app/TarnwickDlg.h"
#include "resources/PanelLayouts.h"
#include "support/SettingsFixture.h"

#include <functional>
#include <string>

namespace tarnwick::test {

/// The panel on a scripted desktop, with the stand-in tools as its JDK.
class PanelFixture : public SettingsFixture {
 protected:
  enum Control {
    SOURCE = 1009,
    NEW = 1240,
    BROWSE = 1006,
    EDIT = 1007,
    JAVAC = 1008,
    TABS = 1231,
    LEFT = 1228,
    MIDDLE = 1229,
    RIGHT = 1230,
    FIELD = 1223,
    SETTINGS = 1000,
    SWITCH_VIEW = 1,
    EXIT = 2,
    LAYOUT_LEFT = 1244,
    LAYOUT_RIGHT = 1242,
  };

  PanelFixture()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    writeFile(scratch_.file("script"), "");
  }

  /// Leaves a configuration as an earlier run would, with the stand-ins as its tools.
  void saveEarlierRun(const std::function<void(Settings&)>& change = {}) {
    const auto earlier = freshSettings();
    earlier->javaPath = standInFolder();
    earlier->javaXfuture = false;
    if (change) change(*earlier);
    earlier->saveDefaultConfiguration();
  }

  /// Runs the main dialog; the script plays the user of the file view and has to close it.
  void runPanel(const std::function<void(ScriptedWindow& main, ScriptedWindow& panel)>& script) {
    desktop_.expectMainDialog([&](ScriptedWindow& main) { script(main, main.child(FILE_VIEW_SLOT)); });
    TarnwickDlg(settings()).runModal();
  }

  /// A setting's value in the saved configuration.
  std::string saved(const std::string& tag) const {
    const std::string content = contentOf(configFile());
    const auto begin = content.find("\n" + tag + "  ");
    if (begin == std::string::npos) return "(none)";
    const auto value = begin + tag.size() + 3;
    return content.substr(value, content.find_first_of("\r\n", value) - value);
  }
  static std::string quoted(const std::string& path) { return '"' + path + '"'; }

  static ScriptedWindow& bar(ScriptedWindow& panel) { return panel.child(197); }
  static void exit(ScriptedWindow& panel) { bar(panel).press(EXIT); }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

}  // namespace tarnwick::test
