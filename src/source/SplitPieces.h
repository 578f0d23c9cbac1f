#pragma once

#include "base/Tarnwickfile.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The temporary sources of a split, one for each type, beside the source itself. They go away with this object, and
/// so does a file of the user's that bore the name of a piece.
class SplitPieces {
 public:
  /// A piece took no more.
  struct CannotWriteE : Tarnwickexception {
    using Tarnwickexception::Tarnwickexception;
  };

  /// The pieces of this source; none is made yet.
  explicit SplitPieces(const Filename& source);
  ~SplitPieces();
  SplitPieces(const SplitPieces&) = delete;
  SplitPieces& operator=(const SplitPieces&) = delete;

  /// Ends the piece that is being written and begins a new one with this text; a file of that name is overwritten.
  /// Throws Tarnwickfile::FileNotOpenE and CannotWriteE.
  void begin(const std::string& fileName, std::string head);
  /// Adds a character. Throws CannotWriteE, also for every byte from 128 on.
  void put(char c);
  /// Closes the piece that is being written, if there is one. Throws CannotWriteE.
  void end();
  bool writing() const { return output_.has_value(); }

 private:
  [[noreturn]] void refuse();

  Filename source_;
  std::optional<Tarnwickfile> output_;
  std::vector<std::string> made_;  ///< with their whole paths: a tool run changes the current folder
};

}  // namespace tarnwick
