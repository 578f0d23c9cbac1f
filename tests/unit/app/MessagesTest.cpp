#include "app/LookMemory.h"
#include "app/Messages.h"
#include "process/EditorLaunch.h"
#include "settings/EditorChoice.h"
#include "settings/SettingsContext.h"
#include "support/FakeSurface.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace tarnwick {
namespace {

/// Writes down what is asked of the window.
class WindowNotes : public ConsoleFrameHost {
 public:
  void runConsoleFrame(ConsoleFrame&) override {}
  std::unique_ptr<MessagesWindow> makeMessagesWindow(MessagesFrame& frame) override {
    ++made;
    rules = &frame;
    return std::make_unique<Window>(*this);
  }

  int made = 0;
  int shown = 0;
  int broughtForward = 0;
  bool open = false;
  std::string summary;
  MessagesFrame* rules = nullptr;
  std::optional<Rect> place = Rect{10, 20, 110, 70};

 private:
  class Window : public MessagesWindow {
   public:
    explicit Window(WindowNotes& notes) : notes_(notes) {}
    void setSummary(const std::string& text) override { notes_.summary = text; }
    void show() override {
      ++notes_.shown;
      notes_.open = true;
    }
    void bringForward() override { notes_.broughtForward += notes_.open ? 1 : 0; }
    bool isOpen() const override { return notes_.open; }
    bool isDark() const override { return false; }
    void close() override {
      if (std::exchange(notes_.open, false)) notes_.rules->onClosed(notes_.place);
    }

   private:
    WindowNotes& notes_;
  };
};

class MessagesTest : public test::SettingsFixture {
 protected:
  MessagesTest() {
    context_.showMessages = [this](bool said) { messages().show(said); };
    settings().displayMessages = true;
  }

  Messages& messages() {
    if (!messages_) {
      messages_ =
          std::make_unique<Messages>(settings(), host, [this](const std::string& file, const EditorPlace& place) {
            opened.push_back(Filename(file).nameWithExtension() + ' ' + std::to_string(place.line) + ':' +
                             std::to_string(place.column));
          });
    }
    return *messages_;
  }

  /// What a tool's run leaves in the log.
  void run(const std::string& said, FileMode mode = FileMode::Write, RunEnd end = RunEnd::ByItself) {
    log_.open(mode);
    if (!said.empty()) {
      const std::string all = "\n\njavac x\n\n" + said;
      log_.append(all.data(), all.size());
    }
    log_.noteEnd(end);
    log_.close();
  }

  void runAndShow(const std::string& said) {
    run(said);
    if (said.empty())
      showSilence(settings().editorChoice());
    else
      EXPECT_EQ(showLog(log_, settings().editorChoice()), std::vector<std::string>{});
  }

  /// All that the window shows.
  std::string shownText() {
    test::FakeSurface surface;
    messages().view().onStart(surface);
    desktop_.setClipboard("");
    messages().onCommand(MessagesCommand::SelectAll);
    messages().onCommand(MessagesCommand::Copy);
    messages().view().onClose();
    return desktop_.clipboardText().value_or("");
  }
  static std::string withoutTimes(std::string text) {
    for (auto end = text.find(" s"); end != std::string::npos; end = text.find(" s", end)) {
      const auto begin = text.rfind(", ", end);
      text.erase(begin, end + 2 - begin);
      end = begin;
    }
    return text;
  }

  /// The summary without the time.
  std::string summary() const { return host.summary.substr(0, host.summary.rfind(',')); }

