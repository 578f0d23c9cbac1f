#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

class Settings;

/// Asks which project to open: one of those that were open lately, or any other.
class SelectProjectDlg : public ToolTipDlg {
 public:
  explicit SelectProjectDlg(Settings& settings);

  int runModal();
  /// The project's path; empty if none was chosen.
  const std::string& path() const { return path_; }

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 protected:
  void onOk() override;

 private:
  void browse();
  /// Where the file dialog opens.
  std::string startFolder() const;

  Settings& settings_;
  std::string path_;
};

/// What dialogs for project files let through.
extern const char projectFileFilter[];

}  // namespace tarnwick
