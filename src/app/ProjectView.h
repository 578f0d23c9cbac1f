#pragma once

#include "app/PanelDlg.h"
#include "project/ProjectContext.h"

#include <array>
#include <string>

namespace tarnwick {

/// The panel that works on a project. It holds nothing of the project: all is asked of the settings' open project when
/// a button is pressed.
class ProjectView : public PanelDlg {
 public:
  ProjectView(Settings& settings, MainDialog mainDialog);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void updateTitle() override;
  /// Enables what can be used now, and names the class that would run.
  void refreshButtons();
  /// Opens the project that the program was started with, which becomes the open one, and looks at it. Throws
  /// Tarnwickfile::FileNotOpenE if it can't be opened, and what `ProjectContext::update` throws.
  void openAtStart(const std::string& path);
  /// The second half of `openAtStart`, for a project that is open: what it is about. Throws the same of `update`.
  void lookAtStart();

 protected:
  std::vector<int> ownControls() const override;
  void arrangeFlat(PanelPlaces& places) const override { arrangeFlatProjectView(places); }
  void onTabChanged() override { refreshButtons(); }
  using PanelDlg::onPageButton;
  void onPageButton(int page, int control) override;
  void compileAndRun() override;

 private:
  void newProject();
  void openProject();
  /// Looks at all sources of a project that was opened. False after the message that this failed.
  bool lookAt(ProjectContext& opened);
  void chooseFiles();
  void editSources();
  /// True if the compiler had nothing to say.
  bool compile(bool all);
  /// Compiles what is not up to date. False if there was something to say.
  bool bringUpToDate();
  void selectMainClass();
  void runProject(bool debugging);
  void runApplet(bool debugging);

  /// The open project; null if there is none.
  ProjectContext* project() const;
  /// Makes a project the open one. Throws Tarnwickfile::FileNotOpenE, and then the one before stays open.
  void take(const std::string& path, bool create);
  /// Asks for the new project's file, and makes it. False after Cancel and after a failure, which is shown.
  bool makeProject();
  /// Asks for a project, and opens it. Likewise.
  bool takeExisting();
  /// Looks at all sources again; asks for the tools' folder before, where it is unknown.
  void lookAgain(ProjectContext& open);
  /// A new project has been taken: no class stands in the field any longer, and the project is noted as recent.
  void welcomeProject();
  /// No other project has been taken: asks whether to go on with the one that is open, or tells that there is none.
  void keepOrClose(const std::string& question, const std::string& none);
  /// What the file view's fields show.
  std::array<FileForSubprocess*, 3> fileViewFiles() const;
  /// The tabs of the file view begin empty, in the project's folder.
  void pointFileView();
  /// The tab of what the project would run.
  void selectTab();
  /// What every change of the open project ends with.
  void showProject();
  std::vector<std::string> sourcesToEdit();
  /// Looks at the project. False, after showing why, if it can't run now.
  bool readyToRun();
};

}  // namespace tarnwick
