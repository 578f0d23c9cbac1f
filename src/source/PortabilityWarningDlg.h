#pragma once

#include "dialogbase/ToolTipDlg.h"

namespace tarnwick {

class Settings;

/// Asks before a source with several public types is split. OK is "Compile".
class PortabilityWarningDlg : public ToolTipDlg {
 public:
  explicit PortabilityWarningDlg(Desktop& desktop);

  int runModal();
  /// True if the user wants to be spared the warning; known after "Compile".
  bool staysAway() const { return staysAway_; }

 protected:
  void onOk() override;

 private:
  bool staysAway_ = false;
};

/// The question for a Compiler: warns unless the user wants to be spared that. False if the user gives up.
bool maySplit(const Settings& settings);

}  // namespace tarnwick
