#include "process/LoggedRun.h"

#include "base/NoThreadE.h"
#include "platform/FileSystem.h"

#include <cstdio>
#include <exception>
#include <system_error>

namespace tarnwick {
namespace {

constexpr std::size_t blockSize = 512;

}  // namespace

LoggedRun::~LoggedRun() {
  if (finished_) return;
  child_.endTree();
  child_.wait();
  finish();
  log_.close();
}

void LoggedRun::waitForEnd() {
  listen();
  child_.wait();
  const bool settled = settle();
  finish();
  noteEnd();
  if (!settled) note("The tool has ended, but something that it has left behind still writes.");
  log_.close();
}

void LoggedRun::giveUp() {
  child_.endTree();
  const std::lock_guard lock(endLock_);
  givenUp_ = true;
  ended_.notify_all();
}

void LoggedRun::stop() {
  {
    const std::lock_guard lock(endLock_);
    if (isOver_) return;
    stopped_ = true;
  }
  giveUp();
}

bool LoggedRun::endsStopped() {
  const std::lock_guard lock(endLock_);
  isOver_ = true;
  return stopped_;
}

void LoggedRun::listen() {
  try {
    output_ = means_.thread([this] { copyToLog(platform::ChildProcess::Stream::Output); });
    error_ = means_.thread([this] { copyToLog(platform::ChildProcess::Stream::Error); });
  } catch (const std::system_error&) {
    // A tool that nobody listens to would get stuck on a full pipe.
    throw NoThreadE();
  }
}

void LoggedRun::finish() {
  finished_ = true;
  child_.stopReading();
  for (std::thread* const reader : {&output_, &error_}) {
    if (reader->joinable()) reader->join();
  }
}

void LoggedRun::copyToLog(platform::ChildProcess::Stream stream) {
  char block[blockSize];
  NameReplacer replacer(names_);
  // Reading goes on even if nothing can be logged: a tool must not get stuck on a full pipe.
  for (;;) {
    std::size_t size = 0;
    try {
      size = child_.read(stream, block, sizeof block);
      if (size == 0) break;
      append(replacer.take({block, size}), size);
    } catch (const Tarnwickfile::FileNotOpenE&) {
      // Whoever opened the log knows.
    } catch (const std::exception&) {
      outputBytes_ += size;
      lostOutput_ = true;
    }
  }
  appendRest(replacer);
  const std::lock_guard lock(endLock_);
  ++endedOutputs_;
  ended_.notify_all();
}

void LoggedRun::append(std::string_view text, std::size_t said) {
  const std::lock_guard lock(log_.lock());
  if (outputBytes_ == 0) {
    NameReplacer replacer(names_);
    const std::string command = replacer.take(command_) + replacer.rest();
    const std::string twoLineEnds = std::string(platform::lineEnd) + platform::lineEnd;
    const std::string header = twoLineEnds + command + twoLineEnds;
    log_.append(header.data(), header.size());
  }
  log_.append(text.data(), text.size());
  // What could not be written counts too: the tool has said it.
  outputBytes_ += said;
}

/// What looked like the beginning of a name, and was none.
void LoggedRun::appendRest(NameReplacer& replacer) {
  const std::string rest = replacer.rest();
  if (rest.empty()) return;
  try {
    append(rest, 0);
  } catch (const std::exception&) {
    // Told already for what came before it.
  }
}

void LoggedRun::note(const std::string& text) {
  const std::string line = (outputBytes_ > 0 ? platform::lineEnd : "") + text + platform::lineEnd;
  try {
    append(line, line.size());
  } catch (const Tarnwickfile::FileNotOpenE&) {
  }
}

void LoggedRun::noteEnd() {
  if (endsStopped()) {
    end_ = RunEnd::Stopped;
    note(stoppedNote);
  } else if (const std::string cause = child_.causeOfDeath(); !cause.empty()) {
    // A tool that was killed may not have said a word, and nobody may take that for success.
    end_ = RunEnd::BySignal;
    note("Ended by a signal: " + cause);
  }
  log_.noteEnd(end_);
}

/// Something that the tool left behind may still be writing; the run ends when nothing more comes. Where both outputs
/// have ended nothing more can come.
bool LoggedRun::settle() {
  for (std::chrono::milliseconds waited{0}; waited < means_.longestSettling; waited += means_.settle) {
    const std::size_t before = outputBytes_;
    {
      // Not between the log's own writing and flushing, which has to see its failure.
      const std::lock_guard lock(log_.lock());
      std::fflush(nullptr);
    }
    if (means_.onWait) means_.onWait();
    std::unique_lock lock(endLock_);
    if (ended_.wait_for(lock, means_.settle, [this] { return givenUp_ || endedOutputs_ == 2; })) return true;
    if (outputBytes_ == before) return true;
  }
  return false;
}

}  // namespace tarnwick
