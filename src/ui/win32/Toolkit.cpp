#include "ui/Toolkit.h"

#include "ui/Text.h"

#include <windows.h>
#include <wx/access.h>
#include <wx/control.h>
#include <wx/dc.h>
#include <wx/event.h>
#include <wx/menu.h>
#include <wx/msw/private.h>
#include <wx/notebook.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <commctrl.h>
#include <optional>
#include <utility>

namespace tarnwick::ui {

namespace {

/// What readers of the screen are told in the place of the control's own text. The rest the system tells.
class SpokenWords : public wxAccessible {
 public:
  explicit SpokenWords(wxWindow& control) : wxAccessible(&control) {}

  wxAccStatus GetName(int part, wxString* name) override { return tell(part, name_, name); }
  wxAccStatus GetDescription(int part, wxString* description) override { return tell(part, description_, description); }

  void setName(wxString name) { name_ = std::move(name); }
  void setDescription(wxString description) { description_ = std::move(description); }

 private:
  static wxAccStatus tell(int part, const std::optional<wxString>& known, wxString* told) {
    if (part != wxACC_SELF || !known) return wxACC_NOT_IMPLEMENTED;
    *told = *known;
    return wxACC_OK;
  }

  std::optional<wxString> name_;
  std::optional<wxString> description_;
};

SpokenWords& spokenWords(wxWindow& control) {
  if (auto* const known = dynamic_cast<SpokenWords*>(control.GetAccessible())) return *known;
  auto* const words = new SpokenWords(control);
  control.SetAccessible(words);
  return *words;
}

/// The toolkit repaints a strip along each edge, and with it whatever stands in the strip; there is nothing to see.
/// A group that moves would carry along what it shows, which is to the system also the pixels of the controls within.
class Group : public wxStaticBox {
 public:
  using wxStaticBox::wxStaticBox;

  WXLRESULT MSWWindowProc(WXUINT message, WXWPARAM first, WXLPARAM second) override {
    if (message == WM_WINDOWPOSCHANGING) reinterpret_cast<WINDOWPOS*>(second)->flags |= SWP_NOCOPYBITS;
    return wxStaticBox::MSWWindowProc(message, first, second);
  }

  void GetBordersForSizer(int* top, int* other) const override {
    wxStaticBox::GetBordersForSizer(top, other);
    *other = 0;
  }

