#include "support/TestProgram.h"

int main(int argc, char** argv) {
  return tarnwick::test::runTests(argc, argv);
}
