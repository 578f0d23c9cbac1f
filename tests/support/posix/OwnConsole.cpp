#include "support/OwnConsole.h"

namespace tarnwick::test {

bool leaveOwnConsole() {
  return true;
}

}  // namespace tarnwick::test
