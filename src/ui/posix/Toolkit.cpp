#include "ui/Toolkit.h"

#include "ui/posix/ScreenReaders.h"

#include <wx/bitmap.h>
#include <wx/dc.h>
#include <wx/event.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/statbox.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace tarnwick::ui {

namespace {

GtkWidget* widget(const wxWindow& window) {
  return window.GetHandle();
}

/// The part of a control that has the focus, and that readers of the screen speak of.
GtkWidget* reachedPart(wxWindow& control) {
  return control.GetConnectWidget();
}

/// The name of its own, or that of the label it stands under. An empty text for none.
std::string nameOf(AtkObject* accessible) {
  const char* const own = atk_object_get_name(accessible);
  std::string name = own ? own : "";
  AtkRelationSet* const relations = atk_object_ref_relation_set(accessible);
  AtkRelation* const label = atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY);
  if (label && name.empty()) {
    GPtrArray* const targets = atk_relation_get_target(label);
    const char* const text = targets->len > 0 ? atk_object_get_name(ATK_OBJECT(targets->pdata[0])) : nullptr;
    if (text) name = text;
  }
  g_object_unref(relations);
  return name;
}

/// Takes from the label what it may not name, whenever the toolkit has it name whatever comes next.
void keepFromNaming(GtkLabel& label, bool (*isTaken)(GtkWidget*)) {
  const auto look = +[](GtkLabel* changed, GParamSpec*, gpointer asked) {
    GtkWidget* const named = gtk_label_get_mnemonic_widget(changed);
    const auto mayNotName = reinterpret_cast<bool (*)(GtkWidget*)>(asked);
    if (named && mayNotName(named)) gtk_label_set_mnemonic_widget(changed, nullptr);
  };
  g_signal_connect(&label, "notify::mnemonic-widget", G_CALLBACK(look), reinterpret_cast<gpointer>(isTaken));
}

bool onX11() {
  GdkDisplay* const display = gdk_display_get_default();
  return display && std::string_view(G_OBJECT_TYPE_NAME(display)) == "GdkX11Display";
}

// Nothing here is drawn by OpenGL. Left to itself the toolkit would load the drivers all the same, which can take more
// memory than everything else. Only for its start: children are to find the environment as it was.
constexpr const char* glVariable = "GDK_GL";
bool glSwitchedOff = false;

/// What the X server keeps as a list of numbers under this name. To be called with its errors trapped: windows of
/// others may go at any time.
std::vector<unsigned long> numbersOf(GdkWindow* window, const char* property) {
  GdkAtom type = nullptr;
  gint format = 0;
  gint bytes = 0;
  guchar* data = nullptr;
  constexpr gulong most = 65536;
  if (!gdk_property_get(window, gdk_atom_intern(property, FALSE), nullptr, 0, most, FALSE, &type, &format, &bytes,
                        &data)) {
    return {};
  }
  std::vector<unsigned long> numbers;
  if (format == 32) {
    const auto* const first = reinterpret_cast<const unsigned long*>(data);
    numbers.assign(first, first + static_cast<std::size_t>(bytes) / sizeof(unsigned long));
  }
  g_free(data);
  return numbers;
}

bool isOtherInstance(GdkWindow* window) {
  const auto process = numbersOf(window, "_NET_WM_PID");
  if (process.size() != 1 || process[0] == static_cast<unsigned long>(getpid())) return false;
  std::error_code unknown;
  const auto own = std::filesystem::read_symlink("/proc/self/exe", unknown);
  const auto other = std::filesystem::read_symlink("/proc/" + std::to_string(process[0]) + "/exe", unknown);
  return !unknown && own == other;
}

