#pragma once

#include "platform/ConsoleWindows.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// Other programs' windows, the uppermost first, that write down what is done to them.
class FakeWindows : public platform::ConsoleWindows {
 public:
  struct Window {
    platform::WindowNumber number = 0;
    std::string title;
    bool iconic = false;
    bool takesMinimise = true;
    bool takesClose = true;
    int restoresNeeded = 1;  ///< until it is no icon any longer
  };

  std::vector<Window> all;
  bool there = true;
  int looks = 0;  ///< for the exact title
  int restores = 0;
  std::vector<platform::WindowNumber> minimised;
  std::vector<platform::WindowNumber> closed;
  std::function<void()> onClose;

  Window& at(platform::WindowNumber number) {
    return *std::find_if(all.begin(), all.end(), [number](const Window& one) { return one.number == number; });
  }

  bool exist() const override { return there; }
  platform::WindowNumber titled(const std::string& title) const override {
    const_cast<FakeWindows*>(this)->looks += 1;
    for (const auto& one : all) {
      if (one.title == title) return one.number;
    }
    return 0;
  }
  std::vector<platform::WindowNumber> below(platform::WindowNumber window) const override {
    std::vector<platform::WindowNumber> found;
    bool passed = false;
    for (const auto& one : all) {
      if (passed) found.push_back(one.number);
      passed = passed || one.number == window;
    }
    return found;
  }
  std::string title(platform::WindowNumber window) const override { return find(window)->title; }
  bool lives(platform::WindowNumber window) const override { return find(window) != nullptr; }
  bool isIconic(platform::WindowNumber window) const override { return find(window)->iconic; }
  bool askToMinimise(platform::WindowNumber window) override {
    if (!at(window).takesMinimise) return false;
    minimised.push_back(window);
    at(window).iconic = true;
    return true;
  }
  void restore(platform::WindowNumber window) override {
    ++restores;
    if (--at(window).restoresNeeded <= 0) at(window).iconic = false;
  }
  bool askToClose(platform::WindowNumber window) override {
    if (onClose) onClose();
    closed.push_back(window);
    return at(window).takesClose;
  }

 private:
  const Window* find(platform::WindowNumber number) const {
    for (const auto& one : all) {
      if (one.number == number) return &one;
    }
    return nullptr;
  }
};

}  // namespace tarnwick::test
