// What lies in a folder, the folders too.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// One name in a folder. Of a link it tells what that leads to.
struct FolderEntry {
  enum class Kind { File, Folder, Other };

  std::string name;
  Kind kind = Kind::Other;
  bool isLink = false;
  bool isHidden = false;
};

/// In no order; none if the folder can't be read.
std::vector<FolderEntry> entriesOf(const std::string& folder);

/// The same for all names, paths included, that are the same file name here.
std::string fileNameKey(const std::string& name);

}  // namespace tarnwick::platform
