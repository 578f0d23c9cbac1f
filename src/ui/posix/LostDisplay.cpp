#include "ui/posix/LostDisplay.h"

#include <X11/Xlib.h>
#include <cstdlib>
#include <gdk/gdkx.h>
#include <utility>

namespace tarnwick::ui {
namespace {

std::function<void()> onLost;

/// The toolkit's own handler would end the process at once. Neither it nor the library can go on without a display.
int leave(Display*) {
  if (const auto lost = std::exchange(onLost, {})) lost();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace

LostDisplay::LostDisplay(std::function<void()> lost) {
  GdkDisplay* const display = gdk_display_get_default();
  if (!display || !GDK_IS_X11_DISPLAY(display)) return;
  onLost = std::move(lost);
  XSetIOErrorHandler(leave);
}

LostDisplay::~LostDisplay() {
  onLost = {};
}

}  // namespace tarnwick::ui
