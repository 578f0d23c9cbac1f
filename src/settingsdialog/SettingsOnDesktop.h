#pragma once

#include "settings/SettingsContext.h"

namespace tarnwick {

/// The context of settings that speak to their user by way of this desktop: they show messages there, and lead to
/// another folder when the configuration can't be saved. All three outlive the context.
SettingsContext settingsOnDesktop(Desktop& desktop, const ProgramInfo& program, ToolLog& log);

}  // namespace tarnwick
