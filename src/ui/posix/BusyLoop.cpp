#include "ui/BusyLoop.h"

#include <wx/evtloop.h>

#include <gtk/gtk.h>

namespace tarnwick::ui {

// Disabling the windows would grey all of them for the length of every compiler run. A grab by a widget that nobody
// sees swallows keys, clicks and close requests alike and changes no look.
struct BusyLoop::State {
  wxGUIEventLoop loop;
  GtkWidget* grabber = nullptr;
};

BusyLoop::BusyLoop() : state_(std::make_unique<State>()) {
  state_->grabber = gtk_invisible_new();
  gtk_widget_show(state_->grabber);
  gtk_grab_add(state_->grabber);
}

BusyLoop::~BusyLoop() {
  gtk_grab_remove(state_->grabber);
  gtk_widget_destroy(state_->grabber);
}

void BusyLoop::run() {
  state_->loop.Run();
}

void BusyLoop::end() {
  state_->loop.ScheduleExit();
}

}  // namespace tarnwick::ui
