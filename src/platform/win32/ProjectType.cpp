#include "platform/ProjectType.h"

#include "platform/win32/Registry.h"

#include <shlobj.h>

namespace tarnwick::platform {
namespace {

const char className[] = "Tarnwick.Project";

/// False if the user may not write there.
bool registerBelow(HKEY root, const std::string& classes, const std::string& program) {
  const std::string ours = classes + className;
  return writeDefaultValue(root, ours, "Java Development Project") &&
         writeDefaultValue(root, ours + "\\shell\\open\\command", '"' + program + "\" \"%1\"") &&
         writeDefaultValue(root, classes + ".twp", className) &&
         writeDefaultValue(root, ours + "\\DefaultIcon", program + ",0");
}

}  // namespace

void registerProjectType(const std::string& program) {
  // So that no other program's claim survives.
  removeFileTypeTraces();
  // A user without rights over the whole machine's classes has classes of the user's own.
  if (!registerBelow(HKEY_CLASSES_ROOT, "", program)) registerBelow(HKEY_CURRENT_USER, "Software\\Classes\\", program);
  SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

}  // namespace tarnwick::platform
