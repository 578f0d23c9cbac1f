#include "ui/Controls.h"

#include "ui/EmptyText.h"
#include "ui/Field.h"
#include "ui/Icons.h"
#include "ui/Link.h"
#include "ui/PictureButton.h"
#include "ui/StatusLine.h"
#include "ui/Text.h"
#include "ui/TipPlace.h"
#include "ui/Toolkit.h"

#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/clntdata.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cctype>

namespace tarnwick::ui {

namespace {

constexpr int listRows = 8;
/// What a field needs beside its letters.
constexpr int fieldSides = 20;

/// The control's window as what it is; its kind tells.
template <typename Window>
Window& as(const Control& control) {
  return static_cast<Window&>(*control.window);
}

/// The entries of a combo box or list; null for any other control.
wxItemContainer* entryHolder(const Control& control) {
  if (control.kind == ItemKind::ComboBox) return &as<wxComboBox>(control);
  if (control.kind == ItemKind::ListBox) return &as<wxListBox>(control);
  return nullptr;
}

/// Shows what was set for this control to be empty, if it is.
void showEmptyText(const Control& control) {
  auto* const data = static_cast<wxEvtHandler*>(control.window)->GetClientObject();
  const auto* const set = dynamic_cast<wxStringClientData*>(data);
  if (!set) return;
  const auto* const holder = entryHolder(control);
  const std::string words = holder && !holder->IsEmpty() ? "" : fromWx(set->GetData());
  showInEmpty(*control.window, words);
  if (holder) describe(*control.window, words);
}

/// A label whose long lines break, and that still knows its text as it was given.
class Label : public wxStaticText {
 public:
  Label(wxWindow& parent, const std::string& text) : wxStaticText(&parent, wxID_ANY, wxString()) {
    nameNoButton(*this);
    set(text, toWx(text));
  }

  void set(const std::string& text, const wxString& shown) {
    text_ = text;
    SetLabel(shown);
    Wrap(GetCharWidth() * charactersInLine);
  }

  const std::string& text() const { return text_; }

