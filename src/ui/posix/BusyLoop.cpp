#include "ui/BusyLoop.h"

#include <wx/evtloop.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <gtk/gtk.h>
#include <utility>

namespace tarnwick::ui {

// Disabling the windows would grey all of them for the length of every compiler run. A grab by a widget that nobody
// sees swallows keys, clicks and close requests alike and changes no look.
struct BusyLoop::State {
  wxGUIEventLoop loop;
  Requests requests;
  GtkWidget* grabber = nullptr;
  GtkWidget* admitted = nullptr;
  guint keys = 0;
  guint listening = 0;
  State* outer = nullptr;

  static inline State* innermost = nullptr;

  bool holdsInput() const {
    const GtkWidget* const current = gtk_grab_get_current();
    return current && (current == grabber || current == admitted);
  }

  /// Hears of keys before the window that has grabbed them: what was meant for another is not for its buttons.
  static gint onKey(GtkWidget*, GdkEventKey* event, gpointer data) {
    const auto& state = *static_cast<State*>(data);
    if (!state.admitted || !state.holdsInput()) return FALSE;
    if (gdk_window_get_toplevel(event->window) == gtk_widget_get_window(state.admitted)) return FALSE;
    if (event->type == GDK_KEY_PRESS && event->keyval == GDK_KEY_Escape) return state.requests.escape();
    return TRUE;
  }

  static wxWindow* windowOf(const GdkEvent& event) {
    gpointer widget = nullptr;
    gdk_window_get_user_data(event.any.window, &widget);
    const auto found = std::find_if(wxTopLevelWindows.begin(), wxTopLevelWindows.end(),
                                    [widget](const wxWindow* window) { return window->GetHandle() == widget; });
    return found == wxTopLevelWindows.end() ? nullptr : *found;
  }

  /// The toolkit tells nobody of a close request that a grab keeps away.
  static void onEvent(GdkEvent* event, gpointer) {
    if (event->type == GDK_DELETE && innermost && innermost->holdsInput())
      innermost->requests.close(windowOf(*event));
    else
      gtk_main_do_event(event);
  }

  /// Whoever yields puts the toolkit's own handler back.
  static gboolean listen(gpointer) {
    gdk_event_handler_set(&State::onEvent, nullptr, nullptr);
    return G_SOURCE_CONTINUE;
  }
};

BusyLoop::BusyLoop(Requests requests) : state_(std::make_unique<State>()) {
  state_->requests = std::move(requests);
  state_->grabber = gtk_invisible_new();
  gtk_widget_show(state_->grabber);
  gtk_grab_add(state_->grabber);
  state_->outer = std::exchange(State::innermost, state_.get());
  State::listen(nullptr);
  state_->listening = g_timeout_add(100, &State::listen, nullptr);
  // There is no other way to hear of a key before the window does that it goes to.
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  state_->keys = gtk_key_snooper_install(&State::onKey, state_.get());
  G_GNUC_END_IGNORE_DEPRECATIONS
}

BusyLoop::~BusyLoop() {
  admit(nullptr);
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  gtk_key_snooper_remove(state_->keys);
  G_GNUC_END_IGNORE_DEPRECATIONS
  g_source_remove(state_->listening);
  State::innermost = state_->outer;
  gtk_grab_remove(state_->grabber);
  gtk_widget_destroy(state_->grabber);
}

void BusyLoop::admit(wxTopLevelWindow* window) {
  if (state_->admitted) gtk_grab_remove(state_->admitted);
  state_->admitted = window ? static_cast<GtkWidget*>(window->GetHandle()) : nullptr;
  if (state_->admitted) gtk_grab_add(state_->admitted);
}

void BusyLoop::run() {
  state_->loop.Run();
}

void BusyLoop::end() {
  state_->loop.ScheduleExit();
}

}  // namespace tarnwick::ui
