#pragma once

#include "base/Tarnwickfile.h"

#include <string>

namespace tarnwick {

/// A file that is being saved. What is written goes to a fresh file beside the target, "TARGET.tarnwick-1.tmp" or the
/// next free number, and only `commit` puts it in the target's place: a save that fails or is killed on the way leaves
/// the target as it was. A fresh file that a killed process has left is used by the next save. The name is the target's
/// throughout.
class ReplacingFile : public Tarnwickfile {
 public:
  /// Opens for writing; makes the target's folder if it is missing. Where that folder takes no new file the fresh one
  /// lies in the folder for temporary files; a target that is no plain file is written itself. Throws FileNotOpenE as
  /// opening the target for writing would, also for a name with a line end.
  explicit ReplacingFile(const std::string& target);
  /// The same for content whose bytes stay as they are.
  struct Bytes {};
  ReplacingFile(const std::string& target, Bytes);
  /// Without a commit, the fresh file goes and the target stays as it was.
  ~ReplacingFile() override;

  /// Brings all to the disk, puts the fresh file in the target's place, and closes. A target that is a link stays one.
  /// Only of a target that cannot be replaced (it belongs to somebody else, or its folder or another program refuses)
  /// is the content written over, in an instant. Throws FileNotOpenE with the system's reason.
  void commit();

  /// The stream is opened once, by the constructor.
  void open(FileMode mode) = delete;

 private:
  ReplacingFile(const std::string& target, const char* letters);
  [[noreturn]] void fail(int reason);
  /// Opens the fresh file; false if the target itself is to be written.
  bool openFresh(const char* letters);
  /// Opens the first of the numbered files with this beginning that is free. False with `errno`.
  bool openFreshAs(const std::string& base, const char* letters, bool ownerOnly);
  /// Lets the fresh file go, and closes.
  void discard();

  std::string place_;  ///< the target with its links resolved
  std::string fresh_;  ///< empty when the target itself is written
};

}  // namespace tarnwick
