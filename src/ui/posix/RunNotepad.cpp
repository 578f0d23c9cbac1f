#include "ui/posix/RunNotepad.h"

#include "ui/RunProgram.h"
#include "ui/posix/NotepadFrame.h"

#include <algorithm>

namespace tarnwick::ui {

int runNotepad(int argc, char** argv) {
  const NotepadStart start = notepadStart({argv + std::min(argc, 1), argv + argc});
  return runProgram(argc, argv, [&start](Desktop&, ConsoleFrameHost&) {
    NotepadFrame notepad;
    notepad.run(start);
    return 0;
  });
}

}  // namespace tarnwick::ui
