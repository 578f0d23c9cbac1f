#pragma once

#include <functional>

namespace tarnwick {

/// What an object would leave behind if the process ended without destroying it, as it has to where the window system
/// goes: the toolkit does not come back from that. The act is done once, by the thread that owns the object.
class LastAct {
 public:
  explicit LastAct(std::function<void()> act);
  ~LastAct();
  LastAct(const LastAct&) = delete;
  LastAct& operator=(const LastAct&) = delete;

  /// Does the acts of all objects that live, the youngest first. One that fails keeps none of the others from it.
  static void doAll();

 private:
  std::function<void()> act_;
};

}  // namespace tarnwick
