#pragma once

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "support/TestProgram.h"

#include <string>

namespace tarnwick::test {

/// A JDK whose one tool can be read, and not be started.
class BrokenTool {
 public:
  /// `folder` is made if need be, and ends in a separator.
  BrokenTool(const std::string& folder, const std::string& tool)
      : folder_(folder), path_(folder + platform::toolFileName(tool)) {
    platform::makeFolders(folder);
    writeFile(path_, "no program");
  }

  const std::string& folder() const { return folder_; }
  /// What the user is told of a run.
  std::string words() const {
    try {
      platform::ChildProcess::start({path_, "", false});
    } catch (const platform::SystemError& error) {
      return "Can't start " + path_ + '\n' + error.text();
    }
    return "it was started";
  }

 private:
  std::string folder_;
  std::string path_;
};

}  // namespace tarnwick::test
