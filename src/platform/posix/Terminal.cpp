#include "platform/Terminal.h"

#include <cstdio>

namespace tarnwick::platform {

const char endOfInputMark = '\0';

bool writeToTerminal(const std::string& text) {
  return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
}

}  // namespace tarnwick::platform
