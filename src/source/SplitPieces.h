#pragma once

#include "base/Tarnwickfile.h"
#include "source/PieceFolder.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The temporary sources of a split, one for each type. They go away with this object, and a file of the user's that
/// bears the name of a piece is there again.
class SplitPieces {
 public:
  /// A piece took no more.
  struct CannotWriteE : Tarnwickexception {
    using Tarnwickexception::Tarnwickexception;
  };

  /// The pieces of this source; none is made yet.
  explicit SplitPieces(const Filename& source);
  SplitPieces(const SplitPieces&) = delete;
  SplitPieces& operator=(const SplitPieces&) = delete;

  /// Ends the piece that is being written and begins a new one with this text. Throws Tarnwickfile::FileNotOpenE and
  /// CannotWriteE.
  void begin(const std::string& fileName, std::string head);
  /// Adds a character. Throws CannotWriteE, also for every byte from 128 on.
  void put(char c);
  /// Closes the piece that is being written, if there is one. Throws CannotWriteE.
  void end();
  bool writing() const { return output_.has_value(); }

  /// Lets the pieces, which are whole, stand beside the source; a file that bears the name of one is set aside. Throws
  /// Tarnwickfile::FileNotOpenE.
  void publish();

  /// Puts back what a process that was killed during a split has left in the source's folder.
  void putBackLeftOvers() const;

 private:
  [[noreturn]] void refuse();

  Filename source_;
  std::string place_;  ///< the whole path: a tool run changes the current folder
  PieceFolder folder_;
  std::optional<Tarnwickfile> output_;
  std::vector<Filename> pieces_;
};

}  // namespace tarnwick
