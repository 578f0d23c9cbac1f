// What readers of the screen are told of every dialog of the program, and of the panel.
#include "dialogs/JavadocDlg.h"
#include "dialogs/JavadocLayout.h"
#include "settingsdialog/SettingsDialog.h"
#include "ui/PanelsFixture.h"
#include "ui/RealDialogs.h"
#include "ui/SampleDialog.h"
#include "ui/Text.h"
#include "ui/posix/SpokenTree.h"

#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

constexpr int SETTINGS_TABS = 1092;

class SpokenDialogsTest : public WindowTest, public testing::WithParamInterface<RealDialog> {
 protected:
  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() > 0 && top().dialog().IsActive(); });
    steps.settle(5);
  }

  ProgramWorld world_;
};

class SpokenPagesTest : public WindowTest {
 protected:
  /// Opens each page of the dialog in its turn, then closes that.
  void lookAtAllPages(int tabs, int pages) {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    for (int page = 0; page < pages; ++page) {
      steps.then("page", [this, tabs, page] { top().select(tabs, page); });
      steps.settle(5);
      steps.then("look", [this, page] {
        EXPECT_TRUE(top().children().at(static_cast<std::size_t>(page))->surface().IsShownOnScreen());
        expectSpeakingParts(top().dialog());
        expectRolesAndStates(top());
      });
    }
    steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
  }

  ProgramWorld world_;
};

class SpokenPanelsTest : public PanelsFixture, public testing::WithParamInterface<View> {
 protected:
  SpokenPanelsTest() : PanelsFixture(GetParam()) {}
};

}  // namespace

TEST_P(SpokenDialogsTest, EverythingIsToldWithItsNameItsKindAndItsState) {
  waitForDialog();
  steps.then("look", [this] {
    EXPECT_EQ(spokenIn(top().dialog()).front().name, ui::fromWx(top().dialog().GetTitle()));
    expectSpeakingParts(top().dialog());
    expectRolesAndStates(top());
    top().close(IDCANCEL_CONTROL);
  });
  for (const auto& title : GetParam().followers) {
    steps.until("the next dialog shows",
                [this, title] { return openDialogs() > 0 && top().dialog().IsActive() && top().title() == title; });
    steps.settle(3);
    steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
  }
  GetParam().run(world_);
}

TEST_F(SpokenPagesTest, EveryPageOfTheSettings) {
  lookAtAllPages(SETTINGS_TABS, 7);
  SettingsDialog(world_.settings).runModal(0);
}

TEST_F(SpokenPagesTest, EveryPageOfTheDocumentationDialog) {
  lookAtAllPages(Javadoc::TABS, 5);
  JavadocDlg(world_.settings, "\"Main.java\" ").runModal();
}

TEST_F(SpokenPagesTest, WhatAnEmptyListSaysIsToldBesideItsName) {
  Recorder rules;
  const std::string words = "Press a button to fill this";
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.then("look", [&] {
    const auto heard = [this](int control) { return spokenOf(*top().windowOf(control)).description; };
    rules.window->setToolTip(SAMPLE_LIST, "A tip");
    rules.window->setEntries(SAMPLE_LIST, {});
    rules.window->setEmptyText(SAMPLE_LIST, words);
    EXPECT_EQ(heard(SAMPLE_LIST), words);
    rules.window->setEntries(SAMPLE_LIST, {"first"});
    EXPECT_EQ(heard(SAMPLE_LIST), "A tip");
    rules.window->setEmptyText(SAMPLE_EDIT, words);
    EXPECT_EQ(spokenOf(*top().windowOf(SAMPLE_EDIT)).placeholder, words);
    rules.window->close(1);
  });
  desktop().runDialog(sampleLayout(), rules);
}

TEST_P(SpokenPanelsTest, EverythingIsToldWithItsNameItsKindAndItsState) {
  waitForView();
  for (const int tab : {0, 1, 2}) {
    steps.then("tab", [this, tab] { choose(panel(), TABS, tab); });
    steps.settle(3);
    steps.then("look", [this] {
      expectSpeakingParts(top().dialog());
      expectRolesAndStates(panel());
    });
  }
  run();
}

INSTANTIATE_TEST_SUITE_P(Program, SpokenDialogsTest, testing::ValuesIn(allDialogs()),
                         [](const auto& info) { return info.param.name; });
INSTANTIATE_TEST_SUITE_P(Views, SpokenPanelsTest,
                         testing::Values(View{LayoutValue::VERTICAL, false, true},
                                         View{LayoutValue::HORIZONTAL, false, true},
                                         View{LayoutValue::FLAT, false, true}, View{LayoutValue::VERTICAL, true, true},
                                         View{LayoutValue::HORIZONTAL, true, true},
                                         View{LayoutValue::FLAT, true, true}),
                         [](const auto& info) { return nameOf(info.param); });

}  // namespace tarnwick::test
