#pragma once

#include "console/ConsoleSurface.h"
#include "ui/WakeGate.h"
#include "ui/WindowStack.h"

#include <wx/window.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tarnwick {
class Desktop;
}

namespace tarnwick::ui {

class HintWindow;

/// The console's window: fixed-pitch cells on one ground, scrolled by pixels.
class WxConsoleSurface : public wxWindow, public ConsoleSurface {
 public:
  WxConsoleSurface(wxWindow* parent, WindowStack& stack, Desktop& desktop, ConsoleSurfaceClient& client,
                   std::function<void()> requestClose);
  ~WxConsoleSurface() override;

  /// The window has its size: the view begins.
  void start();
  /// The window is about to go: the view hears of nothing more.
  void stop();

  bool hasFont() const override { return hasFont_; }
  Point cell() const override { return cell_; }
  bool isDark() const override;
  int usualLetters() const override;
  void setLetters(int points) override;
  Point clientSize() const override;
  Point scrollPosition() const override { return scroll_; }
  void setScrollSizes(const Point& size) override;
  void scrollTo(const Point& position) override;
  void invalidate(const Rect& rect) override;
  void invalidateAll() override;
  void wake() override { gate_->wake(); }
  void showHint(bool on) override;
  /// For a console of today: margins around the text, bars that stay in sight while there is something to scroll, and a
  /// hint that keeps within the window's width and away from the mouse.
  void useTodaysWays();
  /// What the margins take of the window.
  wxSize margins() const { return {margin_, margin_}; }
  void showHand(bool on) override;
  platform::WindowNumber bringToFront() override;
  void showInputTarget() override {
    if (showInputTarget_) showInputTarget_();
  }
  /// What shows who gets what is typed.
  void showInputTargetBy(std::function<void()> show) { showInputTarget_ = std::move(show); }
  void setTitle(const std::string& title) override;
  void close() override { requestClose_(); }

  bool AcceptsFocus() const override { return true; }

 protected:
  void DoSetSize(int x, int y, int width, int height, int flags) override;

 private:
  /// The size in points; 0 for the usual one.
  void useFont(int points);
  void bindEvents();
  void onPaint(wxPaintEvent& event);
  void onSize(wxSizeEvent& event);
  void onScroll(wxScrollWinEvent& event, int lines, bool pages);
  void onScrollTo(wxScrollWinEvent& event);
  void onWheel(wxMouseEvent& event);
  bool zoom(const wxMouseEvent& event);
  void onKeyDown(wxKeyEvent& event);
  void onKeyUp(wxKeyEvent& event);
  void onCharacter(wxKeyEvent& event);
  void bindMouse(const wxEventTypeTag<wxMouseEvent>& type, void (ConsoleSurfaceClient::*operation)(const MouseState&));
  /// The mouse rests, but the Control key has been pressed or let go.
  void pointAnew(bool control);
  void updateBars();
  /// As the user wants it.
  void scrollByHand(const Point& position);
  Point lastPosition() const;
  void tell(const std::function<void()>& action);

  WindowStack& stack_;
  ConsoleSurfaceClient& client_;
  std::function<void()> requestClose_;
  std::function<void()> showInputTarget_;
  std::shared_ptr<WakeGate> gate_;
  std::unique_ptr<HintWindow> hint_;
  Point cell_;
  bool hasFont_ = false;
  bool today_ = false;
  int margin_ = 0;  ///< above the text and right of it
  bool exactAdvance_ = true;
  Point document_;
  Point scroll_;
  int zoomTurn_ = 0;  ///< what the wheel has turned of its next step
  bool alive_ = false;
  bool altServed_ = false;  ///< the Alt that is held was pressed for a key of ours
};

}  // namespace tarnwick::ui
