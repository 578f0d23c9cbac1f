#pragma once

#include <windows.h>

#include <utility>

namespace tarnwick::platform {

/// A handle of the system that closes itself.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE value) : value_(value == INVALID_HANDLE_VALUE ? nullptr : value) {}
  ~Handle() { close(); }
  Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) {
      close();
      value_ = std::exchange(other.value_, nullptr);
    }
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE get() const { return value_; }
  explicit operator bool() const { return value_ != nullptr; }
  void close() {
    if (value_ != nullptr) CloseHandle(std::exchange(value_, nullptr));
  }

 private:
  HANDLE value_ = nullptr;
};

}  // namespace tarnwick::platform