 private:
  static constexpr int charactersInLine = 75;
  std::string text_;
};

/// Buttons with signs in the place of words are as narrow as their text.
bool bearsSigns(const std::string& text) {
  const auto isLetter = [](unsigned char c) { return std::isalpha(c) != 0; };
  return std::none_of(text.begin(), text.end(), isLetter);
}

wxWindow* makeHeading(wxWindow& parent, const std::string& text) {
  auto* heading = new wxStaticText(&parent, wxID_ANY, toWx(text));
  heading->SetFont(heading->GetFont().Bold().Scaled(1.4F));
  return heading;
}

wxWindow* makeCombo(wxWindow& parent, const DialogItem& item) {
  auto* combo = new wxComboBox(&parent, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxCB_READONLY);
  for (const auto& entry : item.entries) combo->Append(toWx(entry));
  showAsClosed(*combo);
  return combo;
}

/// Whether something in the window can take the focus now.
bool holdsStop(const wxWindow& window) {
  const auto& children = window.GetChildren();
  return std::any_of(children.begin(), children.end(), [](const wxWindow* child) {
    return child->IsShown() && child->IsEnabled() && (child->AcceptsFocusFromKeyboard() || holdsStop(*child));
  });
}

/// Where the toolkit itself leads Tab through a tab control, it would go round in a page that has no use for the focus.
void passByEmptyPages(wxNotebook& tabs) {
  tabs.Bind(wxEVT_NAVIGATION_KEY, [&tabs](wxNavigationKeyEvent& event) {
    const wxWindow* const page = tabs.GetCurrentPage();
    const bool down = event.GetEventObject() == &tabs && event.GetDirection() && !event.IsWindowChange();
    if (down && page && !holdsStop(*page)) {
      event.SetCurrentFocus(&tabs);
      if (tabs.GetParent()->HandleWindowEvent(event)) return;
    }
    event.Skip();
  });
}

wxWindow* makeTabs(wxWindow& parent) {
  auto* const tabs = new wxNotebook(&parent, wxID_ANY);
  passByEmptyPages(*tabs);
  return tabs;
}

wxWindow* makeButton(wxWindow& parent, const DialogItem& item) {
  if (item.pictured) return new PictureButton(parent, item.text, item.spoken);
  return new wxButton(&parent, wxID_ANY, toWx(item.text));
}

wxWindow* makeWindow(wxWindow& parent, const DialogItem& item) {
  switch (item.kind) {
    case ItemKind::Group:
      return makeGroup(parent, toWx(item.text));
    case ItemKind::Icon:
      return new wxStaticBitmap(&parent, wxID_ANY, programPicture(48));
    case ItemKind::Heading:
      return makeHeading(parent, item.text);
    case ItemKind::Label:
      return new Label(parent, item.text);
    case ItemKind::Link:
      return new Link(parent, item.text);
    case ItemKind::Edit:
      return new Field(parent, item);
    case ItemKind::Button:
      return makeButton(parent, item);
    case ItemKind::StatusLine:
      return new StatusLine(parent);
    case ItemKind::CheckBox:
      return new wxCheckBox(&parent, wxID_ANY, toWx(item.text));
    case ItemKind::RadioButton:
      return new wxRadioButton(&parent, wxID_ANY, toWx(item.text));
    case ItemKind::ComboBox:
      return makeCombo(parent, item);
    case ItemKind::ListBox:
      return new wxListBox(&parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                           (item.multiple ? wxLB_EXTENDED : wxLB_SINGLE) | wxLB_HSCROLL);
    case ItemKind::Tabs:
      return makeTabs(parent);
    default:
      return makePanel(parent);
  }
}

bool isLow(ItemKind kind) {
  return kind == ItemKind::Edit || kind == ItemKind::ComboBox || kind == ItemKind::Button ||
         kind == ItemKind::CheckBox || kind == ItemKind::RadioButton;
}

void connect(wxWindow& window, const DialogItem& item, const ControlEvents& events) {
  const int number = item.control;
  // A notification goes on to the toolkit: some of its controls finish their own work with it.
  const auto tell = [number](const std::function<void(int)>& listener) {
    return [number, listener](wxCommandEvent& event) {
      event.Skip();
      listener(number);
    };
  };
  switch (item.kind) {
    case ItemKind::Button:
    case ItemKind::StatusLine:
      window.Bind(wxEVT_BUTTON, tell(events.command));
      break;
    case ItemKind::CheckBox:
      window.Bind(wxEVT_CHECKBOX, tell(events.command));
      break;
    case ItemKind::RadioButton:
      window.Bind(wxEVT_RADIOBUTTON, tell(events.command));
      break;
    case ItemKind::Link:
      window.Bind(wxEVT_HYPERLINK, [number, events](wxHyperlinkEvent&) { events.command(number); });
      break;
    case ItemKind::Edit:
      window.Bind(wxEVT_TEXT, tell(events.textChanged));
      window.Bind(wxEVT_COMBOBOX, tell(events.selectionChanged));
      break;
    case ItemKind::ComboBox:
      window.Bind(wxEVT_COMBOBOX, tell(events.selectionChanged));
      break;
    case ItemKind::ListBox:
      window.Bind(wxEVT_LISTBOX, tell(events.selectionChanged));
      window.Bind(wxEVT_LISTBOX_DCLICK, [number, events](wxCommandEvent& event) {
        event.Skip();  // Return then goes on to the default button
        if (!handlesKey()) events.doubleClick(number);
      });
      break;
    default:
      break;
  }
}

int leastFieldHeight(const wxWindow& window) {
  return window.GetCharHeight() + window.FromDIP(10);
}

int widthOfCharacters(const wxWindow& window, int characters) {
  return window.GetCharWidth() * characters;
}

}  // namespace

int rowHeight(wxWindow& window) {
  // The toolkit's usual height of a button does not follow the size of the letters.
  const int withPicture = window.FromDIP(buttonPictureSize(PictureRoom::Alone).y + 8);
  return std::max({wxButton::GetDefaultSize(&window).y, leastFieldHeight(window), withPicture});
}

wxPanel* makePanel(wxWindow& parent) {
  class Panel : public wxPanel {
   public:
    explicit Panel(wxWindow& owner) : wxPanel(&owner) {}

    // Tabs may hand the focus down to a page that has no use for it: it goes on to what lies beyond.
    void SetFocus() override {
      if (wxDynamicCast(GetParent(), wxNotebook) == nullptr || holdsStop(*this)) {
        wxPanel::SetFocus();
      } else if (wxGetKeyState(WXK_SHIFT)) {
        GetParent()->SetFocus();
      } else {
        GetParent()->Navigate(wxNavigationKeyEvent::IsForward);
      }
    }
  };
  return new Panel(parent);
}

wxRadioButton* beginRadioRun(wxWindow& parent) {
  auto* none = new wxRadioButton(&parent, wxID_ANY, "none", wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
  none->SetValue(true);
  none->Hide();
  return none;
}

Control makeControl(wxWindow& parent, const DialogItem& item, wxRadioButton* noneOfRun, const ControlEvents& events) {
  Control control;
  control.kind = item.kind;
  control.window = makeWindow(parent, item);
  control.noneOfRun = item.kind == ItemKind::RadioButton ? noneOfRun : nullptr;
  connect(*control.window, item, events);
  if (isLow(item.kind)) keepTipBeside(*control.window);
  // Behind the listeners' own handlers, and so before them in time.
  if (item.kind == ItemKind::Edit) as<Field>(control).keepOneLine();
  return control;
}

namespace {

wxSize naturalSize(const DialogItem& item, const Control& control) {
  wxWindow& window = *control.window;
  wxSize size = window.GetBestSize();
  if (item.kind == ItemKind::Edit) {
    // With the system set to larger letters, the toolkit asks for too little.
    size.y = std::max(item.likeButtons ? rowHeight(window) : size.y, leastFieldHeight(window));
    // The toolkit's own reckoning grows when the field comes to be seen, too late for the window's size.
    if (item.width > 0) size.x = widthOfCharacters(window, item.width) + window.FromDIP(fieldSides);
    return size;
  }
  if (item.kind == ItemKind::ListBox) {
    return {widthOfCharacters(window, std::max(item.width, 10)),
            window.GetCharHeight() * (item.lines > 0 ? item.lines : listRows) * 5 / 4};
  }
  if (item.kind == ItemKind::Group) {
    return {window.GetTextExtent(window.GetLabel()).x, 0};
  }
  // Before it shows, a label does not know that its font has changed.
  if (item.kind == ItemKind::Heading) size.IncTo(window.GetTextExtent(window.GetLabel()) + wxSize(2, 2));
  if (item.kind == ItemKind::StatusLine) size.y = std::max(size.y, leastFieldHeight(window));
  if (const auto* const button = dynamic_cast<const PictureButton*>(&window)) {
    // With room for the layout's own text, which may be the longest of several that the rules give it.
    size = button->sizeFor(item.text);
    size.y = std::max(size.y, rowHeight(window));
  } else if (item.kind == ItemKind::Button && bearsSigns(item.text)) {
    size.x = window.GetTextExtent(window.GetLabel()).x + 3 * window.GetCharWidth();
  }
  const auto lines = 1 + std::count(item.text.begin(), item.text.end(), '\n');
  if (item.kind == ItemKind::Button && lines > 1) {
    size.y = std::max(size.y, static_cast<int>(lines - 1) * window.GetCharHeight() + rowHeight(window));
  }
  size.x = std::max(size.x, widthOfCharacters(window, item.width));
  return size;
}

}  // namespace

// To tell the letters of a control the toolkit makes another of its kind each time: this took half of the time to the
// first window. What was measured holds until the control itself wants another size or says something else.
std::function<wxSize()> naturalSizes(const DialogItem& item, const Control& control) {
  return [item, control, wanted = wxDefaultSize, label = wxString(), size = wxDefaultSize]() mutable {
    const wxSize best = control.window->GetBestSize();
    const wxString said = control.window->GetLabel();
    if (size == wxDefaultSize || best != wanted || said != label) {
      size = naturalSize(item, control);
      wanted = best;
      label = said;
    }
    return size;
  };
}

int leastWidth(const Control& control) {
  const wxWindow& window = *control.window;
  if (const auto* const button = dynamic_cast<const PictureButton*>(&window)) return button->sizeFor("").x;
  if (control.kind == ItemKind::Edit) return widthOfCharacters(window, 12) + window.FromDIP(fieldSides);
  // Before it shows, the toolkit knows less of a button than afterwards.
  return std::max(window.GetBestSize().x, window.GetTextExtent(window.GetLabel()).x + 2 * window.GetCharWidth());
}

std::string textOf(const Control& control) {
  switch (control.kind) {
    case ItemKind::Edit:
      return fromWx(as<wxTextCtrl>(control).GetValue());
    case ItemKind::ComboBox:
    case ItemKind::ListBox:
      return fromWx(entryHolder(control)->GetStringSelection());
    case ItemKind::Label:
      return as<Label>(control).text();
    case ItemKind::StatusLine:
      return as<StatusLine>(control).text();
    case ItemKind::Button:
      if (const auto* const button = dynamic_cast<const PictureButton*>(control.window)) return button->text();
      [[fallthrough]];
    default:
      return fromWx(wxControl::RemoveMnemonics(control.window->GetLabel()));
  }
}

void setTextOf(const Control& control, const std::string& text) {
  const wxString shown = toWx(text);
  switch (control.kind) {
    case ItemKind::Edit:
      as<Field>(control).set(shown);
      break;
    case ItemKind::ComboBox:
    case ItemKind::ListBox:
      entryHolder(control)->SetSelection(entryHolder(control)->FindString(shown, true));
      break;
    case ItemKind::Label:
      // Such a text is data: an "&" in a path is no mnemonic.
      as<Label>(control).set(text, wxControl::EscapeMnemonics(shown));
      break;
    case ItemKind::StatusLine:
      as<StatusLine>(control).set(text);
      break;
    default:
      if (auto* const button = dynamic_cast<PictureButton*>(control.window)) {
        button->setText(text);
      } else {
        control.window->SetLabel(shown);
      }
      break;
  }
}

bool isChecked(const Control& control) {
  if (control.kind == ItemKind::CheckBox) return as<wxCheckBox>(control).GetValue();
  return control.kind == ItemKind::RadioButton && as<wxRadioButton>(control).GetValue();
}

void setCheckedOf(const Control& control, bool on) {
  if (control.kind == ItemKind::CheckBox) {
    as<wxCheckBox>(control).SetValue(on);
  } else if (control.kind == ItemKind::RadioButton) {
    if (on) {
      as<wxRadioButton>(control).SetValue(true);
    } else if (as<wxRadioButton>(control).GetValue() && control.noneOfRun) {
      control.noneOfRun->SetValue(true);
    }
  }
}

std::vector<std::string> entriesOf(const Control& control) {
  if (control.kind == ItemKind::Edit) return as<Field>(control).offered();
  std::vector<std::string> entries;
  if (auto* holder = entryHolder(control)) {
    for (const auto& entry : holder->GetStrings()) entries.push_back(fromWx(entry));
  } else if (control.kind == ItemKind::Tabs) {
    const auto& tabs = as<wxNotebook>(control);
    for (std::size_t i = 0; i < tabs.GetPageCount(); ++i) entries.push_back(fromWx(tabs.GetPageText(i)));
  }
  return entries;
}

void setEntriesOf(const Control& control, const std::vector<std::string>& entries) {
  if (control.kind == ItemKind::Edit) return as<Field>(control).offer(entries);
  auto* holder = entryHolder(control);
  if (!holder) return;
  wxArrayString strings;
  for (const auto& entry : entries) strings.push_back(toWx(entry));
  holder->Set(strings);
  showEmptyText(control);
}

void setEmptyTextOf(const Control& control, const std::string& words) {
  // Not one of its entries' data.
  static_cast<wxEvtHandler*>(control.window)->SetClientObject(new wxStringClientData(toWx(words)));
  showEmptyText(control);
}

int selectionOf(const Control& control) {
  if (control.kind == ItemKind::Edit) return as<Field>(control).chosen();
  if (auto* holder = entryHolder(control)) return holder->GetSelection();
  return control.kind == ItemKind::Tabs ? as<wxNotebook>(control).GetSelection() : -1;
}

void selectIn(const Control& control, int index) {
  if (control.kind == ItemKind::Edit) {
    as<Field>(control).setChosen(index);
  } else if (auto* holder = entryHolder(control)) {
    holder->SetSelection(index);
  } else if (control.kind == ItemKind::Tabs) {
    auto& tabs = as<wxNotebook>(control);
    const bool known = index >= 0 && static_cast<std::size_t>(index) < tabs.GetPageCount();
    if (known) tabs.ChangeSelection(static_cast<std::size_t>(index));
  }
}

bool isEntrySelected(const Control& control, int index) {
  return control.kind == ItemKind::ListBox && as<wxListBox>(control).IsSelected(index);
}

void setEntrySelected(const Control& control, int index, bool on) {
  if (control.kind == ItemKind::ListBox) as<wxListBox>(control).SetSelection(index, on);
}

void setToolTipOf(const Control& control, const std::string& text) {
  if (control.kind == ItemKind::Edit) return as<Field>(control).setTip(toWx(text));
  control.window->SetToolTip(toWx(text));
}

void scrollToEndOf(const Control& control) {
  if (control.kind != ItemKind::Edit) return;
  auto& edit = as<wxTextCtrl>(control);
  edit.SetInsertionPointEnd();
  edit.ShowPosition(edit.GetLastPosition());
}

}  // namespace tarnwick::ui
