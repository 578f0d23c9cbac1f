#pragma once

#include <string>

namespace tarnwick {

/// The bytes of a Java source, as they are on every system. Throws Tarnwickfile::FileNotOpenE as a Tarnwickfile does
/// whose content is opened.
std::string sourceText(const std::string& path);

}  // namespace tarnwick
