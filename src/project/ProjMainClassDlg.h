#pragma once

#include "dialogbase/ToolTipDlg.h"
#include "project/ProjectContext.h"

namespace tarnwick {

/// Lets the user pick the class to execute.
class ProjMainClassDlg : public ToolTipDlg {
 public:
  /// `project` may be null, which is told.
  ProjMainClassDlg(Desktop& desktop, ProjectContext* project);

  int runModal();

  void initialise(DialogWindow& window) override;
  void onDoubleClick(int control) override;

 protected:
  void onOk() override;

 private:
  /// Throws a Tarnwickexception where there is nothing to pick from.
  void fillList();

  ProjectContext* project_;
};

}  // namespace tarnwick
