#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <map>
#include <string>

namespace tarnwick {

class ProjectContext;

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
  struct Entry {
    std::string name;
    std::string source;  ///< empty where the name alone tells the class
  };

  /// Gives what is to be told where there is nothing to pick from.
  std::string fillList();

  ProjectContext* project_;
  std::map<std::string, Entry> entries_;  ///< by what the list shows
};

}  // namespace tarnwick
