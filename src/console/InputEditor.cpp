#include "console/InputEditor.h"

#include "console/TextCells.h"
#include "platform/Characters.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

constexpr unsigned char firstPrintable = 32;
constexpr char endKey = '\x04';  // Ctrl+D
const char shownEndMark[] = "^Z";
const std::string noText;

int columnsOf(std::string_view text) {
  return static_cast<int>(platform::columnsOf(text));
}

/// True for what becomes part of the line. Only their exact codes are the keys that edit it: a byte that the console
/// merely classes as one of them is a letter.
bool isClassicCharacter(char byte) {
  const unsigned char code = platform::consoleClass(byte);
  const bool classedAsKey = code == '\b' || code == '\t' || code == '\r';
  return code >= firstPrintable || (classedAsKey && code != static_cast<unsigned char>(byte));
}

}  // namespace

InputEditor::InputEditor(ConsoleScreen& screen, std::function<void(std::string)> send, InputEnd end)
    : screen_(screen), send_(std::move(send)), end_(std::move(end)) {}

void InputEditor::dropPending() {
  pendingInput_.clear();
  handled_ = 0;
  endWanted_ = false;
}

InputEditor::Input InputEditor::input() const {
  const ConsoleLine& line = screen_.document.lastLine();
  const int column = screen_.caret.column();
  if (line.segments().empty()) return {KIND_NONE, noText, 0, line.length(), column - line.length()};
  const ConsoleSegment& last = line.segments().back();
  return {last.kind, last.text, last.columns, line.length(), column - (line.length() - last.columns)};
}

bool InputEditor::drain() {
  while (handled_ < pendingInput_.size()) {
    const char character = pendingInput_[handled_];
    if (isCharacter(character)) {
      // Neighbours together: one by one a pasted text would be moved about for each of its characters.
      typeText(takeCharacters());
      continue;
    }
    ++handled_;
    if (character == '\r') {
      typeReturn();
      pendingInput_.erase(0, handled_);
      handled_ = 0;
      return !pendingInput_.empty();
    }
    if (character == '\t') {
      typeTab();
    } else if (character == '\b') {
      typeBackspace();
    } else {
      typeControl(character);
    }
  }
  pendingInput_.clear();
  handled_ = 0;
  if (std::exchange(endWanted_, false)) {
    const Input last = input();
    if (last.typed() && !last.text.empty()) typeReturn();
    end_.send();
  }
  return false;
}

bool InputEditor::isCharacter(char byte) const {
  return screen_.today ? static_cast<unsigned char>(byte) >= firstPrintable : isClassicCharacter(byte);
}

std::string InputEditor::takeCharacters() {
  const std::size_t start = handled_;
  while (handled_ < pendingInput_.size() && isCharacter(pendingInput_[handled_])) ++handled_;
  return pendingInput_.substr(start, handled_ - start);
}

void InputEditor::typeText(const std::string& text) {
  const Input before = input();
  if (before.caretOnCharacter()) {
    std::string edited = before.text;
    edited.insert(byteAtColumn(before.text, before.columns, before.place), text);
    replaceInput(edited);
    screen_.caret.forward(columnsOf(text));
    return;
  }
  // A caret that Home has put on output does not make it input, and goes where the text goes.
  screen_.document.addText(text, KIND_INPUT);
  screen_.caret.forward(screen_.document.lastLineLength() - screen_.caret.column());
}

void InputEditor::replaceInput(const std::string& text) {
  endMarked_ = false;
  screen_.document.replaceInput(text);
}

void InputEditor::typeTab() {
  if (input().caretOnCharacter()) return;
  screen_.document.addText("\t", KIND_INPUT);
  const int length = screen_.document.lastLineLength();
  screen_.caret.setColumn(length);
  screen_.changes.ask(lineCount(), 0, length);
}

void InputEditor::typeReturn() {
  const Input before = input();
  if (endMarked_ && before.typed() && before.text == shownEndMark) {
    end_.send();
  } else if (before.typed() || before.kind == KIND_NONE) {
    history_.add(before.text);
    send_(before.text + '\n');
  } else {
    // Deliberate: a carriage return alone is what the classic console sends here. Whoever reads a line goes on waiting.
    send_(screen_.today ? "\n" : "\r");
  }
  endMarked_ = false;
  screen_.newLine();
  screen_.changes.ask(lineCount(), 0, 0);
}

