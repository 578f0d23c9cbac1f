#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnwick::test {

/// A folder of the house: the floor that it stands on, and the folders that it links.
struct Floor {
  int height = 0;
  std::string folder;
  std::vector<std::string> links;
};

/// The lowest first.
using Floors = std::vector<Floor>;

/// The table of the house, src/floors.txt.
Floors floorsOf(const std::string& table);

/// The result of reading all sources below one folder.
struct FloorReport {
  int files = 0;
  int includes = 0;  ///< of our own headers
  /// One line for each: "folder/File.cpp:12: what is wrong".
  std::vector<std::string> violations;
};

/// Reads the includes and conditional lines of all sources below `sourceFolder` and tells where they break the rules of
/// the house: an include goes down or stays in its folder, and reaches what its folder links; a link goes down and is
/// of use; files form no circle; the toolkit is included in ui/ and main.cpp alone; code outside platform/ and ui/ is
/// the same for every system; up to project/ only dialogs and the console's window open message boxes.
FloorReport inspectFloors(const std::filesystem::path& sourceFolder, const Floors& floors);

}  // namespace tarnwick::test
