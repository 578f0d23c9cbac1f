#include "platform/FolderEntries.h"

#include <filesystem>
#include <system_error>

namespace tarnwick::platform {

namespace {

FolderEntry::Kind kindOf(const std::filesystem::directory_entry& entry) {
  std::error_code unknown;
  if (entry.is_regular_file(unknown)) return FolderEntry::Kind::File;
  return entry.is_directory(unknown) ? FolderEntry::Kind::Folder : FolderEntry::Kind::Other;
}

}  // namespace

std::vector<FolderEntry> entriesOf(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<FolderEntry> entries;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code unknown;
    const std::string name = entry->path().filename().string();
    entries.push_back({name, kindOf(*entry), entry->is_symlink(unknown), name.starts_with('.')});
  }
  return entries;
}

std::string fileNameKey(const std::string& name) {
  return name;
}

}  // namespace tarnwick::platform
