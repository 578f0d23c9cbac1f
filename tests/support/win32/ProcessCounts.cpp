#include "support/ProcessCounts.h"

#include <windows.h>

#include <cstdint>
#include <psapi.h>
#include <tlhelp32.h>

namespace tarnwick::test {

// Wine gives no count, so all numbers that handles may have are tried, as far as one would come that leaks.
long openHandles() {
  constexpr std::uintptr_t last = 0x4000;
  long count = 0;
  for (std::uintptr_t number = 4; number <= last; number += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags)) ++count;
  }
  return count;
}

// Wine keeps the process and the thread of the program behind each console window.
long handlesLostPerConsole() {
  constexpr DWORD which[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
  HANDLE before[3] = {};
  for (int i = 0; i < 3; ++i) before[i] = GetStdHandle(which[i]);
  const auto round = [&] {
    AllocConsole();
    FreeConsole();
    for (int i = 0; i < 3; ++i) SetStdHandle(which[i], before[i]);
  };
  round();
  const long handles = openHandles();
  round();
  return openHandles() - handles;
}

long runningThreads() {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  if (snapshot == INVALID_HANDLE_VALUE) return 0;
  long count = 0;
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == GetCurrentProcessId()) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

long unreapedChildren() {
  return 0;
}

long long peakMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  const BOOL known = K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return known ? static_cast<long long>(counters.PeakWorkingSetSize) : 0;
}

void forgetPeakMemory() {}

}  // namespace tarnwick::test
