#include "console/OutputReader.h"

#include "console/HeldInput.h"
#include "platform/Characters.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

using TextBytes = std::array<bool, 256>;

TextBytes textBytesBy(bool (*isText)(char)) {
  TextBytes plain{};
  for (std::size_t code = 0; code < plain.size(); ++code) {
    plain[code] = isText(static_cast<char>(static_cast<unsigned char>(code)));
  }
  return plain;
}

/// Which bytes stay in the text; a table, since every byte of a flood is looked up.
const TextBytes& textBytes(bool today) {
  static const TextBytes classic = textBytesBy(platform::isConsoleText);
  static const TextBytes todays = textBytesBy(platform::isText);
  return today ? todays : classic;
}

}  // namespace

void OutputReader::begin() {
  const TextGuard guard(screen_.lock());
  const HeldInput input(screen_);
  screen_.newLine();
  show(1);
}

void OutputReader::handle(std::string_view block) {
  std::string joined;
  if (!cut_.empty()) {
    joined.swap(cut_);
    joined += block;
    block = joined;
  }
  const std::size_t tail = platform::unfinishedTail(block);
  cut_ = block.substr(block.size() - tail);
  block.remove_suffix(tail);

  const TextGuard guard(screen_.lock());
  const HeldInput input(screen_);
  high_ = 0;
  const TextBytes& plain = textBytes(screen_.today);
  std::size_t start = 0;
  for (std::size_t place = 0; place < block.size(); ++place) {
    if (sequence_.underWay() && sequence_.take(block[place])) {
      start = place + 1;
      continue;
    }
    if (plain[static_cast<unsigned char>(block[place])]) continue;
    add(block.substr(start, place - start));
    handleControl(block[place]);
    start = place + 1;
  }
  add(block.substr(start));
  show(1);
}

void OutputReader::end() {
  if (cut_.empty()) return;
  const TextGuard guard(screen_.lock());
  const HeldInput input(screen_);
  add(cut_);
  cut_.clear();
  show(1);
}

void OutputReader::add(std::string_view text) {
  if (text.empty()) return;
  makeRoom(text.size());
  const std::string valid = platform::validText(text);
  // A block that adds nothing leaves the caret where the user has put it.
  if (screen_.today) {
    high_ = std::max(high_, screen_.cursor.write(valid, kind_, sequence_.style()).end);
    screen_.caret.setColumn(screen_.document.lastLineLength());
  } else {
    high_ = std::max(high_, screen_.document.addText(valid, kind_).end);
    screen_.caret.setColumn(high_);
  }
}

void OutputReader::makeRoom(std::size_t bytes) {
  if (!screen_.document.isFull(bytes) || (screen_.today && !screen_.cursor.atEnd())) return;
  show(0);
  screen_.document.breakLine();
}

bool OutputReader::handleTerminal(char byte) {
  switch (byte) {
    case '\r':
      screen_.cursor.carriageReturn();
      return true;
    case '\b':
      screen_.cursor.backspace();
      return true;
    case '\f':
      show(0);
      screen_.cursor.formFeed(kind_);
      high_ = screen_.document.lastLineLength();
      screen_.caret.setColumn(high_);
      return true;
    case '\t':
      makeRoom(TarnwickDoc::tabWidth);
      screen_.cursor.tab(kind_, sequence_.style());
      high_ = std::max(high_, screen_.document.lastLineLength());
      screen_.caret.setColumn(high_);
      return true;
    case EscapeSequence::escape:
      sequence_.begin();
      return true;
    default:
      return false;
  }
}

void OutputReader::handleControl(char byte) {
  if (screen_.today && handleTerminal(byte)) return;
  switch (platform::consoleClass(byte)) {
    case '\n':
      show(0);
      screen_.document.addText("\n", kind_);
      screen_.caret.setColumn(0);
      break;
    case '\t':
      makeRoom(TarnwickDoc::tabWidth);
      high_ = std::max(high_, screen_.document.addText("\t", kind_).end);
      screen_.caret.setColumn(high_);
      break;
    case '\a':
      screen_.changes.beep = true;
      break;
    default:  // dropped, the carriage return included
      break;
  }
}

void OutputReader::show(int leastColumn) {
  screen_.changes.ask(screen_.document.lineCount(), 0, std::max(high_, leastColumn));
  high_ = 0;
}

}  // namespace tarnwick
