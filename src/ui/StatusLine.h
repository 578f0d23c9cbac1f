#pragma once

#include <wx/button.h>

#include <string>

namespace tarnwick::ui {

/// A line of text that can be pressed. What it has no room for ends with "...", and a tool tip tells the whole.
class StatusLine : public wxButton {
 public:
  explicit StatusLine(wxWindow& parent);

  void set(const std::string& text);
  const std::string& text() const { return text_; }

 private:
  void fit();

  std::string text_;
};

}  // namespace tarnwick::ui
