// The small window that shows what is at work and stops it.
#include "ui/RunWatch.h"
#include "ui/SampleDialog.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"
#include "ui/WindowTest.h"
#include "ui/Wine.h"

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/testing.h>
#include <wx/uiaction.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace tarnwick::test {

namespace {

using Heard = std::vector<std::string>;
using std::chrono::seconds;

class Answers : public wxModalDialogHook {
 public:
  explicit Answers(int answer) : answer_(answer) { Register(); }
  std::vector<std::string> shown;

 protected:
  int Enter(wxDialog* dialog) override {
    auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
    if (!box) return wxID_NONE;
    shown.push_back(ui::fromWx(box->GetMessage()));
    return answer_;
  }

 private:
  const int answer_;
};

class RunWatchTest : public WindowTest {
 protected:
  RunWatchTest() { desktop().showWorkAfter(seconds(0)); }
  ~RunWatchTest() override { desktop().showWorkAfter(seconds(1)); }

  /// Runs the main dialog while the steps are played.
  void play() {
    rules.onPress[IDOK_CONTROL] = [this] { rules.window->close(1); };
    desktop().runMainDialog(smallLayout("Main"), rules);
  }

  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  }

  /// Works until somebody says that it is enough.
  void work(bool mayBeStopped = true) {
    enough = false;
    BusyWork busy{[this] {
                    while (!enough) std::this_thread::sleep_for(std::chrono::milliseconds(1));
                  },
                  [this] { enough = true; }};
    if (mayBeStopped) {
      busy.stop = [this] {
        ++stopped;
        enough = true;
      };
    }
    busy.tool = "javac";
    busy.on = "Äpfel & Birnen.java";
    desktop().whileBusy(busy);
    ++worked;
  }

  static wxDialog* watch() { return desktop().runWatch() ? desktop().runWatch()->window() : nullptr; }
  template <typename Control>
  static std::vector<Control*> parts() {
    std::vector<Control*> found;
    for (wxWindow* const child : watch()->GetChildren()) {
      if (auto* const part = dynamic_cast<Control*>(child)) found.push_back(part);
    }
    return found;
  }
  static std::string line(std::size_t index) { return ui::fromWx(parts<wxStaticText>().at(index)->GetLabelText()); }

  void workUntilItShows() {
    waitForDialog();
    steps.then("work", [this] { work(); });
    untilItShows();
  }
  void untilItShows() {
    steps.until("what is at work shows", [] { return watch() && watch()->IsShownOnScreen(); });
    steps.settle(10);
  }
  void thenLeave() {
    steps.until("the work has ended", [this] { return worked > 0; });
    steps.then("nothing is shown any more", [] { EXPECT_EQ(desktop().runWatch(), nullptr); });
    steps.until("the dialog has the keyboard", [this] {
      return top().dialog().IsActive() && wxGetTopLevelParent(wxWindow::FindFocus()) == &top().dialog();
    });
    steps.then("Return", [] { key(WXK_RETURN); });
  }

  Recorder rules;
  std::atomic<bool> enough = false;
  int stopped = 0;
  int worked = 0;
};

}  // namespace

TEST_F(RunWatchTest, ItTellsWhatIsAtWorkAndStopEndsIt) {
  workUntilItShows();
  steps.then("look", [] {
    shoot("run");
    EXPECT_EQ(ui::fromWx(watch()->GetTitle()), "javac");
    EXPECT_EQ(line(0), "Äpfel & Birnen.java");
    EXPECT_EQ(line(1).substr(0, 12), "Running for ");
    EXPECT_FALSE(parts<wxGauge>().at(0)->IsShown());
    EXPECT_EQ(ui::spokenName(*parts<wxGauge>().at(0)), "Progress");
    EXPECT_EQ(ui::fromWx(parts<wxButton>().at(0)->GetLabel()), "Stop");
  });
  steps.then("a person presses Stop", [] {
    const wxRect button = parts<wxButton>().at(0)->GetScreenRect();
    wxUIActionSimulator hands;
    hands.MouseMove(button.GetPosition() + button.GetSize() / 2);
    hands.MouseClick();
  });
  thenLeave();
  play();
  EXPECT_EQ(stopped, 1);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
}

TEST_F(RunWatchTest, ItStandsBesideTheDialog) {
  workUntilItShows();
  steps.then("look", [this] {
    EXPECT_FALSE(watch()->GetScreenRect().Intersects(top().dialog().GetScreenRect()));
    enough = true;
  });
  thenLeave();
  play();
  EXPECT_EQ(stopped, 0);
}

TEST_F(RunWatchTest, ItLeavesTheDialogTheKeyboard) {
  if (runsUnderWine()) GTEST_SKIP() << "the window manager gives each new window of Wine's the keyboard";
  workUntilItShows();
  steps.then("look", [this] {
    EXPECT_TRUE(top().dialog().IsActive());
    enough = true;
  });
  thenLeave();
  play();
}

TEST_F(RunWatchTest, EscapeStopsWhereverTheKeyboardIs) {
  workUntilItShows();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  thenLeave();
  play();
  EXPECT_EQ(stopped, 1);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"})) << "the dialog heard nothing of it";
}

