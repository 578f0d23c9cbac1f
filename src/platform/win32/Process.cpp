#include "platform/Process.h"

#include "platform/Path.h"
#include "platform/win32/ChildConsole.h"
#include "platform/win32/ChildJob.h"
#include "platform/win32/ChildPipes.h"
#include "platform/win32/Handle.h"
#include "platform/win32/Insist.h"
#include "platform/win32/StartUp.h"

#include <windows.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <optional>
#include <process.h>

namespace tarnwick::platform {
namespace {

/// While one thread starts a child, no other may: it would inherit the ends of the first one's pipes, and its console.
std::mutex& startLock() {
  static std::mutex lock;
  return lock;
}

/// Under Wine a child is lost now and then before it has begun, and the system tells only this of it.
bool isLostChild(DWORD error) {
  return error == ERROR_INTERNAL_ERROR;
}

class Child final : public ChildProcess {
 public:
  Child(const ChildCommand& command, StartCalls& calls)
      : stopReading_(CreateEventA(nullptr, TRUE, FALSE, nullptr)),
        stopWaiting_(CreateEventA(nullptr, TRUE, FALSE, nullptr)),
        leavesNothing_(command.leavesNothing) {
    // The pipes go after the console, in whose time they are our standard handles.
    PipeEnds output;
    PipeEnds error;
    PipeEnds input;
    const StepFaults faults(command);
    ChildConsole console(command, calls, faults);
    output = makeOutputPipe(calls, faults);
    error = makeOutputPipe(calls, faults);
    if (command.interactive) {
      input = makeInputPipe(calls, faults);
    } else {
      input.childs = nothingToRead();
    }
    console.use(STD_OUTPUT_HANDLE, output.childs.get());
    console.use(STD_ERROR_HANDLE, error.childs.get());
    if (command.interactive) console.use(STD_INPUT_HANDLE, input.childs.get());
    for (PipeEnds* const pipe : {&output, &error, &input}) makePrivate(*pipe, calls, faults);
    output_ = OutputPipe(output, stopReading_.get());
    error_ = OutputPipe(error, stopReading_.get());
    if (command.interactive) input_ = InputPipe(input, stopWaiting_.get());
    StartUp startUp(input.childs.get(), output.childs.get(), error.childs.get());
    create(command, calls, startUp);
    console.childStarted();
    // From here on only the child holds its ends, so that we see the end of its output.
  }

  std::size_t read(Stream stream, char* buffer, std::size_t size) override {
    return (stream == Stream::Output ? output_ : error_).read(buffer, size);
  }

  void stopReading() override { SetEvent(stopReading_.get()); }
  std::uint64_t arrived(Stream stream) override { return (stream == Stream::Output ? output_ : error_).arrived(); }

  std::ptrdiff_t write(const char* bytes, std::size_t size) override { return input_.write(bytes, size); }
  void closeInput() override { input_.close(); }

  void wait() override {
    const HANDLE events[] = {process_.get(), stopWaiting_.get()};
    if (WaitForMultipleObjects(2, events, FALSE, INFINITE) != WAIT_OBJECT_0) return;
    DWORD code = 0;
    if (GetExitCodeProcess(process_.get(), &code)) exitCode_ = static_cast<int>(code);
    const std::lock_guard lock(stateLock_);
    if (job_ && leavesNothing_) job_->endAll();
    job_.reset();
  }
  int exitCode() const override { return exitCode_; }
  void stopWaiting() override { SetEvent(stopWaiting_.get()); }

  void endTree() override {
    const std::lock_guard lock(stateLock_);
    if (job_) job_->endAll();
  }

  void endTreeWithin(std::chrono::milliseconds grace) override {
    const std::lock_guard lock(stateLock_);
    if (job_ && !job_->waitUntilEmpty(grace)) job_->endAll();
  }

 private:
  void create(const ChildCommand& command, StartCalls& calls, StartUp& startUp) {
    const auto name = splitPath(command.executable);
    std::string line = '"' + name.base + name.extension + '"';
    if (!command.arguments.empty() && command.arguments.front() != ' ') line += ' ';
    line += command.arguments;
    PROCESS_INFORMATION made{};
    // In our console if there is to be one, else in one without a window; and asleep until it is in its job, so that
    // nothing it starts gets away.
    const DWORD flags = (command.consoleTitle ? 0 : CREATE_NO_WINDOW) | CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT;
    const bool created = insist(isLostChild, [&] {
      return calls.createProcess(command.executable.c_str(), line.data(), startUp.inherits(), flags, startUp.get(),
                                 made);
    });
    if (!created) throw lastSystemError("CreateProcess");
    process_ = Handle(made.hProcess);
    const Handle thread(made.hThread);
    job_.emplace(process_.get());
    ResumeThread(thread.get());
  }

  Handle stopReading_;
  Handle stopWaiting_;
  bool leavesNothing_;
  OutputPipe output_;
  OutputPipe error_;
  InputPipe input_;
  Handle process_;
  int exitCode_ = 0;
  std::mutex stateLock_;
  /// Gone when the child has ended by itself.
  std::optional<ChildJob> job_;
};

std::string withoutQuotes(const std::string& text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  return text.substr(1, text.size() - 2);
}

}  // namespace

SystemError lastSystemError(const std::string& label) {
  const DWORD code = GetLastError();
  char sentence[1000] = "";
  const DWORD length =
      FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                     MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), sentence, sizeof sentence - 1, nullptr);
  return {label, static_cast<int>(code), std::string(sentence, length)};
}

std::unique_ptr<ChildProcess> startChild(const ChildCommand& command, StartCalls& calls) {
  const std::lock_guard lock(startLock());
  return std::make_unique<Child>(command, calls);
}

std::unique_ptr<ChildProcess> ChildProcess::start(const ChildCommand& command) {
  StartCalls calls;
  return startChild(command, calls);
}

void startDetached(const std::string& executable, const std::vector<std::string>& arguments) {
  const std::string program = withoutQuotes(executable);
  std::vector<const char*> words;
  for (const auto& argument : arguments) words.push_back(argument.c_str());
  words.push_back(nullptr);
  const std::lock_guard lock(startLock());
  // The run-time joins the words by single blanks and quotes none.
  const auto process = _spawnvp(_P_NOWAIT, program.c_str(), words.data());
  if (process == -1) {
    const int code = errno;
    throw SystemError{"_spawnvp", code, std::strerror(code)};
  }
  CloseHandle(reinterpret_cast<HANDLE>(process));
}

std::string commandWord(const std::string& path) {
  const auto blank = path.find(' ', 1);
  return path.empty() || blank == std::string::npos ? path : '"' + path + '"';
}

std::string detachedArgument(const std::string& path) {
  return commandWord(path);
}

void startCommandLine(const std::string& executable, const std::string& commandLine) {
  std::string line = commandLine;
  STARTUPINFOA startUp{};
  startUp.cb = sizeof startUp;
  PROCESS_INFORMATION made{};
  if (!CreateProcessA(executable.c_str(), line.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr,
                      &startUp, &made)) {
    throw lastSystemError("CreateProcess");
  }
  CloseHandle(made.hThread);
  CloseHandle(made.hProcess);
}

}  // namespace tarnwick::platform
