#include "base/Tarnwickfile.h"

#include "base/Text.h"
#include "platform/FileSystem.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

const char* lettersOf(FileMode mode) {
  switch (mode) {
    case FileMode::Write:
      return "w";
    case FileMode::Append:
      return "a+";
    default:
      return "r";
  }
}

}  // namespace

Tarnwickfile::Tarnwickfile(const std::string& path, FileMode mode) : name_(path), mode_(mode) {
  open(mode);
}

Tarnwickfile::Tarnwickfile(const std::string& folder, const std::string& name, FileMode mode)
    : name_(folder, name), mode_(mode) {
  open(mode);
}

Tarnwickfile::~Tarnwickfile() {
  close();
}

Tarnwickfile& Tarnwickfile::operator=(Tarnwickfile& source) {
  if (&source == this) return *this;
  name_ = source.name_;
  mode_ = source.mode_;
  close();
  if (source.mode_ != FileMode::Undefined) {
    source.close();
    open(FileMode::Undefined);
  }
  return *this;
}

Tarnwickfile Tarnwickfile::unopened(const std::string& path, FileMode mode) {
  return Tarnwickfile(Filename(path), mode);
}

void Tarnwickfile::open(FileMode mode) {
  if (mode != FileMode::Undefined) mode_ = mode;
  if (mode_ == FileMode::Undefined)
    throw FileNotOpenE("Tarnwickfile::open(): Don't know how to open " + name_.alwaysQuotedName(), name_.fullName());
  close();
  refuseLineEnd(name_.fullName());
  if (mode_ == FileMode::Read) refuseSpecial(name_.fullName());
  stream_ = platform::openFile(name_.fullName(), lettersOf(mode_));
  if (!stream_) throw FileNotOpenE(std::strerror(errno), name_.fullName());
}

void Tarnwickfile::openContent(FileMode mode) {
  refuseLarge(platform::fileSize(name_.fullName()).value_or(0), name_.fullName());
  open(mode);
}

void Tarnwickfile::close() {
  if (stream_) std::fclose(stream_);
  stream_ = nullptr;
}

std::FILE* Tarnwickfile::stream() const {
  if (!stream_) throw FileNotOpenE("Attempt to access file that has not been opened.", name_.fullName());
  return stream_;
}

void Tarnwickfile::setFile(const Filename& name, FileMode mode) {
  close();
  name_ = name;
  mode_ = mode;
}

void Tarnwickfile::setStream(std::FILE* stream) {
  close();
  stream_ = stream;
}

void refuseLineEnd(const std::string& path) {
  if (holdsLineEnd(platform::absolutePath(path))) throw Tarnwickfile::FileNotOpenE("The name holds a line end", path);
}

void refuseSpecial(const std::string& path) {
  if (platform::isSpecial(path)) throw Tarnwickfile::FileNotOpenE("Not a regular file", path);
}

void refuseLarge(std::uintmax_t size, const std::string& path) {
  if (size > largestContent) throw Tarnwickfile::FileNotOpenE("Larger than 64 MiB", path);
}

bool canBeRead(const std::string& path) {
  std::FILE* stream = platform::openFile(Filename(path).fullName(), "r");
  if (!stream) return false;
  std::fclose(stream);
  return true;
}

}  // namespace tarnwick
