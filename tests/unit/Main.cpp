#include "support/OwnConsole.h"
#include "support/TestProgram.h"

int main(int argc, char** argv) {
  using namespace tarnwick::test;
  return leaveOwnConsole() ? runTests(argc, argv) : 2;
}
