#pragma once

#include <memory>

namespace tarnwick::ui {

/// For as long as it lives, what was posted runs although one of the system's own dialogs has the event loop.
class NativeLoop {
 public:
  NativeLoop();
  ~NativeLoop();
  NativeLoop(const NativeLoop&) = delete;
  NativeLoop& operator=(const NativeLoop&) = delete;

 private:
  struct Pump;
  std::unique_ptr<Pump> pump_;
};

}  // namespace tarnwick::ui
