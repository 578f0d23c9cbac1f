#pragma once

#include <string>

namespace tarnwick {

/// One path, held without quotes. A path gets double quotes when it goes into a command line or a message, and then
/// only if a blank stands in it at a position above 0.
class Filename {
 public:
  Filename() = default;

  /// Removes white space at both ends and, if the rest begins with a double quote, its first and last characters.
  explicit Filename(const std::string& path);

  /// Joins a folder and a file, both cleaned in the same way; an empty folder adds nothing.
  Filename(const std::string& folder, const std::string& file);

  const std::string& fullName() const { return path_; }
  std::string quoted() const;
  /// Drive and folder with the trailing separator; empty if there is neither.
  std::string directory() const;
  std::string directoryNoSlash() const;
  std::string quotedDirectory() const;
  std::string quotedDirectoryNoSlash() const;
  std::string nameWithExtension() const;
  std::string quotedNameWithExtension() const;
  std::string alwaysQuotedName() const;
  std::string baseName() const;
  std::string quotedBaseName() const;
  /// With its leading dot.
  std::string extension() const;

 private:
  std::string path_;
};

}  // namespace tarnwick
