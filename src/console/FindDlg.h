#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>

namespace tarnwick {

/// The control of the window "Find" in which the words stand.
enum FindControl { FIND_TEXT = 2141 };

/// 205: the window "Find" of a console.
const DialogLayout& findLayout();

/// Asks for the text that is looked for in a console.
class FindDlg : public ToolTipDlg {
 public:
  FindDlg(Desktop& desktop, std::string text);

  /// True after "Find".
  bool runModal();
  const std::string& text() const { return text_; }

  void initialise(DialogWindow& window) override;

 protected:
  void onOk() override;

 private:
  std::string text_;
};

}  // namespace tarnwick
