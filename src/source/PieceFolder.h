#pragma once

#include "base/LastAct.h"

#include <cstdio>
#include <memory>
#include <set>
#include <string>

namespace tarnwick {

/// A folder of ours beside the pieces of a split source, "Tarnwick_split1.tmp" or the next free number. The pieces are
/// written here, and take their names beside the source only when all of them are whole. A file of the user's that
/// bears such a name waits here and gets its name back. A process that is killed leaves the folder, by which the next
/// one knows what to put back.
class PieceFolder {
 public:
  /// `place` is where the pieces are to stand, with its last separator or empty. Nothing is made yet.
  explicit PieceFolder(const std::string& place);
  /// Removes the pieces, and puts back what was in their way.
  ~PieceFolder();
  PieceFolder(const PieceFolder&) = delete;
  PieceFolder& operator=(const PieceFolder&) = delete;

  /// Makes an empty file for a piece, anew if it has been made before. Its path; empty on failure, with `errno`.
  std::string make(const std::string& name);
  /// Tells that the piece is written and closed. False with `errno`.
  bool finish(const std::string& name);
  /// Sets aside what bears the piece's name, and gives that name to the piece. False with `errno`.
  bool publish(const std::string& name);

  /// Puts back what killed processes have left in `place`: removes their pieces, and gives files of the user's their
  /// names again. Where such a name has been taken anew, the file comes back as "NAME.1.kept" or the next free number.
  static void putBackLeftOvers(const std::string& place);

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  using Lock = std::unique_ptr<std::FILE, CloseFile>;

  bool open();
  bool take(const std::string& folder);
  bool takeLeftOver(const std::string& folder);
  void putBack();
  void goAway();
  void removePiece(const std::string& name) const;
  void giveBack(const std::string& name) const;
  void removeFolder();
  std::string inner(const char* room, const std::string& name) const;

  std::string place_;
  std::string folder_;  ///< with its last separator; empty as long as there is none
  Lock lock_;           ///< tells other processes that the folder is in use
  std::set<std::string> made_;
  const LastAct lastAct_{[this] { goAway(); }};
};

}  // namespace tarnwick
