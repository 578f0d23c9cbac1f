#include "support/posix/ProcessTable.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace tarnwick::test {

std::vector<std::string> processFields(const std::string& process) {
  std::ifstream file("/proc/" + process + "/stat");
  std::string stat;
  // Not by the stream's buffer: that one throws when the process ends between opening and reading.
  std::getline(file, stat, '\0');
  const auto nameEnd = stat.rfind(')');
  if (nameEnd == std::string::npos) return {};
  std::istringstream rest(stat.substr(nameEnd + 2));
  return {std::istream_iterator<std::string>(rest), {}};
}

}  // namespace tarnwick::test
