#include "ui/WxConsoleSurface.h"

#include "console/ConsoleLooks.h"
#include "dialogbase/Desktop.h"
#include "ui/ConsoleKeys.h"
#include "ui/HintWindow.h"
#include "ui/MessageBoxes.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"
#include "ui/WxConsolePainter.h"

#include <wx/dcbuffer.h>
#include <wx/fontenum.h>
#include <wx/settings.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <algorithm>
#include <utility>

namespace tarnwick::ui {

namespace {

constexpr int wheelLines = 3;
constexpr int leastSide = 100;

bool isFunctionKey(ConsoleKey key) {
  return key >= ConsoleKey::F5 && key <= ConsoleKey::F12;
}

wxFont consoleFont(int points) {
  const wxFontInfo font = wxFontInfo(points).Family(wxFONTFAMILY_TELETYPE);
  const wxString preferred = preferredLetters;
  return wxFontEnumerator::IsValidFacename(preferred) ? wxFont(wxFontInfo(font).FaceName(preferred)) : wxFont(font);
}

}  // namespace

WxConsoleSurface::WxConsoleSurface(wxWindow* parent, WindowStack& stack, Desktop& desktop, ConsoleSurfaceClient& client,
                                   std::function<void()> requestClose)
    : stack_(stack), client_(client), requestClose_(std::move(requestClose)) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);  // before the window is made: it paints every pixel itself
  wxWindow::Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                   wxVSCROLL | wxHSCROLL | wxWANTS_CHARS | wxBORDER_NONE, "console");
  SetCursor(wxCursor(wxCURSOR_IBEAM));
  useFont(0);
  bindEvents();
  gate_ = std::make_shared<WakeGate>([&desktop](WakeGate::Task task) { desktop.post(std::move(task)); },
                                     [&desktop](int milliseconds, const WakeGate::Task& task) {
                                       auto number = std::make_shared<int>(0);
                                       *number = desktop.startTimer(milliseconds, [&desktop, number, task] {
                                         desktop.stopTimer(*number);
                                         task();
                                       });
                                       return *number > 0;
                                     },
                                     [this] { tell([this] { client_.onWake(); }); });
}

WxConsoleSurface::~WxConsoleSurface() {
  stop();
}

bool WxConsoleSurface::isDark() const {
  return wxSystemSettings::GetAppearance().IsUsingDarkBackground();
}

void WxConsoleSurface::useTodaysWays() {
  today_ = true;
  margin_ = FromDIP(textMargin);
  keepScrollBarsInSight(*this);
}

int WxConsoleSurface::usualLetters() const {
  return std::max(leastUsualLetters, wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetPointSize());
}

void WxConsoleSurface::setLetters(int points) {
  useFont(points);
  invalidateAll();
}

void WxConsoleSurface::useFont(int points) {
  const wxFont font = consoleFont(points == 0 ? usualLetters() : points);
  hasFont_ = font.IsOk();
  if (hasFont_) SetFont(font);
  constexpr int many = 100;
  const wxSize extent = GetTextExtent(wxString('M', many));
  cell_ = {std::max(1, (extent.x + many / 2) / many), std::max(1, extent.y)};
  exactAdvance_ = extent.x == cell_.x * many;
}

void WxConsoleSurface::bindEvents() {
  Bind(wxEVT_PAINT, &WxConsoleSurface::onPaint, this);
  Bind(wxEVT_SIZE, &WxConsoleSurface::onSize, this);
  Bind(wxEVT_KEY_DOWN, &WxConsoleSurface::onKeyDown, this);
  Bind(wxEVT_KEY_UP, &WxConsoleSurface::onKeyUp, this);
  Bind(wxEVT_CHAR, &WxConsoleSurface::onCharacter, this);
  Bind(wxEVT_MOUSEWHEEL, &WxConsoleSurface::onWheel, this);
  const auto scroll = [this](const wxEventTypeTag<wxScrollWinEvent>& type, int lines, bool pages) {
    Bind(type, [this, lines, pages](wxScrollWinEvent& event) { onScroll(event, lines, pages); });
  };
  scroll(wxEVT_SCROLLWIN_LINEUP, -1, false);
  scroll(wxEVT_SCROLLWIN_LINEDOWN, 1, false);
  scroll(wxEVT_SCROLLWIN_PAGEUP, -1, true);
  scroll(wxEVT_SCROLLWIN_PAGEDOWN, 1, true);
  for (const auto& type : {wxEVT_SCROLLWIN_THUMBTRACK, wxEVT_SCROLLWIN_THUMBRELEASE}) {
    Bind(type, &WxConsoleSurface::onScrollTo, this);
  }
  Bind(wxEVT_SCROLLWIN_TOP, [this](wxScrollWinEvent&) { scrollByHand({scroll_.x, 0}); });
  Bind(wxEVT_SCROLLWIN_BOTTOM, [this](wxScrollWinEvent&) { scrollByHand({scroll_.x, lastPosition().y}); });
  bindMouse(wxEVT_LEFT_DOWN, &ConsoleSurfaceClient::onLeftDown);
  bindMouse(wxEVT_LEFT_UP, &ConsoleSurfaceClient::onLeftUp);
  bindMouse(wxEVT_MOTION, &ConsoleSurfaceClient::onMouseMove);
  // What shows under the mouse goes with it. While text is selected, the mouse is still ours out there.
  Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
    event.Skip();
    MouseState away;
    away.at = {-1, -1};
    if (!event.LeftIsDown()) tell([&] { client_.onMouseMove(away); });
  });
  bindMouse(wxEVT_LEFT_DCLICK, &ConsoleSurfaceClient::onDoubleClick);
  bindMouse(wxEVT_RIGHT_DOWN, &ConsoleSurfaceClient::onRightDown);
}

