#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// An option on one of our pages that the tools of later JDKs no longer know.
struct GoneOption {
  const char* tool;
  const char* option;  ///< empty for the tool itself
  int lastJdk;         ///< the last one that takes it as it is meant
  /// What is left of it since; empty for nothing.
  const char* rest = "";
};

extern const std::vector<GoneOption> goneOptions;

/// The row of an option that a JDK of this main version does not know; null if it does, or if the version is unknown
/// (0).
const GoneOption* goneOption(const std::string& tool, const std::string& option, int jdk);

}  // namespace tarnwick
