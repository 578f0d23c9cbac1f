// Writes what is on the screen to standard output: all windows with all that is in them, as JSON in UTF-8, in the words
// of tests/e2e/look.py. Menus are not among it: no process sees another's.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <vector>

namespace {

constexpr UINT PATIENCE = 2000;  ///< milliseconds for a window to answer

std::string json(const std::wstring& text) {
  std::string bytes(text.size() * 4 + 1, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr);
  std::string result = "\"";
  for (const char c : bytes.substr(0, static_cast<std::size_t>(size))) {
    if (c == '"' || c == '\\') result += '\\';
    if (static_cast<unsigned char>(c) >= ' ') {
      result += c;
    } else if (c == '\n') {
      result += "\\n";
    }
  }
  return result + '"';
}

LRESULT ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, PATIENCE, &answer);
  return static_cast<LRESULT>(answer);
}

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
  const auto size = ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return text.substr(0, static_cast<std::size_t>(size));
}

/// A label without the marks of its mnemonic.
std::wstring plain(const std::wstring& label) {
  std::wstring result;
  for (std::size_t i = 0; i < label.size(); ++i) {
    if (label[i] == L'&' && i + 1 < label.size()) ++i;
    result += label[i];
  }
  return result;
}

std::string area(const RECT& rect) {
  return '[' + std::to_string(rect.left) + ',' + std::to_string(rect.top) + ',' +
         std::to_string(rect.right - rect.left) + ',' + std::to_string(rect.bottom - rect.top) + ']';
}

struct Seen {
  std::wstring name;
  std::string role;
  std::wstring text;
  RECT rect{};
  bool enabled = true;
  bool focused = false;
  bool checked = false;
  bool iconic = false;
  DWORD process = 0;
  std::string children;  ///< JSON already
};

void append(std::string& list, const std::string& more) {
  if (!list.empty() && !more.empty()) list += ',';
  list += more;
}

const char* truth(bool value) {
  return value ? "true" : "false";
}

std::string described(const Seen& seen) {
  return "{\"name\":" + json(seen.name) + ",\"role\":\"" + seen.role + "\",\"text\":" + json(seen.text) +
         ",\"area\":" + area(seen.rect) + ",\"showing\":true,\"selected\":false,\"enabled\":" + truth(seen.enabled) +
         ",\"focused\":" + truth(seen.focused) + ",\"checked\":" + truth(seen.checked) +
         ",\"iconic\":" + truth(seen.iconic) + ",\"process\":" + std::to_string(seen.process) + ",\"children\":[" +
         seen.children + "]}";
}

std::string roleOf(HWND window, const std::wstring& className) {
  const auto style = GetWindowLongW(window, GWL_STYLE);
  if (className == L"Edit") return "text";
  if (className == L"Static") return "label";
  if (className != L"Button") return "filler";
  switch (style & BS_TYPEMASK) {
    case BS_AUTOCHECKBOX:
    case BS_CHECKBOX:
      return "check box";
    case BS_AUTORADIOBUTTON:
    case BS_RADIOBUTTON:
      return "radio button";
    case BS_GROUPBOX:
      return "panel";
    default:
      return "push button";
  }
}

std::string lookAt(HWND window, bool isTop);

std::string childrenOf(HWND window) {
  std::string children;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if (IsWindowVisible(child)) append(children, lookAt(child, false));
  }
  return children;
}

std::string lookAt(HWND window, bool isTop) {
  wchar_t name[100] = L"";
  GetClassNameW(window, name, 100);
  const std::wstring className = name;
  Seen seen;
  const DWORD thread = GetWindowThreadProcessId(window, &seen.process);
  GetWindowRect(window, &seen.rect);
  seen.role = isTop ? "frame" : roleOf(window, className);
  seen.enabled = IsWindowEnabled(window);
  seen.iconic = IsIconic(window);
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  seen.focused = GetGUIThreadInfo(thread, &state) && state.hwndFocus == window;
  seen.checked = className == L"Button" && ask(window, BM_GETCHECK) == BST_CHECKED;
  if (seen.role == "text") {
    seen.text = textOf(window);
  } else {
    seen.name = isTop ? textOf(window) : plain(textOf(window));
  }
  seen.children = childrenOf(window);
  return described(seen);
}

BOOL CALLBACK collect(HWND window, LPARAM windows) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

}  // namespace

int main() {
  _setmode(_fileno(stdout), _O_BINARY);
  std::vector<HWND> windows;
  EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
  std::string all;
  // The system names the uppermost first.
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) append(all, lookAt(*window, true));
  std::printf("[%s]\n", all.c_str());
  return 0;
}
