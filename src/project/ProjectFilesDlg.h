#pragma once

#include "project/ProjectContext.h"

#include <string>

namespace tarnwick {

/// Says which files belong to a project.
class ProjectFilesDlg : public ToolTipDlg {
 public:
  ProjectFilesDlg(Settings& settings, ProjectContext& project);

  int runModal();

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 protected:
  void onOk() override;
  void onCancel() override;

 private:
  /// Both lists as project and folder are now; what was moved by hand is lost.
  void fillLists();
  /// The selected entries of one list go to the other.
  void move(int from, int to);
  void selectAll(bool on);
  void createFile();
  /// Throws Tarnwickfile::FileNotOpenE. False after the message that there is more than one HTML file. Either way the
  /// project then stays as it was.
  bool takeMembers(const std::vector<std::string>& names);

  Settings& settings_;
  ProjectContext& project_;
  /// The files that were made here.
  int createdCount_ = 0;
  std::string sourcesSnapshot_;
};

}  // namespace tarnwick