void InputEditor::typeBackspace() {
  const Input before = input();
  if (!before.typed() || before.place < 0 || before.place > before.columns) return;
  const std::size_t end = byteAtColumn(before.text, before.columns, before.place);
  if (end == 0) return;
  const std::size_t start = previousCharacter(before.text, end);
  const int columns = columnsOf(std::string_view(before.text).substr(start, end - start));
  std::string edited = before.text;
  replaceInput(edited.erase(start, end - start));
  screen_.caret.back(columns);
  const int column = screen_.caret.column();
  screen_.changes.ask(lineCount(), std::max(column - 1, 0), column + 1);
}

void InputEditor::typeControl(char control) {
  const Input before = input();
  if (screen_.today && typeEnd(control, before)) return;
  if (before.typed()) {
    if (!before.text.empty()) send_(before.text);
    // The typed text is over: further typing begins a segment of its own.
    screen_.document.addText("", KIND_ERROR);
  }
  screen_.changes.ask(lineCount(), 0, screen_.document.lastLineLength());
  send_(std::string(1, control));
}

bool InputEditor::typeEnd(char control, const Input& before) {
  if (before.typed() && !before.text.empty()) return false;
  if (control == endKey) {
    end_.send();
    return true;
  }
  if (control != end_.mark || end_.mark == '\0') return false;
  typeText(shownEndMark);
  endMarked_ = true;
  return true;
}

void InputEditor::navigate(ConsoleKey key) {
  switch (key) {
    case ConsoleKey::End:
      return moveToEnd();
    case ConsoleKey::Home:
      return moveToStart();
    case ConsoleKey::Left:
      return moveLeft();
    case ConsoleKey::Right:
      return moveRight();
    case ConsoleKey::Delete:
      return removeCharacter();
    case ConsoleKey::Up:
      if (history_.count() > 0) showHistory(history_.older());
      return;
    case ConsoleKey::Down:
      if (history_.count() > 0) showHistory(history_.newer());
      return;
    default:
      return;
  }
}

void InputEditor::moveCaret(int column) {
  const int left = std::min(screen_.caret.column(), column);
  screen_.caret.setColumn(column);
  screen_.changes.ask(lineCount(), left, column);
}

void InputEditor::moveToEnd() {
  moveCaret(input().lineLength);
}

void InputEditor::moveToStart() {
  const Input before = input();
  if (before.kind != KIND_NONE) moveCaret(before.lineLength - before.columns);
}

void InputEditor::moveLeft() {
  const Input before = input();
  if (!before.typed() || before.place <= 0 || before.place > before.columns) return;
  std::size_t end = byteAtColumn(before.text, before.columns, before.place);
  int columns = 0;
  while (columns == 0 && end > 0) {
    const std::size_t start = previousCharacter(before.text, end);
    columns = columnsOf(std::string_view(before.text).substr(start, end - start));
    end = start;
  }
  screen_.caret.back(columns);
}

void InputEditor::moveRight() {
  const Input before = input();
  if (!before.typed() || screen_.caret.column() >= before.lineLength) return;
  int columns = 1;
  if (before.caretOnCharacter()) {
    const std::size_t start = byteAtColumn(before.text, before.columns, before.place);
    columns = columnsOf(std::string_view(before.text).substr(start, platform::characterLength(before.text, start)));
  }
  screen_.caret.forward(columns);
}

void InputEditor::removeCharacter() {
  const Input before = input();
  if (!before.caretOnCharacter()) return;
  const std::size_t start = byteAtColumn(before.text, before.columns, before.place);
  // The next border lies behind the marks that belong to the character.
  const std::size_t end = byteAtColumn(before.text, before.columns, before.place + 1);
  std::string edited = before.text;
  replaceInput(edited.erase(start, end - start));
  const int column = screen_.caret.column();
  screen_.changes.ask(lineCount(), column, column + 1);
}

void InputEditor::showHistory(const std::string& text) {
  endMarked_ = false;
  const ColumnRange range = screen_.document.replaceInput(text);
  const int left = std::min(screen_.caret.column(), range.start);
  screen_.caret.setColumn(range.end);
  screen_.changes.ask(lineCount(), left, range.end);
}

}  // namespace tarnwick
