// The layouts of the main window, its panels, and what greets the user.
#pragma once

#include "resources/DialogLayout.h"

namespace tarnwick {

/// 158: the main window; its one slot holds the panel.
const DialogLayout& mainLayout();
/// 130: the file view.
const DialogLayout& fileViewLayout();
/// 195: a tab page of a panel: three buttons and a field.
const DialogLayout& panelPageLayout();
/// 197: the button bar of the layout "VERTICAL".
const DialogLayout& verticalBarLayout();
/// 200: "Welcome to Tarnwick".
const DialogLayout& welcomeLayout();

/// Slots of the main window and of a panel.
enum PanelSlot { PANEL_SLOT = 1, BAR_SLOT = 197 };

}  // namespace tarnwick
