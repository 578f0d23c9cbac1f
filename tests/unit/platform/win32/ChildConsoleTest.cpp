// The console window of a child, and what fails on the way to it.
#include "platform/ConsoleWindows.h"
#include "platform/Process.h"
#include "platform/win32/Handle.h"
#include "platform/win32/StartChild.h"
#include "support/Children.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace tarnwick::platform {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;
using Stream = ChildProcess::Stream;
using Texts = std::vector<std::string>;
using test::waitUntil;

std::array<HANDLE, 3> standardHandles() {
  return {GetStdHandle(STD_INPUT_HANDLE), GetStdHandle(STD_OUTPUT_HANDLE), GetStdHandle(STD_ERROR_HANDLE)};
}

/// True if our process has no console now: then it could get one.
bool hasNoConsole() {
  const auto before = standardHandles();
  if (!AllocConsole()) return false;
  FreeConsole();
  SetStdHandle(STD_INPUT_HANDLE, before[0]);
  SetStdHandle(STD_OUTPUT_HANDLE, before[1]);
  SetStdHandle(STD_ERROR_HANDLE, before[2]);
  return true;
}

std::string classOf(HWND window) {
  char name[256] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

BOOL CALLBACK collectVisible(HWND window, LPARAM all) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(all)->push_back(window);
  return TRUE;
}

/// The windows on the screen of the class CLASS: the system shows others of its own when it likes.
std::vector<HWND> visibleWindows(const std::string& windowClass) {
  std::vector<HWND> found;
  EnumWindows(collectVisible, reinterpret_cast<LPARAM>(&found));
  std::erase_if(found, [&](HWND window) { return classOf(window) != windowClass; });
  return found;
}

class ChildConsoleTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(hasNoConsole()); }

  ChildCommand command(bool interactive = true) {
    static int number = 0;
    title_ = "tArNwIcK console test " + std::to_string(GetCurrentProcessId()) + '-' + std::to_string(++number);
    return {test::StandInScript::tool("java"), "", interactive, title_,
            [this](const SystemError& fault) { faults_.push_back(fault.text()); }};
  }
  WindowNumber waitForWindow() {
    WindowNumber window = 0;
    EXPECT_TRUE(waitUntil([&] { return (window = windows_.titled(title_)) != 0; })) << title_;
    return window;
  }
  static std::string textOf(const char* label, DWORD code) {
    SetLastError(code);
    return lastSystemError(label).text();
  }
  ConsoleWindows& windows_ = ConsoleWindows::ofSystem();
  std::string title_;
  Texts faults_;
};

TEST_F(ChildConsoleTest, TheChildHasAConsoleWindowOfItsOwnWithTheTitle) {
  const test::StandInScript script("out up\nsleep 60000");
  const auto child = ChildProcess::start(command());
  const WindowNumber window = waitForWindow();
  EXPECT_TRUE(windows_.exist());
  EXPECT_TRUE(windows_.lives(window));
  EXPECT_EQ(windows_.title(window), title_);
  EXPECT_FALSE(windows_.isIconic(window));
  EXPECT_TRUE(IsWindowVisible(reinterpret_cast<HWND>(window)));
  EXPECT_TRUE(hasNoConsole()) << "only the child is in it";
  EXPECT_EQ(faults_, Texts{});
  child->endTree();
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return !windows_.lives(window); })) << "the console ends with the last program in it";
}

TEST_F(ChildConsoleTest, WithoutATitleTheChildHasNoWindow) {
  const test::StandInScript script("out up\nsleep 60000");
  const auto titled = ChildProcess::start(command());
  const HWND console = reinterpret_cast<HWND>(waitForWindow());
  const std::string consoles = classOf(console);
  const auto before = visibleWindows(consoles);
  EXPECT_NE(std::find(before.begin(), before.end(), console), before.end());
  ChildCommand plain = command();
  plain.consoleTitle.reset();
  const auto child = ChildProcess::start(plain);
  char block[10];
  EXPECT_GT(child->read(Stream::Output, block, sizeof block), 0U);
  for (const HWND window : visibleWindows(consoles)) {
    // One of an earlier console may have gone meanwhile; none has come.
    EXPECT_NE(std::find(before.begin(), before.end(), window), before.end());
  }
  for (const auto& each : {titled.get(), child.get()}) {
    each->endTree();
    each->wait();
  }
}

