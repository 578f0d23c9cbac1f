#pragma once

#include <string>
#include <vector>

namespace tarnwick {

class FileForSubprocess;
class Settings;

/// The arguments of an `appletviewer` run on an HTML file: of the tool itself, or of the second copy of the program
/// that runs it as a debugger's console.
std::vector<std::string> appletviewerArguments(const Settings& settings, const FileForSubprocess& file, bool debugging);

/// Runs `appletviewer` to its end and shows the log if it wrote anything; with `debugging` starts it in a console of
/// its own. Shows failures itself.
void runAppletviewer(Settings& settings, const FileForSubprocess& file, bool debugging);

}  // namespace tarnwick
