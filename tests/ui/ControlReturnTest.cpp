// Ctrl+Return in a field in which it means something of its own.
#include "ui/DialogFixture.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace tarnwick::test {

namespace {

class ControlReturnTest : public DialogTest {
 protected:
  void thenFocus(const std::function<wxWindow*()>& control) {
    steps.then("focus", [control] { control()->SetFocus(); });
    steps.until("focus", [control] { return wxWindow::FindFocus() == control(); });
  }
  void thenPress(int modifiers) {
    steps.then("Return", [modifiers] { key(WXK_RETURN, modifiers); });
  }

  static constexpr int PAGE_FIELD = 1;
  int done = 0;
};

}  // namespace

TEST_F(ControlReturnTest, ItDoesThatAndReturnAloneGoesOnToPressTheDefaultButton) {
  rules.onControlReturn[SAMPLE_EDIT] = [this] { ++done; };
  waitForDialog();
  thenFocus([this] { return top().windowOf(SAMPLE_EDIT); });
  thenPress(wxMOD_CONTROL);
  steps.until("it is done", [this] { return done > 0; });
  steps.settle(5);
  steps.then("look", [this] {
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(rules.heard.empty()) << rules.heard.front();
  });
  thenPress(wxMOD_NONE);
  EXPECT_EQ(play(), IDOK_CONTROL);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
  EXPECT_EQ(done, 1);
}

TEST_F(ControlReturnTest, WithOtherKeysHeldToItIsAnother) {
  rules.onControlReturn[SAMPLE_EDIT] = [this] { ++done; };
  waitForDialog();
  thenFocus([this] { return top().windowOf(SAMPLE_EDIT); });
  thenPress(wxMOD_CONTROL | wxMOD_SHIFT);
  steps.settle(10);
  steps.then("look", [this] { EXPECT_EQ(done, 0); });
  thenClose();
  // Windows presses the default button by it all the same, which does nothing here.
  desktop().runDialog(sampleLayout(), rules);
}

TEST_F(ControlReturnTest, TheFieldMayStandOnATab) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  firstPage.onControlReturn[PAGE_FIELD] = [this] { ++done; };
  waitForDialog();
  thenFocus([this] { return top().children().at(0)->windowOf(PAGE_FIELD); });
  thenPress(wxMOD_CONTROL);
  steps.until("it is done", [this] { return done > 0; });
  thenClose();
  play();
}

TEST_F(ControlReturnTest, InAnotherFieldItIsNotHeard) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  firstPage.onControlReturn[PAGE_FIELD] = [this] { ++done; };
  waitForDialog();
  thenFocus([this] { return top().windowOf(SAMPLE_EDIT); });
  thenPress(wxMOD_CONTROL);
  steps.settle(10);
  steps.then("look", [this] { EXPECT_EQ(done, 0); });
  thenClose();
  desktop().runDialog(sampleLayout(), rules);  // which the default button does not close
}

TEST_F(ControlReturnTest, WhileWorkRunsItIsNotHeard) {
  std::atomic<bool> finish = false;
  bool worked = false;
  rules.onControlReturn[SAMPLE_EDIT] = [&] {
    ++done;
    desktop().whileBusy({[&finish] {
      while (!finish) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }});
    worked = true;
  };
  waitForDialog();
  thenFocus([this] { return top().windowOf(SAMPLE_EDIT); });
  thenPress(wxMOD_CONTROL);
  steps.until("it works", [this] { return done > 0 && wxIsBusy(); });
  thenPress(wxMOD_CONTROL);
  thenPress(wxMOD_CONTROL);
  steps.settle(10);
  steps.then("finish", [&finish] { finish = true; });
  steps.until("it has worked", [&worked] { return worked; });
  steps.settle(10);
  steps.then("look", [this] { EXPECT_EQ(done, 1); });
  thenClose();
  play();
}

}  // namespace tarnwick::test
