// The few calls of the toolkit's own base that the toolkit does not wrap. Debian's package of the toolkit brings no
// headers of it, so they are looked up in the library that is loaded anyway.
#pragma once

#include <dlfcn.h>

namespace tarnwick::ui::gtk {

/// The loaded function of this name; null if there is none.
template <typename Function>
Function* function(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

}  // namespace tarnwick::ui::gtk
