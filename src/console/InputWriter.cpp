#include "console/InputWriter.h"

#include "dialogbase/Desktop.h"

#include <cstddef>
#include <utility>

namespace tarnwick {

InputWriter::~InputWriter() {
  stop();
}

void InputWriter::send(std::string bytes) {
  const std::lock_guard guard(lock_);
  if (ending_) return;
  waiting_.push_back(std::move(bytes));
  changed_.notify_one();
}

void InputWriter::end() {
  const std::lock_guard guard(lock_);
  ending_ = true;
  changed_.notify_one();
}

void InputWriter::start(platform::ChildProcess& child, const platform::ThreadFactory& thread) {
  thread_ = thread([this, &child] { run(child); });
}

void InputWriter::breakOff() {
  const std::lock_guard guard(lock_);
  stopping_ = true;
  changed_.notify_one();
}

void InputWriter::stop() {
  breakOff();
  if (thread_.joinable()) thread_.join();
}

bool InputWriter::next(platform::ChildProcess& child, std::string& bytes) {
  std::unique_lock guard(lock_);
  changed_.wait(guard, [this] { return stopping_ || ending_ || !waiting_.empty(); });
  if (stopping_) return false;
  if (waiting_.empty()) {
    child.closeInput();
    return false;
  }
  bytes = std::move(waiting_.front());
  waiting_.pop_front();
  return true;
}

void InputWriter::run(platform::ChildProcess& child) {
  for (std::string bytes; next(child, bytes);) {
    const std::ptrdiff_t written = child.write(bytes.data(), bytes.size());
    {
      const std::lock_guard guard(lock_);
      if (stopping_) return;  // the write was broken off by us
    }
    if (written < 0) {
      report("WriteFile error to jStdin");
    } else if (static_cast<std::size_t>(written) < bytes.size()) {
      report("WriteFile didn't write to jStdin");
    }
  }
}

void InputWriter::report(const char* text) {
  if (reporting_->exchange(true)) return;
  desktop_.post([&desktop = desktop_, reporting = reporting_, text] {
    desktop.message(text);
    *reporting = false;
  });
}

}  // namespace tarnwick
