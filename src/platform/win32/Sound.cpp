#include "platform/Sound.h"

#include <windows.h>

namespace tarnwick::platform {

void playAlert(Alert alert) {
  constexpr UINT simpleBeep = 0xFFFFFFFF;
  const UINT kind = alert == Alert::Exclamation ? MB_ICONEXCLAMATION
                    : alert == Alert::Asterisk  ? MB_ICONASTERISK
                                                : simpleBeep;
  MessageBeep(kind);
}

}  // namespace tarnwick::platform
