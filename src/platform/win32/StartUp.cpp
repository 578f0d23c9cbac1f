#include "platform/win32/StartUp.h"

#include "platform/Process.h"

namespace tarnwick::platform {

StartUp::StartUp(HANDLE input, HANDLE output, HANDLE error) {
  record_.StartupInfo.cb = sizeof record_;
  record_.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  record_.StartupInfo.hStdInput = input;
  record_.StartupInfo.hStdOutput = output;
  record_.StartupInfo.hStdError = error;
  for (const HANDLE handle : {input, output, error}) {
    if (handle != nullptr) handles_.push_back(handle);
  }
  SIZE_T size = 0;
  InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
  memory_.resize(size);
  record_.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
  if (!InitializeProcThreadAttributeList(record_.lpAttributeList, 1, 0, &size)) throw lastSystemError("CreateProcess");
  if (inherits() && !UpdateProcThreadAttribute(record_.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST,
                                               handles_.data(), handles_.size() * sizeof(HANDLE), nullptr, nullptr)) {
    const SystemError failure = lastSystemError("CreateProcess");
    DeleteProcThreadAttributeList(record_.lpAttributeList);
    throw SystemError(failure);
  }
}

}  // namespace tarnwick::platform
