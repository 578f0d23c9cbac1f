#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "ui/RunProgram.h"
#include "ui/WindowTest.h"

#include <cstdlib>
#include <string>

namespace {

using tarnwick::ConsoleFrameHost;
using tarnwick::Desktop;

int runAll(int argc, char** argv) {
  return tarnwick::ui::runProgram(argc, argv, [argc, argv](Desktop& desktop, ConsoleFrameHost&) {
    tarnwick::test::setDesktop(&dynamic_cast<tarnwick::ui::WxDesktop&>(desktop));
    return tarnwick::test::runTests(argc, argv);
  });
}

}  // namespace

int main(int argc, char** argv) {
  // "--exit-code 7" is a program of its own, for the tests of what a process gives back.
  if (argc == 3 && std::string(argv[1]) == "--exit-code") {
    const int code = std::atoi(argv[2]);
    return tarnwick::ui::runProgram(argc, argv, [code](Desktop&, ConsoleFrameHost&) { return code; });
  }
  return runAll(argc, argv);
}
