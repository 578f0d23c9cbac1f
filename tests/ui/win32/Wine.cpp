#include "ui/Wine.h"

#include <windows.h>

namespace tarnwick::test {

bool runsUnderWine() {
  return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace tarnwick::test
