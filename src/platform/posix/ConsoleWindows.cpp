#include "platform/ConsoleWindows.h"

namespace tarnwick::platform {
namespace {

/// Programs have no windows but those that they open themselves.
class NoWindows final : public ConsoleWindows {
 public:
  bool exist() const override { return false; }
  WindowNumber titled(const std::string& /*title*/) const override { return 0; }
  std::vector<WindowNumber> below(WindowNumber /*window*/) const override { return {}; }
  std::string title(WindowNumber /*window*/) const override { return ""; }
  bool lives(WindowNumber /*window*/) const override { return false; }
  bool isIconic(WindowNumber /*window*/) const override { return false; }
  bool askToMinimise(WindowNumber /*window*/) override { return false; }
  void restore(WindowNumber /*window*/) override {}
  bool askToClose(WindowNumber /*window*/) override { return false; }
};

}  // namespace

ConsoleWindows& ConsoleWindows::ofSystem() {
  static NoWindows none;
  return none;
}

}  // namespace tarnwick::platform
