#include "ui/EmptyText.h"

#include "ui/Text.h"

#include <windows.h>
#include <wx/listbox.h>

#include <algorithm>
#include <commctrl.h>
#include <memory>

namespace tarnwick::ui {

namespace {

constexpr UINT_PTR listNumber = 1;
constexpr const wchar_t* wordsOfList = L"Tarnwick's words in an empty list";
constexpr int margin = 12;

void paint(HWND list, const std::wstring& words) {
  RECT room{};
  GetClientRect(list, &room);
  InflateRect(&room, -margin, -margin);
  const HDC context = GetDC(list);
  if (context == nullptr) return;
  const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(list, WM_GETFONT, 0, 0));
  const HGDIOBJ before = font ? SelectObject(context, font) : nullptr;
  SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
  SetBkMode(context, TRANSPARENT);
  constexpr UINT way = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
  RECT needed = room;
  const int height = DrawTextW(context, words.c_str(), -1, &needed, way | DT_CALCRECT);
  room.top += std::max((static_cast<int>(room.bottom - room.top) - height) / 2, 0);
  DrawTextW(context, words.c_str(), -1, &room, way);
  if (before) SelectObject(context, before);
  ReleaseDC(list, context);
}

/// The words stand over what the list itself has painted. They belong to the list's window and go with it.
LRESULT CALLBACK onMessage(HWND list, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR data) {
  const auto* const words = reinterpret_cast<std::wstring*>(data);
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(list, &onMessage, listNumber);
    RemovePropW(list, wordsOfList);
    const std::unique_ptr<const std::wstring> gone(words);
    return DefSubclassProc(list, message, first, second);
  }
  const LRESULT result = DefSubclassProc(list, message, first, second);
  if (message == WM_PAINT && !words->empty()) paint(list, *words);
  return result;
}

void showInList(HWND list, const std::wstring& words) {
  if (auto* const known = static_cast<std::wstring*>(GetPropW(list, wordsOfList))) {
    *known = words;
  } else {
    auto fresh = std::make_unique<std::wstring>(words);
    if (SetWindowSubclass(list, &onMessage, listNumber, reinterpret_cast<DWORD_PTR>(fresh.get())))
      SetPropW(list, wordsOfList, fresh.release());
  }
  // New entries are painted over what stood there, but not beyond them.
  InvalidateRect(list, nullptr, TRUE);
}

}  // namespace

void showInEmpty(wxWindow& control, const std::string& words) {
  const auto handle = static_cast<HWND>(control.GetHandle());
  const std::wstring shown = toWx(words).ToStdWstring();
  if (dynamic_cast<const wxListBox*>(&control)) {
    showInList(handle, shown);
  } else {
    // A field shows them with the focus, too.
    SendMessageW(handle, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(shown.c_str()));
    InvalidateRect(handle, nullptr, TRUE);
  }
}

}  // namespace tarnwick::ui
