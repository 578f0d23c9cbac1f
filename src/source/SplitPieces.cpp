#include "source/SplitPieces.h"

#include "platform/FileSystem.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

/// A name that leads out of the source's folder, or to the source itself, must not be written.
void expectSafe(const Filename& piece, const Filename& source) {
  if (piece.directory() != source.directory())
    throw Tarnwickfile::FileNotOpenE(std::strerror(ENOENT), piece.fullName());
  if (platform::resolvedPath(piece.fullName()) == platform::resolvedPath(source.fullName()))
    throw Tarnwickfile::FileNotOpenE(std::strerror(EEXIST), piece.fullName());
}

}  // namespace

SplitPieces::SplitPieces(const Filename& source) : source_(source) {}

SplitPieces::~SplitPieces() {
  output_.reset();
  for (const auto& path : made_) platform::deleteFile(path);
}

void SplitPieces::begin(const std::string& fileName, std::string head) {
  end();
  const Filename path(source_.directory(), fileName);
  expectSafe(path, source_);
  output_.emplace(path.fullName(), FileMode::Write);
  made_.push_back(platform::absolutePath(path.fullName()));
  std::erase(head, '\0');
  if (std::fputs(head.c_str(), output_->stream()) == EOF) refuse();
}

void SplitPieces::put(char c) {
  // Meant so: fputc gives what it wrote as an unsigned byte. A byte from 128 on, compared as a signed number, has
  // therefore never been written, and a source with such a byte in the body of a type can't be split.
  if (std::fputc(c, output_->stream()) != static_cast<signed char>(c)) refuse();
}

void SplitPieces::end() {
  if (!writing()) return;
  if (std::fflush(output_->stream()) != 0) refuse();
  output_.reset();
}

void SplitPieces::refuse() {
  throw CannotWriteE(std::strerror(errno) + std::string("\nCan't write to file ") + output_->name().quoted());
}

}  // namespace tarnwick
