#include "app/NewerJavaOffer.h"

#include "dialogbase/Desktop.h"
#include "project/ProjectContext.h"
#include "settings/SettingsContext.h"
#include "source/JavaReading.h"

namespace tarnwick {

bool offerNewerJava(Settings& settings, const std::string& refused) {
  if (refused.empty() || settings.newerJava || !newerWayTakes(refused)) return false;
  const bool wanted = settings.context().desktop.askYesNo(
      "This source may be of a newer Java than Tarnwick's classic way of reading knows.\n\n"
      "Read sources the newer way from now on (generics, enums, records ...)?\n"
      "You can change that on the page \"javac\" of the settings.");
  if (!wanted) return false;
  settings.newerJava = true;
  settings.saveCurrent();
  return true;
}

bool offerNewerJava(Settings& settings, const ProjectContext& project) {
  if (settings.newerJava) return false;
  for (std::size_t i = 0; i < project.sources.size(); ++i) {
    const JavaSourcefile& source = project.sources[i];
    const std::string path = source.name().fullName();
    if (source.types().empty() && newerWayTakes(path)) return offerNewerJava(settings, path);
  }
  return false;
}

}  // namespace tarnwick
