#pragma once

#include "app/MessagesFrame.h"
#include "dialogbase/Desktop.h"
#include "ui/WindowStack.h"

#include <wx/event.h>
#include <wx/frame.h>
#include <wx/stattext.h>

#include <functional>
#include <optional>
#include <string>

namespace tarnwick::ui {

class WxConsoleSurface;

/// The window of what the tools have said: a line that sums up, and the text below it.
class WxMessagesFrame : public MessagesWindow {
 public:
  /// Gives the program's main window while that takes input, in which F4 and Shift+F4 are commands, too; null
  /// otherwise.
  using MainWindow = std::function<const wxWindow*()>;

  WxMessagesFrame(WindowStack& stack, Desktop& desktop, MessagesFrame& rules, MainWindow mainWindow);
  ~WxMessagesFrame() override;
  WxMessagesFrame(const WxMessagesFrame&) = delete;
  WxMessagesFrame& operator=(const WxMessagesFrame&) = delete;

  void setSummary(const std::string& text) override;
  void show() override;
  void bringForward() override;
  bool isOpen() const override { return frame_ != nullptr; }
  bool isDark() const override;
  void close() override;

  /// Null while the window is closed.
  wxFrame* frame() { return frame_; }
  wxStaticText* summary() { return summary_; }
  WxConsoleSurface* surface() { return surface_; }

 private:
  void build();
  void place();
  std::optional<Rect> placeNow() const;
  void onFrameKey(wxKeyEvent& event);
  void onKeyElsewhere(wxKeyEvent& event);
  bool page(int keyCode);
  void command(MessagesCommand command);
  void openContextMenu(const wxContextMenuEvent& event);

  WindowStack& stack_;
  Desktop& desktop_;
  MessagesFrame& rules_;
  MainWindow mainWindow_;
  std::string text_;
  wxFrame* frame_ = nullptr;
  wxStaticText* summary_ = nullptr;
  WxConsoleSurface* surface_ = nullptr;
};

}  // namespace tarnwick::ui
