#pragma once

#include <string>

namespace tarnwick::test {

/// Runs all tests and closes with a line "N passed, N failed, N skipped".
int runTests(int argc, char** argv);

/// The folder of the stand-in JDK tools, with its last separator.
std::string standInFolder();

/// A fresh folder that goes away, with all in it, at the end of its life. Its name holds blanks and, where the
/// character set has them, letters beyond ASCII.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// With its last separator.
  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + name; }

 private:
  std::string path_;
};

/// The whole file as bytes; fails the test if it cannot be read.
std::string contentOf(const std::string& path);
/// Writes the file as bytes.
void writeFile(const std::string& path, const std::string& content);

/// Sets a variable of the environment for the length of a test.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const std::string& name, const std::string& value);
  ~ScopedEnvironment();

 private:
  std::string name_;
  std::string before_;
};

}  // namespace tarnwick::test
