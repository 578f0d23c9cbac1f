#include "app/ChooseSourceDlg.h"
#include "console/FindDlg.h"
#include "dialogs/JarLayout.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/ShortcutLayout.h"
#include "resources/AddPathLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/HintLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/SourceLayouts.h"
#include "resources/TemplateLayouts.h"
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/SettingsPageLayouts.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <algorithm>

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
          {"find", findLayout()},
          {"chooseSource", chooseSourceLayout()},
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
          {"jar", jarLayout()},
          {"selectSubdirectory", selectSubdirectoryLayout()},
          {"javadoc", javadocLayout()},
          {"javadocSources", javadocSourcesLayout()},
          {"javadocPaths", javadocPathsLayout()},
          {"javadocOptions", javadocOptionsLayout()},
          {"docletPaths", docletPathsLayout()},
          {"docletOptions", docletOptionsLayout()},
          {"shortcut", shortcutLayout()},
          {"hint", hintLayout()}};
}

/// Those that open as a window of their own.
std::vector<NamedLayout> allDialogLayouts() {
  return {{"newFile", newSourceLayout(NewSourceMode::NewFile)},
          {"nothingToEdit", newSourceLayout(NewSourceMode::NothingToEdit)},
          {"newInProject", newSourceLayout(NewSourceMode::InProject)},
          {"addTemplate", addTemplateLayout()},
          {"find", findLayout()},
          {"chooseSource", chooseSourceLayout()},
          {"welcome", welcomeLayout()},
          {"about", aboutLayout()},
          {"helpFile", helpFileLayout()},
          {"settings", settingsLayout()},
          {"addPath", addPathLayout()},
          {"alternateLocation", alternateLocationLayout()},
          {"portabilityWarning", portabilityWarningLayout()},
          {"jar", jarLayout()},
          {"selectSubdirectory", selectSubdirectoryLayout()},
          {"javadoc", javadocLayout()},
          {"shortcut", shortcutLayout()}};
}

void collect(const DialogItem& item, std::vector<DialogItem>& all) {
  all.push_back(item);
  for (const auto& child : item.children) collect(child, all);
}

std::vector<DialogItem> itemsOf(const DialogLayout& layout) {
  std::vector<DialogItem> all;
  collect(layout.content, all);
  return all;
}

bool takesReturn(const DialogItem& item) {
  return item.kind == ItemKind::Edit || item.kind == ItemKind::ComboBox || item.kind == ItemKind::CheckBox;
}

class LayoutsTest : public WindowTest, public testing::WithParamInterface<NamedLayout> {};

class DialogLayoutsTest : public LayoutsTest {
 protected:
  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle();
  }

  void run() {
    steps.then("close", [this] { rules_.window->close(99); });
    EXPECT_EQ(desktop().runDialog(GetParam().layout, rules_), 99);
  }

  void forget() { rules_.heard.clear(); }
  /// Focuses the control, presses Return, and expects that one button was pressed by it.
  void expectReturnPresses(int focused, int button) {
    steps.then("focus", [this, focused] { top().focus(focused); });
    steps.until("focus", [this, focused] { return wxWindow::FindFocus() == top().windowOf(focused); });
    steps.then("Return", [this] {
      forget();
      key(WXK_RETURN);
    });
    steps.until("something is heard", [this] { return !rules_.heard.empty(); });
    steps.settle();
    steps.then("look", [this, focused, button] {
      EXPECT_EQ(rules_.heard, std::vector<std::string>{"command " + std::to_string(button)}) << "from " << focused;
    });
  }

  Recorder rules_;
};

}  // namespace

TEST_P(DialogLayoutsTest, ReturnPressesTheDefaultButtonOrTheOneThatHasTheFocus) {
  const auto items = itemsOf(GetParam().layout);
  const auto found = std::find_if(items.begin(), items.end(), [](const DialogItem& item) { return item.isDefault; });
  waitForDialog();
  for (const auto& item : items) {
    if (found != items.end() && takesReturn(item)) expectReturnPresses(item.control, found->control);
    const bool isPressed = item.kind == ItemKind::Button || item.kind == ItemKind::Link;
    if (isPressed) expectReturnPresses(item.control, item.control);
  }
  run();
}

TEST_P(DialogLayoutsTest, ReturnAtTheStartPressesTheDefaultButton) {
  const auto items = itemsOf(GetParam().layout);
  const auto found = std::find_if(items.begin(), items.end(), [](const DialogItem& item) { return item.isDefault; });
  waitForDialog();
  steps.then("Return", [this] {
    forget();
    key(WXK_RETURN);
  });
  steps.until("something is heard", [this] { return !rules_.heard.empty(); });
  steps.then("look", [&] {
    // Where no button is the default one, the first that has the focus is as good as that.
    const int expected = found == items.end() ? GetParam().layout.firstFocus : found->control;
    EXPECT_EQ(rules_.heard, std::vector<std::string>{"command " + std::to_string(expected)});
  });
  run();
}

TEST_P(DialogLayoutsTest, EscapePressesCancelOrAsksToClose) {
  const auto items = itemsOf(GetParam().layout);
  const bool hasCancel =
      std::any_of(items.begin(), items.end(), [](const DialogItem& item) { return item.control == IDCANCEL_CONTROL; });
  waitForDialog();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.until("something is heard", [this] { return !rules_.heard.empty(); });
  steps.then("look", [this, hasCancel] {
    EXPECT_EQ(rules_.heard, std::vector<std::string>{hasCancel ? "command 2" : "close"});
  });
  run();
}

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

INSTANTIATE_TEST_SUITE_P(Program, DialogLayoutsTest, testing::ValuesIn(allDialogLayouts()),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
