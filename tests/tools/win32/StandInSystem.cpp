#include "../StandInSystem.h"

#include <windows.h>

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <process.h>

namespace tarnwick::test {
namespace {

void (*lastWork)() = nullptr;

/// The system calls it on a thread of its own.
BOOL WINAPI endAfterWork(DWORD) {
  lastWork();
  ExitProcess(0);
}

}  // namespace

void useBinaryStreams() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
}

std::string workingFolder() {
  char folder[MAX_PATH] = "";
  GetCurrentDirectoryA(MAX_PATH, folder);
  return folder;
}

bool hasConsoleWindow() {
  return GetConsoleWindow() != nullptr;
}

int startCopy(const std::string& argument) {
  char program[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, program, MAX_PATH);
  const char* words[] = {"stand-in", argument.c_str(), nullptr};
  const auto process = _spawnv(_P_NOWAIT, program, words);
  if (process == -1) return 0;
  const auto handle = reinterpret_cast<HANDLE>(process);
  const int number = static_cast<int>(GetProcessId(handle));
  CloseHandle(handle);
  return number;
}

int startOrphan(const std::string& argument) {
  return startCopy(argument);
}

void onRequestToEnd(void (*work)()) {
  lastWork = work;
  SetConsoleCtrlHandler(endAfterWork, TRUE);
}

}  // namespace tarnwick::test
