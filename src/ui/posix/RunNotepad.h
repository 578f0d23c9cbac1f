#pragma once

namespace tarnwick::ui {

/// The life of the editor's process, whose arguments `notepadStart` tells of. Gives the exit code.
int runNotepad(int argc, char** argv);

}  // namespace tarnwick::ui
