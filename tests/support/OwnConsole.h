#pragma once

namespace tarnwick::test {

/// Gives up the console that the system has given to this program, where programs have such: then children get theirs
/// as they get them from a program of windows. What is written goes on to the file or pipe that it goes to; false, with
/// a word about it, where it would go nowhere.
bool leaveOwnConsole();

}  // namespace tarnwick::test