TEST_F(ChildConsoleTest, TheWindowIsMinimisedRestoredAndClosedAndTheChildEnds) {
  const test::StandInScript script("out up\nsleep 60000");
  const auto child = ChildProcess::start(command());
  const WindowNumber window = waitForWindow();
  EXPECT_TRUE(windows_.askToMinimise(window));
  EXPECT_TRUE(waitUntil([&] { return windows_.isIconic(window); }));
  windows_.restore(window);
  EXPECT_TRUE(waitUntil([&] { return !windows_.isIconic(window); }));
  std::this_thread::sleep_for(milliseconds(500));  // as the console does: a window on its way may not hear
  EXPECT_TRUE(windows_.askToClose(window));
  const auto begin = steady_clock::now();
  child->wait();
  EXPECT_LT(steady_clock::now() - begin, seconds(10));
  EXPECT_TRUE(waitUntil([&] { return !windows_.lives(window); }));
  EXPECT_FALSE(windows_.askToMinimise(window));
  EXPECT_FALSE(windows_.askToClose(window));
}

TEST_F(ChildConsoleTest, TheWalkFromAWindowDownwardsComesToIt) {
  const test::StandInScript script("sleep 60000");
  const auto child = ChildProcess::start(command());
  const WindowNumber window = waitForWindow();
  const HWND frame = CreateWindowA("STATIC", "frame", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(frame, nullptr);
  SetWindowPos(frame, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  const auto below = windows_.below(reinterpret_cast<WindowNumber>(frame));
  EXPECT_NE(std::find(below.begin(), below.end(), window), below.end());
  EXPECT_EQ(std::find(below.begin(), below.end(), reinterpret_cast<WindowNumber>(frame)), below.end());
  SetWindowPos(frame, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  const auto nothing = windows_.below(reinterpret_cast<WindowNumber>(frame));
  EXPECT_EQ(std::find(nothing.begin(), nothing.end(), window), nothing.end());
  DestroyWindow(frame);
  EXPECT_TRUE(windows_.below(reinterpret_cast<WindowNumber>(frame)).empty());
  child->endTree();
  child->wait();
}

TEST_F(ChildConsoleTest, NoTitleFitsNoWindow) {
  EXPECT_EQ(windows_.titled(""), 0U);
}

TEST_F(ChildConsoleTest, OurStandardHandlesAreThenAsTheyWere) {
  const auto before = standardHandles();
  const test::StandInScript script("out x");
  for (const bool interactive : {true, false}) {
    const auto child = ChildProcess::start(command(interactive));
    EXPECT_EQ(standardHandles(), before);
    child->wait();
  }
  ChildCommand missing = command();
  missing.executable = script.folder().file("nothing.exe");
  EXPECT_THROW(ChildProcess::start(missing), SystemError);
  EXPECT_EQ(standardHandles(), before);
}

TEST_F(ChildConsoleTest, AChildThatDidNotStartLeavesNoConsole) {
  ChildCommand missing = command();
  missing.executable = "Z:\\no-such-folder\\nothing.exe";
  for (int times = 0; times < 2; ++times) EXPECT_THROW(ChildProcess::start(missing), SystemError);
  EXPECT_EQ(faults_, Texts{}) << "the second one got its console";
  EXPECT_TRUE(hasNoConsole());
  EXPECT_TRUE(waitUntil([&] { return windows_.titled(title_) == 0; }));
}

TEST_F(ChildConsoleTest, AConsoleThatWeHaveAlreadyIsToldAndThenTheChildsAlone) {
  const auto before = standardHandles();
  ASSERT_TRUE(AllocConsole());
  const test::StandInScript script("out up\nsleep 60000");
  const auto child = ChildProcess::start(command());
  EXPECT_EQ(faults_, (Texts{textOf("AllocConsole()", ERROR_ACCESS_DENIED)}));
  EXPECT_EQ(faults_[0].substr(0, 23), "AllocConsole() error 5\n");
  EXPECT_NE(waitForWindow(), 0U);
  EXPECT_TRUE(hasNoConsole()) << "so that the next start gets one of its own";
  for (const HANDLE handle : standardHandles()) {
    DWORD flags = 0;
    EXPECT_TRUE(handle == nullptr || GetHandleInformation(handle, &flags));
  }
  child->endTree();
  child->wait();
  SetStdHandle(STD_INPUT_HANDLE, before[0]);
  SetStdHandle(STD_OUTPUT_HANDLE, before[1]);
  SetStdHandle(STD_ERROR_HANDLE, before[2]);
}

/// Has an inheritable pipe of its own made just before the child starts. Not earlier: Wine lets the program behind a
/// console window inherit whatever is there when the console is allocated.
class BusyCalls : public StartCalls {
 public:
  Handle reader;
  Handle writer;

  bool setStandardHandle(DWORD which, HANDLE handle) override {
    if (!reader) {
      SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
      HANDLE ends[2] = {};
      EXPECT_TRUE(CreatePipe(&ends[0], &ends[1], &inheritable, 0));
      reader = Handle(ends[0]);
      writer = Handle(ends[1]);
    }
    return StartCalls::setStandardHandle(which, handle);
  }
};

TEST_F(ChildConsoleTest, TheChildInheritsNothingButItsStreams) {
  const test::StandInScript script("out up\nsleep 20000");
  BusyCalls calls;
  const auto child = startChild(command(), calls);
  char block[10];
  EXPECT_GT(child->read(Stream::Output, block, sizeof block), 0U);
  ASSERT_TRUE(calls.writer);
  calls.writer.close();
  DWORD count = 0;
  const auto begin = steady_clock::now();
  EXPECT_FALSE(ReadFile(calls.reader.get(), block, 1, &count, nullptr));
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_BROKEN_PIPE));
  EXPECT_LT(steady_clock::now() - begin, seconds(10)) << "somebody else held the other end";
  child->endTree();
  child->wait();
}

/// Lets some of the calls fail.
class FailingCalls : public StartCalls {
 public:
  bool consoles = true;
  int busyTimes = 0;  ///< so often no console is to be had for the moment
  int pipes = 99;     ///< so many can be made
  bool standardHandles = true;
  bool duplicates = true;
  int lostChildren = 0;  ///< so many never begin
  DWORD loss = ERROR_INTERNAL_ERROR;

  bool allocateConsole() override {
    if (busyTimes-- > 0) return refuse(ERROR_INVALID_FUNCTION);
    return consoles ? StartCalls::allocateConsole() : refuse();
  }
  HANDLE createPipe(const char* name, DWORD access, SECURITY_ATTRIBUTES& security) override {
    if (pipes-- > 0) return StartCalls::createPipe(name, access, security);
    refuse();
    return INVALID_HANDLE_VALUE;
  }
  bool setStandardHandle(DWORD which, HANDLE handle) override {
    return standardHandles ? StartCalls::setStandardHandle(which, handle) : refuse();
  }
  bool duplicateHandle(HANDLE handle, HANDLE& copy) override {
    return duplicates ? StartCalls::duplicateHandle(handle, copy) : refuse();
  }
  bool createProcess(const char* executable, char* line, bool inherits, DWORD flags, STARTUPINFOA* startUp,
                     PROCESS_INFORMATION& made) override {
    if (lostChildren-- > 0) return refuse(loss);
    return StartCalls::createProcess(executable, line, inherits, flags, startUp, made);
  }

 private:
  static bool refuse(DWORD code = ERROR_ACCESS_DENIED) {
    SetLastError(code);
    return false;
  }
};

class FailingStartTest : public ChildConsoleTest {
 protected:
  std::unique_ptr<ChildProcess> start(bool interactive = true) { return startChild(command(interactive), calls_); }
  static Texts times(std::size_t count, const char* label) { return Texts(count, textOf(label, ERROR_ACCESS_DENIED)); }
  bool ran() const {
    return waitUntil([this] { return script_.hasRecord(); });
  }

  test::StandInScript script_{"out said\nerr complained"};
  FailingCalls calls_;
};

TEST_F(FailingStartTest, WithoutAConsoleTheRunGoesOn) {
  calls_.consoles = false;
  const auto child = start();
  EXPECT_EQ(faults_, times(1, "AllocConsole()"));
  EXPECT_EQ(test::readAll(*child, Stream::Output), "said\n");
  EXPECT_EQ(test::readAll(*child, Stream::Error), "complained\n");
  child->wait();
}

TEST_F(FailingStartTest, ABusySystemIsAskedForAConsoleAgain) {
  calls_.busyTimes = 4;
  const auto child = start();
  EXPECT_EQ(faults_, Texts{});
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, ASystemThatStaysBusyIsToldOfOnce) {
  calls_.busyTimes = 99;
  const auto child = start();
  EXPECT_EQ(faults_, Texts{textOf("AllocConsole()", ERROR_INVALID_FUNCTION)});
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, AChildThatIsLostBeforeItBeginsIsStartedAgain) {
  calls_.lostChildren = 2;
  const auto child = start();
  EXPECT_EQ(test::readAll(*child, Stream::Output), "said\n");
  child->wait();
  EXPECT_EQ(faults_, Texts{});
}

TEST_F(FailingStartTest, AnyOtherRefusalIsToldAtOnce) {
  calls_.lostChildren = 1;
  calls_.loss = ERROR_ACCESS_DENIED;
  EXPECT_THROW(start(), SystemError);
}

TEST_F(FailingStartTest, WithoutPipesTheStreamsAreAtTheirEnd) {
  calls_.pipes = 0;
  const auto child = start();
  EXPECT_EQ(faults_, times(3, "CreatePipe()"));
  EXPECT_EQ(test::readAll(*child, Stream::Output), "");
  EXPECT_EQ(test::readAll(*child, Stream::Error), "");
  EXPECT_EQ(child->write("x", 1), -1);
  child->stopReading();
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, AToolWithoutInputNeedsTwoPipes) {
  calls_.pipes = 0;
  const auto child = start(false);
  EXPECT_EQ(faults_, times(2, "CreatePipe()"));
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, APipeThatCouldBeMadeIsOfUse) {
  calls_.pipes = 1;
  const auto child = start();
  EXPECT_EQ(faults_, times(2, "CreatePipe()"));
  EXPECT_EQ(test::readAll(*child, Stream::Output), "said\n");
  EXPECT_EQ(test::readAll(*child, Stream::Error), "");
  child->wait();
}

TEST_F(FailingStartTest, HandlesThatAreNotStandardReachTheChildAllTheSame) {
  calls_.standardHandles = false;
  const auto before = standardHandles();
  const auto child = start();
  EXPECT_EQ(faults_, times(3, "SetStdHandle()"));
  EXPECT_EQ(standardHandles(), before);
  EXPECT_EQ(test::readAll(*child, Stream::Output), "said\n");
  EXPECT_EQ(test::readAll(*child, Stream::Error), "complained\n");
  child->wait();
}

TEST_F(FailingStartTest, EndsThatCouldNotBeCopiedAreAtTheirEnd) {
  calls_.duplicates = false;
  const auto child = start();
  EXPECT_EQ(faults_, times(3, "DuplicateHandle()"));
  EXPECT_EQ(test::readAll(*child, Stream::Output), "");
  EXPECT_EQ(test::readAll(*child, Stream::Error), "");
  EXPECT_EQ(child->write("x", 1), -1);
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, EverythingMayFailAtOnce) {
  calls_.consoles = calls_.standardHandles = calls_.duplicates = false;
  calls_.pipes = 0;
  const auto child = start();
  EXPECT_EQ(faults_.size(), 4U);
  child->wait();
  EXPECT_TRUE(ran());
}

TEST_F(FailingStartTest, WhatFailedIsToldThoughTheChildDoesNotStart) {
  calls_.consoles = false;
  ChildCommand missing = command();
  missing.executable = script_.folder().file("nothing.exe");
  EXPECT_THROW(startChild(missing, calls_), SystemError);
  EXPECT_EQ(faults_, times(1, "AllocConsole()"));
}

TEST_F(FailingStartTest, NobodyHasToListen) {
  calls_.pipes = 0;
  ChildCommand silent = command();
  silent.report = nullptr;
  const auto child = startChild(silent, calls_);
  child->wait();
  EXPECT_TRUE(ran());
}

class GraceTest : public ChildConsoleTest {};

TEST_F(GraceTest, WhatEndsByItselfGetsTheTimeForIt) {
  const test::StandInScript script("grandchild 1500\nsleep 700");
  const auto child = ChildProcess::start(command());
  const int grandchild = script.grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  child->endTreeWithin(seconds(20));
  const auto taken = steady_clock::now() - begin;
  EXPECT_GT(taken, milliseconds(1000)) << "until the last one has gone";
  EXPECT_LT(taken, seconds(15));
  EXPECT_FALSE(test::processLives(grandchild));
  child->wait();
}

TEST_F(GraceTest, WhatIsStillThereThenIsEnded) {
  const test::StandInScript script("grandchild 60000\nsleep 100");
  const auto child = ChildProcess::start(command());
  const int grandchild = script.grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  child->endTreeWithin(milliseconds(800));
  EXPECT_GE(steady_clock::now() - begin, milliseconds(800));
  EXPECT_LT(steady_clock::now() - begin, seconds(5));
  EXPECT_TRUE(waitUntil([&] { return !test::processLives(grandchild); }));
  child->wait();
}

TEST_F(GraceTest, AnEndedChildHasNothingThatIsEnded) {
  const test::StandInScript script("grandchild 5000");
  const auto child = ChildProcess::start(command());
  const int grandchild = script.grandchildren(1).at(0);
  child->wait();
  child->endTreeWithin(milliseconds(100));
  std::this_thread::sleep_for(milliseconds(200));
  EXPECT_TRUE(test::processLives(grandchild));
}

}  // namespace
}  // namespace tarnwick::platform
