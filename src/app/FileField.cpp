#include "app/FileField.h"

#include "base/FileForSubprocess.h"
#include "dialogbase/DialogWindow.h"

namespace tarnwick {

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

}  // namespace tarnwick
