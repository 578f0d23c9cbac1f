#include "base/NoThreadE.h"
#include "base/Tarnwickexception.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "ui/FileDialogs.h"
#include "ui/SampleDialog.h"
#include "ui/Text.h"
#include "ui/WindowTest.h"

#include <wx/evtloop.h>
#include <wx/msgdlg.h>
#include <wx/testing.h>
#include <wx/uiaction.h>

#include <atomic>
#include <chrono>
#include <system_error>
#include <thread>

namespace tarnwick::test {

namespace {

using Heard = std::vector<std::string>;

/// Answers message boxes and keeps their texts.
class Answers : public wxModalDialogHook {
 public:
  Answers() { Register(); }

  std::vector<std::string> shown;
  int answer = wxID_OK;

 protected:
  int Enter(wxDialog* dialog) override {
    auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
    if (!box) return wxID_NONE;
    shown.push_back(ui::fromWx(box->GetMessage()));
    return answer;
  }
};

class DesktopTest : public WindowTest {
 protected:
  /// Runs the main dialog while the steps are played.
  void play() {
    rules.onPress[IDOK_CONTROL] = [this] { rules.window->close(1); };
    desktop().runMainDialog(mainDialog(), rules);
  }

  static DialogLayout mainDialog() {
    auto dialog = smallLayout("Main");
    dialog.minimiseBox = true;
    return dialog;
  }

  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  }

  void thenClose() {
    steps.then("close", [this] { rules.window->close(1); });
  }

  Recorder rules;
};

}  // namespace

TEST_F(DesktopTest, TheMainDialogRunsUntilItIsClosed) {
  waitForDialog();
  steps.then("press", [this] { press(top(), IDOK_CONTROL); });
  play();
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
  EXPECT_EQ(openDialogs(), 0u);
}

TEST_F(DesktopTest, TheMainDialogHasAMinimiseBoxAndFixedSize) {
  waitForDialog();
  steps.then("look", [this] {
    EXPECT_TRUE(top().dialog().HasFlag(wxMINIMIZE_BOX));
    EXPECT_FALSE(top().dialog().HasFlag(wxRESIZE_BORDER));
    EXPECT_FALSE(top().dialog().HasFlag(wxMAXIMIZE_BOX));
  });
  thenClose();
  play();
}

TEST_F(DesktopTest, TheMainDialogStaysWhereItWasMoved) {
  rules.onInitialise = [](DialogWindow& window) { window.moveTo({123, 87}); };
  waitForDialog();
  steps.until("it is there", [this] { return top().position() == Point{123, 87}; });
  steps.then("move it by hand", [this] { top().dialog().Move(200, 150); });
  steps.until("it is there", [this] { return top().position() == Point{200, 150}; });
  steps.then("and back", [this] { top().moveTo({123, 87}); });
  steps.until("it is there", [this] { return top().position() == Point{123, 87}; });
  thenClose();
  play();
}

TEST_F(DesktopTest, TheMainDialogMayStandInTheCorner) {
  rules.onInitialise = [](DialogWindow& window) { window.moveTo({0, 0}); };
  waitForDialog();
  steps.until("the window manager has placed it", [this] { return top().dialog().IsActive(); });
  steps.settle(20);
  steps.then("look", [this] { EXPECT_EQ(top().position(), (Point{0, 0})); });
  thenClose();
  play();
}

