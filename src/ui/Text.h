// The one place where the program's bytes become the toolkit's strings and back.
#pragma once

#include <wx/string.h>

#include <string>

namespace tarnwick::ui {

/// Bytes in the platform's character set as a string of the toolkit. Every text comes back from `fromWx` byte for
/// byte, bad bytes too.
wxString toWx(const std::string& bytes);

/// A string of the toolkit as bytes; "?" stands for what the platform's character set does not know.
std::string fromWx(const wxString& text);

/// A text of the clipboard as bytes, with the platform's own line ends.
std::string fromClipboard(const wxString& text);

}  // namespace tarnwick::ui
