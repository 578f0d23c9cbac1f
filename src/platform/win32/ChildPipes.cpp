#include "platform/win32/ChildPipes.h"

#include "platform/Process.h"

#include <algorithm>
#include <atomic>
#include <cstdio>

namespace tarnwick::platform {
namespace {

constexpr DWORD pipeSize = 65536;

SECURITY_ATTRIBUTES inheritable() {
  return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

}  // namespace

OutputPipe::OutputPipe(Handle& childEnd, HANDLE stopEvent) : stopEvent_(stopEvent) {
  // A named pipe, since only that can be read without getting stuck in the call.
  static std::atomic<unsigned> number{0};
  char name[80];
  std::snprintf(name, sizeof name, "\\\\.\\pipe\\tarnwick-%lu-%u", GetCurrentProcessId(), ++number);
  end_ = Handle(CreateNamedPipeA(name, PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
                                 PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, pipeSize, pipeSize, 0, nullptr));
  if (!end_) throw lastSystemError("CreatePipe()");
  auto security = inheritable();
  childEnd = Handle(CreateFileA(name, GENERIC_WRITE, 0, &security, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!childEnd) throw lastSystemError("CreatePipe()");
  readDone_ = Handle(CreateEventA(nullptr, TRUE, FALSE, nullptr));
  if (!readDone_) throw lastSystemError("CreatePipe()");
}

std::size_t OutputPipe::read(char* buffer, std::size_t size) {
  if (WaitForSingleObject(stopEvent_, 0) == WAIT_OBJECT_0) noteStop();
  bool ended = false;
  DWORD count = 0;
  // A child may write nothing at all in one call, which arrives as a read of 0 bytes and is no end.
  while (count == 0 && !ended) {
    const std::size_t wanted = std::min<std::size_t>(stopped_ ? std::min(size, remaining_) : size, pipeSize);
    if (wanted == 0) return 0;
    count = readOnce(buffer, static_cast<DWORD>(wanted), ended);
  }
  if (stopped_) remaining_ -= std::min<std::size_t>(remaining_, count);
  return count;
}

DWORD OutputPipe::readOnce(char* buffer, DWORD size, bool& ended) {
  OVERLAPPED operation{};
  operation.hEvent = readDone_.get();
  if (!ReadFile(end_.get(), buffer, size, nullptr, &operation) && GetLastError() != ERROR_IO_PENDING) {
    ended = true;
    return 0;
  }
  const HANDLE events[] = {readDone_.get(), stopEvent_};
  if (!stopped_ && WaitForMultipleObjects(2, events, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
    CancelIoEx(end_.get(), &operation);
  }
  DWORD count = 0;
  if (GetOverlappedResult(end_.get(), &operation, &count, TRUE)) return count;
  if (GetLastError() == ERROR_OPERATION_ABORTED) {
    noteStop();
  } else {
    ended = true;
  }
  return 0;
}

void OutputPipe::noteStop() {
  if (stopped_) return;
  // From here on only what lies in the pipe now: somebody who goes on writing must not keep us for ever.
  stopped_ = true;
  DWORD available = 0;
  if (PeekNamedPipe(end_.get(), nullptr, 0, nullptr, &available, nullptr)) remaining_ = available;
}

void makeInputPipe(Handle& ourEnd, Handle& childEnd) {
  auto security = inheritable();
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  if (!CreatePipe(&read, &write, &security, 0)) throw lastSystemError("CreatePipe()");
  childEnd = Handle(read);
  ourEnd = Handle(write);
  if (!SetHandleInformation(write, HANDLE_FLAG_INHERIT, 0)) throw lastSystemError("DuplicateHandle()");
}

Handle nothingToRead() {
  auto security = inheritable();
  return Handle(
      CreateFileA("NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &security, OPEN_EXISTING, 0, nullptr));
}

}  // namespace tarnwick::platform
