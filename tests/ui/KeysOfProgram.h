#pragma once

namespace tarnwick::test {

/// Presses Return in the newest window of this process. A machine that is busy may have given the keyboard to nobody
/// when the window came, so it is taken first where the system allows that.
void pressReturn();

}  // namespace tarnwick::test
