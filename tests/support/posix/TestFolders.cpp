#include "support/TestFolders.h"

#include <filesystem>

namespace tarnwick::test {

std::string temporaryFolder() {
  const auto folder = std::filesystem::temp_directory_path().string();
  return folder.back() == '/' ? folder : folder + '/';
}

bool removeTree(const std::string& folder) {
  std::error_code failure;
  std::filesystem::remove_all(folder, failure);
  return !failure;
}

}  // namespace tarnwick::test