  WindowNotes host;
  std::vector<std::string> opened;
  std::unique_ptr<Messages> messages_;
};

const char twoErrors[] = "A.java:3: error: x\n  y\n  ^\nB.java:4: error: x\n";

TEST_F(MessagesTest, TheLogOpensTheWindowAndTheNextOneComesIntoTheSame) {
  runAndShow(twoErrors);
  EXPECT_EQ(summary(), "2 errors in 2 files");
  EXPECT_TRUE(host.open);
  runAndShow("A.java:3: warning: [x] y\n");
  EXPECT_EQ(summary(), "1 warning in 1 file");
  EXPECT_EQ(host.made, 1);
}

TEST_F(MessagesTest, WhoAsksForThemSeesTheWindowBeforeAllOthers) {
  runAndShow("A.java:3: warning: [x] y\n");
  EXPECT_EQ(host.broughtForward, 0) << "nobody has asked";
  messages().bringForward();
  EXPECT_EQ(host.broughtForward, 1);
  messages().close();
  messages().bringForward();
  EXPECT_TRUE(host.open);
  EXPECT_EQ(host.broughtForward, 2);
}

TEST_F(MessagesTest, WhoAsksForTheSameLogGoesOnWhereItWas) {
  runAndShow(twoErrors);
  messages().onCommand(MessagesCommand::Next);
  messages().bringForward();
  messages().onCommand(MessagesCommand::Next);
  EXPECT_EQ(opened, (std::vector<std::string>{"A.java 3:3", "B.java 4:0"}));
}

TEST_F(MessagesTest, WhoAsksForALogThatIsNotShownSeesIt) {
  runAndShow(twoErrors);
  messages().onCommand(MessagesCommand::Clear);
  messages().bringForward();
  EXPECT_EQ(summary(), "2 errors in 2 files");
  run("A.java:3: warning: [x] y\n");
  messages().bringForward();
  EXPECT_EQ(summary(), "1 warning in 1 file");
}

TEST_F(MessagesTest, WhatWasSaidBeforeStaysAboveAndTheSumIsThatOfTheNewest) {
  runAndShow(twoErrors);
  runAndShow("A.java:3: warning: [x] y\n");
  EXPECT_EQ(summary(), "1 warning in 1 file");
  const std::string all = shownText();
  EXPECT_TRUE(all.starts_with("2 errors in 2 files, ")) << all;
  EXPECT_EQ(withoutTimes(all),
            onDisk("2 errors in 2 files\njavac x\n\nA.java:3: error: x\n  y\n  ^\nB.java:4: error: x\n\n"
                   "javac x\n\nA.java:3: warning: [x] y"));
  messages().onCommand(MessagesCommand::Next);
  messages().onCommand(MessagesCommand::Next);
  EXPECT_EQ(opened, std::vector<std::string>{"A.java 3:0"});
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Beep});
  runAndShow("");
  EXPECT_EQ(summary(), "No messages");
  EXPECT_TRUE(shownText().ends_with(onDisk("A.java:3: warning: [x] y\n"))) << shownText();
}

TEST_F(MessagesTest, ALogThatGoesOnOrIsAskedForAgainIsStillOne) {
  run("A.java:3: error: x\n");
  messages().show(true);
  run("B.java:4: error: x\n", FileMode::Append);
  messages().show(true);
  messages().show(true);
  EXPECT_EQ(summary(), "2 errors in 2 files");
  EXPECT_EQ(shownText(), onDisk("javac x\n\nA.java:3: error: x\n\njavac x\n\nB.java:4: error: x"));
  messages().close();
  messages().show(true);
  EXPECT_EQ(shownText(), onDisk("javac x\n\nA.java:3: error: x\n\njavac x\n\nB.java:4: error: x"));
}

TEST_F(MessagesTest, ClearEmptiesTheWindowUntilTheNextLog) {
  runAndShow(twoErrors);
  runAndShow(twoErrors);
  messages().onCommand(MessagesCommand::Clear);
  EXPECT_EQ(host.summary, "No messages");
  EXPECT_TRUE(host.open);
  EXPECT_EQ(shownText(), "");
  messages().onCommand(MessagesCommand::Next);
  EXPECT_TRUE(opened.empty());
  // The last log can be asked for all the same.
  messages().show(true);
  EXPECT_EQ(summary(), "2 errors in 2 files");
  EXPECT_EQ(shownText(), onDisk("javac x\n\nA.java:3: error: x\n  y\n  ^\nB.java:4: error: x"));
  messages().onCommand(MessagesCommand::Clear);
  runAndShow("A.java:3: warning: [x] y\n");
  EXPECT_EQ(shownText(), onDisk("javac x\n\nA.java:3: warning: [x] y"));
}

TEST_F(MessagesTest, TheRunsOfOneCommandAreShownTogether) {
  run("A.java:3: error: x\n");
  run("B.java:4: error: x\n", FileMode::Append);
  run("", FileMode::Append);
  EXPECT_EQ(showLog(log_, settings().editorChoice()), std::vector<std::string>{});
  EXPECT_EQ(summary(), "2 errors in 2 files");
}

TEST_F(MessagesTest, OfALogBeyondMeasureWholeLinesShowAndTheSumSaysSo) {
  test::FakeSurface surface;
  std::string said;
  for (int i = 0; i < 900; ++i) said += std::string(4999, 'x') + '\n';
  runAndShow(said);
  EXPECT_NE(host.summary.find(" (the log is longer than what is shown)"), std::string::npos) << host.summary;
  messages().view().onStart(surface);
  messages().onCommand(MessagesCommand::SelectAll);
  messages().onCommand(MessagesCommand::Copy);
  messages().view().onClose();
  const std::string shown = desktop_.clipboardText().value_or("");
  EXPECT_TRUE(shown.ends_with("\n" + std::string(4999, 'x')) || shown.ends_with("\n" + std::string(4999, 'x') + "\n") ||
              shown.ends_with("\r\n" + std::string(4999, 'x') + "\r\n"))
      << "the last line is whole";
}

TEST_F(MessagesTest, AStoppedRunIsSummedUpAsOneHoweverLongItsLogIs) {
  std::string said;
  for (int i = 0; i < 30000; ++i) said += "x\n";
  run(said, FileMode::Write, RunEnd::Stopped);
  EXPECT_EQ(showLog(log_, settings().editorChoice()), std::vector<std::string>{});
  EXPECT_TRUE(host.summary.starts_with("Stopped, ")) << host.summary;
  EXPECT_TRUE(host.summary.ends_with(" s (the log is longer than what is shown)")) << host.summary;
}

