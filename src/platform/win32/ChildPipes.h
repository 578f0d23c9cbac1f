#pragma once

#include "platform/win32/Handle.h"
#include "platform/win32/StartChild.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

namespace tarnwick::platform {

/// Both ends of a pipe to a child, either of which a child may inherit. All empty where none could be made.
struct PipeEnds {
  Handle ours;
  Handle childs;
  Handle done;  ///< the event that our end's operations set
};

/// A pipe that the child writes to, and one that it reads from. A failure is noted as "CreatePipe()".
PipeEnds makeOutputPipe(StartCalls& calls, const StepFaults& faults);
PipeEnds makeInputPipe(StartCalls& calls, const StepFaults& faults);

/// Puts our end where no child inherits it. It is gone after a failure, which is noted as "DuplicateHandle()".
void makePrivate(PipeEnds& pipe, StartCalls& calls, const StepFaults& faults);

/// Our end of one of the child's outputs, read in a way that another thread can stop.
class OutputPipe {
 public:
  /// A pipe that is not there: it is at its end.
  OutputPipe() = default;
  /// Takes our end. `stopEvent` outlives the object.
  OutputPipe(PipeEnds& pipe, HANDLE stopEvent);

  /// 0 at the end, and after the stop when all is read that lay in the pipe then.
  std::size_t read(char* buffer, std::size_t size);

  /// How many bytes have come so far: those that were read, and those that lie in the pipe. Any thread.
  std::uint64_t arrived();

 private:
  /// A read on its way; it may have its bytes before its thread gets on.
  struct Taking {
    std::mutex lock;
    OVERLAPPED operation{};
    bool underWay = false;
    std::uint64_t taken = 0;
  };

  /// One read; 0 also if the stop came first.
  DWORD readOnce(char* buffer, DWORD size, bool& ended);
  bool beginRead(char* buffer, DWORD size);
  /// Gives the count.
  DWORD endRead(bool& ended);
  void noteStop();
  DWORD bytesInPipe() const;

  Handle end_;
  Handle readDone_;
  std::unique_ptr<Taking> taking_ = std::make_unique<Taking>();
  HANDLE stopEvent_ = nullptr;
  bool stopped_ = false;
  std::size_t remaining_ = 0;
};

/// Our end of the child's input, written in a way that another thread can stop.
class InputPipe {
 public:
  /// A pipe that is not there.
  InputPipe() = default;
  /// Takes our end. `stopEvent` outlives the object.
  InputPipe(PipeEnds& pipe, HANDLE stopEvent);

  /// Gives the count written, which falls short after the stop; -1 on failure.
  std::ptrdiff_t write(const char* bytes, std::size_t size);

  /// The child comes to the end of its input. Nothing may be written afterwards.
  void close() { end_ = Handle(); }

 private:
  Handle end_;
  Handle writeDone_;
  HANDLE stopEvent_ = nullptr;
};

/// A file with nothing in it, for a child that reads nothing.
Handle nothingToRead();

}  // namespace tarnwick::platform
