#pragma once

#include <string>
#include <utility>

namespace tarnwick {

/// Base of all failures that carry text. Thrown by value, caught by reference.
struct Tarnwickexception {
  explicit Tarnwickexception(std::string text) : message(std::move(text)) {}

  std::string message;            ///< what the user sees
  std::string where = "unknown";  ///< always this; no handler shows it
};

}  // namespace tarnwick
