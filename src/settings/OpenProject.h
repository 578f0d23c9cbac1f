#pragma once

#include <string>

namespace tarnwick {

class ProjectContext;

/// What the settings need of an open project.
class OpenProject {
 public:
  virtual ~OpenProject() = default;
  /// The project itself, for the floors that know projects; null for one that is none of theirs.
  virtual ProjectContext* context() { return nullptr; }
  /// Writes settings and project to the project's file.
  virtual void save() = 0;
  /// The base name of the project's file.
  virtual std::string name() const = 0;
  /// The path of the project's file, quoted if it holds a blank.
  virtual std::string quotedPath() const = 0;
};

}  // namespace tarnwick
