// How much of the machine a thread asks for.
#pragma once

namespace tarnwick::platform {

/// The calling thread gets the lowest priority that threads of a program ordinarily have, for the rest of its life; it
/// still runs when all others are busy. That it can't be had is no failure.
void lowerThreadPriority();

}  // namespace tarnwick::platform
