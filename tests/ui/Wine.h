#pragma once

namespace tarnwick::test {

/// Whether the system is Wine, whose controls differ from Windows' here and there.
bool runsUnderWine();

}  // namespace tarnwick::test
