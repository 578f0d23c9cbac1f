#include "source/ClassToRun.h"

#include "base/Filename.h"
#include "base/PackageRoot.h"
#include "base/Tarnwickexception.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"
#include "source/JavaOutline.h"
#include "source/JavaReading.h"
#include "source/SourceText.h"

namespace tarnwick {
namespace {

const OutlineType* whereItBegins(const JavaOutline& outline, int javaVersion, const std::string& sourceName) {
  const OutlineType* first = nullptr;
  for (const auto& type : outline.types) {
    if (!type.hasMain(javaVersion)) continue;
    if (!type.parent && type.name == sourceName) return &type;
    if (!first) first = &type;
  }
  return first;
}

}  // namespace

std::string classToRun(const Settings& settings, const Filename& source) {
  JavaOutline outline;
  try {
    outline = outlineOfFile(sourceText(source.fullName()), source.baseName());
  } catch (const Tarnwickexception&) {
    return "";
  }
  const OutlineType* const type = whereItBegins(outline, javaReading(settings).javaVersion, source.baseName());
  if (!type) return "";
  const std::string& destination = settings.javacDestination;
  const std::string folder = classesFollowPackages(destination) ? rootOfSource(source, outline.package)
                                                                : classFolder(destination, source.directoryNoSlash());
  const Filename inPackage(folder, foldersOfPackage(outline.package));
  return Filename(inPackage.fullName(), outline.binaryName(*type) + ".class").fullName();
}

}  // namespace tarnwick