TEST_F(DesktopTest, ADialogMayOpenBeforeTheMainDialogShows) {
  Recorder welcome;
  int result = 0;
  rules.onInitialise = [&](DialogWindow&) { result = desktop().runDialog(smallLayout("Welcome"), welcome); };
  steps.until("the welcome dialog shows", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
  steps.then("close it", [&] { welcome.window->close(6); });
  steps.until("the main dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  thenClose();
  play();
  EXPECT_EQ(result, 6);
}

TEST_F(DesktopTest, MessagesShowTheirTextsAndGiveTheAnswers) {
  Answers answers;
  desktop().message("Can't open file\n\"x\"");
  answers.answer = wxID_OK;
  EXPECT_TRUE(desktop().askOkCancel("Go on?"));
  answers.answer = wxID_CANCEL;
  EXPECT_FALSE(desktop().askOkCancel("Really?"));
  answers.answer = wxID_YES;
  EXPECT_TRUE(desktop().askYesNo("Overwrite?"));
  answers.answer = wxID_NO;
  EXPECT_FALSE(desktop().askYesNo("Sure?"));
  EXPECT_EQ(answers.shown, (Heard{"Can't open file\n\"x\"", "Go on?", "Really?", "Overwrite?", "Sure?"}));
}

TEST_F(DesktopTest, ALongMessageLosesItsMiddle) {
  std::string fits;
  while (fits.size() < 1600) fits += "a word ";
  std::string lines;
  for (int i = 0; i < 100; ++i) lines += "line " + std::to_string(i) + "\n";
  std::string much = "begin";
  while (much.size() < (10U << 20U)) much += "\xC3\xA4 ";
  Answers answers;
  desktop().message(fits.substr(0, 1600));
  desktop().message(much + "end");
  desktop().message(lines);
  ASSERT_EQ(answers.shown.size(), 3U);
  EXPECT_EQ(answers.shown[0], fits.substr(0, 1600));
  const std::string& cut = answers.shown[1];
  EXPECT_TRUE(cut.starts_with("begin\xC3\xA4 ")) << cut;
  EXPECT_TRUE(cut.ends_with("\xC3\xA4 end")) << cut;
  EXPECT_NE(cut.find(" \n...\n"), std::string::npos) << cut << "\nno character is cut in two";
  EXPECT_LT(cut.size(), 1620U);
  EXPECT_TRUE(answers.shown[2].starts_with("line 0\n")) << answers.shown[2];
  EXPECT_NE(answers.shown[2].find("line 11\n...\nline 89\n"), std::string::npos) << answers.shown[2];
  EXPECT_TRUE(answers.shown[2].ends_with("line 99\n")) << answers.shown[2];
}

TEST_F(DesktopTest, AnEndlessWordOfAMessageIsBroken) {
  Answers answers;
  desktop().message("short " + std::string(310, 'x') + "\nend");
  EXPECT_EQ(answers.shown, (Heard{"short " + std::string(120, 'x') + "\n" + std::string(120, 'x') + "\n" +
                                  std::string(70, 'x') + "\nend"}));
}

TEST_F(DesktopTest, AMessageBoxShowsBeforeAnyMainLoopAndClosesByReturn) {
  steps.settle(20);
  steps.then("look", [] { shoot("message"); });
  steps.then("Return", [] { key(WXK_RETURN); });
  desktop().message("Shown before there is a window");
}

TEST_F(DesktopTest, PostedTasksAndTimersRunUnderAMessageBox) {
  bool posted = false;
  int ticks = 0;
  const int timer = desktop().startTimer(10, [&] { ++ticks; });
  desktop().post([&] { posted = true; });
  steps.until("both ran", [&] { return posted && ticks > 2; });
  steps.settle(10);
  steps.then("Return", [] { key(WXK_RETURN); });
  desktop().message("Wait");
  desktop().stopTimer(timer);
  EXPECT_TRUE(posted);
}

TEST_F(DesktopTest, AnExceptionThatNobodyExpectedIsShownInWords) {
  Answers answers;
  rules.onPress[IDCANCEL_CONTROL] = [] { throw Tarnwickexception("Tarnwickfile::open(): No such file"); };
  waitForDialog();
  steps.then("press", [this] { press(top(), IDCANCEL_CONTROL); });
  steps.then("post", [] { desktop().post([] { throw std::runtime_error("thrown by a task"); }); });
  steps.until("it was shown", [&] { return answers.shown.size() == 2; });
  thenClose();
  play();
  EXPECT_EQ(answers.shown, (Heard{"Tarnwickfile::open(): No such file", "Internal error: thrown by a task"}));
}

TEST_F(DesktopTest, PostedTasksRunInOrderOnTheUserInterfaceThread) {
  constexpr int count = 500;
  std::vector<int> order;
  std::atomic<bool> sameThread = true;
  const auto own = std::this_thread::get_id();
  waitForDialog();
  std::thread other;
  steps.then("post", [&] {
    other = std::thread([&] {
      for (int i = 0; i < count; ++i) {
        desktop().post([&, i] {
          order.push_back(i);
          if (std::this_thread::get_id() != own) sameThread = false;
        });
      }
    });
  });
  steps.until("all came", [&] { return order.size() == count; });
  thenClose();
  play();
  other.join();
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
  EXPECT_TRUE(sameThread);
}

TEST_F(DesktopTest, TasksGoOnWhileATaskHasADialogOpen) {
  Recorder inner;
  std::vector<std::string> order;
  waitForDialog();
  steps.then("post", [&] {
    desktop().post([&] {
      order.emplace_back("opens");
      desktop().runDialog(smallLayout("Inner"), inner);
      order.emplace_back("closed");
    });
    desktop().post([&] { order.emplace_back("next"); });
  });
  steps.until("the next came", [&] { return order.size() == 2 && openDialogs() == 2; });
  steps.then("close", [&] { inner.window->close(1); });
  steps.until("closed", [&] { return order.size() == 3; });
  thenClose();
  play();
  EXPECT_EQ(order, (Heard{"opens", "next", "closed"}));
}

TEST_F(DesktopTest, ATimerTicksUntilItIsStopped) {
  int ticks = 0;
  int timer = 0;
  waitForDialog();
  steps.then("start", [&] {
    timer = desktop().startTimer(10, [&] {
      if (++ticks == 3) desktop().stopTimer(timer);
    });
    EXPECT_GT(timer, 0);
  });
  steps.until("three ticks", [&] { return ticks == 3; });
  steps.settle(10);
  thenClose();
  play();
  EXPECT_EQ(ticks, 3);
}

TEST_F(DesktopTest, WorkRunsOnAnotherThreadWhileTheWindowsLive) {
  std::atomic<bool> finish = false;
  std::thread::id worker;
  int painted = 0;
  bool ended = false;
  waitForDialog();
  steps.then("work", [&] {
    top().dialog().Bind(wxEVT_PAINT, [&](wxPaintEvent& event) {
      event.Skip();
      ++painted;
    });
    desktop().whileBusy({[&] {
      worker = std::this_thread::get_id();
      while (!finish) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }});
    ended = true;
  });
  steps.settle(10);
  steps.then("the window is covered and uncovered", [&] {
    shoot("busy");
    painted = 0;
    rules.window->setTitle("Busy");
    top().dialog().Refresh();
  });
  steps.until("it painted", [&] { return painted > 0; });
  steps.then("a person tries everything", [&] {
    EXPECT_TRUE(wxIsBusy());
    wxUIActionSimulator hands;
    hands.MouseMove(top().windowOf(IDOK_CONTROL)->GetScreenRect().GetPosition() + wxPoint(8, 8));
    hands.MouseClick();
    hands.Char(WXK_RETURN);
    hands.Char(WXK_ESCAPE);
  });
  steps.settle(10);
  steps.then("nothing happened", [&] {
    EXPECT_EQ(rules.heard, Heard{});
    EXPECT_FALSE(ended);
    finish = true;
  });
  steps.until("the work has ended", [&] { return ended; });
  steps.then("input again", [&] {
    EXPECT_FALSE(wxIsBusy());
    wxUIActionSimulator hands;
    hands.Char(WXK_RETURN);
  });
  play();
  EXPECT_NE(worker, std::this_thread::get_id());
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
}

TEST_F(DesktopTest, ADialogThatIsToCloseWhileWorkRunsWaits) {
  std::atomic<bool> finish = false;
  waitForDialog();
  steps.then("work", [&] {
    desktop().whileBusy({[&] {
      while (!finish) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }});
    rules.heard.emplace_back("worked");
  });
  thenClose();
  steps.settle(5);
  steps.then("finish", [&] { finish = true; });
  play();
  EXPECT_EQ(rules.heard, (Heard{"worked", "detached"}));
}

TEST_F(DesktopTest, NothingClosesWhileWorkRunsUnderAModalDialog) {
  Recorder inner;
  std::atomic<bool> finish = false;
  bool worked = false;
  inner.onPress[IDOK_CONTROL] = [&] {
    desktop().whileBusy({[&] {
      while (!finish) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }});
    worked = true;
  };
  waitForDialog();
  steps.then("open", [&] { desktop().runDialog(smallLayout("Inner"), inner); });
  steps.until("it shows", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
  steps.settle(10);
  steps.then("work", [] { key(WXK_RETURN); });
  steps.until("busy", [] { return wxIsBusy(); });
  steps.settle(5);
  steps.then("a person tries to close it", [] {
    key(WXK_ESCAPE);
    key(WXK_RETURN);
    key(WXK_F4, wxMOD_ALT);
  });
  steps.settle(15);
  steps.then("nothing happened", [&] {
    EXPECT_EQ(inner.heard, Heard{"command 1"});
    EXPECT_EQ(rules.heard, Heard{});
    EXPECT_FALSE(worked);
    finish = true;
  });
  steps.until("the work has ended", [&] { return worked; });
  steps.then("close the inner one", [&] { inner.window->close(1); });
  steps.until("closed", [this] { return openDialogs() == 1; });
  thenClose();
  play();
}

TEST_F(DesktopTest, AMessageOfATaskTakesInputWhileWorkRuns) {
  std::atomic<bool> finish = false;
  bool answered = false;
  bool worked = false;
  waitForDialog();
  steps.then("work", [&] {
    desktop().whileBusy({[&] {
      desktop().post([&] {
        desktop().message("told while the work runs");
        answered = true;
        finish = true;
      });
      while (!finish) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }});
    worked = true;
  });
  steps.settle(25);
  steps.then("Return", [] { key(WXK_RETURN); });
  steps.until("answered", [&] { return answered; });
  steps.until("the work has ended", [&] { return worked; });
  thenClose();
  play();
  EXPECT_EQ(rules.heard, Heard{"detached"});
}

TEST_F(DesktopTest, AnExceptionWhileADialogIsSetUpIsShownAndTheDialogStays) {
  Answers answers;
  rules.onInitialise = [](DialogWindow&) { throw Tarnwickexception("thrown at the start"); };
  waitForDialog();
  thenClose();
  play();
  EXPECT_EQ(answers.shown, Heard{"thrown at the start"});
}

TEST_F(DesktopTest, WorkBeforeAnyWindowShows) {
  bool worked = false;
  desktop().whileBusy({[&] { worked = true; }});
  EXPECT_TRUE(worked);
}

TEST_F(DesktopTest, WithoutAThreadForTheWorkItIsLeftUndoneAndTold) {
  ui::WxDesktop refusing([](const std::function<void()>&) -> std::thread {
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
  });
  bool worked = false;
  EXPECT_THROW(refusing.whileBusy({[&] { worked = true; }}), NoThreadE);
  EXPECT_FALSE(worked);
  EXPECT_FALSE(wxIsBusy());
  waitForDialog();
  steps.then("Return", [] { key(WXK_RETURN); });
  play();
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"})) << "keys are heard again";
}

TEST_F(DesktopTest, AnExceptionOfTheWorkIsThrownOn) {
  try {
    desktop().whileBusy({[] { throw Tarnwickexception("thrown by the work"); }});
    FAIL() << "nothing was thrown";
  } catch (const Tarnwickexception& failure) {
    EXPECT_EQ(failure.message, "thrown by the work");
  }
}

TEST_F(DesktopTest, TheClipboardKeepsLineEndsAndLetters) {
  const std::string text = "first\r\nsecond\tthird " + ui::fromWx(wxString(wxUniChar(0xE4)));
  waitForDialog();
  steps.then("copy", [&] {
    EXPECT_TRUE(desktop().setClipboardText(text));
    EXPECT_EQ(desktop().clipboardText(), text);
  });
  thenClose();
  play();
}

TEST_F(DesktopTest, FileDialogsGiveNothingAfterEscape) {
  ScratchFolder folder;
  writeFile(folder.file("A.java"), "class A {}");
  FileRequest request;
  request.filter = "Java source files|*.JAVA|all files|*.*||";
  request.startFolder = folder.path();
  request.mustExist = true;
  std::optional<std::string> chosen = "unchanged";
  waitForDialog();
  steps.then("open", [&] { chosen = desktop().openFile(request); });
  steps.settle(40);
  steps.then("look", [] { shoot("open-file"); });
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.until("closed", [&] { return !chosen; });
  steps.then("folder", [&] {
    chosen = "unchanged";
    chosen = desktop().browseFolder();
  });
  steps.settle(40);
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.until("closed", [&] { return !chosen; });
  steps.then("another folder", [&] {
    chosen = "unchanged";
    chosen = desktop().browseFolder(folder.path());
  });
  steps.settle(40);
  steps.then("look", [] { shoot("browse-folder"); });
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.until("closed", [&] { return !chosen; });
  thenClose();
  play();
}

TEST_F(DesktopTest, ASavedFileGetsItsExtension) {
  ScratchFolder folder;
  FileRequest request;
  request.filter = "configurations|*.cfg||";
  request.startFolder = folder.path();
  request.name = "mine";
  request.extension = ".cfg";
  request.confirmOverwrite = true;
  std::optional<std::string> chosen;
  waitForDialog();
  steps.then("save", [&] { chosen = desktop().saveFile(request); });
  steps.settle(40);
  steps.then("look", [] { shoot("save-file"); });
  steps.then("Return", [] { key(WXK_RETURN); });
  steps.until("chosen", [&] { return chosen.has_value(); });
  thenClose();
  play();
  EXPECT_EQ(chosen, folder.file("mine.cfg"));
}

TEST(FileDialogsTest, FiltersEndAtTheirDoubleBar) {
  EXPECT_EQ(ui::toolkitFilter(""), "");
  EXPECT_EQ(ui::toolkitFilter("jar archives (*.jar)|" + std::string("*.1") + "||"), "jar archives (*.jar)|*.1");
  EXPECT_EQ(ui::toolkitFilter("a|*.1|b|*.2;*.3||"), "a|*.1|b|*.2;*.3");
  EXPECT_EQ(ui::toolkitFilter("a|*.1"), "a|*.1");
  EXPECT_EQ(ui::toolkitFilter("a||"), "");
}

TEST(FileDialogsTest, PatternsIgnoreCase) {
  if (ui::presetMayBePattern) {
    EXPECT_EQ(ui::patternsIgnoringCase("*.JAVA"), "*.JAVA");  // the system sees to it
    EXPECT_EQ(ui::patternsIgnoringCase("*.*"), "*.*");
  } else {
    EXPECT_EQ(ui::patternsIgnoringCase("*.Jar;*.x1"), "*.jar;*.[jJ][aA][rR];*.[xX]1");
    EXPECT_EQ(ui::patternsIgnoringCase("*.htm*"), "*.htm*;*.[hH][tT][mM]*");
    EXPECT_EQ(ui::patternsIgnoringCase("*.*"), "*");
  }
}

TEST(FileDialogsTest, AnExtensionIsAddedWhereThereIsNone) {
  EXPECT_EQ(ui::withExtension("mine", ".cfg"), "mine.cfg");
  EXPECT_EQ(ui::withExtension("mine.txt", ".cfg"), "mine.txt");
  EXPECT_EQ(ui::withExtension("mine", ""), "mine");
}

TEST(TextTest, EveryTextComesBackByteForByte) {
  std::vector<std::string> texts = {"", "plain", std::string("with\0zero", 9), "line\r\nends\t"};
  if (platform::environment("OS").value_or("") == "Windows_NT") {
    texts.emplace_back("\xC4hnlich \x80");  // the process's own 8-bit set
  } else {
    texts.emplace_back("\xC3\x84hnlich \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80");
    texts.emplace_back("bad \xFF\xC3 bytes \xE6\x97");
  }
  for (const auto& text : texts) EXPECT_EQ(ui::fromWx(ui::toWx(text)), text);
}

TEST(TextTest, LettersAreThoseOfThePlatformsSet) {
  const bool windows = platform::environment("OS").value_or("") == "Windows_NT";
  EXPECT_EQ(ui::toWx(windows ? "\xE4" : "\xC3\xA4"), wxString(wxUniChar(0xE4)));
}

}  // namespace tarnwick::test
