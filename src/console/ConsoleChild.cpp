#include "console/ConsoleChild.h"

#include "base/Filename.h"
#include "base/NoThreadE.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "platform/Path.h"
#include "platform/ThreadPriority.h"

#include <cstdio>
#include <exception>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarnwick {
namespace {

const char endBanner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

std::size_t indexOf(platform::ChildProcess::Stream stream) {
  return stream == platform::ChildProcess::Stream::Output ? 0 : 1;
}

}  // namespace

std::string shownExecutable(const std::string& exeFile) {
  // Where case counts, a path in small letters would name a file that is not there.
  return platform::sameFileName("a", "A") ? lowerCase(exeFile) : exeFile;
}

ConsoleChild::ConsoleChild(ConsoleScreen& screen, Desktop& desktop, ConsoleProgram program, std::function<void()> wake)
    : screen_(screen),
      desktop_(desktop),
      program_(std::move(program)),
      wake_(std::move(wake)),
      stdoutReader_(screen, program_.part.outputKind),
      stderrReader_(screen, program_.part.errorKind),
      writer_(desktop) {}

ConsoleChild::~ConsoleChild() {
  close();
}

void ConsoleChild::start() {
  try {
    startThread();
  } catch (const std::system_error&) {
    desktop_.message(NoThreadE().message);
  }
}

void ConsoleChild::startThread() {
  runThread_ = program_.thread([this] { run(); });
}

void ConsoleChild::write(std::string bytes) {
  // The key that is pressed after the end closes the window; that nobody reads what it sends is no failure.
  if (childState_ != 0) writer_.send(std::move(bytes));
}

void ConsoleChild::endInput() {
  inputEnded_ = true;
  writer_.end();
}

void ConsoleChild::stop(const std::function<bool()>& askToEnd) {
  if (childState_ != 1) return;
  stopped_ = true;
  endTree(askToEnd);
}

void ConsoleChild::endWithOther() {
  const std::lock_guard guard(stateLock_);
  endsWithOther_ = true;
  if (childState_ == 1) process_->endTree();
}

void ConsoleChild::close(const std::function<bool()>& askToEnd) {
  bool running = false;
  writer_.breakOff();
  {
    const std::lock_guard guard(stateLock_);
    const bool closedBefore = std::exchange(stopping_, true);
    stateChanged_.notify_all();
    running = process_ && !closedBefore;
    // Before the child is asked to end: whoever waits for its end would let go what it leaves behind.
    if (running) process_->stopWaiting();
  }
  // The run thread starts the others, so it goes first.
  if (runThread_.joinable()) runThread_.join();
  if (running) endProcess(askToEnd);
  if (stdoutThread_.joinable()) stdoutThread_.join();
  if (stderrThread_.joinable()) stderrThread_.join();
  writer_.stop();
}

void ConsoleChild::endProcess(const std::function<bool()>& askToEnd) {
  if (childState_ == 1) endTree(askToEnd);
  processEnded_ = true;
  process_->stopReading();
}

void ConsoleChild::endTree(const std::function<bool()>& askToEnd) {
  if (askToEnd()) {
    process_->endTreeWithin(program_.timing.closeGrace);
  } else {
    process_->endTree();
  }
}

bool ConsoleChild::runToEnd() {
  try {
    if (program_.runArguments.find(" -verbose ") != std::string::npos) echoCommand();
    if (!startProcess()) return false;
  } catch (const std::exception&) {
    endWithMessage("Can't open " + program_.exeFile + ".\nCheck java path in settings.");
    return false;
  }
  try {
    startReaders();
  } catch (const std::system_error&) {
    endWithMessage(NoThreadE().message);
    return false;
  }
  wake();
  process_->wait();
  if (stopping()) return false;
  noteEnd();
  if (program_.part.onEnd) program_.part.onEnd();
  // What is left to do has time: the readers bring the last words first.
  platform::lowerThreadPriority();
  std::fflush(nullptr);
  return awaitLastWords() && settle();
}

