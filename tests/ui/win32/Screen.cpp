#include "ui/WindowTest.h"

#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

namespace tarnwick::test {

wxImage screen(const wxRect& area) {
  wxScreenDC screen;
  wxBitmap bitmap(area.width, area.height, 24);
  wxMemoryDC memory(bitmap);
  memory.Blit(0, 0, area.width, area.height, &screen, area.x, area.y);
  memory.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage();
}

}  // namespace tarnwick::test
