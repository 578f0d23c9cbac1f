#include "ui/Scaling.h"

#include "ui/Wine.h"

#include <windows.h>

namespace tarnwick::test {

namespace {

constexpr const char* desktopKey = "Control Panel\\Desktop";
constexpr const char* resolution = "LogPixels";

NONCLIENTMETRICSW metrics() {
  NONCLIENTMETRICSW found{};
  found.cbSize = sizeof found;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof found, &found, 0);
  return found;
}

void setMetrics(NONCLIENTMETRICSW wanted) {
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof wanted, &wanted, SPIF_UPDATEINIFILE);
}

}  // namespace

std::vector<Scaling> allScalings() {
  return {{"letters150", 1.5, "144"}, {"letters200", 2.0, "192"}, {"largeFont", 1.5, ""}};
}

std::string whyNoScaling() {
  // Wine's are the tests' own.
  return runsUnderWine() ? "" : "these are the user's own settings";
}

// The system cuts no window to the screen's size.
std::string largeScreen() {
  return "";
}

struct ScalingInForce::State {
  NONCLIENTMETRICSW before = metrics();
  bool resolutionChanged = false;
};

ScalingInForce::ScalingInForce(const Scaling& scaling) : state_(std::make_unique<State>()) {
  if (scaling.setting.empty()) {
    NONCLIENTMETRICSW larger = state_->before;
    larger.lfMessageFont.lfHeight = static_cast<LONG>(larger.lfMessageFont.lfHeight * scaling.growth);
    setMetrics(larger);
    return;
  }
  const DWORD dots = static_cast<DWORD>(std::stoul(scaling.setting));
  RegSetKeyValueA(HKEY_CURRENT_USER, desktopKey, resolution, REG_DWORD, &dots, sizeof dots);
  state_->resolutionChanged = true;
}

ScalingInForce::~ScalingInForce() {
  if (state_->resolutionChanged)
    RegDeleteKeyValueA(HKEY_CURRENT_USER, desktopKey, resolution);
  else
    setMetrics(state_->before);
}

}  // namespace tarnwick::test
