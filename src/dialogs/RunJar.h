#pragma once

#include "dialogs/JarDlg.h"

namespace tarnwick {

/// Runs the dialog "jar", and `jar` as it says; shows the log if the tool wrote anything, and opens the archive where
/// that is wanted. Shows failures itself. The session's switches are those that the dialog starts with, and then those
/// that it was run with.
void runJar(Settings& settings, JarSession& session);

}  // namespace tarnwick
