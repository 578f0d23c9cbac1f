#pragma once

#include "base/Tarnwickfile.h"
#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

struct ProgramInfo;

/// Lets the user move the configuration when its folder can't be written. The new place lives in the environment until
/// the program ends.
class AlternateLocationDlg : public ToolTipDlg {
 public:
  AlternateLocationDlg(Desktop& desktop, const ProgramInfo& program, const Tarnwickfile::FileNotOpenE& failure);

  int runModal();
  /// "NAME=folder" as it was put into the environment.
  const std::string& definition() const { return definition_; }

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 private:
  void browse();

  const ProgramInfo& program_;
  std::string definition_;
  std::string title_;
  std::string failedFile_;
};

}  // namespace tarnwick
