#include "base/DataFile.h"

#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

namespace tarnwick {

std::string dataFile(const ProgramInfo& program, const std::string& name) {
  const std::string beside = program.programDirectory + name;
  if (platform::isFile(beside)) return beside;
  const char slash = platform::folderSeparator;
  const std::string shared = program.programDirectory + ".." + slash + "share" + slash + "tarnwick" + slash + name;
  return platform::isFile(shared) ? platform::resolvedPath(shared) : beside;
}

}  // namespace tarnwick
