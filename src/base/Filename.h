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

  /// The path as it is.
  const std::string& fullName() const { return path_; }
  /// The path, in double quotes if a blank stands in it at a position above 0.
  std::string quoted() const;
  /// Drive and folder with the trailing separator; empty if there is neither.
  std::string directory() const;
  /// The same without its trailing separator; a separator alone stays.
  std::string directoryNoSlash() const;
  /// The two above with the rule of `quoted`.
  std::string quotedDirectory() const;
  std::string quotedDirectoryNoSlash() const;
  /// What stands behind the folder.
  std::string nameWithExtension() const;
  /// The same with the rule of `quoted`.
  std::string quotedNameWithExtension() const;
  /// The same in double quotes, whatever stands in it.
  std::string alwaysQuotedName() const;
  /// The name up to its last dot.
  std::string baseName() const;
  /// The same with the rule of `quoted`.
  std::string quotedBaseName() const;
  /// The name from its last dot on, dot included; empty if it has none.
  std::string extension() const;

 private:
  std::string path_;
};

}  // namespace tarnwick