/// The blank is there for a frame, which would begin left of it.
void hideLeadingBlank(GtkLabel& heading) {
  PangoAttribute* const tiny = pango_attr_size_new_absolute(PANGO_SCALE);
  tiny->start_index = 0;
  tiny->end_index = gtk_label_get_text(&heading)[0] == ' ' ? 1 : 0;
  PangoAttrList* const attributes = pango_attr_list_new();
  pango_attr_list_insert(attributes, tiny);
  gtk_label_set_attributes(&heading, attributes);
  pango_attr_list_unref(attributes);
}

void hideCaret(GtkWidget& entry) {
  GtkCssProvider* const style = gtk_css_provider_new();
  gtk_css_provider_load_from_data(style, "entry { caret-color: transparent; }", -1, nullptr);
  gtk_style_context_add_provider(gtk_widget_get_style_context(&entry), GTK_STYLE_PROVIDER(style),
                                 GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  g_object_unref(style);
}

bool standsAt(GdkWindow* window, const Point& leftTop) {
  GdkRectangle frame{};
  gdk_window_get_frame_extents(window, &frame);
  return frame.x == leftTop.x && frame.y == leftTop.y && gdk_window_is_viewable(window);
}

}  // namespace

void prepareToolkit() {
  if (std::getenv(glVariable)) return;
  glSwitchedOff = setenv(glVariable, "disable", 1) == 0;
}

void toolkitStarted() {
  answerForGoneWindows();
  if (glSwitchedOff) unsetenv(glVariable);
}

std::string displayName() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* name = std::getenv(variable);
    if (name && *name) return name;
  }
  return "(DISPLAY is not set)";
}

// A list stands in a frame that scrolls it, a combo box holds a field: the name of what is around a part is not its
// own.
void nameByLabel(wxWindow& control, wxWindow& label) {
  GtkWidget* const part = reachedPart(control);
  gtk_label_set_mnemonic_widget(GTK_LABEL(widget(label)), widget(control));
  if (part == widget(control)) return;
  atk_object_add_relationship(gtk_widget_get_accessible(part), ATK_RELATION_LABELLED_BY,
                              gtk_widget_get_accessible(widget(label)));
}

void nameNoButton(wxWindow& label) {
  keepFromNaming(*GTK_LABEL(widget(label)), [](GtkWidget* next) { return GTK_IS_BUTTON(next) != FALSE; });
}

void nameBySpeech(wxWindow& control, const std::string& name) {
  GtkWidget* const part = reachedPart(control);
  atk_object_set_name(gtk_widget_get_accessible(part), name.c_str());
  if (GTK_IS_COMBO_BOX(widget(control))) atk_object_set_name(gtk_widget_get_accessible(widget(control)), name.c_str());
}

void describe(wxWindow& control, const std::string& words) {
  GtkWidget* const part = reachedPart(control);
  gchar* const tip = gtk_widget_get_tooltip_text(part);
  const std::string usual = tip ? tip : "";
  g_free(tip);
  atk_object_set_description(gtk_widget_get_accessible(part), (words.empty() ? usual : words).c_str());
}

void describeHint(wxWindow& window, const std::string& name) {
  AtkObject* const accessible = gtk_widget_get_accessible(widget(window));
  atk_object_set_name(accessible, name.c_str());
  atk_object_set_role(accessible, ATK_ROLE_NOTIFICATION);
}

// A button that was made with words takes no picture once it has none at all: this character is none to be seen.
wxString noWords() {
  return wxString::FromUTF8("\xE2\x80\x8B");
}

// Asked for its own, each control would make another of its kind and ask the whole theme.
wxFont usualFont(const wxWindow& /*control*/) {
  return wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
}

void nameTab(wxNotebook& tabs, std::size_t tab, const std::string& label) {
  // Without a name of its own it would look for the tab, when that may have gone already.
  AtkObject* const page =
      atk_object_ref_accessible_child(gtk_widget_get_accessible(widget(tabs)), static_cast<int>(tab));
  if (!page) return;
  atk_object_set_name(page, label.c_str());
  g_object_unref(page);
}

