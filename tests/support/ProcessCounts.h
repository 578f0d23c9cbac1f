// What this process holds of the system.
#pragma once

namespace tarnwick::test {

/// Open files and other handles.
long openHandles();

/// Handles that the system itself keeps open with every console that this process has had and left: none on a system
/// without a fault. Tries it.
long handlesLostPerConsole();

/// Threads, this one included.
long runningThreads();

/// Children that have ended and that nobody has waited for; always 0 where there is no such thing.
long unreapedChildren();

/// The most memory that this process has held, in bytes; where the system can forget, since `forgetPeakMemory`.
long long peakMemory();
void forgetPeakMemory();

}  // namespace tarnwick::test
