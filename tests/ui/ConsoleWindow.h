// What the tests of the console's window share.
#pragma once

#include "ui/FakeConsole.h"
#include "ui/WindowTest.h"
#include "ui/WxConsoleSurface.h"

#include <wx/frame.h>

#include <string>

namespace tarnwick::test {

/// A console's window whose rules write down what they hear.
class ConsoleTest : public WindowTest {
 protected:
  void play() { desktop().runConsoleFrame(console); }

  void waitForFrame() {
    steps.until("the frame shows", [this] {
      const bool there = console.paints > 0 && wxWindow::FindFocus() == window();
      if (there) console.heard.clear();
      return there;
    });
  }

  void thenClose() {
    steps.then("close", [this] {
      console.heard.clear();
      console.surface->close();
    });
  }

  void press(int code, int modifiers = 0) {
    steps.then("key " + std::to_string(code), [code, modifiers] { key(code, modifiers); });
    steps.settle();
  }

  void thenExpect(const Heard& heard) {
    steps.settle();
    steps.then("look", [this, heard] {
      EXPECT_EQ(console.heard, heard);
      console.heard.clear();
    });
  }

  wxWindow* window() const { return dynamic_cast<ui::WxConsoleSurface*>(console.surface); }
  /// Null before its first time.
  wxWindow* hint() const {
    for (wxWindow* child : window()->GetChildren()) {
      if (child->IsTopLevel() || child->IsShown()) return child;
    }
    return nullptr;
  }
  wxFrame* frame() const { return dynamic_cast<wxFrame*>(wxGetTopLevelParent(window())); }

  FakeConsole console;
};

}  // namespace tarnwick::test
