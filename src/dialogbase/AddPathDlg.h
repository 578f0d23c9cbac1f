#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

/// Asks for one more element of a list of paths: a folder or an archive.
class AddPathDlg : public ToolTipDlg {
 public:
  /// `description` names the list, `currentPath` is what it holds.
  AddPathDlg(Desktop& desktop, std::string description, std::string currentPath);

  /// Runs the dialog. Gives the chosen element, in double quotes if it holds a blank; empty after Cancel.
  std::string runModal();

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 private:
  void addFolder();
  void addArchive();

  std::string description_;
  std::string currentPath_;
  std::string result_;
};

/// Lets the user choose a folder, without a last separator and in double quotes if it holds a blank; empty after
/// Cancel.
std::string chosenFolderElement(Desktop& desktop);

}  // namespace tarnwick
