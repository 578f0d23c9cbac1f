#pragma once

#include "dialogs/JavadocDlg.h"

#include <string>

namespace tarnwick {

/// Runs the dialog "javadoc", and `javadoc` as it says; shows the log if the tool wrote anything. Shows failures
/// itself. `inputFiles` is the list of source files that the dialog starts with, and then the one that it was run with.
void runJavadoc(Settings& settings, std::string& inputFiles);

}  // namespace tarnwick
