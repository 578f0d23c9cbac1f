#pragma once

#include "base/ProgramInfo.h"
#include "dialogbase/Desktop.h"
#include "process/ToolLog.h"

namespace tarnwick {

/// What every Settings object of the process stands on.
struct SettingsContext {
  Desktop& desktop;
  const ProgramInfo& program;
  ToolLog& log;
  /// The program's main window; null while there is none.
  DialogWindow* mainWindow = nullptr;
};

}  // namespace tarnwick
