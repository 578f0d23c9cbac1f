#include "support/TestFolders.h"

#include <windows.h>

#include <filesystem>

namespace tarnwick::test {

std::string temporaryFolder() {
  char folder[MAX_PATH + 1] = "";
  GetTempPathA(sizeof folder, folder);
  return folder;
}

bool removeTree(const std::string& folder) {
  wchar_t wide[MAX_PATH] = L"";
  if (MultiByteToWideChar(CP_ACP, 0, folder.c_str(), -1, wide, MAX_PATH) == 0) return false;
  std::error_code failure;
  std::filesystem::remove_all(wide, failure);
  return !failure;
}

}  // namespace tarnwick::test
