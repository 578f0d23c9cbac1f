#pragma once

#include "console/ConsoleCaret.h"
#include "console/ConsoleChanges.h"
#include "console/ConsoleGrid.h"
#include "console/LineRows.h"
#include "console/TarnwickDoc.h"
#include "console/TerminalCursor.h"

namespace tarnwick {

/// All that the text lock guards: the text, its caret, and what of it the window has yet to be told.
struct ConsoleScreen {
  explicit ConsoleScreen(TarnwickDoc& text, bool ofToday = false)
      : today(ofToday), document(text), rows(text), cursor(text), caret(text, grid, changes) {}
  ConsoleScreen(const ConsoleScreen&) = delete;
  ConsoleScreen& operator=(const ConsoleScreen&) = delete;

  TextLock& lock() { return document.textLock(); }
  /// Begins a line with the caret on it.
  void newLine() {
    document.newLine();
    caret.setColumn(0);
  }

  /// The console of today rather than the classic one: what is typed stays together, and is sent as it is seen.
  const bool today;
  TarnwickDoc& document;
  LineRows rows;
  TerminalCursor cursor;  ///< only in the console of today
  ConsoleGrid grid;
  ConsoleChanges changes;
  ConsoleCaret caret;
};

}  // namespace tarnwick
