#include "platform/win32/ChildJob.h"

namespace tarnwick::platform {

ChildJob::ChildJob(HANDLE process, bool endWithUs) : process_(process), job_(CreateJobObjectA(nullptr, nullptr)) {
  if (job_ && (!limit(endWithUs) || !AssignProcessToJobObject(job_.get(), process))) job_.close();
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

}  // namespace tarnwick::platform
