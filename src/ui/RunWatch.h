#pragma once

#include "dialogbase/Desktop.h"
#include "ui/BusyLoop.h"

#include <wx/dialog.h>
#include <wx/timer.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

class wxButton;
class wxGauge;
class wxStaticText;

namespace tarnwick::ui {

/// How long something has lasted, in words: "12 s", "2 min 5 s".
std::string lastingWords(std::chrono::seconds lasting);

/// A small window beside the panel that tells what is at work, once that has lasted a while, with a way to stop it. It
/// takes nothing of what is typed but Escape.
class RunWatch : private wxTimer {
 public:
  /// The work so far; 0 of 0 is no step.
  struct Step {
    std::size_t number = 0;
    std::size_t of = 0;
  };

  /// `patience` is how long work may last before it shows. It begins now.
  RunWatch(wxWindow* parent, std::chrono::milliseconds patience);
  ~RunWatch() override;

  /// Watches this work, for which `loop` runs. It lasts until `rest`.
  void begin(BusyLoop& loop, const BusyWork& busy, Step step);
  void rest();
  /// Stops what is at work.
  void stop();
  /// True once somebody has stopped something, even if that had just ended by itself.
  bool isStopped() const { return stopped_; }

  /// Null as long as it does not show. For tests.
  wxDialog* window() const { return window_.get(); }

 private:
  using Clock = std::chrono::steady_clock;

  void Notify() override;
  void open();
  void build();
  void placeBesideParent();
  void tell();

  wxWindow* const parent_;
  const std::chrono::milliseconds patience_;
  const Clock::time_point begun_ = Clock::now();
  BusyLoop* loop_ = nullptr;
  BusyWork busy_;
  Step step_;
  bool stopping_ = false;
  bool stopped_ = false;
  std::unique_ptr<wxDialog> window_;
  wxStaticText* on_ = nullptr;
  wxStaticText* state_ = nullptr;
  wxGauge* bar_ = nullptr;
  wxButton* button_ = nullptr;
};

}  // namespace tarnwick::ui