void WxConsoleSurface::bindMouse(const wxEventTypeTag<wxMouseEvent>& type,
                                 void (ConsoleSurfaceClient::*operation)(const MouseState&)) {
  Bind(type, [this, operation](wxMouseEvent& event) {
    event.Skip();  // a press gives the focus
    MouseState state;
    state.at = {event.GetX(), event.GetY() - margin_};
    state.leftDown = event.LeftIsDown();
    state.otherButtonDown = event.RightIsDown() || event.MiddleIsDown();
    state.shift = event.ShiftDown();
    state.control = event.ControlDown();
    if (event.ButtonDown()) SetFocus();
    tell([&] { (client_.*operation)(state); });
  });
}

void WxConsoleSurface::pointAnew(bool control) {
  const wxPoint at = ScreenToClient(wxGetMousePosition());
  if (!wxRect(GetClientSize()).Contains(at) || wxGetMouseState().LeftIsDown()) return;
  MouseState state;
  state.at = {at.x, at.y - margin_};
  state.control = control;
  tell([&] { client_.onMouseMove(state); });
}

void WxConsoleSurface::tell(const std::function<void()>& action) {
  if (alive_) guarded(stack_, action);
}

void WxConsoleSurface::start() {
  alive_ = true;
  updateBars();  // none is needed yet
  tell([this] { client_.onStart(*this); });
}

void WxConsoleSurface::stop() {
  alive_ = false;
  gate_->shut();
  hint_.reset();
}

// A window of a few pixels would leave its scroll bars less than nothing. So the frame shows a part of a larger one.
void WxConsoleSurface::DoSetSize(int x, int y, int width, int height, int flags) {
  const auto atLeast = [](int wanted) { return wanted == wxDefaultCoord ? wanted : std::max(wanted, leastSide); };
  wxWindow::DoSetSize(x, y, atLeast(width), atLeast(height), flags);
}

Point WxConsoleSurface::clientSize() const {
  const wxSize size = GetClientSize();
  return {std::max(size.x - margin_, 1), std::max(size.y - margin_, 1)};
}

Point WxConsoleSurface::lastPosition() const {
  const Point window = clientSize();
  return {std::max(0, document_.x - window.x), std::max(0, document_.y - window.y)};
}

void WxConsoleSurface::setScrollSizes(const Point& size) {
  if (size == document_) return;
  document_ = size;
  const Point before = scroll_;
  updateBars();
  if (scroll_ != before) invalidateAll();
}

void WxConsoleSurface::updateBars() {
  // A bar that comes takes room from the other direction, so the second look may bring the other bar.
  for (int round = 0; round < 2; ++round) {
    const Point window = clientSize();
    const Point last = lastPosition();
    scroll_ = {std::clamp(scroll_.x, 0, last.x), std::clamp(scroll_.y, 0, last.y)};
    // A range shorter than the window would show as if it had been scrolled too far.
    SetScrollbar(wxHORIZONTAL, scroll_.x, window.x, std::max(window.x, document_.x));
    SetScrollbar(wxVERTICAL, scroll_.y, window.y, std::max(window.y, document_.y));
  }
}

void WxConsoleSurface::scrollTo(const Point& position) {
  const Point last = lastPosition();
  const Point target{std::clamp(position.x, 0, last.x), std::clamp(position.y, 0, last.y)};
  if (target == scroll_) return;
  if (target.x != scroll_.x) SetScrollPos(wxHORIZONTAL, target.x);
  if (target.y != scroll_.y) SetScrollPos(wxVERTICAL, target.y);
  scroll_ = target;
  invalidateAll();
}

void WxConsoleSurface::invalidate(const Rect& rect) {
  RefreshRect(wxRect(rect.left - scroll_.x, rect.top - scroll_.y + margin_, rect.width(), rect.height()), false);
}

void WxConsoleSurface::invalidateAll() {
  Refresh(false);
}

void WxConsoleSurface::showHint(bool on) {
  if (on && !hint_) hint_ = std::make_unique<HintWindow>(stack_, *this);
  if (!hint_) return;
  if (on && today_)
    hint_->showAwayFrom(ScreenToClient(wxGetMousePosition()), cell_.y);
  else
    hint_->showWindow(on);
}

