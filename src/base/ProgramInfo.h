#pragma once

#include <string>

namespace tarnwick {

/// Where the program lies and what it is called; one record for the whole process.
struct ProgramInfo {
  std::string programDirectory;  ///< with its trailing separator
  std::string programPath;       ///< the executable
  std::string version = "Tarnwick V4.7a";
  std::string configDirVariable = "TARNWICK_CFGDIR";

  /// The value of the variable when set, otherwise the platform's own place.
  std::string configDirectory() const;
};

/// The default configuration's file name.
extern const char defaultConfigurationName[];

}  // namespace tarnwick
