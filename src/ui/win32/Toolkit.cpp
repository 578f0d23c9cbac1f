#include "ui/Toolkit.h"

#include <windows.h>
#include <wx/dc.h>
#include <wx/msw/private.h>
#include <wx/notebook.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <commctrl.h>

namespace tarnwick::ui {

void prepareToolkit() {}

std::string displayName() {
  return "of Windows";
}

// Readers of the screen take the text before a field as its name.
void nameByLabel(wxWindow&, wxWindow&) {}

bool isListOpen(wxWindow& comboBox) {
  return SendMessageW(static_cast<HWND>(comboBox.GetHandle()), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool handlesKey() {
  return false;
}

std::optional<Point> normalPosition(const wxTopLevelWindow& window) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  if (!GetWindowPlacement(static_cast<HWND>(window.GetHandle()), &placement)) return std::nullopt;
  return Point{static_cast<int>(placement.rcNormalPosition.left), static_cast<int>(placement.rcNormalPosition.top)};
}

void moveWindow(wxTopLevelWindow& window, const Point& leftTop) {
  window.Move(leftTop.x, leftTop.y, wxSIZE_ALLOW_MINUS_ONE);
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

void invertColours(wxDC& dc, const wxRect& rect) {
  RECT area{};
  area.left = dc.LogicalToDeviceX(rect.GetLeft());
  area.top = dc.LogicalToDeviceY(rect.GetTop());
  area.right = dc.LogicalToDeviceX(rect.GetLeft() + rect.GetWidth());
  area.bottom = dc.LogicalToDeviceY(rect.GetTop() + rect.GetHeight());
  InvertRect(static_cast<HDC>(dc.GetHandle()), &area);
}

}  // namespace tarnwick::ui
