#pragma once

#include <wx/button.h>

#include <string>

namespace tarnwick::ui {

/// A button of the panel, with the picture that its words stand for. Where it has no room for both, or where its words
/// are signs, it shows the picture alone; the words, or a name given for them, are then its tool tip, and always what
/// readers of the screen hear.
class PictureButton : public wxButton {
 public:
  /// `spoken` is the name to be heard in the place of the words; empty for the words.
  PictureButton(wxWindow& parent, const std::string& text, const std::string& spoken);

  const std::string& text() const { return text_; }
  void setText(const std::string& text);

  /// What it needs, in pixels, to show its picture with its present words, or with these if they are longer.
  wxSize sizeFor(const std::string& text) const;

 private:
  void dress();
  void showWords(bool on);
  bool hasRoomForWords() const;
  int widthWithWords(const std::string& text) const;
  /// What is heard, and told where the words do not show.
  const std::string& name() const { return spoken_.empty() ? text_ : spoken_; }

  std::string text_;
  std::string spoken_;
  wxFont plain_;
  bool wordsShow_ = true;
  bool tipIsName_ = false;
};

}  // namespace tarnwick::ui
