#pragma once

#include "console/ConsoleChild.h"
#include "console/ConsoleProgram.h"
#include "console/ConsoleScreen.h"
#include "console/ConsoleSelection.h"
#include "console/ConsoleSurface.h"
#include "console/ConsoleWindowSearch.h"
#include "console/InputEditor.h"
#include "console/TarnwickDoc.h"
#include "dialogbase/Desktop.h"

#include <atomic>
#include <functional>
#include <string>

namespace tarnwick {

/// The text of a function key: group as the modifiers add up, 0 for F5 to 7 for F12.
using FunctionKeyLookup = std::function<std::string(int group, int index)>;

/// The console: shows the document, lets the user edit one input line at its end, and runs the child.
/// User-interface thread only.
class TarnwickView : public ConsoleSurfaceClient {
 public:
  /// The document and the desktop outlive the view.
  TarnwickView(TarnwickDoc& document, Desktop& desktop, ConsoleProgram program, FunctionKeyLookup functionKeys);
  ~TarnwickView() override;

  /// Makes the screen follow the text: the last of so many rows has changed between these columns.
  void refresh(int rows, int firstColumn, int lastColumn);

  /// Injects text as if it were typed. The two characters backslash and n mean Return.
  void sendKeys(const std::string& text);

  std::string selectedText();
  void selectAll();
  void copy();
  void paste();
  bool canCopy() const { return selection_.state() != ConsoleSelection::STATE_NONE; }
  bool canPaste() const { return desktop_.clipboardText().has_value(); }

  int childState() const { return child_.childState(); }
  const ConsoleWindowSearch& consoleSearch() const { return consoleSearch_; }

  /// Closes the console's window.
  void closeWindow();

  void onStart(ConsoleSurface& surface) override;
  void paint(ConsolePainter& painter) override;
  void onWake() override;
  void onResized() override;
  bool onKey(ConsoleKey key, int modifiers) override;
  void onCharacter(const std::string& character, int repeatCount) override;
  void onLeftDown(const MouseState& mouse) override;
  void onLeftUp(const MouseState& mouse) override;
  void onMouseMove(const MouseState& mouse) override;
  void onDoubleClick(const MouseState& mouse) override;
  void onRightDown(const MouseState& mouse) override;
  void onClose() override;

 private:
  /// What a refresh needs of the text, taken under the text lock and used without it.
  struct Snapshot {
    ConsoleChanges changes;
    int widestLine = 0;
    bool linesDropped = false;
    std::string recordFailure;
  };

  /// Called by any thread.
  void wake();
  bool measure();
  Snapshot takeChanges();
  void apply(const Snapshot& snapshot);
  void follow(const Snapshot& snapshot);
  void invalidateTail(const ConsoleChanges& changes, const Point& position, const Point& client);
  void continueInput();
  void resumeInput();
  void appendInput(const std::string& text);
  void closeIfEnded();
  void clearSelection();
  void showHint();
  void hideHint();
  int startTimer(int milliseconds, std::function<void()> tick);
  void stopTimer(int& timer);
  ConsoleCell cellAt(const Point& at) const;
  ConsoleCell borderAt(const Point& at);
  int widestLine();

  Desktop& desktop_;
  FunctionKeyLookup functionKeys_;
  ConsoleScreen screen_;
  ConsoleSelection selection_{screen_.grid};
  ConsoleSurface* surface_ = nullptr;  ///< null before the start and after the close
  std::atomic<bool> wakePending_{false};
  ConsoleWindowSearch consoleSearch_;
  ConsoleChild child_;
  InputEditor editor_;

  int scrollColumns_ = 0;
  int scrollRows_ = 0;
  int followedTo_ = 0;  ///< where the last refresh scrolled to, downwards
  bool hintVisible_ = false;
  int blinkTimer_ = 0;
  int continueTimer_ = 0;
  int hintTimer_ = 0;
};

/// What the user is told if the clipboard takes no text: with the system's reason, of which there may be too much.
std::string clipboardFailure(const std::string& reason);

}  // namespace tarnwick
