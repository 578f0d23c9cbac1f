#include "platform/win32/ChildPipes.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <utility>

namespace tarnwick::platform {
namespace {

constexpr DWORD pipeSize = 65536;

SECURITY_ATTRIBUTES inheritable() {
  return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

/// A named pipe, since only that can be used without getting stuck in a call. `access` is our side's, `childAccess`
/// the other's.
PipeEnds makePipe(DWORD access, DWORD childAccess, StartCalls& calls, const StepFaults& faults) {
  static std::atomic<unsigned> number{0};
  char name[80];
  std::snprintf(name, sizeof name, "\\\\.\\pipe\\tarnwick-%lu-%u", GetCurrentProcessId(), ++number);
  auto security = inheritable();
  PipeEnds pipe;
  pipe.ours = Handle(calls.createPipe(name, access, security));
  if (pipe.ours) {
    pipe.childs = Handle(CreateFileA(name, childAccess, 0, &security, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  }
  if (pipe.childs) pipe.done = Handle(CreateEventA(nullptr, TRUE, FALSE, nullptr));
  if (pipe.done) return pipe;
  faults.note("CreatePipe()");
  return {};
}

}  // namespace

HANDLE StartCalls::createPipe(const char* name, DWORD access, SECURITY_ATTRIBUTES& security) {
  return CreateNamedPipeA(name, access | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
                          PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, pipeSize, pipeSize, 0, &security);
}

PipeEnds makeOutputPipe(StartCalls& calls, const StepFaults& faults) {
  return makePipe(PIPE_ACCESS_INBOUND, GENERIC_WRITE, calls, faults);
}

PipeEnds makeInputPipe(StartCalls& calls, const StepFaults& faults) {
  return makePipe(PIPE_ACCESS_OUTBOUND, GENERIC_READ, calls, faults);
}

void makePrivate(PipeEnds& pipe, StartCalls& calls, const StepFaults& faults) {
  if (!pipe.ours) return;
  HANDLE copy = nullptr;
  if (!calls.duplicateHandle(pipe.ours.get(), copy)) {
    faults.note("DuplicateHandle()");
    copy = nullptr;
  }
  pipe.ours = Handle(copy);
}

OutputPipe::OutputPipe(PipeEnds& pipe, HANDLE stopEvent)
    : end_(std::move(pipe.ours)), readDone_(std::move(pipe.done)), stopEvent_(stopEvent) {}

std::size_t OutputPipe::read(char* buffer, std::size_t size) {
  if (!end_) return 0;
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
  if (!beginRead(buffer, size)) {
    ended = true;
    return 0;
  }
  const HANDLE events[] = {readDone_.get(), stopEvent_};
  if (!stopped_ && WaitForMultipleObjects(2, events, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
    CancelIoEx(end_.get(), &taking_->operation);
  }
  return endRead(ended);
}

bool OutputPipe::beginRead(char* buffer, DWORD size) {
  const std::lock_guard lock(taking_->lock);
  taking_->operation = {};
  taking_->operation.hEvent = readDone_.get();
  taking_->underWay =
      ReadFile(end_.get(), buffer, size, nullptr, &taking_->operation) != FALSE || GetLastError() == ERROR_IO_PENDING;
  return taking_->underWay;
}

DWORD OutputPipe::endRead(bool& ended) {
  DWORD count = 0;
  const bool done = GetOverlappedResult(end_.get(), &taking_->operation, &count, TRUE) != FALSE;
  const bool cancelled = !done && GetLastError() == ERROR_OPERATION_ABORTED;
  {
    const std::lock_guard lock(taking_->lock);
    taking_->underWay = false;
    if (done) taking_->taken += count;
  }
  if (done) return count;
  if (cancelled) {
    noteStop();
  } else {
    ended = true;
  }
  return 0;
}

std::uint64_t OutputPipe::arrived() {
  const std::lock_guard lock(taking_->lock);
  std::uint64_t count = taking_->taken;
  if (taking_->underWay && HasOverlappedIoCompleted(&taking_->operation)) count += taking_->operation.InternalHigh;
  return count + bytesInPipe();
}

DWORD OutputPipe::bytesInPipe() const {
  DWORD available = 0;
  return end_ && PeekNamedPipe(end_.get(), nullptr, 0, nullptr, &available, nullptr) ? available : 0;
}

void OutputPipe::noteStop() {
  if (stopped_) return;
  // From here on only what lies in the pipe now: somebody who goes on writing must not keep us for ever.
  stopped_ = true;
  remaining_ = bytesInPipe();
}

InputPipe::InputPipe(PipeEnds& pipe, HANDLE stopEvent)
    : end_(std::move(pipe.ours)), writeDone_(std::move(pipe.done)), stopEvent_(stopEvent) {}

std::ptrdiff_t InputPipe::write(const char* bytes, std::size_t size) {
  if (!end_) return -1;
  std::size_t written = 0;
  while (written < size && WaitForSingleObject(stopEvent_, 0) != WAIT_OBJECT_0) {
    OVERLAPPED operation{};
    operation.hEvent = writeDone_.get();
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(size - written, pipeSize));
    if (!WriteFile(end_.get(), bytes + written, wanted, nullptr, &operation) && GetLastError() != ERROR_IO_PENDING) {
      return -1;
    }
    const HANDLE events[] = {writeDone_.get(), stopEvent_};
    if (WaitForMultipleObjects(2, events, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) CancelIoEx(end_.get(), &operation);
    DWORD count = 0;
    const bool done = GetOverlappedResult(end_.get(), &operation, &count, TRUE) != FALSE;
    if (!done && GetLastError() != ERROR_OPERATION_ABORTED) return -1;
    written += count;
  }
  return static_cast<std::ptrdiff_t>(written);
}

Handle nothingToRead() {
  auto security = inheritable();
  return Handle(
      CreateFileA("NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &security, OPEN_EXISTING, 0, nullptr));
}

}  // namespace tarnwick::platform
