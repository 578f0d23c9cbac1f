#pragma once

#include "base/StringableM.h"

#include <string>

namespace tarnwick {

/// The arrangement of the panels. An unknown name means VERTICAL.
class LayoutValue : public StringableM {
 public:
  enum Layout { VERTICAL = 0, HORIZONTAL = 1, FLAT = 2 };

  std::string toString() override;
  void fromString(const std::string& text) override;

  int value = VERTICAL;
};

}  // namespace tarnwick
