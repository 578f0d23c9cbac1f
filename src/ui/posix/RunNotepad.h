#pragma once

#include <string>

namespace tarnwick::ui {

/// The life of the editor's process: a file, or none with the empty text. Gives the exit code.
int runNotepad(int argc, char** argv, const std::string& path);

}  // namespace tarnwick::ui
