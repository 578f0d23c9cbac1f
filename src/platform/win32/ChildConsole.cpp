#include "platform/win32/ChildConsole.h"

#include <string>

namespace tarnwick::platform {
namespace {

constexpr DWORD whichHandle[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};

/// Not by the 8-bit call: consoles have another 8-bit set than windows, by whose titles they are found.
void setTitle(const std::string& title) {
  const auto length = static_cast<int>(title.size());
  std::wstring wide(title.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, title.data(), length, wide.data(), length)));
  SetConsoleTitleW(wide.c_str());
}

/// A busy system may need another moment for a console; a process that has one already gets no second.
bool allocate(StartCalls& calls) {
  constexpr int mostTries = 5;
  for (int tries = 1;; ++tries) {
    if (calls.allocateConsole()) return true;
    if (tries == mostTries || GetLastError() == ERROR_ACCESS_DENIED) return false;
    Sleep(40);
  }
}

}  // namespace

ChildConsole::ChildConsole(const ChildCommand& command, StartCalls& calls, const StepFaults& faults)
    : calls_(calls), faults_(faults), wanted_(command.consoleTitle.has_value()) {
  if (!wanted_) return;
  take(before_);
  allocated_ = allocate(calls_);
  if (!allocated_) faults_.note("AllocConsole()");
  take(consoles_);
  setTitle(*command.consoleTitle);
}

ChildConsole::~ChildConsole() {
  if (!wanted_) return;
  // With the console the system closes what is in these places, which must not be our pipes.
  put(consoles_);
  // A console for a child that did not start is given up too: it would keep the next one from being allocated, and
  // whoever closed its window would end us.
  if (allocated_ || childStarted_) FreeConsole();
  for (HANDLE& handle : before_) {
    DWORD flags = 0;
    // It may have been one of a console that we had before.
    if (!GetHandleInformation(handle, &flags)) handle = nullptr;
  }
  put(before_);
}

void ChildConsole::use(DWORD which, HANDLE handle) {
  if (wanted_ && handle != nullptr && !calls_.setStandardHandle(which, handle)) faults_.note("SetStdHandle()");
}

void ChildConsole::take(HANDLE (&handles)[standardHandles]) {
  for (int i = 0; i < standardHandles; ++i) handles[i] = GetStdHandle(whichHandle[i]);
}

void ChildConsole::put(const HANDLE (&handles)[standardHandles]) {
  for (int i = 0; i < standardHandles; ++i) SetStdHandle(whichHandle[i], handles[i]);
}

}  // namespace tarnwick::platform
