// What readers of the screen are told of the windows that are no dialogs.
#include "app/MessagesFrame.h"
#include "app/MessagesView.h"
#include "console/ConsoleLooks.h"
#include "resources/HintLayout.h"
#include "ui/ConsoleWindow.h"
#include "ui/RunWatch.h"
#include "ui/SampleDialog.h"
#include "ui/WxMessagesFrame.h"
#include "ui/posix/SpokenTree.h"

#include <wx/dialog.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace tarnwick::test {

namespace {

class NoRules : public MessagesFrame {
 public:
  ConsoleSurfaceClient& view() override { return text; }
  void onCommand(MessagesCommand) override {}
  std::string wordsInPlace() const override { return text.wordsInPlace(); }
  std::optional<Rect> place() const override { return std::nullopt; }
  void onClosed(const std::optional<Rect>&) override {}

  MessagesView text{[] { return false; }, [](const ToolMessage&) {}};
};

class SpokenWindowsTest : public WindowTest {
 protected:
  void waitForMain() {
    steps.until("the main window is active", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  }
  void run() {
    steps.then("close", [this] { main.window->close(1); });
    desktop().runMainDialog(smallLayout("Main"), main);
  }

  Recorder main;
};

}  // namespace

TEST_F(SpokenWindowsTest, TheMessagesWindow) {
  NoRules rules;
  const auto messages = desktop().makeMessagesWindow(rules);
  auto& window = dynamic_cast<ui::WxMessagesFrame&>(*messages);
  waitForMain();
  steps.then("open", [&] {
    messages->setSummary("1 error in 1 file, 1.4 s");
    messages->show();
  });
  steps.until("it shows", [&] { return window.frame() && window.frame()->IsShownOnScreen(); });
  steps.settle(5);
  steps.then("look", [&] {
    EXPECT_EQ(spokenOf(*window.surface()).name, "Messages");
    EXPECT_EQ(namesIn(*window.frame(), ATK_ROLE_LABEL), Heard{"1 error in 1 file, 1.4 s"});
    expectSpeakingParts(*window.frame());
  });
  run();
}

TEST_F(SpokenWindowsTest, TheWindowOfWhatIsAtWork) {
  std::atomic<bool> enough = false;
  desktop().showWorkAfter(std::chrono::seconds(0));
  waitForMain();
  steps.then("work", [&] {
    BusyWork busy{[&] {
                    while (!enough) std::this_thread::sleep_for(std::chrono::milliseconds(1));
                  },
                  [&] { enough = true; }};
    busy.stop = [&] { enough = true; };
    busy.tool = "javac";
    busy.on = "Till.java";
    desktop().showStep(1, 2);
    desktop().whileBusy(busy);
    desktop().showStep(0, 0);
  });
  steps.until("it shows", [] {
    const auto* const watch = desktop().runWatch();
    return watch && watch->window() && watch->window()->IsShownOnScreen();
  });
  steps.settle(5);
  steps.then("look", [&] {
    wxDialog& window = *desktop().runWatch()->window();
    const auto all = spokenIn(window);
    ASSERT_FALSE(all.empty());
    EXPECT_EQ(all.front().name, "javac");
    const auto labels = namesIn(window, ATK_ROLE_LABEL);
    EXPECT_EQ(std::count(labels.begin(), labels.end(), "Till.java"), 1);
    EXPECT_EQ(namesIn(window, ATK_ROLE_PROGRESS_BAR), Heard{"Progress"});
    EXPECT_EQ(namesIn(window, ATK_ROLE_PUSH_BUTTON), Heard{"Stop"});
    expectSpeakingParts(window);
    enough = true;
  });
  steps.until("it has gone", [] { return !desktop().runWatch(); });
  run();
  desktop().showWorkAfter(std::chrono::seconds(1));
}

TEST_F(ConsoleTest, ReadersOfTheScreenKnowTheConsole) {
  waitForFrame();
  steps.then("look", [this] {
    EXPECT_EQ(spokenOf(*window()).name, "Console");
    expectSpeakingParts(*frame());
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, ReadersOfTheScreenKnowWhoGetsTheInput) {
  console.buttons = &debuggerToolbar();
  console.choices = {{"to jdb", "the debugger", lightPalette.debugger, COMMAND_INPUT_TO_DEBUGGER, true},
                     {"to program", "the program", lightPalette.output, COMMAND_INPUT_TO_PROGRAM, false}};
  waitForFrame();
  steps.settle(10);
  steps.then("look", [this] {
    EXPECT_EQ(namesIn(*frame(), ATK_ROLE_RADIO_BUTTON), (Heard{"Input goes to jdb", "Input goes to program"}));
    for (const auto& one : spokenIn(*frame())) {
      if (one.role == ATK_ROLE_RADIO_BUTTON) {
        EXPECT_EQ(one.is(ATK_STATE_CHECKED), one.name == "Input goes to jdb") << one;
      }
    }
    expectSpeakingParts(*frame());
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, ReadersOfTheScreenReadTheHint) {
  waitForFrame();
  steps.then("show", [this] { console.surface->showHint(true); });
  steps.until("it shows", [this] { return hint() && hint()->IsShownOnScreen(); });
  steps.then("look", [this] {
    const auto all = spokenIn(*hint());
    EXPECT_EQ(all.front().name, "Hint");
    EXPECT_EQ(all.front().role, ATK_ROLE_NOTIFICATION);
    // The lines are broken for the eye alone.
    std::string heard;
    for (const auto& name : namesIn(*hint(), ATK_ROLE_LABEL)) heard += name + '\n';
    std::replace(heard.begin(), heard.end(), '\n', ' ');
    std::string written;
    const DialogLayout hint = hintLayout();
    for (const auto& label : hint.content.children.at(1).children) written += label.text + ' ';
    EXPECT_EQ(heard, written);
  });
  thenClose();
  play();
}

}  // namespace tarnwick::test
