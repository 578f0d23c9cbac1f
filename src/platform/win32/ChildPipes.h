#pragma once

#include "platform/win32/Handle.h"

#include <cstddef>

namespace tarnwick::platform {

/// Our end of one of the child's outputs, read in a way that another thread can stop.
class OutputPipe {
 public:
  /// Makes the pipe; the child's end, which it may inherit, goes to `childEnd`. `stopEvent` outlives the object.
  /// Throws SystemError with the label "CreatePipe()".
  OutputPipe(Handle& childEnd, HANDLE stopEvent);

  /// 0 at the end, and after the stop when all is read that lay in the pipe then.
  std::size_t read(char* buffer, std::size_t size);

 private:
  /// One read; 0 also if the stop came first.
  DWORD readOnce(char* buffer, DWORD size, bool& ended);
  void noteStop();

  Handle end_;
  Handle readDone_;
  HANDLE stopEvent_;
  bool stopped_ = false;
  std::size_t remaining_ = 0;
};

/// Our end of the child's input, written in a way that another thread can stop.
class InputPipe {
 public:
  /// A pipe that is not there.
  InputPipe() = default;
  /// Makes the pipe; the child's end, which it may inherit, goes to `childEnd`. `stopEvent` outlives the object.
  /// Throws SystemError with the label "CreatePipe()".
  InputPipe(Handle& childEnd, HANDLE stopEvent);

  /// Gives the count written, which falls short after the stop; -1 on failure.
  std::ptrdiff_t write(const char* bytes, std::size_t size);

 private:
  Handle end_;
  Handle writeDone_;
  HANDLE stopEvent_ = nullptr;
};

/// A file with nothing in it, for a child that reads nothing.
Handle nothingToRead();

}  // namespace tarnwick::platform
