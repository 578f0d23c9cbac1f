#pragma once

#include "console/ConsoleSurface.h"

#include <atomic>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::test {

/// A window of 80 by 25 cells, 8 by 16 pixels each, that writes down what the view asks of it.
class FakeSurface : public ConsoleSurface {
 public:
  Point cellSize{8, 16};
  Point client{644, 400};
  Point position;
  Point sizes;
  std::vector<Rect> invalidated;
  int sizeChanges = 0;
  int scrolls = 0;
  int allInvalidated = 0;
  int closes = 0;
  int hintChanges = 0;
  int raised = 0;
  int inputTargets = 0;
  platform::WindowNumber frame = 7;
  bool hint = false;
  bool hand = false;
  std::vector<std::string> titles;
  bool fontMade = true;
  bool dark = false;
  int letters = 0;  ///< as they were set
  std::atomic<int> wakes{0};
  /// Told of its end within `close`, as a window may do it.
  ConsoleSurfaceClient* endsAtOnce = nullptr;

  void forget() {
    invalidated.clear();
    sizeChanges = scrolls = allInvalidated = 0;
  }
  /// True once for all wakes since the last call.
  bool takeWake() { return wakes.exchange(0) > 0; }

  bool hasFont() const override { return fontMade; }
  bool isDark() const override { return dark; }
  Point cell() const override { return cellSize; }
  int usualLetters() const override { return 10; }
  void setLetters(int points) override {
    letters = points;
    cellSize = points == 0 ? Point{8, 16} : Point{points * 4 / 5, points * 8 / 5};
  }
  Point clientSize() const override { return client; }
  Point scrollPosition() const override { return position; }
  void setScrollSizes(const Point& size) override {
    sizes = size;
    ++sizeChanges;
  }
  void scrollTo(const Point& to) override {
    position = to;
    ++scrolls;
  }
  void invalidate(const Rect& rect) override { invalidated.push_back(rect); }
  void invalidateAll() override { ++allInvalidated; }
  void wake() override { ++wakes; }
  void showHint(bool on) override {
    hint = on;
    ++hintChanges;
  }
  void showHand(bool on) override { hand = on; }
  platform::WindowNumber bringToFront() override {
    ++raised;
    return frame;
  }
  void showInputTarget() override { ++inputTargets; }
  void setTitle(const std::string& text) override { titles.push_back(text); }
  void close() override {
    ++closes;
    if (endsAtOnce) endsAtOnce->onClose();
  }
};

/// Writes down what is painted.
class FakePainter : public ConsolePainter {
 public:
  struct Drawn {
    int x = 0;
    int y = 0;
    std::string text;
    Colour colour;
    bool operator==(const Drawn&) const = default;
  };

  explicit FakePainter(const Rect& clip = {0, 0, 644, 400}) : clip_(clip) {}

  std::vector<Drawn> drawn;
  std::vector<std::pair<Rect, Colour>> filled;
  std::vector<Rect> inverted;

  Rect clip() const override { return clip_; }
  void drawText(int x, int y, const std::string& text, Colour colour) override {
    drawn.push_back({x, y, text, colour});
  }
  void fill(const Rect& rect, Colour colour) override { filled.push_back({rect, colour}); }
  void invert(const Rect& rect) override { inverted.push_back(rect); }

 private:
  Rect clip_;
};

}  // namespace tarnwick::test
