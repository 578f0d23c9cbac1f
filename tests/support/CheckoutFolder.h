// The checkout that a test program was built from.
#pragma once

#include <string>

namespace tarnwick::test {

/// The checkout's folder in UTF-8, without a last separator, as it was when this program was built.
std::string checkoutFolder();

}  // namespace tarnwick::test
