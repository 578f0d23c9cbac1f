#include "platform/Sound.h"

#include "platform/FileSystem.h"

#include <canberra.h>
#include <glib.h>

#include <atomic>
#include <string>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

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

/// False on a machine with neither a sound card nor a sound server: the sound library would only complain there.
bool soundIsLikely() {
  if (environment("PULSE_SERVER")) return true;
  const auto runtime = environment("XDG_RUNTIME_DIR");
  if (runtime && ::access((*runtime + "/pulse/native").c_str(), F_OK) == 0) return true;
  return ::access("/proc/asound/card0", F_OK) == 0;
}

/// Lives as long as the process: a sound may still be on its way when everything else has gone.
ca_context* soundContext() {
  static ca_context* const context = []() -> ca_context* {
    ca_context* made = nullptr;
    if (!soundIsLikely() || ca_context_create(&made) != CA_SUCCESS) return nullptr;
    ca_context_change_props(made, CA_PROP_APPLICATION_NAME, "Tarnwick", nullptr);
    return made;
  }();
  return context;
}

/// The sound in the theme that every desktop falls back to; empty where it has none.
std::string soundFile(const std::string& event) {
  std::vector<std::string> folders = {g_get_user_data_dir()};
  for (auto folder = g_get_system_data_dirs(); *folder != nullptr; ++folder) folders.emplace_back(*folder);
  for (const auto& folder : folders) {
    for (const char* ending : {".oga", ".ogg", ".wav"}) {
      std::string path = folder;
      path.append("/sounds/freedesktop/stereo/").append(event).append(ending);
      if (isFile(path)) return path;
    }
  }
  return "";
}

/// By the sound's file: given the event's name, the sound library would write a cache of its own into the user's home.
int play(const char* event) {
  const std::string file = soundFile(event);
  if (file.empty()) return CA_ERROR_NOTFOUND;
  return ca_context_play(soundContext(), 0, CA_PROP_MEDIA_FILENAME, file.c_str(), CA_PROP_MEDIA_ROLE, "event",
                         CA_PROP_EVENT_DESCRIPTION, event, nullptr);
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
