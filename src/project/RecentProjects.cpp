#include "project/RecentProjects.h"

#include "platform/Path.h"
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
  TokenString fresh;
  fresh.add(path);
  for (int i = 0; i < stored.recentProjects.count() && fresh.count() < limit; ++i) {
    const std::string known = stored.recentProjects.element(i);
    if (!platform::sameFileName(known, path)) fresh.add(known);
  }
  stored.recentProjects = fresh;
  stored.saveDefaultConfiguration();
}

}  // namespace tarnwick
