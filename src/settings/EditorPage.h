#pragma once

#include "dialogbase/TabbedDialog.h"

#include <string>

namespace tarnwick {

/// The settings page "Sourcecode editor".
class EditorPage : public TabPage {
 public:
  EditorPage(Desktop& desktop, const TagRow* rows);

  void onCommand(int control) override;
  void updateControls() override;

 private:
  void browse();

  int withNotepad_ = 0;
  int openAll_ = 0;
  std::string editor_;
};

}  // namespace tarnwick
