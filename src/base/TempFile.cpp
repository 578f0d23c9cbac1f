#include "base/TempFile.h"

#include "platform/FileSystem.h"
#include "platform/OwnFiles.h"
#include "platform/Path.h"

#include <cerrno>
#include <ctime>
#include <utility>

namespace tarnwick {

namespace {

constexpr int lastNumber = 9998;
constexpr std::time_t secondsOfDay = 86400;

/// A file that cannot be examined counts as fresh. What is a link, has a second name, or belongs to another user was
/// not made by us, however old it is.
bool isLeftover(const std::string& path) {
  if (!platform::isOwnFile(path)) return false;
  const auto changed = platform::lastChange(path);
  return changed && (std::time(nullptr) - *changed) / secondsOfDay > 0;
}

/// False if another instance has taken the name in the moment since it was looked for.
bool claimed(const std::string& path) {
  return platform::claimFile(path) || errno != EEXIST;
}

}  // namespace

TempFile::TempFile(std::string prefix, std::string folder) : prefix_(std::move(prefix)), folder_(std::move(folder)) {
  if (!folder_.empty() && !platform::endsInSeparator(folder_)) folder_ += platform::folderSeparator;
  setFile(Filename(), FileMode::Write);
}

TempFile::~TempFile() {
  // Windows deletes no open file.
  close();
  if (!name().fullName().empty()) platform::deleteFile(name().fullName());
}

void TempFile::openTemp(FileMode mode) {
  const std::string& path = name().fullName();
  // Somebody may have put a link in its place meanwhile.
  if (!path.empty() && (platform::isPlainFile(path) || !platform::isTaken(path))) {
    try {
      open(mode);
      return;
    } catch (const FileNotOpenE&) {
      // It gets a new name below.
    }
  }
  const bool writes = (mode == FileMode::Undefined ? this->mode() : mode) != FileMode::Read;
  std::string candidate;
  for (int i = 1; i <= lastNumber; ++i) {
    candidate = folder_ + prefix_ + std::to_string(i) + ".tmp";
    const bool ours = canBeRead(candidate) ? isLeftover(candidate) : !writes || claimed(candidate);
    if (ours) return take(candidate, mode);
  }
  throw FileNotOpenE("Can't create temporary file ", candidate);
}

void TempFile::take(const std::string& candidate, FileMode mode) {
  setFile(Filename(candidate), this->mode());
  try {
    open(mode);
  } catch (const FileNotOpenE&) {
    // What could not be opened is somebody else's, and the destructor must not delete it.
    setFile(Filename(), this->mode());
    throw;
  }
}

}  // namespace tarnwick
