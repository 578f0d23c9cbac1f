#include "ui/MessageLooks.h"

namespace tarnwick::ui {

// A message box of Windows shows its sign anyway, and has one font for all.
MessageLooks::MessageLooks() {
  static_cast<void>(hook_);
}

MessageLooks::~MessageLooks() = default;

}  // namespace tarnwick::ui
