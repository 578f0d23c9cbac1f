#include "ui/posix/ScreenReaders.h"

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

AtkObjectClass& classOf(GType type) {
  return *ATK_OBJECT_CLASS(g_type_class_ref(type));  // for as long as the program runs
}

/// The states of a class that has none for a control without its widget.
template <GType (*type)()>
class States {
 public:
  static void complete() {
    AtkObjectClass& known = classOf(type());
    if (known.ref_state_set == &answer) return;
    own = known.ref_state_set;
    known.ref_state_set = &answer;
  }

 private:
  static AtkStateSet* answer(AtkObject* asked) {
    if (AtkStateSet* const states = own(asked)) return states;
    AtkStateSet* const gone = atk_state_set_new();
    atk_state_set_add_state(gone, ATK_STATE_DEFUNCT);
    return gone;
  }

  static inline AtkStateSet* (*own)(AtkObject*) = nullptr;
};

AtkStateSet* (*statesOfTab)(AtkObject*) = nullptr;
int (*indexOfTab)(AtkObject*) = nullptr;
void (*placeOfTab)(AtkComponent*, int*, int*, int*, int*, AtkCoordType) = nullptr;

/// A tab leaves the list of its tab control first, and says only later that it has no parent any more: in between it
/// would look for its label in that list.
bool isThere(AtkObject* tab) {
  AtkObject* const tabs = atk_object_get_parent(tab);
  return tabs && gtk_accessible_get_widget(GTK_ACCESSIBLE(tabs)) && indexOfTab(tab) >= 0;
}

AtkStateSet* statesIfThere(AtkObject* tab) {
  if (isThere(tab)) return statesOfTab(tab);
  AtkStateSet* const gone = atk_state_set_new();
  atk_state_set_add_state(gone, ATK_STATE_DEFUNCT);
  return gone;
}

int indexIfThere(AtkObject* tab) {
  return isThere(tab) ? indexOfTab(tab) : -1;
}

void placeIfThere(AtkComponent* tab, int* x, int* y, int* width, int* height, AtkCoordType from) {
  if (isThere(ATK_OBJECT(tab))) return placeOfTab(tab, x, y, width, height, from);
  *x = *y = *width = *height = -1;
}

void answerForGoneTabs() {
  AtkObjectClass& tabs = classOf(gtk_notebook_page_accessible_get_type());
  if (tabs.ref_state_set == &statesIfThere) return;
  statesOfTab = tabs.ref_state_set;
  tabs.ref_state_set = &statesIfThere;
  indexOfTab = tabs.get_index_in_parent;
  tabs.get_index_in_parent = &indexIfThere;
  AtkComponentIface& places = *static_cast<AtkComponentIface*>(g_type_interface_peek(&tabs, ATK_TYPE_COMPONENT));
  placeOfTab = places.get_extents;
  places.get_extents = &placeIfThere;
}

int (*countInWindow)(AtkObject*) = nullptr;

int countIfThere(AtkObject* window) {
  return gtk_accessible_get_widget(GTK_ACCESSIBLE(window)) ? countInWindow(window) : 0;
}

}  // namespace

void answerForGoneWindows() {
  // Check boxes and radio buttons have what those that stay down have, numbers what fields have.
  States<gtk_window_accessible_get_type>::complete();
  States<gtk_label_accessible_get_type>::complete();
  States<gtk_entry_accessible_get_type>::complete();
  States<gtk_button_accessible_get_type>::complete();
  States<gtk_toggle_button_accessible_get_type>::complete();
  States<gtk_expander_accessible_get_type>::complete();
  answerForGoneTabs();
  AtkObjectClass& windows = classOf(gtk_window_accessible_get_type());
  if (windows.get_n_children == &countIfThere) return;
  countInWindow = windows.get_n_children;
  windows.get_n_children = &countIfThere;
}

}  // namespace tarnwick::ui
