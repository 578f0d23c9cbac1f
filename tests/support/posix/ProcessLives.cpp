#include "support/Children.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <string>

namespace tarnwick::test {

bool processLives(int process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  const std::string stat{std::istreambuf_iterator<char>(file), {}};
  const auto nameEnd = stat.rfind(')');
  return nameEnd != std::string::npos && stat.substr(nameEnd + 2, 1) != "Z";
}

void endProcess(int process) {
  if (processLives(process)) kill(process, SIGKILL);
}

}  // namespace tarnwick::test
