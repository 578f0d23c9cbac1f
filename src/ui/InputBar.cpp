#include "ui/InputBar.h"

#include "app/ConsoleFrameHost.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include <cstddef>
#include <utility>

namespace tarnwick::ui {

namespace {

constexpr int gap = 4;
constexpr const char* inputGoes = "Input goes";

wxColour shown(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace

InputBar::InputBar(wxWindow* parent, ConsoleFrame& rules, std::function<void(int)> choose)
    : wxPanel(parent), rules_(rules), choose_(std::move(choose)) {
  auto* const row = new wxBoxSizer(wxHORIZONTAL);
  const auto add = [&](wxWindow* part) { row->Add(part, 0, wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(gap)); };
  label_ = new wxStaticText(this, wxID_ANY, inputGoes);
  nameNoButton(*label_);
  add(label_);
  long style = wxRB_GROUP;
  for (const auto& choice : rules_.inputChoices()) {
    auto* const button = new wxRadioButton(this, wxID_ANY, toWx(choice.label), wxDefaultPosition, wxDefaultSize, style);
    button->SetToolTip(toWx(choice.toolTip));
    nameBySpeech(*button, inputGoes + (" " + choice.label));
    button->Bind(wxEVT_RADIOBUTTON, [this, command = choice.command](wxCommandEvent&) { choose_(command); });
    buttons_.push_back(button);
    add(button);
    style = 0;
  }
  key_ = new wxStaticText(this, wxID_ANY, "Ctrl+Tab changes it");
  add(key_);
  auto* const column = new wxBoxSizer(wxVERTICAL);
  column->Add(new wxStaticLine(this), 0, wxEXPAND);
  column->Add(row, 0, wxEXPAND);
  // At once, since the frame around it may show before it is laid out.
  SetSizerAndFit(column);
}

void InputBar::showChoice() {
  const Colour ground = rules_.view().ground();
  SetBackgroundColour(shown(ground));
  const auto choices = rules_.inputChoices();
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const InputChoice& choice = choices[i];
    buttons_[i]->SetBackgroundColour(shown(ground));
    buttons_[i]->SetForegroundColour(shown(choice.colour));
    if (!choice.chosen) continue;
    buttons_[i]->SetValue(true);
    for (auto* const words : {label_, key_}) words->SetForegroundColour(shown(choice.colour));
  }
  Layout();
  Refresh();
}

}  // namespace tarnwick::ui
