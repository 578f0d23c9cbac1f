#pragma once

#include "platform/Process.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <vector>

namespace tarnwick::test {

/// What a scripted child does and what happened to it; shared by the test and the child that the console holds.
class ChildScript {
 public:
  using Stream = platform::ChildProcess::Stream;

  // What the child does.
  void out(const std::string& bytes) { say(0, bytes); }
  void err(const std::string& bytes) { say(1, bytes); }
  /// The child's end. Its streams end with it, unless somebody else holds them.
  void end(bool streamsToo = true) {
    change([&] {
      ended_ = true;
      if (streamsToo) closed_[0] = closed_[1] = true;
    });
  }
  /// Its end with this code, or by this signal.
  void endWith(int code, const std::string& cause = "") {
    change([&] {
      code_ = code;
      cause_ = cause;
    });
    end();
  }
  void closeError() {
    change([&] { closed_[1] = true; });
  }
  /// From now on a write gives this, however much is written: -1 for a failure.
  void answerWrites(std::ptrdiff_t count) {
    change([&] { writeAnswer_ = count; });
  }
  /// From now on nothing reads the child's input: a write waits until it is broken off.
  void stopReadingInput() {
    change([&] { inputStuck_ = true; });
  }
  void readInputAgain() {
    change([&] { inputStuck_ = false; });
  }
  /// As long as this is so, whoever reads does not get on.
  void starveReaders(bool on) {
    change([&] { starved_ = on; });
  }
  /// From now on nothing more can be read from either stream, whatever lies there.
  void breakReading() {
    change([&] { readingBroken_ = true; });
  }
  /// A read that could bring something finds no memory; the next one does.
  void takeMemoryAway() {
    change([&] { memoryGone_ = true; });
  }

  // What happened to it.
  bool inputClosed() const {
    const std::lock_guard guard(lock_);
    return inputClosed_;
  }
  std::vector<std::string> writes() const {
    const std::lock_guard guard(lock_);
    return writes_;
  }
  int treesEnded() const {
    const std::lock_guard guard(lock_);
    return treesEnded_;
  }
  /// How many reads have come upon the end of a stream.
  int endsSeen() const {
    const std::lock_guard guard(lock_);
    return endsSeen_;
  }
  /// The times that trees were given to end by themselves.
  std::vector<std::chrono::milliseconds> graces() const {
    const std::lock_guard guard(lock_);
    return graces_;
  }
  bool waitingStopped() const {
    const std::lock_guard guard(lock_);
    return waitingStopped_;
  }
  bool writing() const {
    const std::lock_guard guard(lock_);
    return writing_;
  }
  std::size_t unread() const {
    const std::lock_guard guard(lock_);
    return pipes_[0].size() + pipes_[1].size();
  }

 private:
  friend class FakeChild;

  template <typename Change>
  void change(Change what) {
    const std::lock_guard guard(lock_);
    what();
    changed_.notify_all();
  }
  void say(std::size_t stream, const std::string& bytes) {
    change([&] { pipes_[stream] += bytes; });
  }

  mutable std::mutex lock_;
  std::condition_variable changed_;
  std::string pipes_[2];
  bool closed_[2] = {false, false};
  bool ended_ = false;
  bool readingStopped_ = false;
  bool waitingStopped_ = false;
  bool inputStuck_ = false;
  bool starved_ = false;
  bool memoryGone_ = false;
  bool readingBroken_ = false;
  std::uint64_t taken_[2] = {0, 0};
  bool writing_ = false;
  bool inputClosed_ = false;
  int code_ = 0;
  std::string cause_;
  std::ptrdiff_t writeAnswer_ = -2;
  std::vector<std::string> writes_;
  int treesEnded_ = 0;
  std::vector<std::chrono::milliseconds> graces_;
  int endsSeen_ = 0;
};

class FakeChild : public platform::ChildProcess {
 public:
  explicit FakeChild(std::shared_ptr<ChildScript> script) : script_(std::move(script)) {}

  std::size_t read(Stream stream, char* buffer, std::size_t size) override {
    ChildScript& s = *script_;
    const std::size_t which = stream == Stream::Output ? 0 : 1;
    std::unique_lock guard(s.lock_);
    s.changed_.wait(guard, [&] {
      return (!s.starved_ || s.readingStopped_) &&
             (!s.pipes_[which].empty() || s.closed_[which] || s.readingStopped_ || s.readingBroken_);
    });
    if (s.memoryGone_ && !s.pipes_[which].empty()) {
      s.memoryGone_ = false;
      throw std::bad_alloc();
    }
    const std::size_t count = s.readingBroken_ ? 0 : std::min(size, s.pipes_[which].size());
    std::copy_n(s.pipes_[which].begin(), count, buffer);
    s.pipes_[which].erase(0, count);
    s.taken_[which] += count;
    if (count == 0) ++s.endsSeen_;
    return count;
  }
  std::uint64_t arrived(Stream stream) override {
    const std::lock_guard guard(script_->lock_);
    const std::size_t which = stream == Stream::Output ? 0 : 1;
    return script_->taken_[which] + script_->pipes_[which].size();
  }
  void stopReading() override {
    script_->change([&] { script_->readingStopped_ = true; });
  }
  std::ptrdiff_t write(const char* bytes, std::size_t size) override {
    ChildScript& s = *script_;
    std::unique_lock guard(s.lock_);
    s.writes_.emplace_back(bytes, size);
    s.writing_ = true;
    s.changed_.wait(guard, [&] { return !s.inputStuck_ || s.waitingStopped_; });
    s.writing_ = false;
    if (s.inputStuck_) return 0;
    return s.writeAnswer_ > -2 ? s.writeAnswer_ : static_cast<std::ptrdiff_t>(size);
  }
  void closeInput() override {
    script_->change([&] { script_->inputClosed_ = true; });
  }
  std::string causeOfDeath() const override {
    const std::lock_guard guard(script_->lock_);
    return script_->cause_;
  }
  int exitCode() const override {
    const std::lock_guard guard(script_->lock_);
    return script_->code_;
  }
  void wait() override {
    std::unique_lock guard(script_->lock_);
    script_->changed_.wait(guard, [&] { return script_->ended_ || script_->waitingStopped_; });
  }
  void stopWaiting() override {
    script_->change([&] { script_->waitingStopped_ = true; });
  }
  void endTree() override {
    script_->change([&] { ++script_->treesEnded_; });
  }
  void endTreeWithin(std::chrono::milliseconds grace) override {
    script_->change([&] {
      ++script_->treesEnded_;
      script_->graces_.push_back(grace);
    });
  }

 private:
  std::shared_ptr<ChildScript> script_;
};

}  // namespace tarnwick::test
