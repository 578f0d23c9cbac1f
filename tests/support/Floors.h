#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnwick::test {

/// The result of reading all sources below one folder.
struct FloorReport {
  int files = 0;
  int includes = 0;  ///< of our own headers
  /// One line for each: "folder/File.cpp:12: what is wrong".
  std::vector<std::string> violations;
};

/// Reads the includes and conditional lines of all sources below `sourceFolder` and tells where they break the rules of
/// the house: an include goes down or stays in its folder; files form no circle; the toolkit is included in ui/ and
/// main.cpp alone; code outside platform/ and ui/ is the same for every system.
FloorReport inspectFloors(const std::filesystem::path& sourceFolder);

}  // namespace tarnwick::test
