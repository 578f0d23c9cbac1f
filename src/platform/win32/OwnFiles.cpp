#include "platform/OwnFiles.h"

#include "platform/win32/FolderWalk.h"
#include "platform/win32/Handle.h"
#include "platform/win32/Insist.h"
#include "platform/win32/LastError.h"

#include <windows.h>

#include <cerrno>

namespace tarnwick::platform {

namespace {

bool hasKind(const std::string& path, DWORD wanted) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return false;
  return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == wanted;
}

bool succeeded(BOOL result) {
  if (result != 0) return true;
  errno = errnoOfLastError();
  return false;
}

bool moveAs(const std::string& from, const std::string& to, DWORD flags) {
  return insist(isHeldOpen, [&] { return MoveFileExA(from.c_str(), to.c_str(), flags) != 0; }) || succeeded(FALSE);
}

}  // namespace

bool isTaken(const std::string& path) {
  return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool isPlainFile(const std::string& path) {
  return hasKind(path, 0);
}

bool isOwnFile(const std::string& path) {
  if (!isPlainFile(path)) return false;
  const Handle file(CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  BY_HANDLE_FILE_INFORMATION info{};
  return file && GetFileInformationByHandle(file.get(), &info) != 0 && info.nNumberOfLinks == 1;
}

bool isOwnFolder(const std::string& path) {
  return hasKind(path, FILE_ATTRIBUTE_DIRECTORY);
}

bool makeOwnFolder(const std::string& path) {
  return succeeded(CreateDirectoryA(path.c_str(), nullptr));
}

bool removeFolder(const std::string& path) {
  return succeeded(RemoveDirectoryA(path.c_str()));
}

std::vector<std::string> namesIn(const std::string& folder) {
  return namesWhere(folder, [](const auto&) { return true; });
}

bool moveToFreeName(const std::string& from, const std::string& to) {
  return moveAs(from, to, 0);
}

bool moveOver(const std::string& from, const std::string& to) {
  return moveAs(from, to, MOVEFILE_REPLACE_EXISTING);
}

}  // namespace tarnwick::platform
