#include "console/HeldInput.h"

#include <algorithm>
#include <new>
#include <utility>

namespace tarnwick {

HeldInput::HeldInput(ConsoleScreen& screen) : screen_(screen) {
  if (!screen_.today) return;
  const int column = screen_.caret.column();
  input_ = screen_.document.takeInput();
  if (input_) place_ = std::clamp(column - screen_.document.lastLineLength(), 0, input_->columns);
}

HeldInput::~HeldInput() {
  try {
    giveBack();
  } catch (const std::bad_alloc&) {
    // What was typed is lost then, as is output for which there is no memory.
  }
}

void HeldInput::giveBack() {
  if (!input_) return;
  const int start = screen_.document.lastLineLength();
  screen_.document.giveInput(std::move(*input_));
  screen_.caret.setColumn(start + place_);
  screen_.changes.ask(screen_.document.lineCount(), 0, start + place_);
}

}  // namespace tarnwick
