#pragma once

#include "platform/JdkPlaces.h"

#include <string>
#include <vector>

namespace tarnwick {

/// A JDK of this machine.
struct Jdk {
  std::string toolsFolder;  ///< the real folder of its tools, with its last separator
  std::string version;      ///< as its `release` file tells, for example "17.0.15"; empty if unknown
};

/// Every JDK that JAVA_HOME, the PATH and these places lead to: only folders with a `javac`, each once, whatever links
/// lead to it, the newest first. What the places come to in the same version keeps their order.
std::vector<Jdk> findJdks(const platform::JdkPlaces& places);

/// The same for the system's usual places.
std::vector<Jdk> installedJdks();

/// The folder of the tools to begin with: that of JAVA_HOME, since the user has named it; else that of the `javac` on
/// the PATH that belongs to a JDK; else that of the newest JDK of `installed`; else any `javac` on the PATH; empty if
/// there is none.
std::string preferredJdkTools(const std::vector<Jdk>& installed);

/// The main version of the JDK whose tools lie in this folder, as its `release` file tells: 8, 17, 25; 0 if unknown.
int jdkVersion(const std::string& toolsFolder);

}  // namespace tarnwick
