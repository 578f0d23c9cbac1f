// Texts that users of Windows read in other words than those of another desktop.
#pragma once

#include "platform/Path.h"

namespace tarnwick::test {

/// What stands here, of the two.
inline const char* said(const char* onWindows, const char* elsewhere) {
  return platform::folderSeparator == '\\' ? onWindows : elsewhere;
}

}  // namespace tarnwick::test
