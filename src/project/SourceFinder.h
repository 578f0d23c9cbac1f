#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace tarnwick {

/// What was found below a folder.
struct FoundFiles {
  /// They begin in the folder, with "/" between folders on every system. In no order.
  std::vector<std::string> names;
  bool isAll = true;  ///< false where there is so much that the search was given up
};

/// Finds files in a folder and in all folders below it, but for the hidden ones. Links to folders are followed, yet
/// each folder is looked into once, so no circle of links has an effect.
class SourceFinder {
 public:
  using Wanted = std::function<bool(const std::string& name)>;

  static constexpr std::size_t usualMost = 200000;

  /// `wanted` is asked for the name of each file, without its folder. `leftOut` is a folder that is not looked into; it
  /// may be empty.
  SourceFinder(const std::string& folder, Wanted wanted, const std::string& leftOut = "");

  /// Looks at no more than about so many names in all: a project may lie above half a disk.
  FoundFiles find(std::size_t mostNames = usualMost);

 private:
  struct Folder {
    std::string path;      ///< with its last separator
    std::string name;      ///< from where the search began, with "/" behind it; empty there
    std::string resolved;  ///< without links
  };

  void look(const Folder& folder);
  void enter(const Folder& above, const std::string& name, bool isLink);
  /// False for a link to what has been seen, or to a folder around the search's own.
  bool isNew(const std::string& resolved);

  std::string base_;
  Wanted wanted_;
  std::string leftOut_;
  FoundFiles found_;
  std::size_t looked_ = 0;
  std::vector<Folder> folders_;  ///< to be looked into
  std::vector<Folder> links_;    ///< likewise, later: what is a folder here as well goes by that name
  std::set<std::string> seen_;
};

}  // namespace tarnwick
