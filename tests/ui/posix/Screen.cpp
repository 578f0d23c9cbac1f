#include "ui/WindowTest.h"

#include <cstddef>
#include <gtk/gtk.h>

namespace tarnwick::test {

// Not by the toolkit's device for the screen, whose picture is the same for ever.
wxImage screen(const wxRect& area) {
  GdkPixbuf* const shown =
      gdk_pixbuf_get_from_window(gdk_get_default_root_window(), area.x, area.y, area.width, area.height);
  wxImage image(area.width, area.height);
  if (!shown) return image;
  const int channels = gdk_pixbuf_get_n_channels(shown);
  for (int y = 0; y < area.height; ++y) {
    const guchar* const row = gdk_pixbuf_read_pixels(shown) + std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(shown);
    for (int x = 0; x < area.width; ++x) {
      const guchar* const pixel = row + std::ptrdiff_t{x} * channels;
      image.SetRGB(x, y, pixel[0], pixel[1], pixel[2]);
    }
  }
  g_object_unref(shown);
  return image;
}

}  // namespace tarnwick::test
