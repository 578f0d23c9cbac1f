#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The control of the window "Which source?" with the files.
enum ChooseSourceControl { SOURCE_HITS = 2151 };

/// 206: the window "Which source?".
const DialogLayout& chooseSourceLayout();

/// Lets the user pick one of several files that a stack trace may mean.
class ChooseSourceDlg : public ToolTipDlg {
 public:
  ChooseSourceDlg(Desktop& desktop, std::vector<std::string> files);

  /// The file that was picked; empty after Cancel.
  std::string runModal();

  void initialise(DialogWindow& window) override;
  void onDoubleClick(int control) override;

 protected:
  void onOk() override;

 private:
  std::vector<std::string> files_;
  std::string chosen_;
};

}  // namespace tarnwick
