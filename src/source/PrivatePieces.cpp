#include "source/PrivatePieces.h"

#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tarnwick {

namespace {

[[noreturn]] void refuse(const TypePiece& piece) {
  throw Tarnwickfile::FileNotOpenE(std::strerror(errno), piece.fileName);
}

}  // namespace

bool PrivatePieces::canTake(const std::vector<TypePiece>& pieces) const {
  return std::none_of(pieces.begin(), pieces.end(), [this](const TypePiece& piece) {
    return std::any_of(names_.begin(), names_.end(),
                       [&](const auto& name) { return platform::sameFileName(name, piece.fileName); });
  });
}

std::vector<std::string> PrivatePieces::write(const std::vector<TypePiece>& pieces) {
  std::vector<std::string> paths;
  for (const auto& piece : pieces) {
    const std::string path = folder_.make(piece.fileName);
    if (path.empty()) refuse(piece);
    // As bytes: the text has its own line ends.
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(platform::openFile(path, "wb"), &std::fclose);
    if (!file) refuse(piece);
    const auto written = std::fwrite(piece.text.data(), 1, piece.text.size(), file.get());
    if (written != piece.text.size() || std::fflush(file.get()) != 0) refuse(piece);
    names_.push_back(piece.fileName);
    paths.push_back(path);
  }
  return paths;
}

}  // namespace tarnwick
