#pragma once

#include "base/StringableM.h"

#include <string>

namespace tarnwick {

/// The arrangement of the panels, by its name.
class LayoutValue : public StringableM {
 public:
  enum Layout { VERTICAL = 0, HORIZONTAL = 1, FLAT = 2 };

  /// "VERTICAL" for a value that is none of the three.
  std::string toString() override;
  /// Ignores case. An unknown name means VERTICAL; nothing is thrown.
  void fromString(const std::string& text) override;

  int value = VERTICAL;
};

}  // namespace tarnwick
