#include "ui/posix/SpokenTree.h"

#include "ui/Link.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cctype>
#include <gtk/gtk.h>
#include <set>

namespace tarnwick::test {

namespace {

std::string orEmpty(const char* text) {
  return text ? text : "";
}

/// As the common readers do: what a label says goes before a thing's own name.
std::string nameOf(AtkObject* one) {
  AtkRelationSet* const relations = atk_object_ref_relation_set(one);
  AtkRelation* const label = atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY);
  std::string name;
  if (label) {
    const GPtrArray* const targets = atk_relation_get_target(label);
    if (targets->len > 0) name = orEmpty(atk_object_get_name(ATK_OBJECT(targets->pdata[0])));
  }
  g_object_unref(relations);
  return name.empty() ? orEmpty(atk_object_get_name(one)) : name;
}

Spoken describe(AtkObject* one) {
  Spoken spoken{atk_object_get_role(one), nameOf(one), {}, orEmpty(atk_object_get_description(one)), {}};
  AtkAttributeSet* const attributes = atk_object_get_attributes(one);
  for (const GSList* entry = attributes; entry; entry = entry->next) {
    const auto* const attribute = static_cast<const AtkAttribute*>(entry->data);
    if (orEmpty(attribute->name) == "placeholder-text") spoken.placeholder = orEmpty(attribute->value);
  }
  atk_attribute_set_free(attributes);
  AtkStateSet* const states = atk_object_ref_state_set(one);
  for (int state = 0; state < ATK_STATE_LAST_DEFINED; ++state) {
    const auto type = static_cast<AtkStateType>(state);
    if (atk_state_set_contains_state(states, type)) spoken.states.push_back(type);
  }
  g_object_unref(states);
  return spoken;
}

/// Stops at what does not show, as a person's eye does.
void collect(AtkObject* one, std::vector<Spoken>& all) {
  const Spoken spoken = describe(one);
  if (!spoken.is(ATK_STATE_SHOWING)) return;
  all.push_back(spoken);
  for (int i = 0; i < atk_object_get_n_accessible_children(one); ++i) {
    AtkObject* const child = atk_object_ref_accessible_child(one, i);
    if (!child) continue;
    collect(child, all);
    g_object_unref(child);
  }
}

bool hasLetters(const std::string& name) {
  return std::any_of(name.begin(), name.end(), [](unsigned char c) { return std::isalpha(c) != 0; });
}

/// What a person does something with, whether it can have the focus or not.
bool isUsed(AtkRole role) {
  static const std::set<AtkRole> used = {
      ATK_ROLE_PUSH_BUTTON, ATK_ROLE_TOGGLE_BUTTON,  ATK_ROLE_CHECK_BOX,    ATK_ROLE_RADIO_BUTTON, ATK_ROLE_COMBO_BOX,
      ATK_ROLE_TEXT,        ATK_ROLE_ENTRY,          ATK_ROLE_LIST,         ATK_ROLE_LIST_BOX,     ATK_ROLE_TABLE,
      ATK_ROLE_TREE_TABLE,  ATK_ROLE_PAGE_TAB,       ATK_ROLE_PROGRESS_BAR, ATK_ROLE_LINK,         ATK_ROLE_MENU,
      ATK_ROLE_MENU_ITEM,   ATK_ROLE_CHECK_MENU_ITEM};
  return used.count(role) != 0;
}

/// Entries have what they show for a name; tabs speak for the row of tabs, and what scrolls hands the focus on.
bool speaksByItsContent(AtkRole role) {
  return role == ATK_ROLE_TABLE_CELL || role == ATK_ROLE_SCROLL_PANE || role == ATK_ROLE_PAGE_TAB_LIST;
}

AtkRole expectedRole(const wxWindow& window) {
  if (dynamic_cast<const ui::Link*>(&window)) return ATK_ROLE_LINK;
  if (dynamic_cast<const wxButton*>(&window)) return ATK_ROLE_PUSH_BUTTON;
  if (dynamic_cast<const wxCheckBox*>(&window)) return ATK_ROLE_CHECK_BOX;
  if (dynamic_cast<const wxRadioButton*>(&window)) return ATK_ROLE_RADIO_BUTTON;
  if (dynamic_cast<const wxListBox*>(&window)) return ATK_ROLE_TABLE;
  if (dynamic_cast<const wxTextCtrl*>(&window)) return ATK_ROLE_TEXT;
  if (dynamic_cast<const wxComboBox*>(&window)) return ATK_ROLE_TEXT;
  if (dynamic_cast<const wxNotebook*>(&window)) return ATK_ROLE_PAGE_TAB_LIST;
  if (dynamic_cast<const wxStaticText*>(&window)) return ATK_ROLE_LABEL;
  return ATK_ROLE_INVALID;  // pictures and what holds others
}

void expectChecked(const wxWindow& window, const Spoken& spoken) {
  if (const auto* const box = dynamic_cast<const wxCheckBox*>(&window)) {
    EXPECT_EQ(spoken.is(ATK_STATE_CHECKED), box->GetValue()) << spoken;
  } else if (const auto* const button = dynamic_cast<const wxRadioButton*>(&window)) {
    EXPECT_EQ(spoken.is(ATK_STATE_CHECKED), button->GetValue()) << spoken;
  }
}

void expectEditable(const wxWindow& window, const Spoken& spoken) {
  if (const auto* const field = dynamic_cast<const wxTextCtrl*>(&window)) {
    EXPECT_EQ(spoken.is(ATK_STATE_EDITABLE), field->IsEditable()) << spoken;
  } else if (dynamic_cast<const wxComboBox*>(&window)) {
    EXPECT_FALSE(spoken.is(ATK_STATE_EDITABLE)) << "a closed choice: " << spoken;
  }
}

/// A button that has the focus takes Return in the place of the default one.
void expectDefault(wxWindow& window, const Spoken& spoken) {
  if (!dynamic_cast<wxButton*>(&window) || dynamic_cast<wxButton*>(wxWindow::FindFocus())) return;
  const auto* const top = dynamic_cast<wxDialog*>(wxGetTopLevelParent(&window));
  if (!top || !window.IsEnabled()) return;
  EXPECT_EQ(spoken.is(ATK_STATE_DEFAULT), top->GetDefaultItem() == &window) << spoken;
}

void expectTabs(wxWindow& window) {
  const auto* const tabs = dynamic_cast<wxNotebook*>(&window);
  if (!tabs) return;
  AtkObject* const book = gtk_widget_get_accessible(window.GetHandle());
  for (std::size_t i = 0; i < tabs->GetPageCount(); ++i) {
    AtkObject* const tab = atk_object_ref_accessible_child(book, static_cast<int>(i));
    const Spoken spoken = describe(tab);
    g_object_unref(tab);
    EXPECT_EQ(spoken.role, ATK_ROLE_PAGE_TAB) << spoken;
    EXPECT_EQ(spoken.name, ui::fromWx(tabs->GetPageText(i)));
    EXPECT_EQ(spoken.is(ATK_STATE_SELECTED), tabs->GetSelection() == static_cast<int>(i)) << spoken;
  }
}

void expectRoleAndStates(wxWindow& window) {
  const AtkRole role = expectedRole(window);
  if (role == ATK_ROLE_INVALID || !window.IsShownOnScreen()) return;
  const Spoken spoken = spokenOf(window);
  EXPECT_EQ(spoken.role, role) << spoken;
  EXPECT_TRUE(spoken.is(ATK_STATE_SHOWING)) << spoken;
  EXPECT_EQ(spoken.is(ATK_STATE_SENSITIVE), window.IsEnabled()) << spoken;
  if (window.IsEnabled() && window.AcceptsFocusFromKeyboard()) {
    EXPECT_TRUE(spoken.is(ATK_STATE_FOCUSABLE)) << spoken;
  }
  if (role == ATK_ROLE_LABEL) {
    EXPECT_EQ(spoken.name, ui::fromWx(window.GetLabel())) << spoken;
  }
  if (role == ATK_ROLE_PUSH_BUTTON || role == ATK_ROLE_CHECK_BOX || role == ATK_ROLE_RADIO_BUTTON) {
    EXPECT_EQ(spoken.name, ui::spokenName(window)) << "no label speaks for it";
  }
  expectChecked(window, spoken);
  expectEditable(window, spoken);
  expectDefault(window, spoken);
  expectTabs(window);
}

}  // namespace

