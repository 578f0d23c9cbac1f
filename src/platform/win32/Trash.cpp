#include "platform/FileSystem.h"
#include "platform/TrashSystem.h"

#include <windows.h>

#include <shellapi.h>

namespace tarnwick::platform {

bool copyBytes(const std::string& from, const std::string& to) {
  return CopyFileA(from.c_str(), to.c_str(), FALSE) != 0;
}

bool moveToTrash(const std::string& path) {
  // A list of names, closed by an empty one.
  const std::string names = absolutePath(path) + '\0';
  SHFILEOPSTRUCTA what{};
  what.wFunc = FO_DELETE;
  what.pFrom = names.c_str();
  what.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  return SHFileOperationA(&what) == 0 && !what.fAnyOperationsAborted;
}

}  // namespace tarnwick::platform
