#pragma once

#include <string>

namespace tarnwick::fuzz {

/// A file in memory with a path like any other, so that an input reaches code that opens files, thousands of times a
/// second and without leaving anything behind.
class MemoryFile {
 public:
  explicit MemoryFile(const std::string& content);
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  const std::string& path() const { return path_; }
  /// What stands in the file now, byte by byte.
  std::string content() const;

 private:
  int descriptor_;
  std::string path_;
};

}  // namespace tarnwick::fuzz