void showAsClosed(wxWindow& comboBox) {
  const auto close = [](GtkWidget* part, gpointer) {
    if (GTK_IS_BUTTON(part)) gtk_widget_set_can_focus(part, FALSE);
    if (GTK_IS_ENTRY(part)) hideCaret(*part);
  };
  // The arrow stands in a box that is the combo box's own, so each level is asked.
  const auto visit = [](GtkWidget* part, gpointer next) {
    reinterpret_cast<void (*)(GtkWidget*, gpointer)>(next)(part, nullptr);
    if (GTK_IS_BOX(part)) {
      gtk_container_forall(GTK_CONTAINER(part), reinterpret_cast<GtkCallback>(next), nullptr);
    }
  };
  gtk_container_forall(GTK_CONTAINER(widget(comboBox)), +visit, reinterpret_cast<gpointer>(+close));
}

void joinTabOrder(wxWindow& window) {
  // The toolkit leaves out what does not show when it makes the order, and makes it anew only after a move.
  if (wxWindow* const before = window.GetPrevSibling()) {
    window.MoveAfterInTabOrder(before);
  } else if (wxWindow* const next = window.GetNextSibling()) {
    window.MoveBeforeInTabOrder(next);
  }
}

std::string spokenName(wxWindow& control) {
  return nameOf(gtk_widget_get_accessible(reachedPart(control)));
}

void keepScrollBarsInSight(wxWindow& window) {
  GtkWidget* const frame = widget(window);
  if (GTK_IS_SCROLLED_WINDOW(frame)) gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(frame), FALSE);
}

void keepFirstFocus(wxWindow&) {}

wxStaticBox* makeGroup(wxWindow& parent, const wxString& title) {
  auto* const group = new wxStaticBox(&parent, wxID_ANY, title);
  group->SetFont(group->GetFont().Bold());
  GtkFrame* const frame = GTK_FRAME(widget(*group));
  gtk_frame_set_shadow_type(frame, GTK_SHADOW_NONE);
  GtkWidget* const label = gtk_frame_get_label_widget(frame);
  if (GTK_IS_LABEL(label)) {
    hideLeadingBlank(*GTK_LABEL(label));
    keepFromNaming(*GTK_LABEL(label), [](GtkWidget*) { return true; });
  }
  return group;
}

void showAsDefault(wxWindow& button) {
  gtk_style_context_add_class(gtk_widget_get_style_context(widget(button)), GTK_STYLE_CLASS_SUGGESTED_ACTION);
}

ButtonCustom customOfButtons() {
  gboolean asOnWindows = FALSE;
  g_object_get(gtk_settings_get_default(), "gtk-alternative-button-order", &asOnWindows, nullptr);
  return asOnWindows ? ButtonCustom::AffirmativeFirst : ButtonCustom::AffirmativeLast;
}

void describeLink(wxWindow& link, const std::string& address) {
  AtkObject* const accessible = gtk_widget_get_accessible(widget(link));
  atk_object_set_name(accessible, address.c_str());
  atk_object_set_role(accessible, ATK_ROLE_LINK);
}

// The open list has a grab of its own and gets its keys first.
bool isListOpen(wxWindow&) {
  return false;
}

// With Control it is another key here, which the toolkit does not know.
bool isBreakKey(const wxKeyEvent& event) {
  return event.GetKeyCode() == WXK_PAUSE || event.GetRawKeyCode() == GDK_KEY_Break;
}

bool handlesKey() {
  GdkEvent* const event = gtk_get_current_event();
  if (!event) return false;
  const bool isKey = gdk_event_get_event_type(event) == GDK_KEY_PRESS;
  gdk_event_free(event);
  return isKey;
}

std::optional<Point> normalPosition(const wxTopLevelWindow& window) {
  if (!onX11()) return std::nullopt;
  const wxPoint at = window.GetPosition();
  return Point{at.x, at.y};
}

