#include "base/TempFile.h"

#include "platform/FileSystem.h"
#include "platform/OwnFiles.h"
#include "platform/Path.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <string_view>
#include <utility>

namespace tarnwick {

namespace {

constexpr int lastNumber = 9998;
constexpr std::time_t secondsOfDay = 86400;
constexpr const char* extension = ".tmp";
/// What all files of this kind are called, before their number.
constexpr std::array prefixes = {"Tarnwick_LOG", "Tarnwick_tempManifest", "Tarnwick_javadoc_list",
                                 "Tarnwick_javac_list"};

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

bool isTempFileName(std::string_view name) {
  const auto prefix = std::find_if(prefixes.begin(), prefixes.end(), [&](auto one) { return name.starts_with(one); });
  if (prefix == prefixes.end() || !name.ends_with(extension)) return false;
  name.remove_prefix(std::string_view(*prefix).size());
  const std::string_view number = name.substr(0, name.size() - std::string_view(extension).size());
  return !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

void clearTempFiles(const std::string& folder) {
  for (const auto& name : platform::filesIn(folder)) {
    if (isTempFileName(name)) platform::deleteUnheld(Filename(folder, name).fullName());
  }
}

TempFile::TempFile(std::string prefix, std::string folder) : prefix_(std::move(prefix)), folder_(std::move(folder)) {
  if (!folder_.empty() && !platform::endsInSeparator(folder_)) folder_ += platform::folderSeparator;
  setFile(Filename(), FileMode::Write);
}

TempFile::~TempFile() {
  remove();
}

void TempFile::remove() {
  // Windows deletes no open file.
  close();
  hold_ = {};
  if (!name().fullName().empty()) platform::deleteFile(name().fullName());
}

void TempFile::openTemp(FileMode mode) {
  const std::string& path = name().fullName();
  // Somebody may have put a link in its place meanwhile.
  if (!path.empty() && (platform::isPlainFile(path) || !platform::isTaken(path))) {
    try {
      open(mode);
      // It may have been deleted and made anew.
      hold_ = platform::FileHold(name().fullName());
      return;
    } catch (const FileNotOpenE&) {
      // It gets a new name below.
    }
  }
  const bool writes = (mode == FileMode::Undefined ? this->mode() : mode) != FileMode::Read;
  std::string candidate;
  for (int i = 1; i <= lastNumber; ++i) {
    candidate = folder_ + prefix_ + std::to_string(i) + extension;
    const bool ours = canBeRead(candidate) ? isLeftover(candidate) : !writes || claimed(candidate);
    if (ours) return take(candidate, mode);
  }
  throw FileNotOpenE("Can't create temporary file ", candidate);
}

void TempFile::take(const std::string& candidate, FileMode mode) {
  setFile(Filename(candidate), this->mode());
  try {
    open(mode);
    hold_ = platform::FileHold(candidate);
  } catch (const FileNotOpenE&) {
    // What could not be opened is somebody else's, and the destructor must not delete it.
    setFile(Filename(), this->mode());
    throw;
  }
}

}  // namespace tarnwick
