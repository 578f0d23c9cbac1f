#include "ui/PictureButton.h"

#include "resources/PanelPictures.h"
#include "ui/Icons.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/event.h>
#include <wx/settings.h>

#include <algorithm>

namespace tarnwick::ui {

namespace {

/// Whatever it is: a button that is given none measures itself for it, long before it has its picture.
constexpr int firstSide = 1;

bool isUnseen(const PanelPicture* picture) {
  return picture && picture->words == PanelPicture::Unseen;
}

}  // namespace

PictureButton::PictureButton(wxWindow& parent, const std::string& text, const std::string& spoken)
    : wxButton(&parent, wxID_ANY, toWx(text), wxDefaultPosition, {firstSide, firstSide}, wxBU_EXACTFIT),
      text_(text),
      spoken_(spoken),
      plain_(usualFont(*this)) {
  SetMinSize(wxDefaultSize);
  dress();
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    showWords(hasRoomForWords());
  });
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    dress();
  });
}

void PictureButton::setText(const std::string& text) {
  text_ = text;
  dress();
}

void PictureButton::dress() {
  const PanelPicture* const picture = panelPicture(text_);
  // A font of its own, even if it is the same: the toolkit asks the whole theme for any other, each time.
  SetFont(picture && picture->words == PanelPicture::Emphasised ? plain_.Bold() : plain_);
  if (isUnseen(picture)) wordsShow_ = false;
  // The toolkit builds a button anew for each label.
  const wxString label = wordsShow_ ? toWx(text_) : noWords();
  if (label != GetLabel()) SetLabel(label);
  const bool dark = wxSystemSettings::GetAppearance().IsDark();
  const auto room = wordsShow_ ? PictureRoom::BesideWords : PictureRoom::Alone;
  SetBitmap(picture ? buttonPicture(std::string(picture->drawing), dark, room) : wxBitmapBundle());
  nameBySpeech(*this, name());
  if (!wordsShow_ && (tipIsName_ || !GetToolTip())) {
    SetToolTip(toWx(name()));
    tipIsName_ = true;
  } else if (wordsShow_ && tipIsName_) {
    UnsetToolTip();
    tipIsName_ = false;
  }
}

void PictureButton::showWords(bool on) {
  if (on == wordsShow_) return;
  wordsShow_ = on;
  dress();
}

bool PictureButton::hasRoomForWords() const {
  const PanelPicture* const picture = panelPicture(text_);
  // The sides may become narrow before the words go.
  return !picture || (!isUnseen(picture) && GetSize().x >= widthWithWords(text_) - GetCharWidth());
}

int PictureButton::widthWithWords(const std::string& text) const {
  const int picture = FromDIP(buttonPictureSize(PictureRoom::BesideWords).x);
  return picture + GetTextExtent(toWx(text)).x + 2 * GetCharWidth();
}

wxSize PictureButton::sizeFor(const std::string& text) const {
  const int height = GetBestSize().y;
  if (isUnseen(panelPicture(text_))) {
    return {FromDIP(buttonPictureSize(PictureRoom::Alone).x) + 2 * GetCharWidth(), height};
  }
  return {std::max(widthWithWords(text_), widthWithWords(text)), height};
}

}  // namespace tarnwick::ui
