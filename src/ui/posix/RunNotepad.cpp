#include "ui/posix/RunNotepad.h"

#include "ui/RunProgram.h"
#include "ui/posix/NotepadFrame.h"

namespace tarnwick::ui {

int runNotepad(int argc, char** argv, const std::string& path) {
  return runProgram(argc, argv, [&path](Desktop&, ConsoleFrameHost&) {
    NotepadFrame notepad;
    notepad.run(path);
    return 0;
  });
}

}  // namespace tarnwick::ui
