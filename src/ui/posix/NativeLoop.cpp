#include "ui/NativeLoop.h"

namespace tarnwick::ui {

// All dialogs run the same event loop here.
struct NativeLoop::Pump {};

NativeLoop::NativeLoop() = default;

NativeLoop::~NativeLoop() = default;

}  // namespace tarnwick::ui
