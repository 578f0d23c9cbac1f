#include "base/ReplacingFile.h"

#include "platform/FileSystem.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

/// A name that no other instance and no other save of this one uses.
std::string freshNameBeside(const std::string& target) {
  static std::atomic<int> number = 0;
  return target + '.' + std::to_string(platform::processId()) + '-' + std::to_string(++number) + ".tmp";
}

bool copyBytes(std::FILE* from, std::FILE* to) {
  std::array<char, 8192> block;
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), from))
    if (std::fwrite(block.data(), 1, count, to) != count) return false;
  return !std::ferror(from) && platform::flushToDisk(to);
}

/// Writes the content of one file over another. False with `errno` on failure.
bool overwrite(const std::string& from, const std::string& to) {
  std::FILE* source = platform::openFile(from, "rb");
  if (!source) return false;
  std::FILE* target = platform::openFile(to, "wb");
  const bool copied = target && copyBytes(source, target);
  const int reason = errno;
  if (target) std::fclose(target);
  std::fclose(source);
  errno = reason;
  return copied;
}

}  // namespace

ReplacingFile::ReplacingFile(const std::string& target) {
  setFile(Filename(target), FileMode::Write);
  place_ = platform::resolvedPath(name().fullName());
  const std::string folder = Filename(place_).directory();
  if (!folder.empty() && !platform::isFolder(folder)) platform::makeFolders(folder);
  if (!openFresh()) Tarnwickfile::open(FileMode::Write);
}

bool ReplacingFile::openFresh() {
  if (platform::lastChange(place_)) {
    // A folder gives its message, and a device takes what is written, when the target itself is opened.
    if (!platform::isFile(place_)) return false;
    // A file that refuses to be written must not be replaced either.
    std::FILE* writable = platform::openFile(place_, "r+");
    if (!writable) fail(errno);
    std::fclose(writable);
  }
  fresh_ = freshNameBeside(place_);
  std::FILE* stream = platform::openFile(fresh_, "w");
  if (!stream) {
    fresh_.clear();
    return false;
  }
  setStream(stream);
  return true;
}

ReplacingFile::~ReplacingFile() {
  close();
  if (!fresh_.empty()) platform::deleteFile(fresh_);
}

void ReplacingFile::commit() {
  if (!platform::flushToDisk(stream())) fail(errno);
  close();
  if (fresh_.empty()) return;
  if (platform::replaceFile(fresh_, place_)) {
    fresh_.clear();
    return;
  }
  // A file that another program holds open, or that belongs to somebody else, can be written though not replaced.
  if (!overwrite(fresh_, place_)) fail(errno);
}

void ReplacingFile::fail(int reason) {
  close();
  throw FileNotOpenE(std::strerror(reason), name().fullName());
}

}  // namespace tarnwick
