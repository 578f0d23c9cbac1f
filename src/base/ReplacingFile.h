#pragma once

#include "base/Tarnwickfile.h"

#include <string>

namespace tarnwick {

/// A file that is being saved. What is written goes to a fresh file beside the target, and only `commit` puts it in the
/// target's place: a save that fails on the way leaves the target as it was. The name is the target's throughout.
class ReplacingFile : public Tarnwickfile {
 public:
  /// Opens for writing; makes the target's folder if it is missing. Where the folder takes no new file, or the target
  /// is no plain file, the target itself is written. Throws FileNotOpenE as opening the target for writing would.
  explicit ReplacingFile(const std::string& target);
  /// Without a commit, the fresh file goes and the target stays as it was.
  ~ReplacingFile() override;

  /// Brings all to the disk, closes, and puts the fresh file in the target's place. A target that is a link stays one.
  /// Throws FileNotOpenE with the system's reason.
  void commit();

  /// The stream is opened once, by the constructor.
  void open(FileMode mode) = delete;

 private:
  [[noreturn]] void fail(int reason);
  /// Opens the fresh file; false if the target itself is to be written.
  bool openFresh();

  std::string place_;  ///< the target with its links resolved
  std::string fresh_;  ///< empty when the target itself is written
};

}  // namespace tarnwick
