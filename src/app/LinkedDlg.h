#pragma once

#include "dialogbase/ToolTipDlg.h"

namespace tarnwick {

/// A dialog with the links to the product's pages.
class LinkedDlg : public ToolTipDlg {
 public:
  using ToolTipDlg::ToolTipDlg;

  /// A pressed link opens in the user's browser; nothing happens where there is none.
  void onCommand(int control) override;
};

}  // namespace tarnwick
