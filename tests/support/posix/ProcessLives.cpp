#include "support/Children.h"
#include "support/posix/ProcessTable.h"

#include <csignal>
#include <string>

namespace tarnwick::test {

bool processLives(int process) {
  const auto fields = processFields(std::to_string(process));
  return !fields.empty() && fields.front() != "Z";
}

void endProcess(int process) {
  if (processLives(process)) kill(process, SIGKILL);
}

}  // namespace tarnwick::test
