#pragma once

#include <string>

namespace tarnwick {

/// The folder of the JDK's tools, with its last separator: that of JAVA_HOME, else of the `javac` on the PATH with
/// links resolved; empty if there is none.
std::string discoverJdkTools();

/// The main version of the JDK whose tools lie in this folder, as its `release` file tells: 8, 17, 25; 0 if unknown.
int jdkVersion(const std::string& toolsFolder);

}  // namespace tarnwick
