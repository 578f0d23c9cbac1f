// The projects that were open lately. They belong to the user, not to a project: they are kept in the default
// configuration alone.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

struct SettingsContext;

/// Their paths, the last one first.
std::vector<std::string> recentProjects(SettingsContext& context);

/// Makes this the first of the list, which holds eight. A default configuration that can't be read whole is left alone.
void updateRecentProjects(SettingsContext& context, const std::string& path);

}  // namespace tarnwick
