// What priority a thread has, in the system's own measure.
#pragma once

namespace tarnwick::test {

/// Of the calling thread.
int threadPriority();
/// The lowest that threads of a program ordinarily have.
int lowestThreadPriority();

}  // namespace tarnwick::test
