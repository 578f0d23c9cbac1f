#include "source/PieceFolder.h"

#include "platform/FileSystem.h"
#include "platform/OwnFiles.h"
#include "platform/Path.h"
#include "platform/Replacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

/// So many splits may be under way in one folder at once.
constexpr int mostAtOnce = 20;

constexpr char lockName[] = "in_use";

// The rooms of the folder. A piece that has left `writing` stands beside the source; its twin in `alone` or `over`
// tells it from a file of the user's.
constexpr char writing[] = "writing";
constexpr char alone[] = "alone";  ///< twins of pieces whose names were free
constexpr char over[] = "over";    ///< twins of pieces whose names were the user's
constexpr char kept[] = "kept";    ///< what bore those names
constexpr std::array rooms = {writing, alone, over, kept};

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using Stream = std::unique_ptr<std::FILE, CloseFile>;

Stream openBytes(const std::string& path, const char* mode) {
  return Stream(platform::openFile(path, mode));
}

bool sameContent(const std::string& left, const std::string& right) {
  const Stream one = openBytes(left, "rb");
  const Stream other = openBytes(right, "rb");
  if (!one || !other) return false;
  std::array<char, 8192> bytes{};
  std::array<char, 8192> others{};
  for (;;) {
    const auto count = std::fread(bytes.data(), 1, bytes.size(), one.get());
    const auto otherCount = std::fread(others.data(), 1, others.size(), other.get());
    if (std::ferror(one.get()) != 0 || std::ferror(other.get()) != 0) return false;
    if (count != otherCount || std::memcmp(bytes.data(), others.data(), count) != 0) return false;
    if (count == 0) return true;
  }
}

bool copyFile(const std::string& from, const std::string& to) {
  const Stream in = openBytes(from, "rb");
  Stream out = openBytes(to, "wb");
  if (!in || !out) return false;
  std::array<char, 8192> bytes{};
  while (const auto count = std::fread(bytes.data(), 1, bytes.size(), in.get()))
    if (std::fwrite(bytes.data(), 1, count, out.get()) != count) return false;
  return std::ferror(in.get()) == 0 && std::fclose(out.release()) == 0;
}

/// A file that the user has changed since is no piece of ours any more.
bool isPiece(const std::string& path, const std::string& twin) {
  return platform::isPlainFile(path) && sameContent(path, twin);
}

