#include "project/RecentProjects.h"

#include "settings/LastNames.h"
#include "settings/Settings.h"

namespace tarnwick {

std::vector<std::string> recentProjects(SettingsContext& context) {
  Settings stored(context);
  int status = 0;
  stored.readDefaultConfiguration(status);
  return stored.recentProjects.elements();
}

void updateRecentProjects(SettingsContext& context, const std::string& path) {
  constexpr int limit = 8;
  Settings stored(context);
  int status = 0;
  stored.readDefaultConfiguration(status);
  if (status != 0) return;
  putNameFirst(stored.recentProjects, path, limit);
  stored.saveDefaultConfiguration();
}

}  // namespace tarnwick
