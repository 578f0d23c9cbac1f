#include "ui/EndRequests.h"

#include "ui/posix/LostDisplay.h"

#include <glib-unix.h>

#include <csignal>
#include <utility>
#include <vector>

namespace tarnwick::ui {

struct EndRequests::Signals {
  std::function<void()> end;
  std::vector<guint> sources;

  const LostDisplay display;

  Signals(std::function<void()> onEnd, std::function<void()> onLost)
      : end(std::move(onEnd)), display(std::move(onLost)) {
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
      if (!isIgnored(signal)) sources.push_back(g_unix_signal_add(signal, &Signals::onSignal, this));
    }
  }
  ~Signals() { stopListening(); }
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;

  /// Whoever started the program may have shielded it, as nohup does.
  static bool isIgnored(int signal) {
    struct sigaction now {};
    return sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
  }

  /// The signals do again what they do to any process.
  void stopListening() {
    for (const guint source : std::exchange(sources, {})) g_source_remove(source);
  }

  static gboolean onSignal(gpointer data) {
    auto& signals = *static_cast<Signals*>(data);
    signals.stopListening();
    signals.end();
    return G_SOURCE_REMOVE;
  }
};

EndRequests::EndRequests(std::function<void()> end, std::function<void()> lost)
    : signals_(std::make_unique<Signals>(std::move(end), std::move(lost))) {}

EndRequests::~EndRequests() = default;

}  // namespace tarnwick::ui