TEST_F(RunWatchTest, WhatIsTypedMeanwhileStopsNothing) {
  workUntilItShows();
  steps.then("keys", [] {
    for (const int code : std::initializer_list<int>{WXK_SPACE, WXK_RETURN, 'S'}) key(code);
    key('S', wxMOD_ALT);
  });
  steps.settle(10);
  steps.then("nothing happened", [this] {
    EXPECT_EQ(stopped, 0);
    EXPECT_EQ(worked, 0);
    EXPECT_EQ(rules.heard, Heard{});
    enough = true;
  });
  thenLeave();
  play();
}

TEST_F(RunWatchTest, WorkThatCannotBeStoppedShowsNothing) {
  waitForDialog();
  steps.then("work", [this] { work(false); });
  steps.settle(20);
  steps.then("look", [this] {
    EXPECT_EQ(desktop().runWatch(), nullptr);
    enough = true;
  });
  thenLeave();
  play();
}

TEST_F(RunWatchTest, WorkThatDoesNotLastShowsNothing) {
  desktop().showWorkAfter(std::chrono::hours(1));
  waitForDialog();
  steps.then("work", [this] { work(); });
  steps.settle(20);
  steps.then("Escape is nobody's", [] {
    EXPECT_EQ(watch(), nullptr);
    key(WXK_ESCAPE);
  });
  steps.settle(10);
  steps.then("enough", [this] { enough = true; });
  thenLeave();
  play();
  EXPECT_EQ(stopped, 0);
}

TEST_F(RunWatchTest, TheStepsOfOneCommandAreOneWindow) {
  wxDialog* first = nullptr;
  waitForDialog();
  steps.then("work", [this] {
    EXPECT_TRUE(desktop().showStep(1, 2));
    work();
    ASSERT_TRUE(watch());
    EXPECT_TRUE(watch()->IsShown()) << "in between too";
    EXPECT_TRUE(desktop().showStep(2, 2));
    work();
    EXPECT_FALSE(desktop().showStep(0, 0)) << "somebody has stopped it";
    EXPECT_TRUE(desktop().showStep(1, 1)) << "and the next command has a life of its own";
    desktop().showStep(0, 0);
  });
  untilItShows();
  steps.then("the first step", [this, &first] {
    first = watch();
    EXPECT_EQ(line(1).substr(0, 8), "1 of 2, ");
    EXPECT_TRUE(parts<wxGauge>().at(0)->IsShown());
    EXPECT_EQ(parts<wxGauge>().at(0)->GetRange(), 2);
    EXPECT_EQ(parts<wxGauge>().at(0)->GetValue(), 0);
    shoot("step");
    enough = true;
  });
  steps.until("the second step", [this] { return worked == 1 && line(1).substr(0, 8) == "2 of 2, "; });
  steps.then("it is the same window", [this, &first] {
    EXPECT_EQ(watch(), first);
    EXPECT_EQ(parts<wxGauge>().at(0)->GetValue(), 1);
    key(WXK_ESCAPE);
  });
  steps.until("both have ended", [this] { return worked == 2; });
  thenLeave();
  play();
  EXPECT_EQ(stopped, 1);
}

TEST_F(RunWatchTest, WhoClosesThePanelMeanwhileIsAskedAndMayStay) {
  Answers answers(wxID_NO);
  workUntilItShows();
  steps.then("close", [] { key(WXK_F4, wxMOD_ALT); });
  steps.until("asked", [&] { return !answers.shown.empty(); });
  steps.settle(5);
  steps.then("it goes on", [this] {
    EXPECT_EQ(worked, 0);
    enough = true;
  });
  thenLeave();
  play();
  EXPECT_EQ(answers.shown, Heard{"javac is still at work. Stop it and leave Tarnwick?"});
  EXPECT_FALSE(desktop().isLeft());
  EXPECT_EQ(stopped, 0);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
}

TEST_F(RunWatchTest, EscapeInTheQuestionStopsNothing) {
  Answers seen(wxID_NONE);
  workUntilItShows();
  steps.then("close", [] { key(WXK_F4, wxMOD_ALT); });
  steps.until("asked", [&] { return !seen.shown.empty(); });
  steps.settle(20);
  // Where a question can be answered by this key, it means no.
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.settle(20);
  steps.then("no", [this] {
    EXPECT_EQ(stopped, 0);
    key('N');
  });
  steps.settle(20);
  steps.then("it goes on", [this] {
    EXPECT_EQ(stopped, 0);
    EXPECT_EQ(worked, 0);
    enough = true;
  });
  thenLeave();
  play();
  EXPECT_FALSE(desktop().isLeft());
}

TEST_F(RunWatchTest, OrStopsItAndLeaves) {
  Answers answers(wxID_YES);
  workUntilItShows();
  steps.then("close", [] { key(WXK_F4, wxMOD_ALT); });
  play();
  EXPECT_EQ(answers.shown.size(), 1U);
  EXPECT_TRUE(desktop().isLeft());
  EXPECT_EQ(stopped, 1);
  EXPECT_EQ(worked, 1);
  EXPECT_EQ(rules.heard, Heard{"detached"});
}

TEST(LastingWordsTest, SecondsThenMinutes) {
  EXPECT_EQ(ui::lastingWords(seconds(0)), "0 s");
  EXPECT_EQ(ui::lastingWords(seconds(59)), "59 s");
  EXPECT_EQ(ui::lastingWords(seconds(60)), "1 min 0 s");
  EXPECT_EQ(ui::lastingWords(seconds(3725)), "62 min 5 s");
}

}  // namespace tarnwick::test
