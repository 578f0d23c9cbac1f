#include "ui/KeysOfProgram.h"

#include <wx/defs.h>
#include <wx/uiaction.h>

namespace tarnwick::test {

// The window manager gives the keyboard to each window that comes.
void pressReturn() {
  wxUIActionSimulator().Char(WXK_RETURN);
}

}  // namespace tarnwick::test
