#include "platform/FileSystem.h"

#include "platform/Path.h"
#include "platform/win32/FolderWalk.h"
#include "platform/win32/LastError.h"

#include <windows.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <direct.h>
#include <fcntl.h>
#include <io.h>

namespace tarnwick::platform {

namespace {

bool hasAttribute(const std::string& path, DWORD attribute, bool wanted) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && ((attributes & attribute) != 0) == wanted;
}

/// As `fopen` does, but a reader does not keep anybody from replacing or removing the file.
std::FILE* openForReading(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = errnoOfLastError();
    return nullptr;
  }
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_RDONLY | _O_TEXT);
  if (descriptor < 0) {
    CloseHandle(file);
    return nullptr;
  }
  std::FILE* stream = _fdopen(descriptor, "r");
  if (!stream) _close(descriptor);
  return stream;
}

/// A call that fills a buffer and tells how much it needs.
template <typename Call>
std::string filled(Call call) {
  std::string buffer(MAX_PATH, '\0');
  for (;;) {
    const DWORD length = call(buffer.data(), static_cast<DWORD>(buffer.size()));
    if (length < buffer.size()) {
      buffer.resize(length);
      return buffer;
    }
    buffer.resize(length + MAX_PATH);
  }
}

/// "\\?\C:\x" as "C:\x", "\\?\UNC\server\x" as "\\server\x".
std::string withoutDevicePrefix(const std::string& path) {
  const std::string device = "\\\\?\\";
  const std::string share = device + "UNC\\";
  if (path.starts_with(share)) return "\\\\" + path.substr(share.size());
  return path.starts_with(device) ? path.substr(device.size()) : path;
}

}  // namespace

std::FILE* openFile(const std::string& path, const char* mode) {
  if (std::string(mode) == "r") return openForReading(path);
  // "N": children do not inherit it.
  return std::fopen(path.c_str(), (std::string(mode) + "N").c_str());
}

void leaveBytesAlone(std::FILE* stream) {
  _setmode(_fileno(stream), _O_BINARY);
}

const char lineEnd[] = "\r\n";

bool claimFile(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = errnoOfLastError();
    return false;
  }
  CloseHandle(file);
  return true;
}

std::optional<std::time_t> lastChange(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  const std::int64_t ticks = (static_cast<std::int64_t>(data.ftLastWriteTime.dwHighDateTime) << 32) |
                             static_cast<std::int64_t>(data.ftLastWriteTime.dwLowDateTime);
  constexpr std::int64_t ticksInSecond = 10000000;
  constexpr std::int64_t secondsFrom1601To1970 = 11644473600;
  return static_cast<std::time_t>(ticks / ticksInSecond - secondsFrom1601To1970);
}

bool deleteFile(const std::string& path) {
  return DeleteFileA(path.c_str()) != 0;
}

std::optional<std::uintmax_t> fileSize(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  return (static_cast<std::uintmax_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

bool isSpecial(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const DWORD type = GetFileType(file);
  CloseHandle(file);
  return type != FILE_TYPE_DISK;
}

bool isFile(const std::string& path) {
  return hasAttribute(path, FILE_ATTRIBUTE_DIRECTORY, false);
}

std::vector<std::string> filesIn(const std::string& folder) {
  return namesWhere(folder, [](const auto& entry) { return !isFolderEntry(entry); });
}

bool isFolder(const std::string& path) {
  return hasAttribute(path, FILE_ATTRIBUTE_DIRECTORY, true);
}

bool makeFolders(const std::string& path) {
  if (path.empty() || isFolder(path)) return !path.empty();
  std::string own = path;
  while (endsInSeparator(own)) own.pop_back();
  const PathParts parts = splitPath(own);
  if (!parts.folder.empty() && parts.folder.size() + parts.drive.size() < own.size())
    makeFolders(parts.drive + parts.folder);
  CreateDirectoryA(own.c_str(), nullptr);
  return isFolder(path);
}

bool flushToDisk(std::FILE* stream) {
  const bool failedBefore = std::ferror(stream) != 0;
  if (std::fflush(stream) != 0) return false;
  if (failedBefore) {
    // Nobody kept the reason of that failure; what refused one write refuses another, and tells it again.
    if (std::fputc('\n', stream) != EOF && std::fflush(stream) == 0) errno = EIO;
    return false;
  }
  return _commit(_fileno(stream)) == 0;
}

std::string resolvedPath(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return path;
  const std::string resolved =
      filled([&](char* buffer, DWORD size) { return GetFinalPathNameByHandleA(file, buffer, size, 0); });
  CloseHandle(file);
  return resolved.empty() ? path : withoutDevicePrefix(resolved);
}

std::string absolutePath(const std::string& path) {
  const PathParts parts = splitPath(path);
  const bool fromRoot = !parts.folder.empty() && endsInSeparator(parts.folder.substr(0, 1));
  const bool isShare = fromRoot && parts.folder.size() > 1 && endsInSeparator(parts.folder.substr(0, 2));
  if (path.empty() || isShare || (fromRoot && !parts.drive.empty())) return path;
  const std::string whole =
      filled([&](char* buffer, DWORD size) { return GetFullPathNameA(path.c_str(), size, buffer, nullptr); });
  return whole.empty() ? path : whole;
}

bool changeDirectory(const std::string& folder) {
  return _chdir(folder.c_str()) == 0;
}

std::string currentDirectory() {
  return filled([](char* buffer, DWORD size) { return GetCurrentDirectoryA(size, buffer); });
}

std::string executablePath() {
  return filled([](char* buffer, DWORD size) { return GetModuleFileNameA(nullptr, buffer, size); });
}

}  // namespace tarnwick::platform
