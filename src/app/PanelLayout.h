#pragma once

#include <memory>
#include <vector>

namespace tarnwick {

class DialogWindow;

/// One window in one arrangement: a control of `owner`, or `owner` itself.
struct LayoutItem {
  enum Flags { AS_IT_IS = 0, SHOW = 64, HIDE = 128 };

  /// The item as it stands now. Control 0 is the window itself.
  static LayoutItem of(DialogWindow& owner, int control = 0);

  int left = 0;  ///< in the client coordinates of `owner`, or of its parent; of the top window, on the screen
  int top = 0;
  int right = 0;
  int bottom = 0;
  int control = 0;  ///< 0 for `owner` itself
  int flags = AS_IT_IS;
  DialogWindow* owner = nullptr;  ///< not owned
  int leastWidth = 0;             ///< to which an arrangement may shorten it

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  /// Keeps the size.
  void moveTo(int x, int y);
  /// Keeps left and top.
  void resize(int w, int h);

  /// Puts the window there. One that is to be hidden is only hidden, neither moved nor sized.
  void apply() const;
};

/// One arrangement of a panel.
class PanelLayout {
 public:
  explicit PanelLayout(int index) : index_(index) {}

  int index() const { return index_; }
  void add(const LayoutItem& item, int flags);
  void addShown(const LayoutItem& item, bool shown);
  /// The last item of this control, or the first item of all if there is none. The list must not be empty.
  LayoutItem& findControl(int number);
  /// The last item that is this window itself, or the first item of all if there is none. Likewise.
  LayoutItem& findWindow(const DialogWindow& window);
  /// Puts all windows to their places, from the last item to the first. Their order among one another stays, which is
  /// meant: Tab goes through every arrangement as through the resource's own.
  void apply() const;

 private:
  int index_;
  std::vector<std::unique_ptr<LayoutItem>> items_;
};

}  // namespace tarnwick
