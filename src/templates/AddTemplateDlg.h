#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

struct SettingsContext;

/// Asks for a template of the user's: a file, and the description under which it is offered.
class AddTemplateDlg : public ToolTipDlg {
 public:
  explicit AddTemplateDlg(const SettingsContext& context);

  int runModal();
  /// What was given, the file with its whole path; after OK neither is empty.
  const std::string& file() const { return file_; }
  const std::string& description() const { return description_; }

  void onCommand(int control) override;

 protected:
  void onOk() override;

 private:
  void browse();

  const SettingsContext& context_;
  std::string file_;
  std::string description_;
};

}  // namespace tarnwick
