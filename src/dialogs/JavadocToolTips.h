#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <vector>

namespace tarnwick {

/// The tool tips of a page of the dialog "javadoc", by its resource number.
std::vector<ToolTip> javadocToolTips(int page);

}  // namespace tarnwick
