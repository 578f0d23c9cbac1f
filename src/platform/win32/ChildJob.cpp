#include "platform/win32/ChildJob.h"

#include <algorithm>

namespace tarnwick::platform {

ChildJob::ChildJob(HANDLE process)
    : process_(process),
      news_(CreateIoCompletionPort(INVALID_HANDLE_VALUE, nullptr, 0, 1)),
      job_(CreateJobObjectA(nullptr, nullptr)) {
  if (job_ && news_) {
    JOBOBJECT_ASSOCIATE_COMPLETION_PORT port{this, news_.get()};
    SetInformationJobObject(job_.get(), JobObjectAssociateCompletionPortInformation, &port, sizeof port);
  }
  if (job_ && (!limit(true) || !AssignProcessToJobObject(job_.get(), process))) job_.close();
}

bool ChildJob::limit(bool endWithUs) {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  if (endWithUs) limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  return SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits) != FALSE;
}

void ChildJob::release() {
  if (job_) limit(false);
  job_.close();
}

void ChildJob::endAll() {
  if (job_) {
    TerminateJobObject(job_.get(), 1);
  } else {
    TerminateProcess(process_, 1);
  }
}

bool ChildJob::waitUntilEmpty(std::chrono::milliseconds time) {
  using Clock = std::chrono::steady_clock;
  if (!job_ || !news_) return WaitForSingleObject(process_, static_cast<DWORD>(time.count())) == WAIT_OBJECT_0;
  const auto end = Clock::now() + time;
  for (auto now = Clock::now();; now = Clock::now()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(std::max(end - now, Clock::duration::zero()));
    DWORD news = 0;
    ULONG_PTR key = 0;
    OVERLAPPED* process = nullptr;
    if (!GetQueuedCompletionStatus(news_.get(), &news, &key, &process, static_cast<DWORD>(left.count()))) {
      if (GetLastError() == WAIT_TIMEOUT && Clock::now() < end) continue;
      return false;
    }
    if (news == JOB_OBJECT_MSG_ACTIVE_PROCESS_ZERO) return true;
  }
}

}  // namespace tarnwick::platform
