#include "ui/BusyLoop.h"

#include "ui/posix/Gtk.h"

#include <wx/evtloop.h>

namespace tarnwick::ui {

// Disabling the windows would grey all of them for the length of every compiler run. A grab by a widget that nobody
// sees swallows keys, clicks and close requests alike and changes no look.
struct BusyLoop::State {
  wxGUIEventLoop loop;
  void* grabber = nullptr;
};

BusyLoop::BusyLoop() : state_(std::make_unique<State>()) {
  const auto make = gtk::function<void*()>("gtk_invisible_new");
  const auto show = gtk::function<void(void*)>("gtk_widget_show");
  const auto grab = gtk::function<void(void*)>("gtk_grab_add");
  if (!make || !show || !grab) return;
  state_->grabber = make();
  show(state_->grabber);
  grab(state_->grabber);
}

BusyLoop::~BusyLoop() {
  if (!state_->grabber) return;
  gtk::function<void(void*)>("gtk_grab_remove")(state_->grabber);
  gtk::function<void(void*)>("gtk_widget_destroy")(state_->grabber);
}

void BusyLoop::run() {
  state_->loop.Run();
}

void BusyLoop::end() {
  state_->loop.ScheduleExit();
}

}  // namespace tarnwick::ui
