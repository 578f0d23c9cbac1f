#include "ui/Text.h"

#include <windows.h>
#include <wx/textbuf.h>

namespace tarnwick::ui {

wxString toWx(const std::string& bytes) {
  if (bytes.empty()) return {};
  const auto length = static_cast<int>(bytes.size());
  std::wstring wide(bytes.size(), L'\0');
  const int used = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), length);
  return wxString(wide.data(), static_cast<std::size_t>(used));
}

std::string fromWx(const wxString& text) {
  const std::wstring wide = text.ToStdWstring();
  if (wide.empty()) return {};
  const auto length = static_cast<int>(wide.size());
  // A letter that the set lacks becomes "?". The system would rather take one that looks alike, and the name of a file
  // would become that of another. Where the set is UTF-8 it lacks none, and no such wish is taken.
  const DWORD wishes = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const int needed = WideCharToMultiByte(CP_ACP, wishes, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, wishes, wide.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

// The toolkit takes the carriage returns out of whatever it finds there.
std::string fromClipboard(const wxString& text) {
  return fromWx(wxTextBuffer::Translate(text, wxTextFileType_Dos));
}

}  // namespace tarnwick::ui
