#pragma once

#include "support/TestProgram.h"

#include <string>

namespace tarnwick::test {

/// Data and configuration folders of a user who has nothing but what a test puts in. They count for processes that are
/// started from now on.
class XdgFolders {
 public:
  explicit XdgFolders(const std::string& folder);

  /// `name` without ".desktop"; `exec` is its command, `more` further lines.
  void addApplication(const std::string& name, const std::string& exec, const std::string& mimeTypes,
                      const std::string& more = "") const;
  /// Lines of "type=application.desktop".
  void setDefaults(const std::string& lines) const;

 private:
  std::string data_;
  std::string config_;
  ScopedEnvironment dataHome_;
  ScopedEnvironment dataFolders_;
  ScopedEnvironment configHome_;
  ScopedEnvironment configFolders_;
};

}  // namespace tarnwick::test
