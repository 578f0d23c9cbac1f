#include "support/CheckoutFolder.h"

namespace tarnwick::test {

std::string checkoutFolder() {
  return TARNWICK_SOURCE_FOLDER;
}

}  // namespace tarnwick::test
