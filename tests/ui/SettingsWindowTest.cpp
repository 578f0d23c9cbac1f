// The settings dialog as real windows, with its own rules.
#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/SystemVersion.h"
#include "process/ToolLog.h"
#include "settings/JdkDiscovery.h"
#include "settings/Settings.h"
#include "settingsdialog/SettingsDialog.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/TestProgram.h"
#include "ui/DialogChecks.h"

#include <wx/dialog.h>

#include <memory>

namespace tarnwick::test {

namespace {

constexpr int TABS = 1092;

struct NamedPage {
  std::string name;
  int tab;
  /// What a person reaches by Tab from the page's first control on, in the order of reading.
  std::vector<int> reached;
  std::string jdkVersion = "Pre-1.4";
  bool marked = false;  ///< what a JDK 25 no longer knows
};

std::ostream& operator<<(std::ostream& out, const NamedPage& page) {
  return out << page.name;
}

std::vector<NamedPage> allPages() {
  return {
      {"tools", 0,
       platform::isWindowsDesktop() ? std::vector<int>{1041, 1006, 2002, 1017, 2120, 2150, 2170, 1204, 1205}
                                    : std::vector<int>{1041, 1006, 2002, 1017, 2120, 2150, 1204, 1205}},
      {"javac",
       1,
       {1026, 1024, 1044, 1027, 1021, 1022, 1269, 1264, 1265, 1266,
        1267, 1268, 1179, 1028, 1040, 1007, 1117, 2103, 2101, 2102},
       "1.5"},
      {"javacOlder",
       1,
       {1026, 1024, 1044, 1027, 1021, 1022, 1269, 1270, 1271, 1179, 1028, 1040, 1007, 1117, 2103, 2101, 2102},
       "1.4"},
      {"javacOldest", 1, {1026, 1024, 1044, 1027, 1021, 1022, 1269, 1270, 1028, 1040, 1007, 1117, 2103, 2101, 2102}},
      {"java",
       2,
       {1032, 1123, 1124, 1125, 1157, 1129, 1130, 1131, 1184, 1126, 1031, 2104, 2131, 1182, 1180, 1183, 1181}},
      {"jdb", 3, {1125, 2160, 1261, 1262, 1263, 1158, 1162, 1163, 1164, 1166, 1167, 1168, 1169}},
      {"appletviewer", 4, {1033, 1034}},
      {"editor", 5, {1014, 1042, 1015, 2110, 1153}},
      {"paths", 6, {1029, 1065, 1066, 1138, 1139, 1137, 1039, 1067, 1068, 1043, 1069, 1070, 1045, 1071, 1072}},
      {"javacMarked",
       1,
       {1026, 1024, 1044, 1027, 1021, 1022, 1269, 1270, 1271, 1179, 1028, 1040, 1007, 1117, 2103, 2101, 2102},
       "1.4",
       true},
      {"javaMarked",
       2,
       {1032, 1123, 1124, 1125, 1157, 1129, 1130, 1131, 1184, 1126, 1031, 2104, 2131, 1182, 1180, 1183, 1181},
       "Pre-1.4",
       true},
      {"appletviewerMarked", 4, {1033, 1034}, "Pre-1.4", true},
      {"pathsMarked",
       6,
       {1029, 1065, 1066, 1138, 1139, 1137, 1039, 1067, 1068, 1043, 1069, 1070, 1045, 1071, 1072},
       "Pre-1.4",
       true},
  };
}

class SettingsWindowTest : public WindowTest, public testing::WithParamInterface<NamedPage> {
 protected:
  SettingsWindowTest() : environment_("TARNWICK_CFGDIR", scratch_.path()) {
    context_.installedJdks = [] {
      return std::vector<Jdk>{{"/usr/lib/jvm/java-25-openjdk-amd64/bin/", "25.0.1"},
                              {"/home/somebody/.sdkman/candidates/java/17.0.15-tem/bin/", "17.0.15"},
                              {"/usr/lib/jvm/java-8-openjdk-amd64/bin/", "1.8.0_302"}};
    };
    settings_.javaPath = "/usr/lib/jvm/java-25-openjdk-amd64/bin/";
    settings_.javacMyJdkVersion = GetParam().jdkVersion;
    settings_.editorTarget = "/usr/bin/gedit";
    if (GetParam().marked) chooseOldOptions();
  }

  /// A JDK 25, and options that it does not know.
  void chooseOldOptions() {
    settings_.javaPath = scratch_.file("jdk") + platform::folderSeparator + "bin" + platform::folderSeparator;
    platform::makeFolders(settings_.javaPath);
    writeFile(scratch_.file("jdk") + platform::folderSeparator + "release", "JAVA_VERSION=\"25.0.1\"\n");
    settings_.javacSourceOption = settings_.javacTargetSpec = "1.4";
    settings_.javaGarbageCollector = "Concurrent";
  }

  ui::WxDialogWindow& page() const { return *top().children().at(static_cast<std::size_t>(GetParam().tab)); }

  void waitForPage() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.until("the page shows", [this] { return page().surface().IsShownOnScreen(); });
    steps.settle(5);
  }

  /// The number of the page's control that has the focus; 0 for any other.
  int focused() const {
    const wxWindow* const focus = wxWindow::FindFocus();
    for (const int control : page().controls()) {
      if (page().windowOf(control) == focus) return control;
    }
    return 0;
  }

