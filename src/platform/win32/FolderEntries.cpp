#include "platform/FolderEntries.h"

#include "platform/Path.h"

#include <windows.h>

namespace tarnwick::platform {

namespace {

FolderEntry entryOf(const WIN32_FIND_DATAA& found) {
  const auto has = [&found](DWORD attribute) { return (found.dwFileAttributes & attribute) != 0; };
  FolderEntry entry;
  entry.name = found.cFileName;
  entry.kind = has(FILE_ATTRIBUTE_DIRECTORY) ? FolderEntry::Kind::Folder : FolderEntry::Kind::File;
  entry.isLink = has(FILE_ATTRIBUTE_REPARSE_POINT);
  entry.isHidden = has(FILE_ATTRIBUTE_HIDDEN) || entry.name.starts_with('.');
  return entry;
}

}  // namespace

std::vector<FolderEntry> entriesOf(const std::string& folder) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAA found;
  const std::string mask = folder + (endsInSeparator(folder) ? "*" : "\\*");
  const HANDLE search = FindFirstFileA(mask.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return entries;
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..") entries.push_back(entryOf(found));
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return entries;
}

std::string fileNameKey(const std::string& name) {
  std::string key = name;
  CharUpperBuffA(key.data(), static_cast<DWORD>(key.size()));
  return key;
}

}  // namespace tarnwick::platform
