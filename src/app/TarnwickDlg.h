#pragma once

#include "app/FileView.h"
#include "app/ProjectView.h"
#include "dialogbase/ToolTipDlg.h"
#include "settings/Settings.h"

#include <memory>
#include <string>

namespace tarnwick {

/// The small main window of panel mode; the whole run lives in it.
class TarnwickDlg : public ToolTipDlg {
 public:
  /// `projectArgument` is the command line that the program was started with: empty, or a project file's path, perhaps
  /// in double quotes.
  explicit TarnwickDlg(Settings& settings, std::string projectArgument = "");
  ~TarnwickDlg() override;

  /// What opens ".ZIP" files here; outlives the dialog.
  void setZipApplication(const WinApp& application);

  void runModal();
  void initialise(DialogWindow& window) override;
  void detached() override;

 protected:
  // Return ends nothing here. The close box ends the dialog without the save of a moved window, which is meant: that
  // is done by Exit, and by Escape through the panel that shows.
  void onOk() override {}

 private:
  /// Makes the panel's window; on failure the message says so, and the start goes on.
  void createPanel(int slot, const DialogLayout& layout, PanelDlg& panel, const char* failed);
  void arrangePanels();
  /// Opens the project of the command line and switches to the project view. On a failure, which is shown, the file
  /// view stays.
  void openProject();
  void readSettings();
  void welcomeFirstUse(int status);
  /// Switches off what the JDK of the settings does not take any more.
  void suitJdk();
  void welcomeUpgrade();

  Settings& settings_;
  std::string projectArgument_;
  FileView fileView_;
  ProjectView projectView_;
};

}  // namespace tarnwick
