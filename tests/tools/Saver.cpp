// Saves a configuration over and over, for tests that kill it or let two of it meet:
//
//   FOLDER a, FOLDER b     saves the one configuration, or the other, once
//   FOLDER COUNT           writes its process number on a line, then saves both in turn so many times; 0: without end
#include "SavingRun.h"

#include <cstdlib>

int main(int argc, char** argv) {
  tarnwick::platform::prepareProcess();
  if (argc != 3) return 1;
  const std::string what = argv[2];
  tarnwick::test::SavingRun run(argv[1]);
  if (what == "a" || what == "b") {
    run.save(what[0]);
    return 0;
  }
  std::cout << tarnwick::platform::processId() << std::endl;
  const long count = std::atol(what.c_str());
  for (long i = 0; count == 0 || i < count; ++i) run.save(i % 2 == 0 ? 'a' : 'b');
  return 0;
}
