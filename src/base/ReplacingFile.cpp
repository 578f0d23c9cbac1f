#include "base/ReplacingFile.h"

#include "platform/FileSystem.h"
#include "platform/Replacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

/// So many saves of one target may run at once.
constexpr int mostAtOnce = 20;

/// Reasons that concern one name, and not the next one: somebody is saving under it, or has laid something else there.
bool nextNameMayDo(int reason) {
  constexpr std::array reasons = {EBUSY, EACCES, EPERM, EEXIST, ELOOP, EISDIR};
  return std::find(reasons.begin(), reasons.end(), reason) != reasons.end();
}

/// Reasons for which a folder takes no file beside one that it has. A full disk is none: what is there must stay.
bool folderRefuses(int reason) {
  constexpr std::array reasons = {EACCES, EPERM, ENAMETOOLONG};
  return std::find(reasons.begin(), reasons.end(), reason) != reasons.end();
}

}  // namespace

ReplacingFile::ReplacingFile(const std::string& target) : ReplacingFile(target, "w") {}

ReplacingFile::ReplacingFile(const std::string& target, Bytes) : ReplacingFile(target, "wb") {}

ReplacingFile::ReplacingFile(const std::string& target, const char* letters) {
  setFile(Filename(target), FileMode::Write);
  refuseLineEnd(name().fullName());
  place_ = platform::resolvedPath(name().fullName());
  const std::string folder = Filename(place_).directory();
  if (!folder.empty() && !platform::isFolder(folder)) platform::makeFolders(folder);
  if (openFresh(letters)) return;
  setStream(platform::openFile(name().fullName(), letters));
  if (!isOpen()) fail(errno);
}

bool ReplacingFile::openFresh(const char* letters) {
  if (!platform::lastChange(place_)) {
    // Links that lead round in a circle are there all the same, and must not be replaced.
    if (!platform::isWritable(place_) && errno == ELOOP) fail(errno);
    return openFreshAs(place_, letters, false);
  }
  // A folder gives its message, and a device takes what is written, when the target itself is opened.
  if (!platform::isFile(place_)) return false;
  // A file that refuses to be written must not be replaced either.
  if (!platform::isWritable(place_)) fail(errno);
  if (openFreshAs(place_, letters, true)) return true;
  // Opening the target itself would empty it before the new content is known to be whole.
  if (!folderRefuses(errno) || !openFreshAs(platform::temporaryFolder() + "tarnwick-save", letters, true)) fail(errno);
  return true;
}

bool ReplacingFile::openFreshAs(const std::string& base, const char* letters, bool ownerOnly) {
  // The first free number: a file that a killed process has left is used again, so that such files do not pile up. The
  // name is one that nobody else gives to a file, and what bears it all the same and can't be ours is passed over.
  for (int i = 1; i <= mostAtOnce; ++i) {
    fresh_ = base + ".tarnwick-" + std::to_string(i) + ".tmp";
    if (std::FILE* stream = platform::openReplacement(fresh_, letters, ownerOnly)) {
      setStream(stream);
      return true;
    }
    if (!nextNameMayDo(errno)) break;
  }
  fresh_.clear();
  return false;
}

ReplacingFile::~ReplacingFile() {
  discard();
}

void ReplacingFile::commit() {
  if (!platform::flushToDisk(stream())) fail(errno);
  if (!fresh_.empty() && !platform::putInPlace(stream(), fresh_, place_)) fail(errno);
  fresh_.clear();
  close();
}

void ReplacingFile::discard() {
  if (isOpen() && !fresh_.empty()) platform::discardReplacement(stream(), fresh_);
  fresh_.clear();
  close();
}

void ReplacingFile::fail(int reason) {
  discard();
  throw FileNotOpenE(std::strerror(reason), name().fullName());
}

}  // namespace tarnwick