/// Whoever has taken the file's name in the meantime keeps it.
bool moveToOtherName(const std::string& from, const std::string& wanted) {
  constexpr int mostNames = 999;
  for (int i = 1; i <= mostNames; ++i) {
    if (platform::moveToFreeName(from, wanted + '.' + std::to_string(i) + ".kept")) return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

/// The name as the disk spells it, where case makes no other name of it.
std::string spelledAs(const std::string& name, const std::string& folder) {
  const auto names = platform::namesIn(folder);
  const auto found =
      std::find_if(names.begin(), names.end(), [&](const auto& one) { return platform::sameFileName(one, name); });
  return found == names.end() ? name : *found;
}

std::string folderName(int number) {
  return "Tarnwick_split" + std::to_string(number) + ".tmp";
}

}  // namespace

PieceFolder::PieceFolder(const std::string& place) : place_(place) {}

PieceFolder::~PieceFolder() {
  goAway();
}

void PieceFolder::goAway() {
  if (!folder_.empty()) putBack();
}

std::string PieceFolder::inner(const char* room, const std::string& name) const {
  return folder_ + room + platform::folderSeparator + name;
}

std::string PieceFolder::make(const std::string& name) {
  if (folder_.empty() && !open()) return "";
  const std::string path = inner(writing, name);
  const bool isNew = made_.insert(name).second;
  return isNew && !platform::claimFile(path) ? "" : path;
}

bool PieceFolder::finish(const std::string& name) {
  return copyFile(inner(writing, name), inner(alone, name));
}

bool PieceFolder::publish(const std::string& name) {
  const std::string target = place_ + name;
  if (platform::isFolder(target)) {
    errno = EISDIR;
    return false;
  }
  if (platform::isTaken(target)) {
    if (!platform::moveOver(inner(alone, name), inner(over, name))) return false;
    if (!platform::moveToFreeName(target, inner(kept, spelledAs(name, place_)))) return false;
  }
  return platform::moveToFreeName(inner(writing, name), target);
}

bool PieceFolder::open() {
  for (int i = 1; i <= mostAtOnce; ++i) {
    if (take(place_ + folderName(i))) return true;
    // Somebody has it, or clears it away in this moment.
    if (errno != EEXIST && errno != EBUSY && errno != ENOENT) break;
  }
  return false;
}

bool PieceFolder::take(const std::string& folder) {
  if (!platform::makeOwnFolder(folder)) return false;
  folder_ = folder + platform::folderSeparator;
  lock_.reset(platform::openReplacement(folder_ + lockName, "w", true));
  // On a disk that names another owner of all its files nobody takes the folder for a left-over, locked or not.
  const bool guarded = lock_ || errno == EACCES;
  const bool whole = guarded && std::all_of(rooms.begin(), rooms.end(), [this](const char* room) {
                       return platform::makeOwnFolder(folder_ + room);
                     });
  if (whole) return true;
  const int reason = errno;
  removeFolder();
  folder_.clear();
  errno = reason;
  return false;
}

void PieceFolder::putBackLeftOvers(const std::string& place) {
  for (int i = 1; i <= mostAtOnce; ++i) {
    PieceFolder leftOver(place);
    leftOver.takeLeftOver(place + folderName(i));
  }
}

bool PieceFolder::takeLeftOver(const std::string& folder) {
  if (!platform::isOwnFolder(folder)) return false;
  // Killed before it was in use; of any other folder without the lock's file we know nothing.
  if (platform::removeFolder(folder)) return false;
  const std::string lock = folder + platform::folderSeparator + lockName;
  if (!platform::isOwnFile(lock)) return false;
  lock_.reset(platform::openReplacement(lock, "w", true));
  if (!lock_) return false;
  folder_ = folder + platform::folderSeparator;
  return true;
}

void PieceFolder::putBack() {
  for (const auto& name : platform::namesIn(folder_ + alone)) removePiece(name);
  for (const auto& name : platform::namesIn(folder_ + kept)) giveBack(name);
  for (const auto& name : platform::namesIn(folder_ + over))
    if (!platform::isTaken(inner(kept, name))) platform::deleteFile(inner(over, name));
  for (const auto& name : platform::namesIn(folder_ + writing)) platform::deleteFile(inner(writing, name));
  removeFolder();
}

void PieceFolder::removePiece(const std::string& name) const {
  const bool stands = !platform::isTaken(inner(writing, name));
  // What can't be removed now, because a program holds it, is left to the next compile.
  if (stands && isPiece(place_ + name, inner(alone, name)) && !platform::deleteFile(place_ + name)) return;
  platform::deleteFile(inner(alone, name));
}

void PieceFolder::giveBack(const std::string& name) const {
  const std::string target = place_ + name;
  if (platform::moveToFreeName(inner(kept, name), target) || errno != EEXIST) return;
  if (isPiece(target, inner(over, name))) {
    // Moved over the piece, the file would take over its spelling where case makes no other name. A piece that a
    // program holds is left to the next compile.
    if (!platform::deleteFile(target)) return;
    if (platform::moveToFreeName(inner(kept, name), target) || errno != EEXIST) return;
  }
  moveToOtherName(inner(kept, name), target);
}

void PieceFolder::removeFolder() {
  bool empty = true;
  for (const char* room : rooms)
    if (!platform::removeFolder(folder_ + room) && errno != ENOENT) empty = false;
  if (!empty) return lock_.reset();
  if (lock_)
    platform::discardReplacement(lock_.get(), folder_ + lockName);
  else
    platform::deleteFile(folder_ + lockName);
  lock_.reset();
  platform::removeFolder(folder_);
}

}  // namespace tarnwick
