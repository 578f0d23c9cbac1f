#include "ui/MessageBoxes.h"

#include "base/Tarnwickexception.h"
#include "ui/NativeLoop.h"
#include "ui/Text.h"

#include <wx/msgdlg.h>

#include <exception>

namespace tarnwick::ui {

namespace {

long styleOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::OkCancel:
      return wxOK | wxCANCEL | wxICON_QUESTION;
    case MessageKind::YesNo:
      return wxYES_NO | wxICON_QUESTION;
    case MessageKind::Ok:
      break;
  }
  return wxOK | wxICON_EXCLAMATION;
}

}  // namespace

bool showMessage(WindowStack& stack, const std::string& text, MessageKind kind) {
  wxMessageDialog box(stack.parent(), toWx(text), "Tarnwick", styleOf(kind) | wxCENTRE);
  const WindowStack::Place place(stack, nullptr);
  const NativeLoop posted;
  const int answer = box.ShowModal();
  return answer == wxID_OK || answer == wxID_YES;
}

void guarded(WindowStack& stack, const std::function<void()>& action) {
  std::string problem;
  try {
    action();
    return;
  } catch (const Tarnwickexception& failure) {
    problem = failure.message;
  } catch (const std::exception& failure) {
    problem = std::string("Internal error: ") + failure.what();
  } catch (...) {
    problem = "Internal error: unknown exception";
  }
  showMessage(stack, problem, MessageKind::Ok);
}

}  // namespace tarnwick::ui
