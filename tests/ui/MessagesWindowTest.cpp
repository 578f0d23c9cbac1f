// The window of what the tools have said, beside a main window.
#include "app/MessagesHistory.h"
#include "app/MessagesView.h"
#include "ui/SampleDialog.h"
#include "ui/Text.h"
#include "ui/WindowTest.h"
#include "ui/Wine.h"
#include "ui/WxConsoleSurface.h"
#include "ui/WxMessagesFrame.h"

#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <memory>
#include <string>
#include <vector>

namespace tarnwick::test {

namespace {

const char log[] =
    "\n\njavac -encoding UTF-8 -d . shop/Till.java shop/Money.java\n\n"
    "shop/Till.java:12: error: cannot find symbol\n    Money paid = nothing;\n                 ^\n"
    "  symbol:   variable nothing\n  location: class Till\n"
    "shop/Money.java:3: warning: [deprecation] Date(int,int,int) in Date has been deprecated\n"
    "    Date day = new Date(1, 2, 3);\n               ^\n"
    "Note: shop/Money.java uses unchecked or unsafe operations.\n1 error\n1 warning\n";

/// Rules that write down what they hear.
class MessagesRecorder : public MessagesFrame {
 public:
  ConsoleSurfaceClient& view() override { return text; }
  void onCommand(MessagesCommand command) override { heard.push_back(static_cast<int>(command)); }
  std::string wordsInPlace() const override { return text.wordsInPlace(); }
  std::optional<Rect> place() const override { return stood; }
  void onClosed(const std::optional<Rect>& place) override {
    ++closed;
    stood = place;
  }

  std::vector<int> heard;
  std::vector<int> opened;
  std::optional<Rect> stood;
  int closed = 0;
  MessagesView text{[this] { return window && window->isDark(); },
                    [this](const ToolMessage& message) { opened.push_back(message.place->line); }};
  std::unique_ptr<MessagesWindow> window;  ///< behind the text, which it stands on
};

constexpr int next = static_cast<int>(MessagesCommand::Next);
constexpr int previous = static_cast<int>(MessagesCommand::Previous);
constexpr int copying = static_cast<int>(MessagesCommand::Copy);
constexpr int selecting = static_cast<int>(MessagesCommand::SelectAll);
constexpr int clearing = static_cast<int>(MessagesCommand::Clear);

/// Counts what is asked, and answers No.
class Questions : public wxModalDialogHook {
 public:
  Questions() { Register(); }
  int asked = 0;

 protected:
  int Enter(wxDialog* dialog) override {
    if (!dynamic_cast<wxMessageDialog*>(dialog)) return wxID_NONE;
    ++asked;
    return wxID_NO;
  }
};

class MessagesWindowTest : public WindowTest {
 protected:
  MessagesWindowTest() {
    messages.text.setText(messagesText(log, {{0, "folder"}}));
    messages.window = desktop().makeMessagesWindow(messages);
    messages.window->setSummary("1 error, 1 warning in 2 files, 1.4 s");
    main.onInitialise = [](DialogWindow& window) { window.moveTo({40, 60}); };
  }

  ui::WxMessagesFrame& window() { return dynamic_cast<ui::WxMessagesFrame&>(*messages.window); }

