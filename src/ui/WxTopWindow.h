#pragma once

#include "ui/WxDialogWindow.h"

#include <wx/dialog.h>

#include <memory>
#include <optional>
#include <string>

namespace tarnwick::ui {

/// A dialog with a frame of its own.
class WxTopWindow : public WxDialogWindow {
 public:
  enum class Role { Main, Modal };

  WxTopWindow(WindowStack& stack, Role role, const DialogLayout& layout, DialogHandler& handler);
  ~WxTopWindow() override;

  /// Lets the dialog's rules set it up, shows it and returns its result when it has been closed.
  int run();

  std::string title() const override;
  void setTitle(const std::string& title) override;
  void showWindow(bool on) override;
  void addSystemCommand(const std::string& label, std::function<void()> action) override;
  Rect windowRect() const override;
  void setWindowRect(const Rect& rect) override;
  std::optional<Point> position() const override;
  void moveTo(const Point& leftTop) override;
  void close(int result) override;

  wxDialog& dialog() { return *dialog_; }
  /// True while nothing is open or at work above it.
  bool isInnermost() const { return place_ && place_->isInnermost(); }

 private:
  using Dialog = std::unique_ptr<wxDialog>;

  WxTopWindow(WindowStack& stack, Role role, const DialogLayout& layout, DialogHandler& handler, Dialog dialog);

  void standByDefault();
  void fit();
  /// What the frame adds to the client area.
  wxSize frame() const;
  /// The place of a window that stands at `real`, as its rules see it.
  Point told(const Point& real) const;
  /// Where the window comes to stand when the rules move it to `place`.
  Point besideOthers(const Point& place) const;
  /// Files may be dropped on this window and all that is in it.
  void takeDrops(wxWindow& window);
  void onKey(wxKeyEvent& event);
  void onEscape();
  /// False if the key means nothing of its own in the control with the focus.
  bool onControlReturn(const wxWindow* focus);
  /// Leads a focus that nobody sees, of a control that was hidden or disabled, on to the next one of use.
  void keepFocusInSight();
  void end();

  Role role_;
  Dialog dialog_;
  WindowStack::Place* place_ = nullptr;
  std::optional<int> result_;
  bool moved_ = false;
  /// A window that has come where another instance's stood is a step away from it, of which its rules know nothing.
  struct Aside {
    Point real;
    Point told;
  };
  std::optional<Aside> aside_;
  mutable std::optional<wxSize> frame_;
  bool running_ = false;
  const wxWindow* lastStop_ = nullptr;  ///< what had the focus last; only to be compared
};

}  // namespace tarnwick::ui
