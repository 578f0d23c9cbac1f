#pragma once

#include <memory>
#include <string>

namespace tarnwick::platform {

/// Marks a file as one that this process uses. The mark goes with the object, and with the process, however that ends.
class FileHold {
 public:
  /// Holds nothing.
  FileHold();
  /// Holds nothing if the file can't be opened.
  explicit FileHold(const std::string& path);
  ~FileHold();
  FileHold(FileHold&&) noexcept;
  FileHold& operator=(FileHold&&) noexcept;
  FileHold(const FileHold&) = delete;
  FileHold& operator=(const FileHold&) = delete;

 private:
  struct Mark;
  std::unique_ptr<Mark> mark_;
};

/// Deletes a file that no living process holds; leaves all of them where the file system knows no such marks. On Linux
/// only a plain file of this user's, under no second name.
void deleteUnheld(const std::string& path);

}  // namespace tarnwick::platform