bool Spoken::is(AtkStateType state) const {
  return std::find(states.begin(), states.end(), state) != states.end();
}

std::ostream& operator<<(std::ostream& out, const Spoken& spoken) {
  out << atk_role_get_name(spoken.role) << " \"" << spoken.name << "\" (";
  for (const AtkStateType state : spoken.states) out << ' ' << atk_state_type_get_name(state);
  return out << " )";
}

Spoken spokenOf(wxWindow& control) {
  return describe(gtk_widget_get_accessible(control.GetConnectWidget()));
}

std::vector<Spoken> spokenIn(wxWindow& window) {
  std::vector<Spoken> all;
  collect(gtk_widget_get_accessible(window.GetHandle()), all);
  return all;
}

std::vector<std::string> namesIn(wxWindow& window, AtkRole role) {
  std::vector<std::string> names;
  for (const auto& one : spokenIn(window)) {
    if (one.role == role) names.push_back(one.name);
  }
  return names;
}

void expectSpeakingParts(wxWindow& window) {
  const auto all = spokenIn(window);
  EXPECT_GT(all.size(), 1U) << "nothing shows";
  for (const auto& one : all) {
    const bool reached = one.is(ATK_STATE_FOCUSABLE) && !speaksByItsContent(one.role);
    if (!reached && !isUsed(one.role)) continue;
    EXPECT_TRUE(hasLetters(one.name)) << one;
    EXPECT_NE(one.role, ATK_ROLE_UNKNOWN) << one;
    EXPECT_NE(one.role, ATK_ROLE_FILLER) << one;
  }
}

void expectRolesAndStates(const ui::WxDialogWindow& window) {
  for (const int control : window.controls()) expectRoleAndStates(*window.windowOf(control));
  for (const auto& child : window.children()) expectRolesAndStates(*child);
}

}  // namespace tarnwick::test
