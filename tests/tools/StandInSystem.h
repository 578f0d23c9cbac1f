// What the stand-in tool needs of the operating system.
#pragma once

#include <string>

namespace tarnwick::test {

/// Lets bytes pass through the standard streams as they are.
void useBinaryStreams();

std::string workingFolder();

/// Whether this process has a console window; false where there are none.
bool hasConsoleWindow();

/// Starts this program once more with one argument; it keeps the standard streams. Gives its process number, 0 on
/// failure.
int startCopy(const std::string& argument);

/// The same, but as a stranger to this process: in a session of its own and without a parent, where there are such.
int startOrphan(const std::string& argument);

/// From here on a request to end runs this, on a thread of its own, and then ends the process. Once.
void onRequestToEnd(void (*work)());

}  // namespace tarnwick::test
