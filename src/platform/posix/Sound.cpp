#include "platform/Sound.h"

#include <canberra.h>

#include <atomic>
#include <system_error>
#include <thread>

namespace tarnwick::platform {
namespace {

const char* eventOf(Alert alert) {
  switch (alert) {
    case Alert::Exclamation:
      return "dialog-warning";
    case Alert::Asterisk:
      return "dialog-information";
    case Alert::Beep:
      break;
  }
  return "bell";
}

/// Lives as long as the process: a sound may still be on its way when everything else has gone.
ca_context* soundContext() {
  static ca_context* const context = [] {
    ca_context* made = nullptr;
    if (ca_context_create(&made) != CA_SUCCESS) return static_cast<ca_context*>(nullptr);
    ca_context_change_props(made, CA_PROP_APPLICATION_NAME, "Tarnwick", nullptr);
    return made;
  }();
  return context;
}

bool play(const char* event) {
  return ca_context_play(soundContext(), 0, CA_PROP_EVENT_ID, event, CA_PROP_EVENT_DESCRIPTION, event, nullptr) ==
         CA_SUCCESS;
}

}  // namespace

void playAlert(Alert alert) {
  // The sound server may let a caller wait, so another thread calls it; a flood of alerts is one sound at a time.
  static std::atomic<bool> busy{false};
  if (busy.exchange(true)) return;
  try {
    std::thread([event = eventOf(alert)] {
      if (soundContext() != nullptr && !play(event)) play("bell");
      busy = false;
    }).detach();
  } catch (const std::system_error&) {
    busy = false;
  }
}

}  // namespace tarnwick::platform
