#pragma once

#include "support/ScriptedDesktop.h"

#include <string>

namespace tarnwick::test {

/// A window whose fields take 40 characters, and drop the rest without a word as the system's do at some length.
struct NarrowWindow : ScriptedWindow {
  using ScriptedWindow::ScriptedWindow;
  void setText(int control, const std::string& text) override { ScriptedWindow::setText(control, text.substr(0, 40)); }
};

}  // namespace tarnwick::test
