// The layouts of the settings dialog, its pages, and what belongs to saving the configuration.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// 148: "Tarnwick settings".
const DialogLayout& settingsLayout();
/// 144: the page "JDK tools".
const DialogLayout& toolsPageLayout();
/// 183: asks for another folder for the configuration.
const DialogLayout& alternateLocationLayout();

}  // namespace tarnwick
