#pragma once

namespace tarnwick::platform {

/// The C run-time's number for what the system has just refused.
int errnoOfLastError();

}  // namespace tarnwick::platform
