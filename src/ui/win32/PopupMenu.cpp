#include "ui/PopupMenu.h"

#include <wx/control.h>
#include <wx/menu.h>

namespace tarnwick::ui {

void openMenu(wxWindow& window, const wxRect& area, const std::vector<wxString>& labels, bool,
              const std::function<void(int)>& chosen) {
  wxMenu menu;
  const int first = wxID_HIGHEST + 1;
  for (std::size_t i = 0; i < labels.size(); ++i)
    menu.Append(first + static_cast<int>(i), wxControl::EscapeMnemonics(labels[i]));
  const int id = window.GetPopupMenuSelectionFromUser(menu, area.x, area.y + area.height);
  if (id >= first) chosen(id - first);
}

}  // namespace tarnwick::ui
