#pragma once

namespace tarnwick {

/// The numbers of the two buttons that every system knows.
enum StandardControl { IDOK_CONTROL = 1, IDCANCEL_CONTROL = 2 };

}  // namespace tarnwick
