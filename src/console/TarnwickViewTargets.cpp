// A debugger beside its program: who gets what is typed.
#include "console/TarnwickView.h"

#include <utility>

namespace tarnwick {

ConsoleChild& TarnwickView::reader() const {
  return target_ == InputTarget::Program ? debugged_->program() : *child_;
}

void TarnwickView::directInput(InputTarget target) {
  if (!surface_ || !debugged_) return;
  turnsBack_ = false;
  turnInput(target);
}

Colour TarnwickView::colourOf(InputTarget target) const {
  return palette().of(target == InputTarget::Program ? KIND_OUTPUT : KIND_DEBUGGER).ink;
}

void TarnwickView::turnInput(InputTarget target) {
  if (target == target_) return surface_->showInputTarget();
  clearSelection();
  followAgain();
  {
    const TextGuard guard(screen_.lock());
    TarnwickDoc& document = screen_.document;
    auto begun = document.takeInput();
    if (begunLine_) document.giveInput(std::move(*begunLine_));
    begunLine_ = std::move(begun);
    screen_.caret.setColumn(document.lastLineLength());
    screen_.changes.everything = true;
    screen_.changes.ask(document.lineCount(), 0, document.lastLineLength());
  }
  target_ = target;
  surface_->showInputTarget();
  apply(takeChanges());
  if (!surface_ || !editor().hasPending()) return;
  // What waited for the other one's time to answer goes on.
  stopTimer(continueTimer_);
  continueTimer_ = startTimer(continuePause, [this] { resumeInput(); });
}

void TarnwickView::turnBack() {
  if (!surface_ || !turnsBack_) return;
  {
    const TextGuard guard(screen_.lock());
    int kind = KIND_NONE;
    const std::string* const last = screen_.document.lastSegment(kind);
    // A command that has been begun is completed first.
    if (last != nullptr && kind == KIND_INPUT && !last->empty()) return;
  }
  turnsBack_ = false;
  turnInput(InputTarget::Program);
}

}  // namespace tarnwick
