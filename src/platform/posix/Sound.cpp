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

int play(const char* event) {
  return ca_context_play(soundContext(), 0, CA_PROP_EVENT_ID, event, CA_PROP_EVENT_DESCRIPTION, event, nullptr);
}

/// Plays the event, or the bell where the sound theme does not have it. False where there is no sound at all.
bool playEvent(const char* event) {
  if (soundContext() == nullptr) return false;
  int result = play(event);
  if (result == CA_ERROR_NOTFOUND) result = play("bell");
  return result == CA_SUCCESS || result == CA_ERROR_NOTFOUND;
}

}  // namespace

void playAlert(Alert alert) {
  // The sound server may let a caller wait, so another thread calls it; a flood of alerts is one sound at a time.
  // Where there was no sound once, it is not tried again: each try makes the sound library complain.
  static std::atomic<bool> busyOrMute{false};
  if (busyOrMute.exchange(true)) return;
  try {
    std::thread([event = eventOf(alert)] { busyOrMute = !playEvent(event); }).detach();
  } catch (const std::system_error&) {
    busyOrMute = false;
  }
}

}  // namespace tarnwick::platform
