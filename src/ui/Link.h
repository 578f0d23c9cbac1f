#pragma once

#include <wx/hyperlink.h>

// Needs its own family's header first, which on Linux does not bring it.
#include <wx/generic/hyperlink.h>

#include <string>

namespace tarnwick::ui {

/// A web address that can be pressed by mouse and by keyboard. It tells of that and opens nothing by itself.
class Link : public wxGenericHyperlinkCtrl {
 public:
  Link(wxWindow& parent, const std::string& address);

 protected:
  /// With room for the frame around the text.
  wxSize DoGetBestClientSize() const override;

 private:
  void paint();
  void onKey(wxKeyEvent& event);
};

}  // namespace tarnwick::ui
