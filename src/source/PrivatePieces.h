#pragma once

#include "base/Tarnwickexception.h"
#include "source/PieceFolder.h"
#include "source/TypePieces.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The pieces of a split source in a folder for us alone, where no file of the user's is in their way. They go away
/// with this object; of a process that was killed the next start clears them.
class PrivatePieces {
 public:
  /// `folder` is the configuration folder, with its last separator. Nothing is made yet.
  explicit PrivatePieces(const std::string& folder) : folder_(folder) {}

  /// True if none of them has the name of a piece that is here already.
  bool canTake(const std::vector<TypePiece>& pieces) const;
  /// Gives the paths of the files, in the order of the pieces. Throws Tarnwickfile::FileNotOpenE.
  std::vector<std::string> write(const std::vector<TypePiece>& pieces);

  /// Clears what killed processes have left in the configuration folder.
  static void clearLeftOvers(const std::string& folder) { PieceFolder::putBackLeftOvers(folder); }

 private:
  PieceFolder folder_;
  std::vector<std::string> names_;
};

}  // namespace tarnwick
