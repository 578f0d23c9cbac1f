#include "ui/Scaling.h"

#include "support/CheckoutFolder.h"
#include "support/TestProgram.h"

#include <filesystem>
#include <optional>

namespace tarnwick::test {

std::vector<Scaling> allScalings() {
  return {{"letters150", 1.5, "GDK_DPI_SCALE=1.5"},
          {"letters200", 2.0, "GDK_DPI_SCALE=2"},
          {"pixels200", 2.0, "GDK_SCALE=2"},
          {"largeFont", 1.5, "gtk-font-name=Sans 15"},
          {"darkTheme", 1.0, "gtk-application-prefer-dark-theme=1"}};
}

std::string whyNoScaling() {
  return "";
}

// Window managers cut large windows to the screen's size.
std::string largeScreen() {
  const std::string folder = checkoutFolder();
  return "TARNWICK_DISPLAY_SIZE=3840x2160x24 \"" + folder + "/scripts/with-display.sh\" ";
}

// The toolkit reads a file of settings in the user's configuration folder, and variables of its own.
struct ScalingInForce::State {
  explicit State(const Scaling& scaling) : configuration("XDG_CONFIG_HOME", folder.path()) {
    std::filesystem::create_directory(folder.file("gtk-3.0"));
    const bool isVariable = scaling.setting.rfind("GDK_", 0) == 0;
    writeFile(folder.file("gtk-3.0/settings.ini"), "[Settings]\n" + (isVariable ? "" : scaling.setting) + "\n");
    const std::size_t sign = scaling.setting.find('=');
    if (isVariable) variable.emplace(scaling.setting.substr(0, sign), scaling.setting.substr(sign + 1));
  }

  ScratchFolder folder;
  ScopedEnvironment configuration;
  std::optional<ScopedEnvironment> variable;
};

ScalingInForce::ScalingInForce(const Scaling& scaling) : state_(std::make_unique<State>(scaling)) {}

ScalingInForce::~ScalingInForce() = default;

}  // namespace tarnwick::test