  int run() { return SettingsDialog(settings_).runModal(GetParam().tab); }

  ScratchFolder scratch_;
  ScopedEnvironment environment_;
  ProgramInfo program_;
  ToolLog log_{scratch_.path()};
  SettingsContext context_ = settingsOnDesktop(desktop(), program_, log_);
  Settings settings_{context_};
};

/// The pages with combo boxes.
class SettingsComboTest : public SettingsWindowTest {};

class SettingsToolsTest : public SettingsWindowTest {};

}  // namespace

TEST_P(SettingsWindowTest, ThePageShowsWholeOnASmallScreen) {
  waitForPage();
  steps.then("look", [this] {
    shoot("settings-" + GetParam().name);
    expectGoodLooks(top());
    expectFitsSmallScreen(top());
    top().close(IDCANCEL_CONTROL);
  });
  run();
}

TEST_P(SettingsWindowTest, EveryControlHasANameForReadersOfTheScreen) {
  waitForPage();
  steps.then("look", [this] {
    expectNames(top());
    top().close(IDCANCEL_CONTROL);
  });
  run();
}

TEST_P(SettingsWindowTest, TabReachesEveryControlInTheOrderOfReading) {
  const auto& expected = GetParam().reached;
  std::vector<int> reached;
  waitForPage();
  steps.then("focus", [&] { page().focus(expected.front()); });
  steps.until("focus", [&] { return focused() == expected.front(); });
  for (std::size_t i = 0; i < expected.size(); ++i) {
    steps.then("note", [&] { reached.push_back(focused()); });
    steps.then("Tab", [] { key(WXK_TAB); });
    steps.settle(3);
  }
  steps.then("look", [&] {
    EXPECT_EQ(reached, expected);
    EXPECT_EQ(wxWindow::FindFocus(), top().windowOf(1036)) << "the dialog's own buttons follow";
    top().close(IDCANCEL_CONTROL);
  });
  run();
}

TEST_P(SettingsWindowTest, TabWalksThroughTheWholeDialogAndItsTabs) {
  const auto reached = std::make_shared<Stops>();
  waitForPage();
  walkByTab(steps, reached);
  steps.then("look", [this, reached] {
    expectAllReached(top(), *reached);
    expectReadingOrder(*reached);
    top().close(IDCANCEL_CONTROL);
  });
  run();
}

TEST_P(SettingsWindowTest, TheArrowsOpenTheOtherTabs) {
  const int here = GetParam().tab;
  const int other = here == 0 ? 1 : here - 1;
  waitForPage();
  steps.then("focus", [this] { top().focus(TABS); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(TABS); });
  steps.then("arrow", [here] { key(here == 0 ? WXK_RIGHT : WXK_LEFT); });
  steps.until("the other page", [this, other] {
    return top().children().at(static_cast<std::size_t>(other))->surface().IsShownOnScreen();
  });
  steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
  run();
}

TEST_P(SettingsWindowTest, TheFocusBeginsOnThePageThatShows) {
  waitForPage();
  steps.then("look", [this] {
    EXPECT_EQ(focused(), GetParam().reached.front());
    top().close(IDCANCEL_CONTROL);
  });
  run();
}

TEST_P(SettingsWindowTest, EscapeCancelsAndReturnIsOk) {
  waitForPage();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  EXPECT_EQ(run(), DIALOG_CANCEL);
  waitForPage();
  steps.then("focus", [this] { page().focus(GetParam().reached.front()); });
  steps.settle(3);
  steps.then("Return", [] { key(WXK_RETURN); });
  EXPECT_EQ(run(), DIALOG_OK);
  EXPECT_TRUE(platform::isFile(scratch_.file(defaultConfigurationName)));
}

TEST_P(SettingsComboTest, ReturnInAComboBoxIsOkToo) {
  const int box = GetParam().tab == 1 ? 1269 : 1184;
  waitForPage();
  steps.then("focus", [this, box] { page().focus(box); });
  steps.until("focus", [this, box] { return focused() == box; });
  steps.then("Return", [] { key(WXK_RETURN); });
  EXPECT_EQ(run(), DIALOG_OK);
}

TEST_P(SettingsToolsTest, ASingleJdkLeavesNoHoleInThePlaceOfTheList) {
  int withList = 0;
  const auto noteDistance = [this](int& distance) {
    distance = page().rect(1017).top - page().rect(1006).bottom;
    shoot("settings-tools-" + std::to_string(distance));
    expectGoodLooks(top());
    top().close(IDCANCEL_CONTROL);
  };
  waitForPage();
  steps.then("look", [&] { noteDistance(withList); });
  run();
  context_.installedJdks = [] { return std::vector<Jdk>(); };
  int withoutList = 0;
  waitForPage();
  steps.then("look", [&] { noteDistance(withoutList); });
  run();
  EXPECT_GT(withoutList, 0);
  EXPECT_LT(withoutList, withList / 2);
}

INSTANTIATE_TEST_SUITE_P(Pages, SettingsWindowTest, testing::ValuesIn(allPages()),
                         [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(Pages, SettingsToolsTest, testing::Values(allPages()[0]),
                         [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(Pages, SettingsComboTest, testing::Values(allPages()[1], allPages()[4]),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
