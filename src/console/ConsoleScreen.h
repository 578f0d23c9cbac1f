#pragma once

#include "console/ConsoleCaret.h"
#include "console/ConsoleChanges.h"
#include "console/ConsoleGrid.h"
#include "console/TarnwickDoc.h"

namespace tarnwick {

/// All that the text lock guards: the text, its caret, and what of it the window has yet to be told.
struct ConsoleScreen {
  explicit ConsoleScreen(TarnwickDoc& text) : document(text), caret(text, grid, changes) {}
  ConsoleScreen(const ConsoleScreen&) = delete;
  ConsoleScreen& operator=(const ConsoleScreen&) = delete;

  TextLock& lock() { return document.textLock(); }
  /// Begins a line with the caret on it.
  void newLine() {
    document.newLine();
    caret.setColumn(0);
  }

  TarnwickDoc& document;
  ConsoleGrid grid;
  ConsoleChanges changes;
  ConsoleCaret caret;
};

}  // namespace tarnwick