  void waitForMain() {
    steps.until("the main window is active", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle();
  }
  void openMessages() {
    steps.then("open", [this] { messages.window->show(); });
    steps.until("it shows", [this] { return window().frame() && window().frame()->IsShownOnScreen(); });
    steps.settle(10);
  }
  void theNextLogComes() {
    steps.then("the next log comes", [this] {
      messages.window->setSummary("No messages, 0.7 s");
      messages.window->show();
    });
    steps.settle(10);
  }
  void activateMessages() {
    steps.then("activate", [this] { window().frame()->Raise(); });
    steps.until("it is active",
                [this] { return window().frame()->IsActive() && wxWindow::FindFocus() == window().surface(); });
    steps.settle();
  }
  void pressKey(int code, int modifiers = 0) {
    steps.then("key " + std::to_string(code), [code, modifiers] { key(code, modifiers); });
    steps.settle(10);
  }
  void run() {
    steps.then("close", [this] { main.window->close(1); });
    desktop().runMainDialog(smallLayout("Main"), main);
  }

  Recorder main;
  MessagesRecorder messages;
};

}  // namespace

TEST_F(MessagesWindowTest, ClosingItWhileAToolRunsEndsNothing) {
  Questions questions;
  std::atomic<bool> enough = false;
  int stops = 0;
  waitForMain();
  openMessages();
  activateMessages();
  steps.then("work", [&] {
    BusyWork busy{[&] {
                    while (!enough) std::this_thread::sleep_for(std::chrono::milliseconds(1));
                  },
                  [&] { enough = true; }};
    busy.stop = [&] { ++stops; };
    busy.tool = "javac";
    desktop().whileBusy(busy);
  });
  steps.settle(10);
  steps.then("close", [] { key(WXK_F4, wxMOD_ALT); });
  steps.settle(20);
  steps.then("nobody asks", [&] {
    EXPECT_EQ(questions.asked, 0);
    EXPECT_TRUE(window().frame()->IsShown());
    EXPECT_TRUE(top().dialog().IsShown());
    enough = true;
  });
  steps.settle(10);
  run();
  EXPECT_EQ(stops, 0);
  EXPECT_EQ(messages.closed, 0);
}

TEST_F(MessagesWindowTest, OpensBesideTheMainWindow) {
  waitForMain();
  openMessages();
  steps.then("look", [this] {
    EXPECT_EQ(ui::fromWx(window().frame()->GetTitle()), "Messages - Tarnwick");
    EXPECT_EQ(ui::fromWx(window().summary()->GetLabelText()), "1 error, 1 warning in 2 files, 1.4 s");
    const wxRect text = window().surface()->GetScreenRect();
    EXPECT_GE(text.y, window().summary()->GetScreenRect().GetBottom());
    EXPECT_GT(text.height, 10 * window().surface()->cell().y);
  });
  theNextLogComes();
  steps.then("look", [this] { EXPECT_EQ(ui::fromWx(window().summary()->GetLabelText()), "No messages, 0.7 s"); });
  run();
}

TEST_F(MessagesWindowTest, LeavesTheMainWindowTheKeyboard) {
  if (runsUnderWine()) GTEST_SKIP() << "the window manager gives each new window of Wine's the keyboard";
  waitForMain();
  openMessages();
  steps.then("look", [this] {
    EXPECT_TRUE(top().dialog().IsActive());
    EXPECT_FALSE(window().frame()->IsActive());
  });
  theNextLogComes();
  steps.then("look", [this] { EXPECT_TRUE(top().dialog().IsActive()); });
  run();
}

TEST_F(MessagesWindowTest, WhoAsksForItSeesItAgain) {
  waitForMain();
  steps.then("nothing is open", [this] { messages.window->bringForward(); });
  openMessages();
  activateMessages();
  steps.then("back to the main window", [this] { top().dialog().Raise(); });
  steps.until("it is active", [this] { return top().dialog().IsActive(); });
  steps.then("ask", [this] { messages.window->bringForward(); });
  steps.until("it is before the main window", [this] { return window().frame()->IsActive(); });
  steps.then("minimise", [this] { window().frame()->Iconize(); });
  steps.until("it is an icon", [this] { return window().frame()->IsIconized(); });
  steps.then("ask", [this] { messages.window->bringForward(); });
  steps.until("it is a window", [this] { return !window().frame()->IsIconized() && window().frame()->IsActive(); });
  run();
}

TEST_F(MessagesWindowTest, InTheMainWindowTheKeysStepWhileItIsOpen) {
  waitForMain();
  pressKey(WXK_F4);
  steps.then("look", [this] { EXPECT_TRUE(messages.heard.empty()) << "it is not open"; });
  openMessages();
  pressKey(WXK_F4);
  pressKey(WXK_F4, wxMOD_SHIFT);
  pressKey(WXK_F4, wxMOD_CONTROL);
  steps.then("look", [this] { EXPECT_EQ(messages.heard, (std::vector<int>{next, previous})); });
  run();
}

TEST_F(MessagesWindowTest, InADialogOnTopTheKeysAreNoCommands) {
  Recorder inner;
  main.onPress[IDOK_CONTROL] = [&] { desktop().runDialog(smallLayout("Inner"), inner); };
  waitForMain();
  openMessages();
  steps.then("open a dialog", [this] { press(top(), IDOK_CONTROL); });
  steps.until("it is active", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
  pressKey(WXK_F4);
  steps.then("look", [&] {
    EXPECT_TRUE(messages.heard.empty());
    inner.window->close(1);
  });
  steps.until("it is gone", [this] { return openDialogs() == 1; });
  run();
}

TEST_F(MessagesWindowTest, InItsOwnWindowTheKeysStepCopyOpenAndClose) {
  waitForMain();
  openMessages();
  activateMessages();
  pressKey(WXK_F4);
  pressKey(WXK_F4, wxMOD_SHIFT);
  pressKey('A', wxMOD_CONTROL);
  pressKey('C', wxMOD_CONTROL);
  steps.then("look", [this] {
    EXPECT_EQ(messages.heard, (std::vector<int>{next, previous, selecting, copying}));
    messages.heard.clear();
  });
  pressKey('=', wxMOD_CONTROL);
  pressKey('-', wxMOD_CONTROL);
  pressKey('0', wxMOD_CONTROL);
  steps.then("look", [this] {
    EXPECT_EQ(messages.heard, (std::vector<int>{static_cast<int>(MessagesCommand::LargerLetters),
                                                static_cast<int>(MessagesCommand::SmallerLetters),
                                                static_cast<int>(MessagesCommand::UsualLetters)}));
  });
  pressKey(WXK_DOWN);
  pressKey(WXK_RETURN);
  steps.then("look", [this] {
    EXPECT_EQ(messages.opened, std::vector<int>{12});
    EXPECT_EQ(messages.closed, 0);
    shoot("messages");
  });
  pressKey(WXK_ESCAPE);
  steps.then("look", [this] {
    EXPECT_EQ(messages.closed, 1);
    EXPECT_FALSE(messages.window->isOpen());
    EXPECT_EQ(openDialogs(), 1u) << "the main window stays";
  });
  run();
}

TEST_F(MessagesWindowTest, TheMenuCopiesSelectsAndClears) {
  const wxPoint rested = wxGetMousePosition();
  waitForMain();
  openMessages();
  activateMessages();
  // In one go: while a menu is open, everything else may wait for it.
  steps.then("the menu by the mouse", [this] {
    wxUIActionSimulator mouse;
    mouse.MouseMove(window().surface()->GetScreenRect().GetTopLeft() + wxPoint(200, 80));
    mouse.MouseClick(wxMOUSE_BTN_RIGHT);
    key(WXK_END);
    key(WXK_RETURN);
  });
  steps.until("Clear", [this] { return messages.heard == std::vector<int>{clearing}; });
  // Elsewhere it would rest on what another test looks at.
  steps.then("back", [rested] { wxUIActionSimulator().MouseMove(rested); });
  steps.settle(10);
  steps.then("the menu by the keyboard", [this] {
    messages.heard.clear();
    key(WXK_F10, wxMOD_SHIFT);
    key(WXK_HOME);
    key(WXK_DOWN);
    key(WXK_RETURN);
  });
  steps.until("Select all", [this] { return messages.heard == std::vector<int>{selecting}; });
  steps.then("look", [this] { EXPECT_TRUE(window().isOpen()); });
  run();
}

TEST_F(MessagesWindowTest, TheNewestStandsAtTheTopBelowWhatWasSaidBefore) {
  MessagesHistory history;
  for (int i = 0; i < 2; ++i) history.add(messagesText(log, {{0, "folder"}}), "1 error, 1 warning in 2 files, 2.7 s");
  const int newest = static_cast<int>(history.text().newestLine);
  messages.text.setText(history.text());
  const auto top = [this] { return window().surface()->scrollPosition().y / window().surface()->cell().y; };
  waitForMain();
  openMessages();
  steps.until("it stands at the top", [top, newest] { return top() == newest; });
  steps.then("look and grow", [this, newest] {
    shoot("messages-newest");
    EXPECT_EQ(newest, 15);
    window().frame()->SetSize(900, 700);
  });
  steps.settle(20);
  steps.then("look", [this, top, newest] {
    EXPECT_EQ(top(), newest);
    messages.text.onKey(ConsoleKey::Home, 0);
  });
  steps.settle(10);
  steps.then("look at what was said before", [this, top] {
    shoot("messages-earlier");
    EXPECT_EQ(top(), 0);
    window().frame()->SetSize(700, 500);
  });
  steps.settle(20);
  steps.then("look", [top] { EXPECT_EQ(top(), 0); });
  run();
}

TEST_F(MessagesWindowTest, TheLinesStandOnTheDesktopsGround) {
  waitForMain();
  openMessages();
  steps.then("look", [this] {
    window().surface()->Update();
    const wxRect area = window().surface()->GetScreenRect();
    const wxImage seen = screen(area);
    const int x = seen.GetWidth() / 2;
    const int y = seen.GetHeight() - 40;
    const int shade = seen.GetRed(x, y);
    EXPECT_EQ(shade < 128, messages.window->isDark()) << shade;
  });
  run();
}

TEST_F(MessagesWindowTest, ItComesBackWhereItStood) {
  Rect first;
  waitForMain();
  openMessages();
  steps.then("move", [this] {
    window().frame()->Move(120, 140);
    window().frame()->SetSize(640, 320);
  });
  steps.settle(20);
  steps.then("close", [&] {
    messages.window->close();
    ASSERT_TRUE(messages.stood.has_value());
    first = *messages.stood;
    EXPECT_NEAR(first.left, 120, 40);
    EXPECT_NEAR(first.top, 140, 40);
    EXPECT_NEAR(first.width(), 640, 40);
    EXPECT_NEAR(first.height(), 320, 40);
  });
  openMessages();
  steps.then("close again", [&] {
    messages.window->close();
    EXPECT_EQ(messages.stood, first);
  });
  run();
}

TEST_F(MessagesWindowTest, TheMainWindowMayEndWhileItIsOpen) {
  waitForMain();
  openMessages();
  run();
  messages.window.reset();
  EXPECT_EQ(messages.closed, 0);
}

}  // namespace tarnwick::test
