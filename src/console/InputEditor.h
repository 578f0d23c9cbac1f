#pragma once

#include "console/ConsoleScreen.h"
#include "console/InputHistory.h"
#include "platform/Terminal.h"

#include <cstddef>
#include <functional>
#include <string>

namespace tarnwick {

/// How a console of today ends its program's input.
struct InputEnd {
  std::function<void()> send = [] {};
  /// Ends it as a line of its own, 0 if none does.
  char mark = platform::endOfInputMark;
};

/// Edits what the user types at the end of the text. All that acts as typing goes through `pendingInput`.
/// The caller holds the text lock.
class InputEditor {
 public:
  /// `send` gets what goes to the child's standard input, one write a call.
  InputEditor(ConsoleScreen& screen, std::function<void(std::string)> send, InputEnd end = {});

  void append(const std::string& text) { pendingInput_ += text; }
  /// Ends the input once all that has been appended is worked off; a line that has no Return yet goes before that.
  void endInput() { endWanted_ = true; }
  /// True if something waits that has been appended.
  bool hasPending() const { return handled_ < pendingInput_.size() || endWanted_; }
  /// Forgets what has been appended and not worked off.
  void dropPending();

  /// Works the pending characters off, up to a Return. True if more of them wait behind that.
  bool drain();

  /// The keys of the navigation block.
  void navigate(ConsoleKey key);

 private:
  /// The last segment of the last line, and the caret's place in it in columns: below 0 or beyond the segment if the
  /// caret stands elsewhere.
  struct Input {
    int kind = KIND_NONE;
    const std::string& text;
    int columns = 0;
    int lineLength = 0;
    int place = 0;
    bool typed() const { return kind == KIND_INPUT; }
    bool caretOnCharacter() const { return typed() && place >= 0 && place < columns; }
  };

  Input input() const;
  int lineCount() const { return screen_.document.lineCount(); }
  bool isCharacter(char byte) const;
  std::string takeCharacters();
  void typeText(const std::string& text);
  void typeTab();
  void typeReturn();
  void typeBackspace();
  void typeControl(char control);
  /// False if the character has nothing to do with the end of the input, or not where it is typed.
  bool typeEnd(char control, const Input& before);
  void replaceInput(const std::string& text);

  void moveToEnd();
  void moveToStart();
  void moveLeft();
  void moveRight();
  void removeCharacter();
  void showHistory(const std::string& text);
  void moveCaret(int column);

  ConsoleScreen& screen_;
  std::function<void(std::string)> send_;
  InputEnd end_;
  /// What stands in the input is the mark that ends it, as the key has typed it.
  bool endMarked_ = false;
  InputHistory history_;
  std::string pendingInput_;
  std::size_t handled_ = 0;  ///< of `pendingInput_`
  bool endWanted_ = false;
};

}  // namespace tarnwick
