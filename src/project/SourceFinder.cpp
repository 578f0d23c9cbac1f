#include "project/SourceFinder.h"

#include "platform/FileSystem.h"
#include "platform/FolderEntries.h"
#include "platform/Path.h"

#include <utility>

namespace tarnwick {

namespace {

std::string withSeparator(const std::string& folder) {
  return platform::endsInSeparator(folder) ? folder : folder + platform::folderSeparator;
}

/// A key by which a folder is known, with its last separator.
std::string keyOf(const std::string& resolved) {
  return platform::fileNameKey(withSeparator(resolved));
}

}  // namespace

SourceFinder::SourceFinder(const std::string& folder, Wanted wanted, const std::string& leftOut)
    : base_(platform::resolvedPath(folder)),
      wanted_(std::move(wanted)),
      leftOut_(leftOut.empty() ? "" : keyOf(platform::resolvedPath(leftOut))) {
  folders_.push_back({withSeparator(folder), "", base_});
}

FoundFiles SourceFinder::find(std::size_t mostNames) {
  while (!folders_.empty() || !links_.empty()) {
    auto& next = folders_.empty() ? links_ : folders_;
    const Folder folder = std::move(next.back());
    next.pop_back();
    if (!isNew(folder.resolved)) continue;
    if (looked_ >= mostNames) {
      found_.isAll = false;
      break;
    }
    look(folder);
  }
  return std::move(found_);
}

void SourceFinder::look(const Folder& folder) {
  for (const auto& entry : platform::entriesOf(folder.path)) {
    ++looked_;
    if (entry.kind == platform::FolderEntry::Kind::File && wanted_(entry.name))
      found_.names.push_back(folder.name + entry.name);
    if (entry.kind == platform::FolderEntry::Kind::Folder && !entry.isHidden) enter(folder, entry.name, entry.isLink);
  }
}

void SourceFinder::enter(const Folder& above, const std::string& name, bool isLink) {
  Folder folder{withSeparator(above.path + name), above.name + name + '/', withSeparator(above.resolved) + name};
  if (isLink) folder.resolved = platform::resolvedPath(folder.path);
  (isLink ? links_ : folders_).push_back(std::move(folder));
}

bool SourceFinder::isNew(const std::string& resolved) {
  const std::string key = keyOf(resolved);
  const bool isBase = resolved == base_;
  if (key == leftOut_ && !isBase) return false;
  if (!isBase && keyOf(base_).starts_with(key)) return false;
  return seen_.insert(key).second;
}

}  // namespace tarnwick
