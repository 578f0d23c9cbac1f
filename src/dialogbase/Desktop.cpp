#include "dialogbase/Desktop.h"

#include "base/Text.h"

namespace tarnwick {

std::optional<std::string> Desktop::openFile(const FileRequest& request) {
  return checked(pickFile(request));
}

std::vector<std::string> Desktop::openFiles(const FileRequest& request) {
  auto paths = pickFiles(request);
  std::erase_if(paths, [this](const std::string& path) { return !takesName(path); });
  return paths;
}

std::optional<std::string> Desktop::saveFile(const FileRequest& request) {
  return checked(pickFileToSave(request));
}

std::optional<std::string> Desktop::browseFolder(const std::string& root) {
  return checked(pickFolder(root));
}

std::optional<std::string> Desktop::checked(std::optional<std::string> path) {
  return path && takesName(*path) ? path : std::nullopt;
}

bool Desktop::takesName(const std::string& path) {
  if (!holdsLineEnd(path)) return true;
  message("A name with a line end can't be used:\n" + onOneLine(path));
  return false;
}

}  // namespace tarnwick
