#pragma once

#include "app/FileView.h"
#include "app/ProjectView.h"
#include "app/RunStatus.h"
#include "dialogbase/ToolTipDlg.h"

#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

class Settings;

/// True for the name of a project, which the panel opens.
bool isProjectFile(const Filename& file);
/// True for the name of a source, a class file, an archive or a page with an applet, which the panel shows in its
/// field.
bool isFieldFile(const Filename& file);

/// The small main window of panel mode; the whole run lives in it.
class TarnwickDlg : public ToolTipDlg {
 public:
  /// `argument` is the command line that the program was started with: empty, or the path of a file that is one of the
  /// two kinds above, perhaps in double quotes.
  explicit TarnwickDlg(Settings& settings, std::string argument = "");
  ~TarnwickDlg() override;

  /// What opens ".ZIP" files here; outlives the dialog.
  void setZipApplication(const WinApp& application);

  void runModal();
  void initialise(DialogWindow& window) override;
  void onCloseRequest() override;
  /// The first that has a place goes there: a project is opened, any other file stands in its field.
  void onFilesDropped(const std::vector<std::string>& files) override;
  void detached() override;

 protected:
  // Return ends nothing here.
  void onOk() override {}

 private:
  /// Makes the panel's window; on failure the message says so, and the start goes on.
  void createPanel(int slot, const DialogLayout& layout, PanelDlg& panel, const char* failed);
  void arrangePanels();
  /// Opens or shows the file that the program was started with.
  void takeArgument();
  /// Shows a file where it belongs. False for one that has no place.
  bool takeFile(const Filename& file);
  /// Opens the project and switches to the project view. On a failure, which is shown, the file
  /// view stays. Where a source is refused that the newer way of reading takes, asks for that and looks again.
  void openProject(const std::string& path);
  /// One step of it, with the words of a failure; gives the path of the source that was refused, if one was.
  std::string openProject(const std::function<void()>& step);
  MainDialog mainDialog();
  /// The status lines tell of the tools' runs from now on.
  void followRuns();
  /// What every end of the panel saves: a moved window, and what stands in the fields.
  void saveWhatStands();
  void readSettings();
  /// What a JDK suggests and the user may choose otherwise in the settings.
  struct JdkChoices {
    std::string version;
    bool newerJava, oneRun, newerConsole, watchRuns, strictChecks, statusLine, toolsWithoutConsole;
  };
  void welcomeFirstUse(int status);
  /// Tells if what bears the configuration's name is none that could be read.
  void tellRefusedConfiguration();
  JdkChoices jdkChoices() const;
  /// Sets what depends on the JDK of the settings as its version wants it.
  void suitJdk();
  void welcomeUpgrade();

  Settings& settings_;
  std::string argument_;
  /// The panel stands, and its end has saved nothing yet.
  bool unsaved_ = false;
  RunStatus runs_;
  FileView fileView_;
  ProjectView projectView_;
};

}  // namespace tarnwick
