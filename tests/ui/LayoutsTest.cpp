#include "app/ChooseSourceDlg.h"
#include "console/FindDlg.h"
#include "dialogs/JarLayout.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/ShortcutLayout.h"
#include "resources/AddPathLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/HintLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/ProjectLayouts.h"
#include "resources/SourceLayouts.h"
#include "resources/TemplateLayouts.h"
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/SettingsPageLayouts.h"
#include "ui/SampleDialog.h"
#include "ui/Toolkit.h"
#include "ui/WindowTest.h"

#include <algorithm>
#include <iterator>

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
          {"selectProject", selectProjectLayout()},
          {"projectFiles", projectFilesLayout()},
          {"mainClass", mainClassLayout()},
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

/// The row of the buttons that end the dialog; one without children if there is none.
DialogItem closingRowOf(const DialogLayout& layout) {
  const auto items = itemsOf(layout);
  const auto found = std::find_if(items.begin(), items.end(), [](const DialogItem& item) { return item.closes; });
  return found == items.end() ? DialogItem() : *found;
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
  wxRect at(int control) { return top().windowOf(control)->GetRect(); }

  /// The buttons of the row as the eye finds them from the left.
  std::vector<DialogItem> fromTheLeft(const DialogItem& row) {
    std::vector<DialogItem> buttons;
    std::copy_if(row.children.begin(), row.children.end(), std::back_inserter(buttons),
                 [](const DialogItem& item) { return item.kind == ItemKind::Button; });
    std::sort(buttons.begin(), buttons.end(), [this](const DialogItem& one, const DialogItem& other) {
      return at(one.control).x < at(other.control).x;
    });
    return buttons;
  }

  /// The rightmost place of all that the dialog shows.
  int rightEdge() {
    int edge = 0;
    for (const int control : top().controls()) edge = std::max(edge, at(control).GetRight());
    return edge;
  }

  /// Fails the test unless the answers stand at the right edge, those that agree on the right of Cancel.
  void expectAnswersAtTheEnd(const DialogItem& row) {
    const auto buttons = fromTheLeft(row);
    std::string order;
    for (const auto& item : buttons) {
      const bool agrees = item.isDefault || item.agrees;
      order += agrees ? 'A' : item.control == IDCANCEL_CONTROL ? 'C' : 'o';
    }
    EXPECT_EQ(order.find('o', order.find_first_of("AC")), std::string::npos) << order;
    EXPECT_EQ(order.find('C', order.find_first_of('A')), std::string::npos) << order;
    const bool hasDefault =
        std::any_of(buttons.begin(), buttons.end(), [](const DialogItem& item) { return item.isDefault; });
    EXPECT_EQ(buttons.back().isDefault, hasDefault);
    EXPECT_EQ(at(buttons.back().control).GetRight(), rightEdge());
  }

  /// Fails the test unless the buttons stand as the layout names them.
  void expectAsWritten(const DialogItem& row) {
    int last = -1;
    for (const auto& item : row.children) {
      if (item.kind != ItemKind::Button) continue;
      EXPECT_GT(at(item.control).x, last) << item.text;
      last = at(item.control).GetRight();
    }
  }

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

TEST_P(DialogLayoutsTest, TheButtonsThatEndItStandByTheSystemsCustom) {
  const DialogItem row = closingRowOf(GetParam().layout);
  // Four buttons in a square end this one.
  ASSERT_EQ(row.children.empty(), GetParam().layout.resource == jarLayout().resource);
  waitForDialog();
  if (!row.children.empty()) {
    steps.then("look", [this, row] {
      if (ui::customOfButtons() == ButtonCustom::AffirmativeLast) {
        expectAnswersAtTheEnd(row);
      } else {
        expectAsWritten(row);
      }
    });
  }
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
