#pragma once

#include "ui/WxDialogWindow.h"

#include <wx/popupwin.h>

#include <memory>
#include <optional>
#include <string>

namespace tarnwick::ui {

/// The console's hint: a small frameless window near the view's left top corner that never takes the focus.
class HintWindow : private DialogHandler, public WxDialogWindow {
 public:
  HintWindow(WindowStack& stack, wxWindow& view);

  std::string title() const override { return {}; }
  void setTitle(const std::string&) override {}
  void addSystemCommand(const std::string&, std::function<void()>) override {}
  void showWindow(bool on) override;
  /// Shows it within the width of the view, above or below this point of it and a line of text there.
  void showAwayFrom(const wxPoint& point, int lineHeight);
  std::optional<Point> position() const override { return std::nullopt; }
  void moveTo(const Point&) override {}
  void close(int) override { showWindow(false); }

 private:
  using Popup = std::unique_ptr<wxPopupWindow>;

  HintWindow(WindowStack& stack, wxWindow& view, Popup popup);

  void initialise(DialogWindow&) override {}
  void onCommand(int) override {}
  void onCloseRequest() override {}

  void fitWidth(int width);

  wxWindow& view_;
  Popup popup_;
};

}  // namespace tarnwick::ui
