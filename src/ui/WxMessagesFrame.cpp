#include "ui/WxMessagesFrame.h"

#include "ui/ConsoleKeys.h"
#include "ui/Icons.h"
#include "ui/MessageBoxes.h"
#include "ui/PopupMenu.h"
#include "ui/ScreenPlace.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"
#include "ui/WxConsoleSurface.h"

#include <wx/app.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace tarnwick::ui {

namespace {

constexpr int columns = 100;
constexpr int rows = 20;
constexpr int margin = 6;

/// F4 and Shift+F4.
std::optional<MessagesCommand> stepOf(const wxKeyEvent& event) {
  if (event.GetKeyCode() != WXK_F4 || event.ControlDown() || event.AltDown()) return std::nullopt;
  return event.ShiftDown() ? MessagesCommand::Previous : MessagesCommand::Next;
}

/// Keys of the window alone.
std::optional<MessagesCommand> copyingOf(const wxKeyEvent& event) {
  if (!event.ControlDown() || event.ShiftDown() || event.AltDown()) return std::nullopt;
  if (event.GetKeyCode() == 'C' || event.GetKeyCode() == WXK_INSERT) return MessagesCommand::Copy;
  return event.GetKeyCode() == 'A' ? std::optional(MessagesCommand::SelectAll) : std::nullopt;
}

std::optional<MessagesCommand> sizeOf(const wxKeyEvent& event) {
  using Key = Accelerator::Key;
  if (matches(event, {true, false, Key::Plus, 0, 0})) return MessagesCommand::LargerLetters;
  if (matches(event, {true, false, Key::Minus, 0, 0})) return MessagesCommand::SmallerLetters;
  if (matches(event, {true, false, Key::Zero, 0, 0})) return MessagesCommand::UsualLetters;
  return std::nullopt;
}

}  // namespace

WxMessagesFrame::WxMessagesFrame(WindowStack& stack, Desktop& desktop, MessagesFrame& rules, MainWindow mainWindow)
    : stack_(stack), desktop_(desktop), rules_(rules), mainWindow_(std::move(mainWindow)) {
  // The program's own windows pass on to it what none of their controls wants.
  wxTheApp->Bind(wxEVT_CHAR_HOOK, &WxMessagesFrame::onKeyElsewhere, this);
}

WxMessagesFrame::~WxMessagesFrame() {
  wxTheApp->Unbind(wxEVT_CHAR_HOOK, &WxMessagesFrame::onKeyElsewhere, this);
  if (!frame_) return;
  surface_->stop();
  rules_.view().onClose();
  // At once: nobody may come back here.
  delete frame_;
}

bool WxMessagesFrame::isDark() const {
  return wxSystemSettings::GetAppearance().IsUsingDarkBackground();
}

void WxMessagesFrame::setSummary(const std::string& text) {
  text_ = text;
  if (!summary_) return;
  summary_->SetLabelText(toWx(text));
  describe(*surface_, rules_.wordsInPlace());
  summary_->GetParent()->Layout();
}

void WxMessagesFrame::build() {
  frame_ = new wxFrame(nullptr, wxID_ANY, "Messages - Tarnwick");
  frame_->SetIcons(programIcons());
  auto* const panel = new wxPanel(frame_);
  summary_ = new wxStaticText(panel, wxID_ANY, toWx(text_));
  surface_ = new WxConsoleSurface(panel, stack_, desktop_, rules_.view(), [this] { close(); });
  nameBySpeech(*surface_, "Messages");
  describe(*surface_, rules_.wordsInPlace());
  // They tell that something stands above.
  keepScrollBarsInSight(*surface_);
  surface_->Bind(wxEVT_CONTEXT_MENU, &WxMessagesFrame::openContextMenu, this);
  auto* const column = new wxBoxSizer(wxVERTICAL);
  column->Add(summary_, 0, wxEXPAND | wxALL, panel->FromDIP(margin));
  column->Add(surface_, 1, wxEXPAND);
  panel->SetSizer(column);
  const Point cell = surface_->cell();
  frame_->SetClientSize(columns * cell.x, rows * cell.y);
  frame_->Bind(wxEVT_CHAR_HOOK, &WxMessagesFrame::onFrameKey, this);
  frame_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { guarded(stack_, [this] { close(); }); });
  // Not before: on Windows a focus makes its window the active one.
  frame_->Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
    if (event.GetActive() && surface_)
      surface_->SetFocus();
    else
      event.Skip();
  });
  frame_->Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    if (surface_) surface_->invalidateAll();
  });
}

