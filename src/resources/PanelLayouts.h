// The layouts of the main window and its panels.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// 158: the main window; of its two slots one shows at a time.
const DialogLayout& mainLayout();
/// 130: the file view.
const DialogLayout& fileViewLayout();
/// 157: the project view.
const DialogLayout& projectViewLayout();
/// 195: a tab page of a panel: three buttons and a field.
const DialogLayout& panelPageLayout();
/// 197: the button bar of the layout "VERTICAL".
const DialogLayout& verticalBarLayout();
/// 198: the button bar of the layout "HORIZONTAL".
const DialogLayout& horizontalBarLayout();
/// 199: the button bar of the layout "FLAT".
const DialogLayout& flatBarLayout();

/// Slots of the main window. They bear the numbers of what fills them; 1 and 2 would stand for OK and Cancel.
enum MainSlot { FILE_VIEW_SLOT = 130, PROJECT_VIEW_SLOT = 157 };
/// Slots of a panel.
enum PanelSlot { VERTICAL_BAR_SLOT = 197, HORIZONTAL_BAR_SLOT = 198, FLAT_BAR_SLOT = 199 };
/// The line at the foot of a panel, which the panel's rules show and place.
inline constexpr int PANEL_STATUS_LINE = 2151;

}  // namespace tarnwick
