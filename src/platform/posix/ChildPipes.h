#pragma once

#include "platform/posix/Descriptor.h"
#include "platform/posix/Event.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <utility>

namespace tarnwick::platform {

/// A pipe that no other child inherits.
struct Pipe {
  Descriptor read;
  Descriptor write;
};

/// Throws SystemError with the label "CreatePipe()".
Pipe makePipe();

/// What we read from one of the child's outputs, in a way that another thread can stop.
class OutputPipe {
 public:
  /// `stop` outlives the object.
  OutputPipe(Descriptor end, const Event& stop) : end_(std::move(end)), stop_(stop) {}

  /// 0 at the end, and after the stop when all is read that lay in the pipe then.
  std::size_t read(char* buffer, std::size_t size);

  /// How many bytes have come so far: those that were read, and those that lie in the pipe. Any thread.
  std::uint64_t arrived();

 private:
  std::size_t bytesInPipe() const;

  Descriptor end_;
  const Event& stop_;
  bool stopped_ = false;
  std::size_t remaining_ = 0;
  std::mutex takeLock_;  ///< while bytes go from the pipe to who reads
  std::uint64_t taken_ = 0;
};

/// Where we write the child's input, in a way that another thread can stop.
class InputPipe {
 public:
  /// `stop` outlives the object.
  InputPipe(Descriptor end, const Event& stop);

  /// Gives the count written, which falls short after the stop; -1 on failure.
  std::ptrdiff_t write(const char* bytes, std::size_t size);

  /// The child comes to the end of its input. Nothing may be written afterwards.
  void close() { end_.close(); }

 private:
  Descriptor end_;
  const Event& stop_;
};

}  // namespace tarnwick::platform
