#include "resources/AddPathLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/HintLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/SettingsLayouts.h"
#include "resources/SettingsPageLayouts.h"
#include "resources/SourceLayouts.h"
#include "resources/TemplateLayouts.h"
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

/// Every dialog and child window of the program stands on its own here, with all of its controls in sight. Not here are
/// the main window, which holds nothing but the places of the two panels, and the page "javac": some of its boxes share
/// their places, and only its rules keep them apart.
std::vector<NamedLayout> allLayouts() {
  return {{"fileView", fileViewLayout()},
          {"panelPage", panelPageLayout()},
          {"projectView", projectViewLayout()},
          {"verticalBar", verticalBarLayout()},
          {"horizontalBar", horizontalBarLayout()},
          {"flatBar", flatBarLayout()},
          {"newFile", newSourceLayout(NewSourceMode::NewFile)},
          {"nothingToEdit", newSourceLayout(NewSourceMode::NothingToEdit)},
          {"newInProject", newSourceLayout(NewSourceMode::InProject)},
          {"addTemplate", addTemplateLayout()},
          {"welcome", welcomeLayout()},
          {"about", aboutLayout()},
          {"helpFile", helpFileLayout()},
          {"settings", settingsLayout()},
          {"toolsPage", toolsPageLayout()},
          {"javaPage", javaPageLayout()},
          {"jdbPage", jdbPageLayout()},
          {"appletviewerPage", appletviewerPageLayout()},
          {"editorPage", editorPageLayout()},
          {"pathsPage", pathsPageLayout()},
          {"addPath", addPathLayout()},
          {"alternateLocation", alternateLocationLayout()},
          {"portabilityWarning", portabilityWarningLayout()},
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
