#pragma once

#include "base/LastAct.h"
#include "base/Tarnwickfile.h"
#include "platform/FileHold.h"

#include <string>

namespace tarnwick {

/// A file in the configuration folder with a name that nobody else uses. The destructor deletes it.
class TempFile : public Tarnwickfile {
 public:
  /// `folder` is the configuration folder; it gets a separator at its end if it lacks one.
  TempFile(std::string prefix, std::string folder);
  ~TempFile() override;

  /// Opens the file, under a new name if it has none yet or its name cannot be opened. The search for a free name is a
  /// cheap lock between instances: a file of less than a day is taken to be in use. Throws FileNotOpenE.
  void openTemp(FileMode mode);

 private:
  void take(const std::string& candidate, FileMode mode);
  void remove();

  std::string prefix_;
  std::string folder_;
  platform::FileHold hold_;
  const LastAct lastAct_{[this] { remove(); }};
};

/// Deletes the temporary files that a process which was killed has left in the configuration folder.
void clearTempFiles(const std::string& folder);

}  // namespace tarnwick
