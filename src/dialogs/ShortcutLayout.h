// The layout of the dialog that makes shortcuts.
#pragma once

#include "resources/StandardControls.h"

namespace tarnwick {

struct DialogLayout;

/// "Create Windows shortcut to Java application".
const DialogLayout& shortcutLayout();

/// The controls of that dialog.
struct ShortcutControls {
  enum Control {
    CREATE = IDOK_CONTROL,
    CLOSE = IDCANCEL_CONTROL,
    APPLICATION = 4201,
    BROWSE_APPLICATION = 4202,
    NAME = 4203,
    DESCRIPTION = 4204,
    ON_DESKTOP = 4205,
    IN_STARTMENU = 4206,
    STARTMENU_FOLDER = 4207,
    BROWSE_STARTMENU = 4208,
    IN_FOLDER = 4209,
    FOLDER = 4210,
    BROWSE_FOLDER = 4211,
    UNDER_CONTROL = 4212,
    WITHOUT_CONTROL = 4213,
    SETTINGS = 4214,
    HELP = 4215,
  };
};

}  // namespace tarnwick
