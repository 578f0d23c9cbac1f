#include "ui/RunWatch.h"

#include "ui/Icons.h"
#include "ui/ScreenPlace.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

namespace tarnwick::ui {

namespace {

constexpr int tickMilliseconds = 100;

bool isWithin(const wxRect& inner, const Rect& outer) {
  return inner.x >= outer.left && inner.y >= outer.top && inner.x + inner.width <= outer.right &&
         inner.y + inner.height <= outer.bottom;
}

}  // namespace

std::string lastingWords(std::chrono::seconds lasting) {
  const auto seconds = lasting.count();
  if (seconds < 60) return std::to_string(seconds) + " s";
  return std::to_string(seconds / 60) + " min " + std::to_string(seconds % 60) + " s";
}

RunWatch::RunWatch(wxWindow* parent, std::chrono::milliseconds patience) : parent_(parent), patience_(patience) {}

RunWatch::~RunWatch() = default;

void RunWatch::begin(BusyLoop& loop, const BusyWork& busy, Step step) {
  loop_ = &loop;
  busy_ = busy;
  step_ = step;
  stopping_ = false;
  if (window_) {
    tell();
    loop.admit(window_.get());
  }
  Start(tickMilliseconds);
}

void RunWatch::rest() {
  Stop();
  if (loop_) loop_->admit(nullptr);
  loop_ = nullptr;
  busy_ = {};
}

void RunWatch::stop() {
  if (!loop_ || stopping_) return;
  stopping_ = stopped_ = true;
  if (window_) tell();
  busy_.stop();
}

void RunWatch::Notify() {
  if (window_)
    tell();
  else if (Clock::now() - begun_ >= patience_)
    open();
}

void RunWatch::open() {
  build();
  tell();
  placeBesideParent();
  window_->ShowWithoutActivating();
  loop_->admit(window_.get());
}

void RunWatch::build() {
  window_ =
      std::make_unique<wxDialog>(parent_, wxID_ANY, toWx(busy_.tool), wxDefaultPosition, wxDefaultSize, wxCAPTION);
  window_->SetIcons(programIcons());
  const int gap = window_->FromDIP(12);
  const int width = window_->FromDIP(260);
  on_ = new wxStaticText(window_.get(), wxID_ANY, {}, wxDefaultPosition, wxSize(width, -1),
                         wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE);
  state_ = new wxStaticText(window_.get(), wxID_ANY, {}, wxDefaultPosition, wxSize(width, -1), wxST_NO_AUTORESIZE);
  bar_ = new wxGauge(window_.get(), wxID_ANY, 1);
  for (auto* const line : {on_, state_}) nameNoButton(*line);
  nameBySpeech(*bar_, "Progress");
  bar_->Show(step_.of > 1);
  button_ = new wxButton(window_.get(), wxID_STOP, "Stop");
  button_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { stop(); });
  window_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE)
      stop();
    else
      event.Skip();
  });
  // It goes with the work, not before it.
  window_->Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent& event) { event.Veto(); });
  auto* const column = new wxBoxSizer(wxVERTICAL);
  column->Add(on_, wxSizerFlags().Expand());
  column->Add(state_, wxSizerFlags().Expand().Border(wxTOP, gap / 2));
  column->Add(bar_, wxSizerFlags().Expand().Border(wxTOP, gap));
  column->Add(button_, wxSizerFlags().Right().Border(wxTOP, gap));
  auto* const margin = new wxBoxSizer(wxVERTICAL);
  margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, gap));
  window_->SetSizerAndFit(margin);
}

void RunWatch::placeBesideParent() {
  if (!parent_) return window_->CentreOnScreen();
  const int gap = window_->FromDIP(12);
  const wxRect beside = parent_->GetScreenRect();
  const wxSize size = window_->GetSize();
  const wxPoint places[] = {{beside.x + beside.width + gap, beside.y},
                            {beside.x - gap - size.x, beside.y},
                            {beside.x, beside.y + beside.height + 2 * gap}};
  const auto screens = presentScreens();
  for (const wxPoint& place : places) {
    const auto holds = [&](const Rect& screen) { return isWithin({place, size}, screen); };
    if (std::any_of(screens.begin(), screens.end(), holds)) return window_->Move(place);
  }
  window_->CentreOnParent();
}

void RunWatch::tell() {
  const auto lasting = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - begun_);
  std::string words = "Running for " + lastingWords(lasting);
  if (step_.of > 1)
    words = std::to_string(step_.number) + " of " + std::to_string(step_.of) + ", " + lastingWords(lasting);
  if (stopping_) words = "Stopping ...";
  const auto show = [](wxStaticText* line, const std::string& text) {
    if (line->GetLabelText() != toWx(text)) line->SetLabelText(toWx(text));
  };
  show(on_, busy_.on);
  show(state_, words);
  if (step_.of > 1) {
    bar_->SetRange(static_cast<int>(step_.of));
    bar_->SetValue(static_cast<int>(step_.number - 1));
  }
  button_->Enable(!stopping_);
}

}  // namespace tarnwick::ui
