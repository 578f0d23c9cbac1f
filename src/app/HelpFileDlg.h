#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

/// Asks for the user's guide when it is not where it was.
class HelpFileDlg : public ToolTipDlg {
 public:
  HelpFileDlg(Desktop& desktop, std::string expectedPath);

  int runModal();
  /// The file that the user found; empty until then.
  const std::string& chosenPath() const { return chosenPath_; }

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 private:
  void find();

  std::string expectedPath_;
  std::string chosenPath_;
};

}  // namespace tarnwick
