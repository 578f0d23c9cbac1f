#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// What a class file tells of itself.
struct ClassFile {
  /// The packages from the outermost on, and last the class's own name ("Outer$Inner" for a member). Bytes as in the
  /// file: UTF-8 but for what lies beyond the basic plane.
  std::vector<std::string> name;
  int javaVersion = 0;  ///< the first version of Java that runs it: 8, 17, 25

  /// The parts with dots between them.
  std::string fullName() const;
};

/// Reads as far as the class's name. Nothing if the file is none of classes, is cut, or can't be read; nor for what is
/// no regular file.
std::optional<ClassFile> readClassFile(const std::string& path);

/// The same for the version alone, from the first eight bytes.
std::optional<int> classFileVersion(const std::string& path);

}  // namespace tarnwick
