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

  bool withNotepad_ = false;
  bool openAll_ = false;
  std::string editor_;
  std::string place_;
};

}  // namespace tarnwick
