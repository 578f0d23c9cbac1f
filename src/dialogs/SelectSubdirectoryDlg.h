#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

/// Lets the user select folders of a folder.
class SelectSubdirectoryDlg : public ToolTipDlg {
 public:
  /// The folder can't be entered. An empty marker.
  struct NoSuchBasedirE {};

  /// The empty text stands for the current folder. Throws NoSuchBasedirE.
  SelectSubdirectoryDlg(Desktop& desktop, const std::string& folder);

  int runModal();
  /// The selected folders in reverse order, each in double quotes if it holds a blank, and with a blank behind it.
  const std::string& result() const { return result_; }

  void initialise(DialogWindow& window) override;
  void onDoubleClick(int control) override;

 protected:
  void onOk() override;

 private:
  std::string folder_;
  std::string result_;
};

/// The folders of a folder as words of a command text, sorted.
std::vector<std::string> subfolderWords(const std::string& folder);

}  // namespace tarnwick