void ConsoleChild::run() {
  const ConsolePart& part = program_.part;
  const bool hasRun = runToEnd();
  if (stopping()) return;
  if (!hasRun && part.onEnd) part.onEnd();
  if (part.onLastWord && !part.onLastWord()) return;
  if (!hasRun || stopping()) return;
  if (!part.tellsEnd) {
    childState_ = 0;
    return wake();
  }
  if (totalOutputBytes_ == 0 && program_.closesSilently) {
    // A child that said nothing leaves no console behind.
    childState_ = 0;
    requestClose();
    return;
  }
  if (!waitForReaders()) return;
  writeBanner();
  childState_ = 0;
  wake();
}

void ConsoleChild::noteEnd() {
  end_.time = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - began_);
  end_.stopped = stopped_;
  end_.cause = process_->causeOfDeath();
  end_.code = process_->exitCode();
}

void ConsoleChild::echoCommand() {
  const std::string command =
      shownExecutable(Filename(program_.exeFile).quotedBaseName()) + ' ' + program_.runArguments;
  {
    const TextGuard guard(screen_.lock());
    const int end = screen_.document.addText(command, KIND_INPUT).end;
    screen_.changes.ask(screen_.document.lineCount(), 0, end);
    screen_.newLine();
  }
  wake();
}

bool ConsoleChild::startProcess() {
  std::unique_ptr<platform::ChildProcess> process;
  try {
    // By its title, in the letters that the executable's path has here, the child's console window is found later.
    process = program_.start({program_.exeFile, program_.runArguments, true,
                              program_.part.ownWindow ? std::optional(program_.exeFile) : std::nullopt,
                              [this](const platform::SystemError& fault) { report(fault); }, program_.leavesNothing});
  } catch (const platform::SystemError& error) {
    const std::string text = "Can't start " + shownExecutable(program_.exeFile) + "\n" + error.text();
    desktop_.post([&desktop = desktop_, text] { desktop.message(text); });
    return false;
  }
  const std::lock_guard guard(stateLock_);
  process_ = std::move(process);
  began_ = std::chrono::steady_clock::now();
  childState_ = 1;
  if (endsWithOther_) process_->endTree();
  if (!stopping_) return true;
  // The window was closed while the child started.
  process_->endTree();
  return false;
}

void ConsoleChild::report(const platform::SystemError& fault) {
  desktop_.post([&desktop = desktop_, text = fault.text()] { desktop.message(text); });
}

void ConsoleChild::startReaders() {
  using Stream = platform::ChildProcess::Stream;
  // Both lines begin before either thread runs: one that came late would cut what the other has brought.
  if (program_.part.beginsLine) {
    stdoutReader_.begin();
    stderrReader_.begin();
  }
  stdoutThread_ = program_.thread([this] { read(Stream::Output, stdoutReader_); });
  stderrThread_ = program_.thread([this] { read(Stream::Error, stderrReader_); });
  writer_.start(*process_, program_.thread);
}

void ConsoleChild::read(platform::ChildProcess::Stream stream, OutputReader& reader) {
  char block[OutputReader::blockSize];
  for (;;) {
    std::size_t count = 0;
    try {
      count = process_->read(stream, block, sizeof block);
      // A console that closes leaves its unfinished line alone: it is not to reach a record file. But a child that has
      // been asked to end must not get stuck on its last words.
      if (stopping()) {
        if (count == 0 || processEnded_) return;
        continue;
      }
      if (count == 0) break;
      if (stream == platform::ChildProcess::Stream::Output && program_.part.onOutput)
        program_.part.onOutput({block, count});
      handle(reader, block, count);
    } catch (const std::exception&) {
      // For the same reason reading goes on.
      reportLoss();
    }
    noteHandled(stream, count);
  }
  endReader(stream, reader);
  wake();
}

