#pragma once

namespace tarnwick::platform {

/// Sends a signal to every process that descends from this one. Safe in a copy of a process with threads.
void signalDescendants(int signal);

}  // namespace tarnwick::platform
