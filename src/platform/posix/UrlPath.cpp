#include "platform/UrlPath.h"

namespace tarnwick::platform {

std::string urlPath(const std::string& path) {
  return percentEncoded(path);
}

}  // namespace tarnwick::platform
