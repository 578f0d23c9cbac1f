#pragma once

#include "app/MessagesText.h"
#include "console/ConsoleGrid.h"
#include "console/ConsoleLooks.h"
#include "console/ConsoleSelection.h"
#include "console/ConsoleSurface.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

/// The text of the messages' window: it can be selected, and the user is at one of its messages, or at none.
/// User-interface thread only.
class MessagesView : public ConsoleSurfaceClient {
 public:
  /// `isDark` tells if the desktop wants dark ground. `open` is told of a message that the user wants to get to.
  MessagesView(std::function<bool()> isDark, std::function<void(const ToolMessage&)> open);

  /// Shows another text from where its newest part begins; the user is at none of its messages.
  void setText(MessagesText text);
  const MessagesText& text() const { return text_; }
  /// What stands in the place of the text; empty if there is one.
  std::string wordsInPlace() const;

  /// Goes to the next message of the newest part that has a place, or to the one before, and brings it into sight.
  /// Null, with nothing changed, if there is none.
  const ToolMessage* step(bool forward);
  std::optional<std::size_t> current() const { return current_; }

  /// The selected text, its lines parted by "\r\n".
  std::string selectedText() const;
  void selectAll();

  /// The size of the letters in points, 0 for the usual one; and what is told when the user changes it.
  void useLetters(int letters, std::function<void(int letters)> changed);
  /// Makes the letters larger by so many steps, or smaller.
  void stepLetters(int steps);
  void useUsualLetters() { setLetters(0); }

  void onStart(ConsoleSurface& surface) override;
  Colour ground() const override;
  void paint(ConsolePainter& painter) override;
  void onWake() override {}
  void onScrolled() override;
  bool onZoom(int steps) override;
  void onResized() override;
  bool onKey(ConsoleKey key, int modifiers) override;
  void onCharacter(const std::string& character, int repeatCount) override;
  void onLeftDown(const MouseState& mouse) override;
  void onLeftUp(const MouseState& mouse) override;
  void onMouseMove(const MouseState& mouse) override;
  void onDoubleClick(const MouseState& mouse) override;
  void onRightDown(const MouseState& /*mouse*/) override {}
  void onClose() override;

 private:
  void fitSurface();
  void scrollTo(const Point& position);
  void showNewest();
  int newestTop() const { return grid_.y(static_cast<int>(text_.newestLine)); }
  void setLetters(int letters);
  void moveTo(std::optional<std::size_t> message);
  void showCurrent();
  void openCurrent();
  ConsoleCell cellAt(const Point& at) const;
  std::optional<std::size_t> messageAt(int line) const;
  int width() const { return widest_ + messageColumns; }

  static constexpr int messageColumns = 4;  ///< the marks', and one behind the longest line

  std::function<bool()> isDark_;
  std::function<void(const ToolMessage&)> open_;
  MessagesText text_;
  int widest_ = 0;
  int top_ = 0;  ///< where the surface was scrolled to last, in pixels
  int letters_ = 0;
  std::function<void(int letters)> lettersChanged_ = [](int) {};
  ConsoleGrid grid_;
  ConsoleSelection selection_{grid_};
  std::optional<std::size_t> current_;
  ConsoleSurface* surface_ = nullptr;  ///< null before the start and after the close
};

}  // namespace tarnwick
