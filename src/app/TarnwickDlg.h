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
  void onCloseRequest() override;
  void detached() override;

 protected:
  // Return ends nothing here.
  void onOk() override {}

 private:
  /// Makes the panel's window; on failure the message says so, and the start goes on.
  void createPanel(int slot, const DialogLayout& layout, PanelDlg& panel, const char* failed);
  void arrangePanels();
  /// Opens the project of the command line and switches to the project view. On a failure, which is shown, the file
  /// view stays.
  void openProject();
  MainDialogEnd end();
  /// What every end of the panel saves: a moved window, and what stands in the fields.
  void saveWhatStands();
  void readSettings();
  void welcomeFirstUse(int status);
  /// Tells if what bears the configuration's name is none that could be read.
  void tellRefusedConfiguration();
  /// Sets what depends on the JDK of the settings as its version wants it.
  void suitJdk();
  void welcomeUpgrade();

  Settings& settings_;
  std::string projectArgument_;
  /// The panel stands, and its end has saved nothing yet.
  bool unsaved_ = false;
  FileView fileView_;
  ProjectView projectView_;
};

}  // namespace tarnwick
