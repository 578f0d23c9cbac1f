#include "platform/Replacement.h"

#include "platform/FileSystem.h"
#include "platform/win32/Handle.h"
#include "platform/win32/Insist.h"
#include "platform/win32/LastError.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <vector>

namespace tarnwick::platform {

namespace {

HANDLE handleOf(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

std::wstring wide(const std::string& path) {
  std::wstring result(path.size() + 1, L'\0');
  const int length = MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, result.data(), static_cast<int>(result.size()));
  result.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
  return result;
}

bool renameOpenFile(HANDLE file, const std::string& target) {
  const std::wstring name = wide(absolutePath(target));
  const std::size_t bytes = name.size() * sizeof(wchar_t);
  std::vector<std::int64_t> memory((sizeof(FILE_RENAME_INFO) + bytes) / sizeof(std::int64_t) + 1);
  auto* info = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
  info->ReplaceIfExists = TRUE;
  info->FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(info->FileName, name.c_str(), bytes + sizeof(wchar_t));
  const auto size = static_cast<DWORD>(sizeof(FILE_RENAME_INFO) + bytes);
  return insist(maybeHeldOpen, [&] { return SetFileInformationByHandle(file, FileRenameInfo, info, size) != 0; });
}

bool moveTo(HANDLE file, std::int64_t position) {
  LARGE_INTEGER where{};
  where.QuadPart = position;
  return SetFilePointerEx(file, where, nullptr, FILE_BEGIN) != 0;
}

bool cutAt(HANDLE file, std::int64_t size) {
  return moveTo(file, size) && SetEndOfFile(file) != 0;
}

std::int64_t sizeOf(HANDLE file) {
  LARGE_INTEGER size{};
  return GetFileSizeEx(file, &size) ? size.QuadPart : 0;
}

/// Copies the bytes from `begin` to `end` to the same place.
bool copyBytes(HANDLE from, HANDLE to, std::int64_t begin, std::int64_t end) {
  std::array<char, 8192> block;
  if (!moveTo(from, begin) || !moveTo(to, begin)) return false;
  while (begin < end) {
    const auto wanted = static_cast<DWORD>(std::min<std::int64_t>(end - begin, block.size()));
    DWORD count = 0;
    DWORD written = 0;
    if (!ReadFile(from, block.data(), wanted, &count, nullptr) || count == 0) return false;
    if (!WriteFile(to, block.data(), count, &written, nullptr) || written != count) return false;
    begin += count;
  }
  return true;
}

Handle openForWriting(const std::string& path, DWORD share) {
  Handle file;
  insist(isHeldOpen, [&] {
    file =
        Handle(CreateFileA(path.c_str(), GENERIC_WRITE, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return static_cast<bool>(file);
  });
  return file;
}

/// Puts the content of `from` into the file that is there. What grows comes first: a full disk is met, and what was
/// added is cut off again, before anything of the old content is gone.
bool writeOver(HANDLE from, const std::string& target) {
  const Handle to = openForWriting(target, FILE_SHARE_READ | FILE_SHARE_DELETE);
  if (!to) return false;
  const std::int64_t before = sizeOf(to.get());
  const std::int64_t after = sizeOf(from);
  if (!copyBytes(from, to.get(), before, after)) {
    const DWORD reason = GetLastError();
    cutAt(to.get(), before);
    SetLastError(reason);
    return false;
  }
  return copyBytes(from, to.get(), 0, std::min(before, after)) && cutAt(to.get(), after) &&
         FlushFileBuffers(to.get()) != 0;
}

/// A link, or a file with a second name, is nothing that a process of ours has left.
bool isOwnFile(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION info{};
  return GetFileInformationByHandle(file, &info) != 0 && info.nNumberOfLinks == 1 &&
         (info.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

}  // namespace

std::FILE* openReplacement(const std::string& path, const char* mode, bool /*ownerOnly*/) {
  // Others may read, so that the file can be read from the moment that it is in its target's place.
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = GetLastError() == ERROR_SHARING_VIOLATION ? EBUSY : errnoOfLastError();
    return nullptr;
  }
  if (!isOwnFile(file)) {
    CloseHandle(file);
    errno = EACCES;
    return nullptr;
  }
  if (!cutAt(file, 0)) {
    errno = errnoOfLastError();
    CloseHandle(file);
    return nullptr;
  }
  const int kind = std::strchr(mode, 'b') ? _O_BINARY : _O_TEXT;
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(file), kind);
  if (descriptor < 0) {
    CloseHandle(file);
    return nullptr;
  }
  std::FILE* stream = _fdopen(descriptor, mode);
  if (!stream) _close(descriptor);
  return stream;
}

bool isWritable(const std::string& path) {
  if (openForWriting(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE)) return true;
  errno = errnoOfLastError();
  return false;
}

bool putInPlace(std::FILE* replacement, const std::string& path, const std::string& target) {
  // By its handle: between a close and a move by name another process could take the file for a left-over.
  const HANDLE file = handleOf(replacement);
  if (renameOpenFile(file, target)) return true;
  if (!writeOver(file, target)) {
    errno = errnoOfLastError();
    return false;
  }
  discardReplacement(replacement, path);
  return true;
}

void discardReplacement(std::FILE* replacement, const std::string& /*path*/) {
  FILE_DISPOSITION_INFO info{};
  info.DeleteFile = TRUE;
  SetFileInformationByHandle(handleOf(replacement), FileDispositionInfo, &info, sizeof info);
}

std::string temporaryFolder() {
  std::array<char, MAX_PATH + 1> folder{};
  GetTempPathA(static_cast<DWORD>(folder.size()), folder.data());
  return folder.data();
}

}  // namespace tarnwick::platform
