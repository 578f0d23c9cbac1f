// Where the window of a second instance stands.
#include "support/TestProgram.h"
#include "ui/ProgramAnew.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <wx/dialog.h>

#include <atomic>
#include <cstdio>
#include <thread>

namespace tarnwick::test {

namespace {

/// Another instance of this program, whose main dialog stands at `instancePlace`.
class OtherInstance {
 public:
  OtherInstance()
      : running_([this] {
          exitCode_ = runAnew("--stand \"" + sign() + "\"", scratch_.file("said"));
          ended_ = true;
        }) {}
  ~OtherInstance() {
    std::remove(sign().c_str());
    running_.join();
    EXPECT_EQ(exitCode_, 0) << contentOf(scratch_.file("said"));
  }
  OtherInstance(const OtherInstance&) = delete;
  OtherInstance& operator=(const OtherInstance&) = delete;

  bool stands() const { return platform::isFile(sign()) || ended_; }

 private:
  std::string sign() const { return scratch_.file("stands"); }

  ScratchFolder scratch_;
  std::atomic<bool> ended_ = false;
  std::atomic<int> exitCode_ = 0;
  std::thread running_;
};

class InstancesTest : public WindowTest {
 protected:
  InstancesTest() {
    rules.onInitialise = [](DialogWindow& window) { window.moveTo(instancePlace); };
  }

  /// Where the window really stands.
  Point place() const {
    const wxPoint at = top().dialog().GetPosition();
    return {at.x, at.y};
  }

  /// Runs a main dialog beside the other instance, which is to stand first.
  void run() {
    steps.then("close", [this] { rules.window->close(1); });
    desktop().runMainDialog(smallLayout("Main"), rules);
  }

  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsShown(); });
    steps.settle(20);
  }

  Recorder rules;
};

/// Waits in an event loop of its own.
void waitFor(const OtherInstance& other) {
  desktop().whileBusy({[&other] {
    while (!other.stands()) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }});
}

}  // namespace

TEST_F(InstancesTest, AWindowComesAStepRightOfAndBelowAnotherInstancesAndItsRulesKnowNothingOfThat) {
  const OtherInstance other;
  waitFor(other);
  waitForDialog();
  steps.then("look", [this] {
    const int step = top().dialog().FromDIP(24);
    EXPECT_EQ(place(), (Point{instancePlace.x + step, instancePlace.y + step}));
    EXPECT_EQ(top().position(), instancePlace);
    EXPECT_EQ(top().windowRect().left, instancePlace.x);
    EXPECT_EQ(top().windowRect().top, instancePlace.y);
  });
  steps.then("size it", [this] {
    const Rect now = top().windowRect();
    top().setWindowRect({now.left, now.top, now.right + 40, now.bottom + 30});
  });
  steps.settle(20);
  steps.then("it stays", [this] {
    EXPECT_EQ(top().position(), instancePlace);
    EXPECT_NE(place(), instancePlace);
  });
  steps.then("move it by hand", [this] { top().dialog().Move(200, 150); });
  steps.until("it is there", [this] { return place() == Point{200, 150}; });
  steps.then("look", [this] { EXPECT_EQ(top().position(), (Point{200, 150})); });
  run();
}

TEST_F(InstancesTest, AWindowComesToItsPlaceWhereNoOtherInstanceStands) {
  const OtherInstance other;
  waitFor(other);
  rules.onInitialise = [](DialogWindow& window) { window.moveTo({instancePlace.x + 1, instancePlace.y}); };
  waitForDialog();
  steps.then("look", [this] { EXPECT_EQ(place(), (Point{instancePlace.x + 1, instancePlace.y})); });
  run();
}

}  // namespace tarnwick::test
