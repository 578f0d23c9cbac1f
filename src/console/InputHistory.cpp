#include "console/InputHistory.h"

namespace tarnwick {

void InputHistory::add(const std::string& text) {
  cursor_.reset();
  if (text == lastAdded_) return;
  if (lines_.size() >= capacity) lines_.pop_front();
  lines_.push_back(text);
  lastAdded_ = text;
}

const std::string& InputHistory::older() {
  if (!cursor_) {
    cursor_ = lines_.size() - 1;
  } else if (*cursor_ > 0) {
    --*cursor_;
  }
  return lines_[*cursor_];
}

std::string InputHistory::newer() {
  if (!cursor_) return {};
  if (*cursor_ + 1 < lines_.size()) ++*cursor_;
  return lines_[*cursor_];
}

}  // namespace tarnwick
