// The console with real children.
#include "platform/Path.h"
#include "support/Children.h"
#include "support/ConsoleFixture.h"
#include "support/FakeWindows.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

class ConsoleRealChildTest : public test::ConsoleFixture {
 protected:
  ~ConsoleRealChildTest() override { view.reset(); }  // before the windows that it knows

  void run(const std::string& script) {
    standIn = std::make_unique<test::StandInScript>(script);
    ConsoleProgram real{test::StandInScript::tool("java"), " one \"two three\"", &platform::ChildProcess::start, {}};
    real.windows = windows;
    openWith(real);
  }
  /// Leaves the child's own console window alone, which takes its time to close.
  void withoutConsoleWindow() {
    none.there = false;
    windows = &none;
  }
  bool shows(const std::string& line) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), line) != all.end();
  }
  int kindOf(const std::string& text) {
    const TextGuard guard(document.textLock());
    for (const auto& line : document.lines()) {
      for (const auto& segment : line.segments()) {
        if (segment.text == text) return segment.kind;
      }
    }
    return KIND_NONE;
  }
  bool ended() { return view->childState() == 0; }

  std::unique_ptr<test::StandInScript> standIn;
  test::FakeWindows none;
  platform::ConsoleWindows* windows = &platform::ConsoleWindows::ofSystem();
};

TEST_F(ConsoleRealChildTest, RunsToItsEndWithTheBannerLast) {
  run("out hello\nerr oops\nexit 3");
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_EQ(standIn->record(), "one\ntwo three\n");
  EXPECT_EQ(kindOf("hello"), KIND_OUTPUT);
  EXPECT_EQ(kindOf("oops"), KIND_ERROR);
  EXPECT_EQ(kindOf(banner), KIND_BANNER);
  const auto all = lines();
  const Lines end(all.end() - 5, all.end());
  EXPECT_NE(end[0], "");
  EXPECT_EQ(Lines(end.begin() + 1, end.end()), (Lines{"", "", banner, ""}));
}

TEST_F(ConsoleRealChildTest, AProgramThatReadsLinesGetsThem) {
  run("out ready\nreadline\nreadline");
  ASSERT_TRUE(until([&] { return shows("ready"); }));
  type("first\r");
  ASSERT_TRUE(until([&] { return shows("got: first"); }));
  type("second\r");
  ASSERT_TRUE(until([&] { return shows("got: second"); }));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ConsoleRealChildTest, AProgramThatPrintsNothingLeavesNoConsole) {
  run("exit 0");
  ASSERT_TRUE(until([&] { return surface.closes > 0; }));
  EXPECT_FALSE(shows(banner));
}

TEST_F(ConsoleRealChildTest, AProgramThatEndsWhileItsGrandchildLivesGetsItsBanner) {
  run("out parent\ngrandchild 60000\nexit 0");
  const int grandchild = standIn->grandchildren(1)[0];
  ASSERT_TRUE(until([&] { return ended() && shows(banner); }));
  EXPECT_TRUE(test::processLives(grandchild));
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, std::chrono::seconds(20)) << "it waited for somebody";
}

TEST_F(ConsoleRealChildTest, AFloodIsBoundedAndItsLastLineShows) {
  run("flood 4000000\nout last");
  ASSERT_TRUE(until([&] { return shows("last"); }));
  EXPECT_EQ(lineCount(), 1500);
}

TEST_F(ConsoleRealChildTest, ALineOfAMillionCharactersArrives) {
  std::string script;
  const std::string hex(2 * 50000, '4');  // the letter D
  for (int part = 0; part < 20; ++part) script += "outraw " + hex + "\n";
  run(script + "out .\nreadline");
  ASSERT_TRUE(until([&] { return lineCount() > 3 && document.widestLine() >= 1000001; }));
  test::FakePainter painter;
  view->paint(painter);
  type("x\r");
  ASSERT_TRUE(until([&] { return shows("got: x"); }));
}

TEST_F(ConsoleRealChildTest, ACharacterSplitBetweenTwoWritesIsWhole) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  run("outraw 61C3\nsleep 100\noutraw A4E697\nsleep 100\noutraw A50A");
  ASSERT_TRUE(until([&] { return shows("a\xC3\xA4\xE6\x97\xA5"); }));
}

TEST_F(ConsoleRealChildTest, ClosingEndsTheWholeTreeThoughItIgnoresTerm) {
  withoutConsoleWindow();
  run("ignoreterm\ngrandchild 60000\nout up\nsleep 60000");
  ASSERT_TRUE(until([&] { return shows("up"); }));
  const int grandchild = standIn->grandchildren(1)[0];
  EXPECT_TRUE(test::processLives(grandchild));
  view->onClose();
  EXPECT_TRUE(test::waitInNaps(milliseconds(3000), [&] { return !test::processLives(grandchild); }));
}

TEST_F(ConsoleRealChildTest, ClosingLetsAProgramDoItsLastWork) {
  if (platform::folderSeparator != '/') GTEST_SKIP() << "here the console window asks it, which has tests of its own";
  run("lastwork 300\nout up\nsleep 60000");
  ASSERT_TRUE(until([&] { return shows("up"); }));
  EXPECT_FALSE(standIn->lastWorkDone());
  view->onClose();
  EXPECT_TRUE(test::waitInNaps(milliseconds(1900), [&] { return standIn->lastWorkDone(); }));
}

TEST_F(ConsoleRealChildTest, ClosingAProgramThatNeverReadsItsInputIsQuick) {
  withoutConsoleWindow();
  run("out up\nsleep 60000");
  ASSERT_TRUE(until([&] { return shows("up"); }));
  std::string line(1000000, 'x');
  line += '\r';
  desktop.clipboard = line;
  view->paste();
  EXPECT_EQ(lastLine(), "");
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, std::chrono::seconds(20)) << "it waited for somebody";
}

TEST_F(ConsoleRealChildTest, AMissingExecutableIsTold) {
  openWith({"no-such-folder/java", " Main", &platform::ChildProcess::start, {}});
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  const std::string start = "Can't start no-such-folder/java\nCreateProcess error ";
  EXPECT_EQ(desktop.messages[0].substr(0, start.size()), start);
  if (platform::folderSeparator == '/') {
    EXPECT_EQ(desktop.messages[0], start + "2\nNo such file or directory");
  }
  EXPECT_EQ(view->childState(), -1);
}

}  // namespace
}  // namespace tarnwick
