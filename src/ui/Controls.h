// One control of a dialog: what it is made of and how its text, mark and entries are reached.
#pragma once

#include "resources/DialogLayout.h"

#include <wx/gdicmn.h>

#include <functional>
#include <string>
#include <vector>

class wxPanel;
class wxRadioButton;
class wxWindow;

namespace tarnwick::ui {

/// What a control tells of its user's doings, by control number.
struct ControlEvents {
  std::function<void(int)> command;
  std::function<void(int)> textChanged;
  std::function<void(int)> selectionChanged;
  std::function<void(int)> doubleClick;
};

struct Control {
  ItemKind kind = ItemKind::Label;
  wxWindow* window = nullptr;
  /// The hidden member of a radio button's run that bears the mark while none of those to be seen does.
  wxRadioButton* noneOfRun = nullptr;
};

/// Makes the window of an item that is no column, row or space. `noneOfRun` is the run of a radio button.
Control makeControl(wxWindow& parent, const DialogItem& item, wxRadioButton* noneOfRun, const ControlEvents& events);

/// Makes a window for other controls. Tab passes it by while none of them can be used.
wxPanel* makePanel(wxWindow& parent);

/// Begins a run of radio buttons.
wxRadioButton* beginRadioRun(wxWindow& parent);

/// The height of buttons and fields that stand level, in pixels.
int rowHeight(wxWindow& window);

/// Tells the least size in pixels of an item's window, as often as it is asked.
std::function<wxSize()> naturalSizes(const DialogItem& item, const Control& control);

/// The width in pixels at which a control's label shows whole; a field's is that of a dozen letters.
int leastWidth(const Control& control);

std::string textOf(const Control& control);
void setTextOf(const Control& control, const std::string& text);
bool isChecked(const Control& control);
void setCheckedOf(const Control& control, bool on);
std::vector<std::string> entriesOf(const Control& control);
void setEntriesOf(const Control& control, const std::vector<std::string>& entries);
int selectionOf(const Control& control);
void selectIn(const Control& control, int index);
bool isEntrySelected(const Control& control, int index);
void setEntrySelected(const Control& control, int index, bool on);
void setToolTipOf(const Control& control, const std::string& text);
void setEmptyTextOf(const Control& control, const std::string& words);
void scrollToEndOf(const Control& control);

}  // namespace tarnwick::ui
