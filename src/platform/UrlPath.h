// Paths as they stand in URLs.
#pragma once

#include <string>

namespace tarnwick::platform {

/// The path with "/" between its folders and with everything that could mean something in a URL percent-encoded, its
/// letters as UTF-8. A path with a drive begins with "/" ("/C:/a%20b").
std::string urlPath(const std::string& path);

/// The bytes with all but ASCII letters, digits and "/-._~" percent-encoded.
std::string percentEncoded(const std::string& bytes);

}  // namespace tarnwick::platform
