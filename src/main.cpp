#include "app/PrintedAnswer.h"
#include "app/TarnwickApp.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Terminal.h"
#include "ui/RunProgram.h"

int main(int argc, char** argv) {
  using namespace tarnwick;
  platform::prepareProcess();
  const std::string commandLine = platform::rawCommandLine(argc, argv);
  if (const auto answer = printedAnswer(commandLine, ProgramInfo())) return platform::writeToTerminal(*answer) ? 0 : 1;
  return ui::runProgram(argc, argv, [&commandLine](Desktop& desktop, ConsoleFrameHost& frameHost) {
    return TarnwickApp(desktop, frameHost, platform::executablePath()).run(commandLine);
  });
}
