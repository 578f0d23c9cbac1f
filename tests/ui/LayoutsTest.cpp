#include "resources/HintLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/SettingsLayouts.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

namespace tarnwick::test {

namespace {

struct NamedLayout {
  std::string name;
  DialogLayout layout;
};

std::ostream& operator<<(std::ostream& out, const NamedLayout& named) {
  return out << named.name;
}

/// Every dialog and child window of the program stands on its own here, with all of its controls in sight.
std::vector<NamedLayout> allLayouts() {
  return {{"main", mainLayout()},
          {"fileView", fileViewLayout()},
          {"panelPage", panelPageLayout()},
          {"verticalBar", verticalBarLayout()},
          {"welcome", welcomeLayout()},
          {"settings", settingsLayout()},
          {"toolsPage", toolsPageLayout()},
          {"alternateLocation", alternateLocationLayout()},
          {"hint", hintLayout()}};
}

class LayoutsTest : public WindowTest, public testing::WithParamInterface<NamedLayout> {};

}  // namespace

TEST_P(LayoutsTest, EveryControlShowsWhole) {
  Recorder rules;
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle();
  steps.then("look", [&] {
    shoot("layout-" + GetParam().name);
    expectGoodLooks(top());
    rules.window->close(1);
  });
  desktop().runDialog(GetParam().layout, rules);
}

INSTANTIATE_TEST_SUITE_P(Program, LayoutsTest, testing::ValuesIn(allLayouts()),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
