#include "ui/MessageBoxes.h"

#include "base/Tarnwickexception.h"
#include "platform/Characters.h"
#include "ui/MessageLooks.h"
#include "ui/NativeLoop.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/msgdlg.h>

#include <algorithm>
#include <exception>
#include <string_view>

namespace tarnwick::ui {

namespace {

long styleOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::OkCancel:
      return wxOK | wxCANCEL | wxICON_QUESTION;
    case MessageKind::YesNo:
      return wxYES_NO | wxICON_QUESTION;
    case MessageKind::Hint:
      return wxOK | wxICON_INFORMATION;
    case MessageKind::Fault:
      break;
  }
  return wxOK | wxICON_EXCLAMATION;
}

// What is shown of the beginning, and of the end.
constexpr std::size_t mostBytes = 800;
constexpr std::size_t mostLines = 12;
/// Windows break lines at blanks only.
constexpr std::size_t longestWord = 120;

/// The end of what is shown of the beginning.
std::size_t headEnd(std::string_view text) {
  std::size_t end = std::min(text.size(), mostBytes);
  std::size_t lines = 0;
  for (std::size_t i = 0; i < end; ++i) {
    if (text[i] == '\n' && ++lines == mostLines) end = i;
  }
  return end - platform::unfinishedTail(text.substr(0, end));
}

/// The beginning of what is shown of the end.
std::size_t tailBegin(std::string_view text) {
  std::size_t begin = text.size() - std::min(text.size(), mostBytes);
  std::size_t lines = 0;
  for (std::size_t i = text.size(); i > begin; --i) {
    if (text[i - 1] == '\n' && ++lines == mostLines) begin = i;
  }
  // A character that the cut would go through is left out.
  const std::size_t started = platform::unfinishedTail(text.substr(0, begin));
  return started == 0 ? begin : begin - started + platform::characterLength(text, begin - started);
}

std::string withLongWordsBroken(const std::string& text) {
  std::string broken;
  std::size_t word = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = platform::characterLength(text, i);
    const bool blank = text[i] == ' ' || text[i] == '\n';
    if (word + length > longestWord && !blank) {
      broken += '\n';
      word = 0;
    }
    word = blank ? 0 : word + length;
    broken.append(text, i, length);
    i += length;
  }
  return broken;
}

}  // namespace

std::string shownPart(const std::string& text) {
  const std::size_t end = headEnd(text);
  const std::size_t begin = tailBegin(text);
  return withLongWordsBroken(begin <= end ? text : text.substr(0, end) + "\n...\n" + text.substr(begin));
}

bool showMessage(WindowStack& stack, const std::string& text, MessageKind kind) {
  wxMessageDialog box(stack.parent(), toWx(shownPart(text)), "Tarnwick", styleOf(kind) | wxCENTRE);
  const WindowStack::Place place(stack, nullptr, [&box] { dismiss(box); });
  const NativeLoop posted;
  const MessageLooks looks;
  const int answer = box.ShowModal();
  stack.goOn();
  return answer == wxID_OK || answer == wxID_YES;
}

void guarded(WindowStack& stack, const std::function<void()>& action) {
  std::string problem;
  try {
    action();
    return;
  } catch (const ProgramEnds&) {
    return;
  } catch (const Tarnwickexception& failure) {
    problem = failure.message;
  } catch (const std::exception& failure) {
    problem = std::string("Internal error: ") + failure.what();
  } catch (...) {
    problem = "Internal error: unknown exception";
  }
  if (!stack.isEnding()) showMessage(stack, problem, MessageKind::Fault);
}

}  // namespace tarnwick::ui
