#pragma once

#include "dialogbase/TabbedDialog.h"

#include <string>

namespace tarnwick {

/// The settings page "JDK tools": where the tools are, and what shows their diagnostics.
class ToolsPage : public TabPage {
 public:
  ToolsPage(Desktop& desktop, const TagRow* rows);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void updateControls() override;
  /// The folder of the tools always ends in a separator, so that an empty field stands for the root folder.
  std::string getText(int control) const override;

 private:
  void browse();

  std::string folder_;
  int withNotepad_ = 0;
};

}  // namespace tarnwick
