#include "ui/WindowStack.h"

#include <wx/app.h>

namespace tarnwick::ui {

WindowStack::Place::Place(WindowStack& stack, wxWindow* window, End end)
    : stack_(stack), window_(window), end_(std::move(end)) {
  stack_.goOn();
  stack_.places_.push_back(this);
}

WindowStack::Place::~Place() {
  stack_.places_.remove(this);
  if (stack_.places_.empty() || !stack_.places_.back()->wished_) return;
  // The toolkit is still about to leave the inner window's loop: the next one is ended from the outer loop.
  wxTheApp->CallAfter([&stack = stack_] { stack.endInnermostIfWished(); });
}

void WindowStack::endAll() {
  ending_ = true;
  for (Place* const place : places_) place->wished_ = true;
  endInnermostIfWished();
}

void WindowStack::goOn() const {
  if (ending_) throw ProgramEnds();
}

void WindowStack::Place::wishEnd() {
  wished_ = true;
  stack_.endInnermostIfWished();
}

void WindowStack::endInnermostIfWished() {
  if (places_.empty()) return;
  Place& innermost = *places_.back();
  if (!innermost.wished_ || !innermost.end_) return;
  innermost.wished_ = false;
  innermost.end_();
}

wxWindow* WindowStack::parent() const {
  for (auto place = places_.rbegin(); place != places_.rend(); ++place) {
    if ((*place)->window_ && (*place)->window_->IsShown()) return (*place)->window_;
  }
  return nullptr;
}

}  // namespace tarnwick::ui