void moveWindow(wxTopLevelWindow& window, const Point& leftTop) {
  window.Move(leftTop.x, leftTop.y, wxSIZE_ALLOW_MINUS_ONE);
  // The toolkit takes a window that was never moved to be in that corner, and would leave its place to others.
  if (leftTop == Point{0, 0}) gtk_window_move(GTK_WINDOW(widget(window)), 0, 0);
}

bool otherInstanceAt(const Point& leftTop) {
  if (!onX11()) return false;
  GdkDisplay* const display = gdk_display_get_default();
  gdk_x11_display_error_trap_push(display);
  bool found = false;
  for (const auto number : numbersOf(gdk_get_default_root_window(), "_NET_CLIENT_LIST")) {
    GdkWindow* const window = gdk_x11_window_foreign_new_for_display(display, number);
    if (!window) continue;
    found = isOtherInstance(window) && standsAt(window, leftTop);
    g_object_unref(window);
    if (found) break;
  }
  gdk_x11_display_error_trap_pop_ignored(display);
  return found;
}

void appendToSystemMenu(wxTopLevelWindow&, const std::string&, const std::function<void()>&) {}

void makeMainWindow(wxTopLevelWindow& window) {
  gtk_window_set_type_hint(GTK_WINDOW(widget(window)), GDK_WINDOW_TYPE_HINT_NORMAL);
}

void useAsDefaultIcon(const wxBitmap& picture) {
  gtk_window_set_default_icon(picture.GetPixbuf());
}

wxSize sizeWithTabs(wxNotebook& tabs, const wxSize& page) {
  wxSize size = tabs.CalcSizeFromPage(page);
  // With scrolling off the control asks for the width of all of its tabs, and gets it: nothing has to scroll.
  gtk_notebook_set_scrollable(GTK_NOTEBOOK(widget(tabs)), FALSE);
  // What the theme looked up before there was a tab it would keep until something else changes: the pages would have
  // one colour at first and another later.
  gtk_widget_reset_style(widget(tabs));
  GtkRequisition least{};
  gtk_widget_get_preferred_size(widget(tabs), &least, nullptr);
  size.x = std::max(size.x, least.width);
  return size;
}

wxRect pageRect(const wxNotebook& tabs) {
  // The toolkit places pages only when they show: so what the control needs besides its pages is asked.
  GtkWidget* const book = widget(tabs);
  int width = 0;
  int height = 0;
  gtk_widget_get_size_request(book, &width, &height);
  gtk_widget_set_size_request(book, -1, -1);
  int whole = 0;
  gtk_widget_get_preferred_height(book, &whole, nullptr);
  gtk_widget_set_size_request(book, width, height);
  int highest = 0;
  for (std::size_t i = 0; i < tabs.GetPageCount(); ++i) {
    int page = 0;
    gtk_widget_get_preferred_height(widget(*tabs.GetPage(i)), &page, nullptr);
    highest = std::max(highest, page);
  }
  GtkBorder border{};
  GtkStyleContext* const style = gtk_widget_get_style_context(book);
  gtk_style_context_get_border(style, gtk_style_context_get_state(style), &border);
  const int top = whole - highest - border.bottom;
  const wxSize size = tabs.GetSize();
  return {border.left, top, size.x - border.left - border.right, size.y - top - border.bottom};
}

void dismiss(wxMessageDialog& box) {
  if (GtkWidget* const shown = widget(box)) gtk_dialog_response(GTK_DIALOG(shown), GTK_RESPONSE_DELETE_EVENT);
}

void invertColours(wxDC& dc, const wxRect& rect) {
  auto* const context = static_cast<cairo_t*>(dc.GetHandle());
  if (!context) return;
  cairo_save(context);
  cairo_set_operator(context, CAIRO_OPERATOR_DIFFERENCE);
  cairo_set_source_rgb(context, 1, 1, 1);
  cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
  cairo_fill(context);
  cairo_restore(context);
}

}  // namespace tarnwick::ui
