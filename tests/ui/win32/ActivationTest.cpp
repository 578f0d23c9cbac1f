// Which window has the keyboard after a tool has run in a console window of its own.
#include "platform/Process.h"
#include "support/TestProgram.h"
#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <windows.h>
#include <wx/dialog.h>

#include <chrono>
#include <memory>
#include <optional>
#include <thread>

namespace tarnwick::test {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* commandText = "javac -version";

/// A program with a window, for as long as the object lives.
class OtherProgram {
 public:
  OtherProgram() {
    STARTUPINFOW startUp{};
    startUp.cb = sizeof startUp;
    wchar_t command[] = L"notepad.exe";
    EXPECT_TRUE(CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startUp, &made_));
  }
  ~OtherProgram() {
    TerminateProcess(made_.hProcess, 0);
    WaitForSingleObject(made_.hProcess, 5000);
    CloseHandle(made_.hThread);
    CloseHandle(made_.hProcess);
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  bool isActive() const {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process == made_.dwProcessId;
  }

 private:
  PROCESS_INFORMATION made_{};
};

class ActivationTest : public WindowTest {
 protected:
  ActivationTest() {
    FreeConsole();  // with one of our own, as a program of the command line may have, the tool would get no other
    writeFile(scratch_.file("script"), "await go " + signal());
    rules.onPress[IDOK_CONTROL] = [this] {
      for (int run = 0; run < runs; ++run) runTool();
      ended = true;
    };
  }

  std::string signal() const { return scratch_.file("signal"); }

  /// Runs a tool as the panel does, but waits for the end of its console as well: which of the two comes first is
  /// otherwise a matter of chance.
  static void runTool() {
    const auto tool = platform::ChildProcess::start({standInFolder() + "javac.exe", "", false, commandText});
    desktop().whileBusy({[&tool] {
      tool->wait();
      const auto end = Clock::now() + std::chrono::seconds(10);
      while (console() != nullptr && Clock::now() < end) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }});
  }

  static HWND console() { return FindWindowA(nullptr, commandText); }

  bool isActive() const {
    return GetForegroundWindow() == static_cast<HWND>(desktop().openDialogs().front()->dialog().GetHandle());
  }

  /// Waits, and fails the test if it does not come.
  void thenSoon(const std::string& name, const std::function<bool()>& condition) {
    const auto end = std::make_shared<std::optional<Clock::time_point>>();
    steps.until(name, [condition, end] {
      if (!*end) *end = Clock::now() + std::chrono::seconds(15);
      return condition() || Clock::now() > **end;
    });
    steps.then(name, [name, condition] { EXPECT_TRUE(condition()) << name; });
  }

  void startTheTool() {
    thenSoon("the panel is the active window", [this] { return openDialogs() == 1 && isActive(); });
    steps.then("run the tool", [this] { press(top(), IDOK_CONTROL); });
    thenSoon("its console has the keyboard", [] { return console() != nullptr && GetForegroundWindow() == console(); });
  }

  void letTheToolEnd() {
    steps.then("let it end", [this] { writeFile(signal(), "go"); });
    steps.until("it has ended", [this] { return ended; });
  }

  void run() {
    steps.then("close", [this] { rules.window->close(1); });
    desktop().runMainDialog(smallLayout("Main"), rules);
  }

  ScratchFolder scratch_;
  ScopedEnvironment script_{"STANDIN_SCRIPT", scratch_.file("script")};
  Recorder rules;
  int runs = 1;
  bool ended = false;
};

class ActivationOfRunsTest : public ActivationTest, public testing::WithParamInterface<int> {};

}  // namespace

TEST_P(ActivationOfRunsTest, ThePanelHasTheKeyboardAgain) {
  runs = GetParam();
  startTheTool();
  letTheToolEnd();
  thenSoon("the panel is the active window again", [this] { return isActive(); });
  steps.then("look", [this] { EXPECT_EQ(wxWindow::FindFocus(), top().windowOf(IDOK_CONTROL)); });
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  thenSoon("it is heard", [this] { return rules.heard.back() == "command 2"; });
  run();
}

INSTANTIATE_TEST_SUITE_P(Runs, ActivationOfRunsTest, testing::Values(1, 3));

TEST_F(ActivationTest, AProgramThatTheUserHasGoneToKeepsIt) {
  startTheTool();
  std::optional<OtherProgram> other;
  steps.then("go to another program", [&other] { other.emplace(); });
  thenSoon("it is active", [&other] { return other->isActive(); });
  letTheToolEnd();
  steps.settle(60);
  steps.then("look", [&other] {
    EXPECT_TRUE(other->isActive());
    other.reset();
  });
  run();
}

}  // namespace tarnwick::test
