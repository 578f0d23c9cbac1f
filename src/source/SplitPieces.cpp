#include "source/SplitPieces.h"

#include "platform/FileSystem.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

[[noreturn]] void refuseToOpen(int reason, const Filename& piece) {
  throw Tarnwickfile::FileNotOpenE(std::strerror(reason), piece.fullName());
}

/// A name that leads out of the source's folder, or to the source itself, must not be taken.
void expectSafe(const Filename& piece, const Filename& source) {
  if (piece.directory() != source.directory()) refuseToOpen(ENOENT, piece);
  if (platform::resolvedPath(piece.fullName()) == platform::resolvedPath(source.fullName()))
    refuseToOpen(EEXIST, piece);
}

}  // namespace

SplitPieces::SplitPieces(const Filename& source)
    : source_(source), place_(Filename(platform::absolutePath(source.fullName())).directory()), folder_(place_) {}

void SplitPieces::begin(const std::string& fileName, std::string head) {
  end();
  const Filename piece(source_.directory(), fileName);
  expectSafe(piece, source_);
  const std::string path = folder_.make(piece.nameWithExtension());
  if (path.empty()) refuseToOpen(errno, piece);
  pieces_.push_back(piece);
  output_.emplace(path, FileMode::Write);
  std::erase(head, '\0');
  if (std::fputs(head.c_str(), output_->stream()) == EOF) refuse();
}

void SplitPieces::put(char c) {
  // Deliberate: fputc gives what it wrote as an unsigned byte. A byte from 128 on, compared as a signed number, has
  // therefore never been written, and a source with such a byte in the body of a type can't be split.
  if (std::fputc(c, output_->stream()) != static_cast<signed char>(c)) refuse();
}

void SplitPieces::end() {
  if (!writing()) return;
  if (std::fflush(output_->stream()) != 0) refuse();
  output_.reset();
  if (!folder_.finish(pieces_.back().nameWithExtension())) refuse();
}

void SplitPieces::publish() {
  for (const auto& piece : pieces_)
    if (!folder_.publish(piece.nameWithExtension())) refuseToOpen(errno, piece);
}

void SplitPieces::putBackLeftOvers() const {
  PieceFolder::putBackLeftOvers(place_);
}

void SplitPieces::refuse() {
  throw CannotWriteE(std::strerror(errno) + std::string("\nCan't write to file ") + pieces_.back().quoted());
}

}  // namespace tarnwick
