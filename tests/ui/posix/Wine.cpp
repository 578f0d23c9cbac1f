#include "ui/Wine.h"

namespace tarnwick::test {

bool runsUnderWine() {
  return false;
}

}  // namespace tarnwick::test
