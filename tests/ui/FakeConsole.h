#pragma once

#include "app/ConsoleFrameHost.h"

#include <chrono>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tarnwick::test {

using Heard = std::vector<std::string>;

/// A console's rules that write down what they hear.
class FakeConsole : public ConsoleFrame, public ConsoleSurfaceClient {
 public:
  const MenuBar& menuBar() const override { return today ? newerConsoleMenuBar() : consoleMenuBar(); }
  const std::vector<Accelerator>& accelerators() const override {
    return !keys.empty() ? keys : today ? newerConsoleAccelerators() : consoleAccelerators();
  }
  const Toolbar* toolbar() const override { return buttons; }
  std::vector<InputChoice> inputChoices() const override { return choices; }
  std::string title() const override { return "Console under test"; }
  bool isOfToday() const override { return today; }
  bool commandEnabled(int command) const override { return disabled.count(command) == 0; }
  bool commandMarked(int command) const override { return marked.count(command) != 0; }
  void onCommand(int command) override { heard.push_back("command " + std::to_string(command)); }
  ConsoleSurfaceClient& view() override { return *this; }

  void onStart(ConsoleSurface& opened) override {
    surface = &opened;
    sizeAtStart = opened.clientSize();
  }
  Colour ground() const override { return paper; }
  void paint(ConsolePainter& painter) override {
    ++paints;
    if (onPaint) onPaint(painter);
  }
  void onWake() override { wakes.push_back(std::chrono::steady_clock::now()); }
  void onResized() override { ++resized; }
  void onScrolled() override { ++scrolled; }
  bool onZoom(int steps) override {
    if (today) heard.push_back("zoom " + std::to_string(steps));
    return today;
  }
  bool onKey(ConsoleKey key, int modifiers) override {
    if (key == ConsoleKey::Modifier) ++modifierKeys;
    if (key == ConsoleKey::Other || key == ConsoleKey::Modifier) {
      if (onOtherKey) onOtherKey(modifiers);
      return false;
    }
    heard.push_back("key " + std::to_string(static_cast<int>(key)) + " " + std::to_string(modifiers));
    return true;
  }
  void onCharacter(const std::string& character, int count) override {
    std::ostringstream shown;
    for (const char c : character) {
      const int byte = static_cast<unsigned char>(c);
      if (byte < 32) {
        shown << '<' << byte << '>';
      } else {
        shown << c;
      }
    }
    for (int i = 0; i < count; ++i) heard.push_back("char " + shown.str());
  }
  void onLeftDown(const MouseState& mouse) override { hearMouse("down", mouse); }
  void onLeftUp(const MouseState& mouse) override { hearMouse("up", mouse); }
  void onMouseMove(const MouseState& mouse) override { lastMove = wordsOf(mouse); }
  void onDoubleClick(const MouseState& mouse) override { hearMouse("double", mouse); }
  void onRightDown(const MouseState& mouse) override { hearMouse("right", mouse); }
  void onClose() override {
    heard.emplace_back("closed");
    surface = nullptr;
  }

  const Toolbar* buttons = nullptr;
  std::vector<InputChoice> choices;
  std::vector<Accelerator> keys;  ///< in the place of the usual ones
  ConsoleSurface* surface = nullptr;
  Point sizeAtStart;
  bool today = false;
  Colour paper{255, 255, 255};
  int modifierKeys = 0;
  int paints = 0;
  int resized = 0;
  int scrolled = 0;
  std::set<int> disabled;
  std::set<int> marked;
  std::vector<std::chrono::steady_clock::time_point> wakes;
  Heard heard;
  std::string lastMove;
  std::function<void(ConsolePainter&)> onPaint;
  std::function<void(int modifiers)> onOtherKey;

 private:
  static std::string wordsOf(const MouseState& mouse) {
    return std::to_string(mouse.at.x) + "," + std::to_string(mouse.at.y) + (mouse.shift ? " shift" : "") +
           (mouse.control ? " control" : "");
  }
  void hearMouse(const std::string& what, const MouseState& mouse) { heard.push_back(what + " " + wordsOf(mouse)); }
};

}  // namespace tarnwick::test
