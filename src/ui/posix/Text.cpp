#include "ui/Text.h"

#include <wx/strconv.h>

namespace tarnwick::ui {

namespace {

// Bytes that are no UTF-8 take places in the private use area, so that a file name with such bytes survives.
const wxMBConvUTF8& conversion() {
  static const wxMBConvUTF8 utf8(wxMBConvUTF8::MAP_INVALID_UTF8_TO_PUA);
  return utf8;
}

}  // namespace

wxString toWx(const std::string& bytes) {
  return wxString(bytes.data(), conversion(), bytes.size());
}

std::string fromWx(const wxString& text) {
  const wxScopedCharBuffer bytes = text.mb_str(conversion());
  return {bytes.data(), bytes.length()};
}

std::string fromClipboard(const wxString& text) {
  return fromWx(text);
}

}  // namespace tarnwick::ui
