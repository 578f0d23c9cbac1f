#pragma once

#include "source/JavaOutline.h"

#include <string>

namespace tarnwick::test {

/// The outline as lines of text, one for each thing in it. The compiler's own outlines are written in the same form, by
/// tests/truth/OutlineTruth.java.
std::string outlineText(const JavaOutline& outline);

}  // namespace tarnwick::test
