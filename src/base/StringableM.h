#pragma once

#include <string>

namespace tarnwick {

/// A value that converts to and from one line of text.
class StringableM {
 public:
  /// The text was malformed. An empty marker, caught near its source.
  struct InvalidDataE {};

  virtual ~StringableM() = default;
  /// The value as text.
  virtual std::string toString() = 0;
  /// Sets the value from a text. May throw InvalidDataE.
  virtual void fromString(const std::string& text) = 0;
};

}  // namespace tarnwick
