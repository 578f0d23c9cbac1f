// The main dialog with its panels as real windows, in one arrangement and one view.
#pragma once

#include "app/TarnwickDlg.h"
#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "process/ToolLog.h"
#include "resources/PanelLayouts.h"
#include "settings/JdkDiscovery.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/TestProgram.h"
#include "ui/WindowTest.h"

#include <ostream>
#include <string>

namespace tarnwick::test {

constexpr int TABS = 1231;

struct View {
  LayoutValue::Layout layout;
  bool project;
  bool statusLine = false;
};

inline std::string nameOf(const View& view) {
  LayoutValue value;
  value.value = view.layout;
  return (view.project ? "project" : "file") + value.toString() + (view.statusLine ? "Status" : "");
}

inline std::ostream& operator<<(std::ostream& out, const View& view) {
  return out << nameOf(view);
}

class PanelsFixture : public WindowTest {
 protected:
  explicit PanelsFixture(View view) : view_(view), environment_("TARNWICK_CFGDIR", scratch_.path()) {
    program_.programDirectory = scratch_.path();
    Settings earlier(context_);
    earlier.panelLayout.value = view_.layout;
    earlier.statusLine = view_.statusLine;
    earlier.windowPosition.fromString("20;30");
    earlier.saveDefaultConfiguration();
  }

  ui::WxDialogWindow& panel(bool project) const { return *top().children().at(project ? 1 : 0); }
  ui::WxDialogWindow& panel() const { return panel(view_.project); }
  ui::WxDialogWindow& page(std::size_t tab) const { return *panel().children().at(tab); }
  /// The bar of an arrangement.
  ui::WxDialogWindow& bar(bool project, int layout) const {
    return *panel(project).children().at(3 + static_cast<std::size_t>(layout));
  }
  ui::WxDialogWindow& bar() const { return bar(view_.project, view_.layout); }

  void waitForView() {
    steps.until("the panel shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle(5);
    if (!view_.project) return;
    steps.then("switch", [this] { press(bar(false, view_.layout), ButtonBar::SWITCH_VIEW); });
    steps.until("the other view", [this] { return panel().surface().IsShownOnScreen(); });
    steps.settle(5);
  }

  void run() {
    steps.then("exit", [this] { top().close(DIALOG_OK); });
    TarnwickDlg(settings_).runModal();
  }

  const View view_;
  ScratchFolder scratch_;
  ScopedEnvironment environment_;
  ProgramInfo program_;
  ToolLog log_{scratch_.path()};
  SettingsContext context_ = settingsOnDesktop(desktop(), program_, log_);
  Settings settings_{context_};
};

}  // namespace tarnwick::test
