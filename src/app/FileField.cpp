#include "app/FileField.h"

#include "base/FileForSubprocess.h"
#include "base/TokenString.h"
#include "dialogbase/DialogWindow.h"
#include "settings/LastNames.h"

#include <cstddef>

namespace tarnwick {

namespace {

constexpr std::size_t mostFiles = 10;

}  // namespace

void FileField::bind(DialogWindow* window, int control) {
  window_ = window;
  control_ = control;
}

void FileField::read() {
  if (window_) file_.takeTyped(window_->text(control_));
}

void FileField::write() {
  write(file_.name().quoted());
}

void FileField::write(const std::string& text) {
  if (window_) window_->setText(control_, text);
}

void FileField::offer() {
  if (window_) window_->setEntries(control_, firstNames(last_, mostFiles));
}

void FileField::remember() {
  putNameFirst(last_, file_.name().fullName(), mostFiles);
  offer();
}

void FileField::takeChosen() {
  const auto names = firstNames(last_, mostFiles);
  const int chosen = window_ ? window_->selection(control_) : -1;
  if (chosen < 0 || static_cast<std::size_t>(chosen) >= names.size()) return;
  file_.setName(names[static_cast<std::size_t>(chosen)]);
  write();
}

}  // namespace tarnwick
