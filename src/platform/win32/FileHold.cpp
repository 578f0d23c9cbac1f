#include "platform/FileHold.h"

#include "platform/win32/Handle.h"

#include <windows.h>

namespace tarnwick::platform {

// Whoever has a file open keeps others from having it alone.
struct FileHold::Mark {
  Handle file;
};

FileHold::FileHold() = default;

FileHold::FileHold(const std::string& path)
    : mark_(new Mark{
          Handle(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))}) {}

FileHold::~FileHold() = default;
FileHold::FileHold(FileHold&&) noexcept = default;
FileHold& FileHold::operator=(FileHold&&) noexcept = default;

void deleteUnheld(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_REPARSE_POINT;
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & others) != 0) return;
  // For us alone, and gone with our handle.
  const Handle file(CreateFileA(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
}

}  // namespace tarnwick::platform