TEST_F(MessagesTest, ARunWithNothingToSayOpensNoWindowButEmptiesAnOpenOne) {
  runAndShow("");
  EXPECT_FALSE(host.open);
  runAndShow(twoErrors);
  runAndShow("");
  EXPECT_EQ(summary(), "No messages");
  messages().onCommand(MessagesCommand::Copy);
}

TEST_F(MessagesTest, WhereNoToolHasRunAnOpenWindowStaysAsItIs) {
  runAndShow(twoErrors);
  showSilence(settings().editorChoice());
  EXPECT_EQ(summary(), "2 errors in 2 files");
}

TEST_F(MessagesTest, AClosedWindowOpensAgain) {
  runAndShow(twoErrors);
  messages().close();
  EXPECT_FALSE(host.open);
  runAndShow("");
  EXPECT_FALSE(host.open);
  runAndShow(twoErrors);
  EXPECT_TRUE(host.open);
}

TEST_F(MessagesTest, StepsOpenTheEditorAtEachPlaceAndBeepAtTheEnd) {
  runAndShow(twoErrors);
  messages().onCommand(MessagesCommand::Next);
  messages().onCommand(MessagesCommand::Next);
  EXPECT_TRUE(desktop_.alerts().empty());
  messages().onCommand(MessagesCommand::Next);
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Beep});
  messages().onCommand(MessagesCommand::Previous);
  EXPECT_EQ(opened, (std::vector<std::string>{"A.java 3:3", "B.java 4:0", "A.java 3:3"}));
}

TEST_F(MessagesTest, WhatIsSelectedIsCopied) {
  test::FakeSurface surface;
  runAndShow(twoErrors);
  messages().view().onStart(surface);
  messages().onCommand(MessagesCommand::SelectAll);
  messages().onCommand(MessagesCommand::Copy);
  EXPECT_EQ(desktop_.clipboardText(), onDisk("javac x\n\nA.java:3: error: x\n  y\n  ^\nB.java:4: error: x"));
  messages().view().onClose();
}

TEST_F(MessagesTest, TheLettersHaveTheSizeOfTheConsoles) {
  rememberLook(program_, {18, false});
  test::FakeSurface surface;
  runAndShow(twoErrors);
  messages().view().onStart(surface);
  EXPECT_EQ(surface.letters, 18);
  messages().onCommand(MessagesCommand::LargerLetters);
  EXPECT_EQ(rememberedLook(program_), (TextLook{20, false}));
  messages().onCommand(MessagesCommand::SmallerLetters);
  messages().onCommand(MessagesCommand::SmallerLetters);
  EXPECT_EQ(rememberedLook(program_), (TextLook{16, false}));
  messages().view().onClose();
  messages().close();
  // Meanwhile a console has been given others.
  rememberLook(program_, {9, true});
  runAndShow(twoErrors);
  messages().view().onStart(surface);
  EXPECT_EQ(surface.letters, 9);
  messages().onCommand(MessagesCommand::UsualLetters);
  EXPECT_EQ(surface.letters, 0);
  EXPECT_EQ(rememberedLook(program_), (TextLook{0, true})) << "wrapping is the console's matter";
  messages().view().onClose();
}

TEST_F(MessagesTest, ThePlaceIsRemembered) {
  runAndShow(twoErrors);
  EXPECT_EQ(messages().place(), std::nullopt);
  messages().close();
  EXPECT_EQ(settings().messagesPlace, "10;20;100;50");
  EXPECT_NE(test::contentOf(configFile()).find("\nMESSAGES_PLACE  10;20;100;50"), std::string::npos);
  EXPECT_EQ(messages().place(), host.place);
  host.place.reset();
  runAndShow(twoErrors);
  messages().close();
  EXPECT_EQ(settings().messagesPlace, "10;20;100;50") << "where the window system does not tell";
}

TEST_F(MessagesTest, APlaceThatMakesNoSenseIsNone) {
  for (const char* text : {"", "1", "1;2;3", "1;2;3;", "1;2;3;4;", "1;2;3;4x", "x;2;3;4", "1;2;0;4", "1;2;3;-4",
                           "1;2;3;999999", "9999999;2;3;4", "1;2;99999999999;4", " 1;2;3;4"}) {
    EXPECT_EQ(placeOf(text), std::nullopt) << text;
  }
  EXPECT_EQ(placeOf("-1;-2;3;4"), (Rect{-1, -2, 2, 2}));
  EXPECT_EQ(placeText({-1, -2, 2, 2}), "-1;-2;3;4");
}

TEST_F(MessagesTest, AnotherChoiceShowsTheLogElsewhere) {
  settings().displayMessages = false;
  EXPECT_FALSE(settings().editorChoice().showMessages);
  settings().displayMessages = true;
  EXPECT_TRUE(settings().editorChoice().showMessages);
}

}  // namespace
}  // namespace tarnwick