 protected:
  /// The heading alone, without the blanks that keep it from a frame's line.
  void PaintForeground(wxDC& dc, const RECT&) override {
    dc.SetFont(GetFont());
    dc.SetTextForeground(GetForegroundColour());
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.DrawText(GetLabelText().Strip(wxString::both), 0, 0);
  }
};

/// The executable's file; empty if the system does not tell.
std::wstring programOf(DWORD process) {
  std::wstring path(32768, L'\0');
  auto size = static_cast<DWORD>(path.size());
  const HANDLE opened = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
  if (opened == nullptr) return {};
  if (!QueryFullProcessImageNameW(opened, 0, path.data(), &size)) size = 0;
  CloseHandle(opened);
  return path.substr(0, size);
}

struct Search {
  Point place;
  std::wstring program;
  bool found = false;
};

BOOL CALLBACK compare(HWND window, LPARAM data) {
  Search& search = *reinterpret_cast<Search*>(data);
  DWORD process = 0;
  RECT rect{};
  GetWindowThreadProcessId(window, &process);
  const bool stands = process != GetCurrentProcessId() && IsWindowVisible(window) && !IsIconic(window) &&
                      GetWindowRect(window, &rect) && rect.left == search.place.x && rect.top == search.place.y;
  search.found = stands && programOf(process) == search.program;
  return !search.found;
}

}  // namespace

void prepareToolkit() {}

void toolkitStarted() {}

std::string displayName() {
  return "of Windows";
}

// Readers of the screen take the text before a field as its name.
void nameByLabel(wxWindow&, wxWindow&) {}

void nameNoButton(wxWindow&) {}

void nameBySpeech(wxWindow& control, const std::string& name) {
  spokenWords(control).setName(toWx(name));
}

void describe(wxWindow& control, const std::string& words) {
  spokenWords(control).setDescription(toWx(words));
}

void describeHint(wxWindow& window, const std::string& name) {
  nameBySpeech(window, name);
}

// The letters follow the screen that the control is on.
wxFont usualFont(const wxWindow& control) {
  return control.GetFont();
}

wxString noWords() {
  return {};
}

// The system tells it.
void nameTab(wxNotebook&, std::size_t, const std::string&) {}

// The system's own are so.
void showAsClosed(wxWindow&) {}

// Each Tab looks for itself what shows.
void joinTabOrder(wxWindow&) {}

std::string spokenName(wxWindow& control) {
  wxString given;
  auto* const accessible = control.GetAccessible();
  if (accessible && accessible->GetName(wxACC_SELF, &given) == wxACC_OK) return fromWx(given);
  const wxString own = wxControl::RemoveMnemonics(control.GetLabel());
  if (!own.empty()) return fromWx(own);
  const auto before = GetWindow(static_cast<HWND>(control.GetHandle()), GW_HWNDPREV);
  const auto* const label = dynamic_cast<wxStaticText*>(wxFindWinFromHandle(before));
  return label ? fromWx(wxControl::RemoveMnemonics(label->GetLabel())) : std::string();
}

// The toolkit lets a page that gets the focus hand it to the radio button that was checked last.
void keepFirstFocus(wxWindow& surface) {
  if (!surface.IsDescendant(wxWindow::FindFocus())) surface.WXSetPendingFocus(nullptr);
}

wxStaticBox* makeGroup(wxWindow& parent, const wxString& title) {
  auto* const group = new Group(&parent, wxID_ANY, title);
  group->SetFont(group->GetFont().Bold());
  return group;
}

// The system draws a frame around it.
void showAsDefault(wxWindow&) {}

// The system's guide to dialogs fixes it; nobody can be asked.
ButtonCustom customOfButtons() {
  return ButtonCustom::AffirmativeFirst;
}

// The address is the window's text already.
void describeLink(wxWindow&, const std::string&) {}

// The system's always do.
void keepScrollBarsInSight(wxWindow&) {}

bool isListOpen(wxWindow& comboBox) {
  return SendMessageW(static_cast<HWND>(comboBox.GetHandle()), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

// With Control it is another key here.
bool isBreakKey(const wxKeyEvent& event) {
  return event.GetKeyCode() == WXK_PAUSE || event.GetKeyCode() == WXK_CANCEL;
}

bool handlesKey() {
  return false;
}

std::optional<Point> normalPosition(const wxTopLevelWindow& window) {
  const auto handle = static_cast<HWND>(window.GetHandle());
  RECT now{};
  // A placement counts from the task bar where that stands above or on the left, and windows are moved in the
  // coordinates of the screen: by the placement a window would creep a little at each start.
  if (!IsIconic(handle) && GetWindowRect(handle, &now))
    return Point{static_cast<int>(now.left), static_cast<int>(now.top)};
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  if (!GetWindowPlacement(handle, &placement)) return std::nullopt;
  return Point{static_cast<int>(placement.rcNormalPosition.left), static_cast<int>(placement.rcNormalPosition.top)};
}

void moveWindow(wxTopLevelWindow& window, const Point& leftTop) {
  window.Move(leftTop.x, leftTop.y, wxSIZE_ALLOW_MINUS_ONE);
}

bool otherInstanceAt(const Point& leftTop) {
  Search search{leftTop, programOf(GetCurrentProcessId())};
  EnumWindows(compare, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void appendToSystemMenu(wxTopLevelWindow& window, const std::string& label, const std::function<void()>& action) {
  wxMenu* const menu = window.MSWGetSystemMenu();
  if (!menu) return;
  // The system keeps the lowest four bits of such a number for itself, so one of the toolkit's own would come back as
  // another.
  constexpr int command = 16;
  menu->AppendSeparator();
  menu->Append(command, toWx(label));
  menu->Bind(
      wxEVT_MENU, [action](wxCommandEvent&) { action(); }, command);
}

// A dialog without an owner is one already.
void makeMainWindow(wxTopLevelWindow&) {}

// The system's own dialogs show none.
void useAsDefaultIcon(const wxBitmap&) {}

wxSize sizeWithTabs(wxNotebook& tabs, const wxSize& page) {
  wxSize size = tabs.CalcSizeFromPage(page);
  int width = 2 * tabs.GetCharWidth();
  for (std::size_t i = 0; i < tabs.GetPageCount(); ++i) {
    RECT tab{};
    if (TabCtrl_GetItemRect(static_cast<HWND>(tabs.GetHandle()), static_cast<int>(i), &tab)) {
      width += static_cast<int>(tab.right - tab.left);
    }
  }
  size.x = std::max(size.x, width);
  return size;
}

wxRect pageRect(const wxNotebook& tabs) {
  RECT room{0, 0, tabs.GetSize().x, tabs.GetSize().y};
  TabCtrl_AdjustRect(static_cast<HWND>(tabs.GetHandle()), FALSE, &room);
  return {static_cast<int>(room.left), static_cast<int>(room.top), static_cast<int>(room.right - room.left),
          static_cast<int>(room.bottom - room.top)};
}

void dismiss(wxMessageDialog&) {}

void invertColours(wxDC& dc, const wxRect& rect) {
  RECT area{};
  area.left = dc.LogicalToDeviceX(rect.GetLeft());
  area.top = dc.LogicalToDeviceY(rect.GetTop());
  area.right = dc.LogicalToDeviceX(rect.GetLeft() + rect.GetWidth());
  area.bottom = dc.LogicalToDeviceY(rect.GetTop() + rect.GetHeight());
  InvertRect(static_cast<HDC>(dc.GetHandle()), &area);
}

}  // namespace tarnwick::ui
