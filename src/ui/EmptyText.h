// Words in the place of what a control holds, while it holds nothing.
#pragma once

#include <string>

class wxWindow;

namespace tarnwick::ui {

/// Shows the words in grey in a list or in a field. Neither holds them. A field shows them only while it has no text;
/// in a list they stay until they are replaced, by none as well.
void showInEmpty(wxWindow& control, const std::string& words);

}  // namespace tarnwick::ui