void WxMessagesFrame::place() {
  const auto before = rules_.place();
  if (!before) return;
  frame_->SetSize(before->width(), before->height());
  const Point at = withinReach({before->left, before->top}, before->width(), before->height(), presentScreens());
  moveWindow(*frame_, at);
}

std::optional<Rect> WxMessagesFrame::placeNow() const {
  const auto at = normalPosition(*frame_);
  if (!at || frame_->IsIconized() || frame_->IsMaximized()) return std::nullopt;
  const wxSize size = frame_->GetSize();
  return Rect{at->x, at->y, at->x + size.x, at->y + size.y};
}

void WxMessagesFrame::show() {
  if (frame_) return;
  build();
  place();
  frame_->Layout();
  surface_->start();
  frame_->ShowWithoutActivating();
}

void WxMessagesFrame::bringForward() {
  if (!frame_) return;
  if (frame_->IsIconized()) frame_->Iconize(false);
  frame_->Raise();
}

void WxMessagesFrame::close() {
  if (!frame_) return;
  const auto at = placeNow();
  surface_->stop();
  rules_.view().onClose();
  frame_->Hide();
  frame_->Destroy();
  frame_ = nullptr;
  summary_ = nullptr;
  surface_ = nullptr;
  rules_.onClosed(at);
}

void WxMessagesFrame::command(MessagesCommand command) {
  // While something is open above the main window, or a tool runs, nothing else is begun.
  if (mainWindow_()) guarded(stack_, [&] { rules_.onCommand(command); });
}

void WxMessagesFrame::openContextMenu(const wxContextMenuEvent& event) {
  static constexpr std::array commands = {MessagesCommand::Copy, MessagesCommand::SelectAll, MessagesCommand::Clear};
  const bool byKey = event.GetPosition() == wxDefaultPosition;
  const wxPoint at = byKey ? wxPoint() : surface_->ScreenToClient(event.GetPosition());
  openMenu(*surface_, wxRect(at, wxSize(1, 1)), {"Copy", "Select all", "Clear"}, byKey,
           [this](int chosen) { command(commands.at(static_cast<std::size_t>(chosen))); });
}

/// The keys that scroll by pages; the surface knows them from its scroll bar alone.
bool WxMessagesFrame::page(int keyCode) {
  if (keyCode != WXK_PAGEUP && keyCode != WXK_PAGEDOWN) return false;
  const int step = std::max(surface_->clientSize().y - surface_->cell().y, surface_->cell().y);
  const Point now = surface_->scrollPosition();
  surface_->scrollTo({now.x, now.y + (keyCode == WXK_PAGEDOWN ? step : -step)});
  rules_.view().onScrolled();
  return true;
}

void WxMessagesFrame::onFrameKey(wxKeyEvent& event) {
  const auto step = stepOf(event);
  const auto chosen = step ? step : copyingOf(event);
  if (chosen)
    command(*chosen);
  else if (const auto size = sizeOf(event))
    guarded(stack_, [&] { rules_.onCommand(*size); });
  else if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE)
    guarded(stack_, [this] { close(); });
  else if (!page(event.GetKeyCode()))
    event.Skip();
}

void WxMessagesFrame::onKeyElsewhere(wxKeyEvent& event) {
  const auto step = stepOf(event);
  auto* const window = dynamic_cast<wxWindow*>(event.GetEventObject());
  if (frame_ && step && window && wxGetTopLevelParent(window) == mainWindow_())
    command(*step);
  else
    event.Skip();
}

}  // namespace tarnwick::ui
