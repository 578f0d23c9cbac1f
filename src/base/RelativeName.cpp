#include "base/RelativeName.h"

#include "base/Filename.h"
#include "platform/Path.h"

#include <algorithm>

namespace tarnwick {

namespace {

std::string withoutHere(std::string name) {
  const auto separates = [&name](std::size_t at) { return platform::endsInSeparator(name.substr(at, 1)); };
  while (name.size() > 2 && name.front() == '.' && separates(1)) {
    name.erase(0, 2);
    while (name.size() > 1 && separates(0)) name.erase(0, 1);
  }
  return name;
}

}  // namespace

bool leadsDown(const std::string& name) {
  const std::string plain = withoutHere(name);
  if (!platform::splitPath(plain).drive.empty() || platform::endsInSeparator(plain.substr(0, 1))) return false;
  for (Filename rest(plain); !rest.fullName().empty(); rest = Filename(rest.directoryNoSlash()))
    if (rest.nameWithExtension() == "..") return false;
  return true;
}

std::string relativeName(const std::string& name) {
  const Filename file(withoutHere(name));
  const std::string folder = file.directoryNoSlash();
  return (folder.empty() ? "" : relativeName(folder) + '/') + file.nameWithExtension();
}

std::string localName(std::string name) {
  std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
  return name;
}

}  // namespace tarnwick
