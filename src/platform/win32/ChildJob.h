#pragma once

#include "platform/win32/Handle.h"

#include <chrono>

namespace tarnwick::platform {

/// Holds a process and all that it starts, so that they can be ended together.
class ChildJob {
 public:
  /// The system ends them when our process ends, however that happens.
  /// Where there is no job to be had, only the process itself can be ended, by us.
  explicit ChildJob(HANDLE process);
  /// Lets them go their own way.
  ~ChildJob() { release(); }
  ChildJob(const ChildJob&) = delete;
  ChildJob& operator=(const ChildJob&) = delete;

  void release();
  void endAll();
  /// False if some of them still live after so long.
  bool waitUntilEmpty(std::chrono::milliseconds time);

 private:
  bool limit(bool endWithUs);

  HANDLE process_;
  Handle news_;  ///< where the system tells what becomes of the job; older than the job, and closed after it
  Handle job_;
};

}  // namespace tarnwick::platform