void WxConsoleSurface::showHand(bool on) {
  SetCursor(wxCursor(on ? wxCURSOR_HAND : wxCURSOR_IBEAM));
}

platform::WindowNumber WxConsoleSurface::bringToFront() {
  wxWindow* const frame = wxGetTopLevelParent(this);
  Raise();
  frame->Raise();
  return reinterpret_cast<platform::WindowNumber>(frame->GetHandle());
}

void WxConsoleSurface::setTitle(const std::string& title) {
  if (auto* const frame = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(this))) frame->SetTitle(toWx(title));
}

void WxConsoleSurface::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  const Colour ground = client_.ground();
  dc.SetBackground(wxBrush(wxColour(ground.red, ground.green, ground.blue)));
  dc.Clear();
  if (!alive_) return;
  dc.SetFont(GetFont());
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.SetDeviceOrigin(-scroll_.x, margin_ - scroll_.y);
  wxRect clip = GetUpdateRegion().GetBox();
  if (clip.IsEmpty()) clip = wxRect(GetClientSize());
  clip.Offset(scroll_.x, scroll_.y - margin_);
  if (margin_ > 0) {
    // What is scrolled halfway out of sight ends at the margins.
    const Point room = clientSize();
    const wxRect text(scroll_.x, scroll_.y, room.x, room.y);
    clip.Intersect(text);
    if (clip.IsEmpty()) return;
    dc.SetClippingRegion(text);
  }
  WxConsolePainter painter(dc, clip, cell_, exactAdvance_);
  tell([&] { client_.paint(painter); });
}

void WxConsoleSurface::onSize(wxSizeEvent& event) {
  event.Skip();
  if (!alive_) return;
  updateBars();
  invalidateAll();
  tell([this] { client_.onResized(); });
}

void WxConsoleSurface::scrollByHand(const Point& position) {
  scrollTo(position);
  tell([this] { client_.onScrolled(); });
}

void WxConsoleSurface::onScroll(wxScrollWinEvent& event, int lines, bool pages) {
  const Point window = clientSize();
  if (event.GetOrientation() == wxVERTICAL) {
    const int step = pages ? std::max(cell_.y, window.y - cell_.y) : cell_.y;
    scrollByHand({scroll_.x, scroll_.y + lines * step});
  } else {
    const int step = pages ? std::max(cell_.x, window.x - cell_.x) : cell_.x;
    scrollByHand({scroll_.x + lines * step, scroll_.y});
  }
}

void WxConsoleSurface::onScrollTo(wxScrollWinEvent& event) {
  if (event.GetOrientation() == wxVERTICAL) {
    scrollByHand({scroll_.x, event.GetPosition()});
  } else {
    scrollByHand({event.GetPosition(), scroll_.y});
  }
}

bool WxConsoleSurface::zoom(const wxMouseEvent& event) {
  if (!event.ControlDown() || event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL) return false;
  const int step = std::max(1, event.GetWheelDelta());
  bool used = false;
  tell([&] { used = client_.onZoom((zoomTurn_ + event.GetWheelRotation()) / step); });
  zoomTurn_ = used ? (zoomTurn_ + event.GetWheelRotation()) % step : 0;
  return used;
}

void WxConsoleSurface::onWheel(wxMouseEvent& event) {
  if (zoom(event)) return;
  const int turn = event.GetWheelRotation() * wheelLines / std::max(1, event.GetWheelDelta());
  if (event.GetWheelAxis() == wxMOUSE_WHEEL_HORIZONTAL || event.ShiftDown()) {
    const int direction = event.GetWheelAxis() == wxMOUSE_WHEEL_HORIZONTAL ? 1 : -1;
    scrollByHand({scroll_.x + direction * turn * cell_.x, scroll_.y});
  } else {
    scrollByHand({scroll_.x, scroll_.y - turn * cell_.y});
  }
}

void WxConsoleSurface::onKeyDown(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_CONTROL) pointAnew(true);
  bool used = false;
  tell([&] { used = client_.onKey(consoleKeyOf(event.GetKeyCode()), modifiersOf(event)); });
  const bool withAlt = used && event.AltDown();
  altServed_ = withAlt || (altServed_ && event.GetKeyCode() != WXK_ALT);
  // With Alt, the system hears of the key all the same: an Alt that it believes to be pressed alone leads to the menus.
  if (!used || withAlt) event.Skip();
}

void WxConsoleSurface::onKeyUp(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_CONTROL) pointAnew(false);
  const bool used = event.GetKeyCode() == WXK_ALT ? std::exchange(altServed_, false)
                                                  : isFunctionKey(consoleKeyOf(event.GetKeyCode()));
  if (!used) event.Skip();
}

void WxConsoleSurface::onCharacter(wxKeyEvent& event) {
  const std::string character = characterOf(event);
  if (character.empty()) {
    event.Skip();
    return;
  }
  tell([&] { client_.onCharacter(character, 1); });
}

}  // namespace tarnwick::ui