void ConsoleChild::handle(OutputReader& reader, const char* block, std::size_t count) {
  // Counted before it is handled: however busy the machine, a child that spoke never counts as silent.
  readerActive_ = true;
  totalOutputBytes_ += count;
  reader.handle({block, count});
  wake();
}

void ConsoleChild::noteHandled(platform::ChildProcess::Stream stream, std::size_t count) {
  const std::lock_guard guard(stateLock_);
  handled_[indexOf(stream)] += count;
  stateChanged_.notify_all();
}

void ConsoleChild::wake() {
  try {
    wake_();
  } catch (const std::exception&) {
    reportLoss();
  }
}

void ConsoleChild::reportLoss() {
  if (lossReported_.exchange(true)) return;
  try {
    desktop_.post([&desktop = desktop_] { desktop.message("Not enough memory for all that the program says."); });
  } catch (const std::exception&) {
    // With the next block there may be some.
    lossReported_ = false;
  }
}

void ConsoleChild::endReader(platform::ChildProcess::Stream stream, OutputReader& reader) {
  // Deliberate: the end of a stream begins no line. Whether somebody still holds the pipe makes no difference to the
  // text; only the child's own end is told.
  reader.end();
  const std::lock_guard guard(stateLock_);
  outputEnded_[indexOf(stream)] = true;
  stateChanged_.notify_all();
}

bool ConsoleChild::awaitLastWords() {
  // What the child itself has said is in the text before its end is told, however late a reader comes to it. What
  // others who hold its pipes say later has no such claim.
  const std::uint64_t output = process_->arrived(platform::ChildProcess::Stream::Output);
  const std::uint64_t error = process_->arrived(platform::ChildProcess::Stream::Error);
  std::unique_lock guard(stateLock_);
  // What a reader could not get at any more never comes.
  const auto handled = [this](int stream, std::uint64_t bytes) {
    return outputEnded_[stream] || handled_[stream] >= bytes;
  };
  stateChanged_.wait(guard, [&] { return stopping_ || (handled(0, output) && handled(1, error)); });
  return !stopping_;
}

bool ConsoleChild::settle() {
  std::uint64_t before = 0;
  do {
    if (bothEnded()) return true;
    before = totalOutputBytes_;
    if (!pause(program_.timing.settle)) return false;
  } while (totalOutputBytes_ != before);
  return true;
}

bool ConsoleChild::waitForReaders() {
  for (int tries = 0; tries < program_.timing.readerTries; ++tries) {
    if (!readerActive_.exchange(false) || bothEnded()) break;
    if (!pause(program_.timing.readerWait)) return false;
  }
  return true;
}

void ConsoleChild::writeBanner() {
  const TextGuard guard(screen_.lock());
  TarnwickDoc& document = screen_.document;
  document.newLine();
  document.newLine();
  screen_.caret.setColumn(document.addText(endBanner, KIND_BANNER).end);
  screen_.newLine();
  screen_.changes.everything = true;
  screen_.changes.ask(document.lineCount(), 0, 1);
}

void ConsoleChild::endWithMessage(const std::string& text) {
  {
    const std::lock_guard guard(stateLock_);
    if (process_) process_->endTree();
    childState_ = 0;
  }
  desktop_.post([&desktop = desktop_, text] { desktop.message(text); });
  requestClose();
}

void ConsoleChild::requestClose() {
  {
    const TextGuard guard(screen_.lock());
    screen_.changes.close = true;
  }
  wake();
}

bool ConsoleChild::pause(std::chrono::milliseconds time) {
  if (program_.timing.onWait) program_.timing.onWait(time);
  std::unique_lock guard(stateLock_);
  stateChanged_.wait_for(guard, time, [this] { return stopping_ || (outputEnded_[0] && outputEnded_[1]); });
  return !stopping_;
}

bool ConsoleChild::stopping() {
  const std::lock_guard guard(stateLock_);
  return stopping_;
}

bool ConsoleChild::bothEnded() {
  const std::lock_guard guard(stateLock_);
  return outputEnded_[0] && outputEnded_[1];
}

}  // namespace tarnwick
