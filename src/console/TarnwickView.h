#pragma once

#include "console/ConsoleChild.h"
#include "console/ConsoleLooks.h"
#include "console/ConsoleProgram.h"
#include "console/ConsoleScreen.h"
#include "console/ConsoleSelection.h"
#include "console/ConsoleSurface.h"
#include "console/ConsoleWindowSearch.h"
#include "console/DebuggedRun.h"
#include "console/InputEditor.h"
#include "console/TarnwickDoc.h"
#include "console/TextSearch.h"
#include "console/TraceLink.h"
#include "dialogbase/Desktop.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// The text of a function key: group as the modifiers add up, 0 for F5 to 7 for F12.
using FunctionKeyLookup = std::function<std::string(int group, int index)>;

/// Hears how the text looked, and how it looks now that the user has changed that.
using LookListener = std::function<void(const TextLook& before, const TextLook& now)>;

/// Who gets what is typed.
enum class InputTarget { Debugger, Program };

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

  int childState() const { return child_->childState(); }
  const ConsoleWindowSearch& consoleSearch() const { return *consoleSearch_; }

  // What only a console has whose debugger stands beside its program.

  bool hasTwoInputs() const { return debugged_ != nullptr; }
  InputTarget inputTarget() const { return target_; }
  /// Whatever is typed goes there from now on. What stands in the line stays for whom it was typed, and comes back with
  /// the choice of that.
  void directInput(InputTarget target);
  /// The colour of what the target says, on the ground.
  Colour colourOf(InputTarget target) const;

  // What only the console of today has.

  bool ofToday() const { return screen_.today; }
  /// Asks for the text to look for, marks it wherever it stands and goes to the last place.
  void find();
  /// Goes to the next place, or back to the one before.
  void findNext(bool back);
  void copyAll();
  /// Lets the text go but for the line that is being written.
  void clear();
  void endInput();
  bool canEndInput() const { return childState() == 1 && !reader().inputEnded(); }
  /// Ends the program if the user, who is asked, wants that.
  void askToStop();
  bool canStop() const { return childState() == 1; }
  /// Starts the program again, once it has ended; what it has said stays.
  void runAgain();
  bool canRunAgain() const { return childState() == 0; }
  /// What opens the places of stack traces, on a click with the Control key.
  void openTracesBy(std::function<void(const TraceLink&)> open) { openTrace_ = std::move(open); }
  /// How the text looks from the start on, and what is told when the user changes that.
  void lookLike(const TextLook& look, LookListener changed);
  const TextLook& textLook() const { return look_; }
  /// Makes the letters larger by so many steps, or smaller.
  void stepLetters(int steps);
  bool canStepLetters(int steps) const;
  void useUsualLetters();
  /// Breaks long lines at the window's width, or leaves them whole.
  void setWrapLines(bool on);

  /// Closes the console's window.
  void closeWindow();

  void onStart(ConsoleSurface& surface) override;
  Colour ground() const override { return palette().ground; }
  void paint(ConsolePainter& painter) override;
  void onWake() override;
  void onResized() override;
  void onScrolled() override;
  bool onZoom(int steps) override;
  bool onKey(ConsoleKey key, int modifiers) override;
  void onCharacter(const std::string& character, int repeatCount) override;
  void onLeftDown(const MouseState& mouse) override;
  void onLeftUp(const MouseState& mouse) override;
  void onMouseMove(const MouseState& mouse) override;
  void onDoubleClick(const MouseState& mouse) override;
  void onRightDown(const MouseState& mouse) override;
  void onClose() override;

 private:
  static constexpr int continuePause = 100;

  /// What a refresh needs of the text, taken under the text lock and used without it.
  struct Snapshot {
    ConsoleChanges changes;
    int widestLine = 0;
    bool linesDropped = false;
    std::uint64_t linesGone = 0;
    std::string recordFailure;
    int rowCount = 0;  ///< of the broken lines; 0 where they are whole
  };

  /// What stands at the window's top: a line, counted from the first there ever was, the column with which its row
  /// begins, and how much of the row is out of sight.
  struct TopPlace {
    std::uint64_t line = 0;
    int column = 0;
    int pixels = 0;
  };

  /// The columns of a place in the line of this number, counted from the first there ever was.
  struct PointedPlace {
    std::uint64_t line = 0;
    ColumnRange columns;
    bool operator==(const PointedPlace&) const = default;
  };

  void showFound(const TextSearch::Hit& hit);
  std::optional<TraceLink> traceUnder(const Point& at, PointedPlace& place);
  /// Shows the place under the mouse as one that a click opens, if it is one.
  void pointAt(const MouseState& mouse);
  void pointAt(const std::optional<PointedPlace>& place);
  /// Of the underline, in each row that it is in; the caller holds the text lock.
  std::vector<Rect> underlinesOf(const PointedPlace& place) const;
  void openTraceUnder(const Point& at);
  const ConsolePalette& palette() const;
  void makeChild();
  void setLetters(int letters);
  void changeLook(const TextLook& look);
  /// Breaks the lines as it is wanted now; the caller holds the text lock.
  void breakLines();
  /// The rows or their cells have changed: the end stays in sight, or what was at the top.
  void layOutAnew(bool held, int leftColumn);
  /// Remembers what is at the top.
  void noteTop();
  /// Where that is now.
  int topAgain();
  Rect caretRect() const;
  void showTitle();
  /// True if the user has scrolled back, in a console that then holds still.
  bool holdsStill() const;
  /// A key that only the console of today knows. False if it is none.
  bool onTodaysKey(ConsoleKey key);
  Point heldPosition(const Point& position, std::uint64_t linesGone);
  /// Shows the end of the text from now on.
  void followAgain();
  void setClipboard(const std::string& text);
  /// Called by any thread.
  void wake();
  bool measure();
  Snapshot takeChanges();
  void apply(const Snapshot& snapshot);
  void follow(const Snapshot& snapshot);
  void followBroken(const Snapshot& snapshot);
  void invalidateTail(const ConsoleChanges& changes, const Point& position, const Point& client);
  /// The child that gets what is typed.
  ConsoleChild& reader() const;
  InputEditor& editor() { return editors_[static_cast<std::size_t>(target_)]; }
  void turnInput(InputTarget target);
  void turnBack();
  void closeChildren();
  void startChildren();
  void continueInput();
  void resumeInput();
  void appendInput(const std::string& text);
  void endChildsInput();
  void closeIfEnded();
  void clearSelection();
  void showHint();
  void hideHint();
  int startTimer(int milliseconds, std::function<void()> tick);
  void stopTimer(int& timer);
  /// The caller holds the text lock.
  ConsoleCell cellAt(const Point& at) const;
  ConsoleCell borderAt(const Point& at);

  Desktop& desktop_;
  FunctionKeyLookup functionKeys_;
  ConsoleScreen screen_;
  ConsoleSelection selection_{screen_.grid, &screen_.rows};
  ConsoleSurface* surface_ = nullptr;  ///< null before the start and after the close
  std::atomic<bool> wakePending_{false};
  ConsoleProgram program_;
  std::unique_ptr<ConsoleWindowSearch> consoleSearch_;
  std::unique_ptr<DebuggedRun> debugged_;
  std::unique_ptr<ConsoleChild> child_;  ///< it goes before the one above, which hears of it
  std::string shownTitle_;
  TextSearch search_;
  std::function<void(const TraceLink&)> openTrace_;
  std::optional<PointedPlace> pointed_;
  TextLook look_;
  TopPlace top_;
  LookListener lookChanged_;
  /// By `InputTarget`: one that reads the input alone gets what a debugger would.
  std::array<InputEditor, 2> editors_;
  InputTarget target_ = InputTarget::Debugger;
  /// What was begun for the other of the two.
  std::optional<ConsoleSegment> begunLine_;
  /// A command of the debugger's, by button or key, has turned the input for as long as it takes.
  bool turnsBack_ = false;

  int scrollColumns_ = 0;
  int scrollRows_ = 0;
  int followedTo_ = 0;  ///< where the end of the text was at the last refresh
  std::uint64_t goneAtRefresh_ = 0;
  bool hintVisible_ = false;
  int blinkTimer_ = 0;
  int continueTimer_ = 0;
  int hintTimer_ = 0;
};

/// What the user is told if the clipboard takes no text: with the system's reason, of which there may be too much.
std::string clipboardFailure(const std::string& reason);

}  // namespace tarnwick
