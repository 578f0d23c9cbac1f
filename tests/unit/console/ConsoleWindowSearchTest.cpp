#include "console/ConsoleWindowSearch.h"
#include "platform/Path.h"
#include "support/FakeSurface.h"
#include "support/FakeWindows.h"
#include "support/RecordingDesktop.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>

namespace tarnwick {
namespace {

using Numbers = std::vector<platform::WindowNumber>;
using Texts = std::vector<std::string>;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

std::string pathOf(const std::string& file) {
  return std::string("jDk") + platform::folderSeparator + "BiN" + platform::folderSeparator + file;
}

class ConsoleWindowSearchTest : public testing::Test {
 protected:
  ConsoleWindowSearchTest() {
    program_.windows = &windows_;
    program_.timing.restoreWait = milliseconds(1);
  }

  ConsoleWindowSearch& search() {
    if (!search_) {
      search_ = std::make_unique<ConsoleWindowSearch>(desktop_, program_, [this] { return childState_; });
    }
    return *search_;
  }
  void begin() { search().begin(surface_); }
  void tick(int times = 1) {
    for (; times > 0; --times) desktop_.tick(500);
  }
  /// A window of the child's that is found and is an icon then.
  void findConsole() {
    windows_.all = {{1, exeFile_}};
    begin();
    ASSERT_EQ(search().consoleWindow(), 1U);
    ASSERT_TRUE(windows_.at(1).iconic);
  }

  const std::string exeFile_ = pathOf("JaVa.eXe");
  test::FakeWindows windows_;
  test::FakeSurface surface_;
  test::RecordingDesktop desktop_;
  int childState_ = 1;
  ConsoleProgram program_{exeFile_, " Main", {}, {}};
  std::unique_ptr<ConsoleWindowSearch> search_;
};

TEST_F(ConsoleWindowSearchTest, WaitsAsLongAsItShouldByDefault) {
  EXPECT_EQ(ConsoleWindowSearch::period, 500);
  EXPECT_EQ(ConsoleWindowSearch::mostTries, 41);
  const ConsoleTiming timing;
  EXPECT_EQ(timing.restoreWait, milliseconds(500));
  EXPECT_EQ(timing.restoreTries, 6);
  EXPECT_EQ(timing.closeGrace, milliseconds(2000));
}

TEST_F(ConsoleWindowSearchTest, HasNotBegunAtFirst) {
  EXPECT_EQ(search().consoleSearchState(), -1);
  EXPECT_EQ(search().consoleWindow(), 0U);
  EXPECT_EQ(search().consoleSearchTries(), 0);
}

TEST_F(ConsoleWindowSearchTest, WhereProgramsHaveNoConsoleWindowsNothingHappens) {
  windows_.there = false;
  windows_.all = {{7, "frame"}, {1, exeFile_}};
  begin();
  EXPECT_EQ(search().consoleSearchState(), -1);
  EXPECT_EQ(desktop_.runningTimers(), 0U);
  EXPECT_EQ(surface_.raised, 0);
  EXPECT_EQ(windows_.looks, 0);
  EXPECT_FALSE(search().close());
}

TEST_F(ConsoleWindowSearchTest, BeginsOnceTheChildRuns) {
  windows_.all = {{1, exeFile_}};
  for (const int state : {-1, 0}) {
    childState_ = state;
    begin();
    EXPECT_EQ(search().consoleSearchState(), -1) << state;
    EXPECT_EQ(desktop_.runningTimers(), 0U) << state;
  }
  childState_ = 1;
  begin();
  EXPECT_EQ(search().consoleSearchState(), 1);
}

TEST_F(ConsoleWindowSearchTest, BeginsOnlyOnce) {
  begin();
  EXPECT_EQ(search().consoleSearchState(), 0);
  EXPECT_EQ(desktop_.timersOf(500), 1U);
  const int looks = windows_.looks;
  begin();
  EXPECT_EQ(windows_.looks, looks);
  EXPECT_EQ(desktop_.timersOf(500), 1U);
}

TEST_F(ConsoleWindowSearchTest, TheWindowOfExactlyTheExecutablesPathIsMinimisedAndRemembered) {
  windows_.all = {{7, "frame"}, {1, "JaVa"}, {2, exeFile_}, {3, exeFile_ + " - more"}};
  begin();
  EXPECT_EQ(windows_.minimised, (Numbers{2}));
  EXPECT_EQ(search().consoleWindow(), 2U);
  EXPECT_EQ(search().consoleSearchState(), 1);
  EXPECT_EQ(surface_.raised, 0) << "found without a walk";
}

TEST_F(ConsoleWindowSearchTest, NextComesTheFileNameWithoutItsExtension) {
  windows_.all = {{7, "frame"}, {1, exeFile_ + " - more"}, {2, "JaVa.eXe"}, {3, "JaVa"}};
  begin();
  EXPECT_EQ(windows_.minimised, (Numbers{3}));
  EXPECT_EQ(surface_.raised, 0);
}

TEST_F(ConsoleWindowSearchTest, LastComesAWalkFromOurFrameDownwardsByWhatTitlesContain) {
  windows_.all = {{1, "above: " + exeFile_},
                  {7, "frame " + exeFile_},
                  {2, "other"},
                  {3, "Admin: " + exeFile_},
                  {4, "also " + exeFile_}};
  begin();
  EXPECT_EQ(surface_.raised, 1);
  EXPECT_EQ(windows_.minimised, (Numbers{3}));
  EXPECT_EQ(search().consoleWindow(), 3U);
}

TEST_F(ConsoleWindowSearchTest, InTheWalkTheFileNameWillDo) {
  windows_.all = {{7, "frame"}, {2, "it is JaVa here"}};
  begin();
  EXPECT_EQ(windows_.minimised, (Numbers{2}));
}

TEST_F(ConsoleWindowSearchTest, TheWalkRespectsCase) {
  windows_.all = {{7, "frame"}, {2, "jdk java.exe"}, {3, "JAVA JAVA.EXE"}, {4, "Java"}};
  begin();
  EXPECT_TRUE(windows_.minimised.empty());
  EXPECT_EQ(search().consoleSearchState(), 0);
}

TEST_F(ConsoleWindowSearchTest, TheWalkEndsAtTheFirstWindowThatIsTaken) {
  windows_.all = {{7, "frame"}, {1, "a JaVa", true}, {2, "b JaVa", false, false}, {3, "c JaVa"}, {4, "d JaVa"}};
  begin();
  EXPECT_EQ(windows_.minimised, (Numbers{3})) << "an icon is not taken, nor is what can't be told";
}

TEST_F(ConsoleWindowSearchTest, AnIconIsNotTaken) {
  windows_.all = {{1, exeFile_, true}, {2, "JaVa"}};
  begin();
  EXPECT_EQ(search().consoleWindow(), 2U) << "the other belongs to another console";
}

TEST_F(ConsoleWindowSearchTest, AWindowThatCannotBeToldIsNotTaken) {
  windows_.all = {{1, exeFile_, false, false}};
  begin();
  EXPECT_EQ(search().consoleSearchState(), 0);
  EXPECT_EQ(search().consoleWindow(), 0U);
  EXPECT_TRUE(desktop_.messages.empty());
  windows_.at(1).takesMinimise = true;
  tick();
  EXPECT_EQ(search().consoleWindow(), 1U);
}

TEST_F(ConsoleWindowSearchTest, WithoutAnExecutableNoWindowIsTaken) {
  program_.exeFile = "";
  windows_.all = {{7, "frame"}, {2, "anything"}};
  begin();
  tick(3);
  EXPECT_TRUE(windows_.minimised.empty());
}

TEST_F(ConsoleWindowSearchTest, IsRepeatedFortyOneTimesAndThenGivenUp) {
  windows_.all = {{7, "frame"}};
  begin();
  EXPECT_EQ(windows_.looks, 2) << "the path and the name";
  tick(41);
  EXPECT_EQ(windows_.looks, 2 * 42);
  EXPECT_EQ(surface_.raised, 42);
  EXPECT_EQ(search().consoleSearchTries(), 41);
  EXPECT_EQ(desktop_.timersOf(500), 1U);
  tick();
  EXPECT_EQ(windows_.looks, 2 * 42);
  EXPECT_EQ(desktop_.timersOf(500), 0U);
  EXPECT_EQ(search().consoleSearchState(), 0);
}

TEST_F(ConsoleWindowSearchTest, AWindowThatComesLaterIsFound) {
  begin();
  tick(40);
  windows_.all = {{5, exeFile_}};
  tick();
  EXPECT_EQ(search().consoleWindow(), 5U);
  EXPECT_EQ(search().consoleSearchTries(), 41);
}

TEST_F(ConsoleWindowSearchTest, TheTimerEndsItselfAfterTheFind) {
  findConsole();
  EXPECT_EQ(desktop_.timersOf(500), 1U);
  tick();
  EXPECT_EQ(desktop_.timersOf(500), 0U);
  EXPECT_EQ(search().consoleSearchTries(), 0);
  EXPECT_EQ(search().consoleSearchState(), 1);
  EXPECT_EQ(windows_.minimised, (Numbers{1})) << "whoever brings it back may keep it";
}

TEST_F(ConsoleWindowSearchTest, NothingIsSearchedForAfterTheChildsEnd) {
  begin();
  const int looks = windows_.looks;
  childState_ = 0;
  windows_.all = {{1, exeFile_}};
  tick(3);
  EXPECT_EQ(windows_.looks, looks);
  EXPECT_TRUE(windows_.minimised.empty());
}

TEST_F(ConsoleWindowSearchTest, WithoutATimerItBeginsAnewWithTheNextNews) {
  desktop_.timersWork = false;
  begin();
  EXPECT_EQ(search().consoleSearchState(), -1);
  desktop_.timersWork = true;
  windows_.all = {{1, exeFile_}};
  begin();
  EXPECT_EQ(search().consoleSearchState(), 1);
}

TEST_F(ConsoleWindowSearchTest, StopEndsTheTimer) {
  begin();
  search().stop();
  EXPECT_EQ(desktop_.runningTimers(), 0U);
}

TEST_F(ConsoleWindowSearchTest, ClosingRestoresTheIconAndTellsTheWindowToClose) {
  findConsole();
  windows_.at(1).restoresNeeded = 3;
  EXPECT_TRUE(search().close());
  EXPECT_EQ(windows_.restores, 3);
  EXPECT_EQ(windows_.closed, (Numbers{1}));
  EXPECT_TRUE(desktop_.messages.empty());
}

TEST_F(ConsoleWindowSearchTest, ClosingRestoresSixTimesAtMost) {
  findConsole();
  windows_.at(1).restoresNeeded = 100;
  EXPECT_TRUE(search().close());
  EXPECT_EQ(windows_.restores, 6);
  EXPECT_EQ(windows_.closed, (Numbers{1})) << "and closes it all the same";
}

TEST_F(ConsoleWindowSearchTest, ClosingWaitsAfterEachRestoration) {
  program_.timing.restoreWait = milliseconds(50);
  findConsole();
  windows_.at(1).restoresNeeded = 3;
  const auto start = steady_clock::now();
  search().close();
  EXPECT_GE(steady_clock::now() - start, milliseconds(150));
}

TEST_F(ConsoleWindowSearchTest, AWindowThatSomebodyHasRestoredIsClosedAtOnce) {
  findConsole();
  windows_.at(1).iconic = false;
  EXPECT_TRUE(search().close());
  EXPECT_EQ(windows_.restores, 0);
  EXPECT_EQ(windows_.closed, (Numbers{1}));
}

TEST_F(ConsoleWindowSearchTest, AWindowThatCannotBeToldToCloseIsLeftToTheUser) {
  findConsole();
  windows_.at(1).takesClose = false;
  EXPECT_TRUE(search().close());
  EXPECT_EQ(desktop_.hints, (Texts{"Please close also the console window associated with JDK."}));
}

TEST_F(ConsoleWindowSearchTest, NothingIsClosedThatWasNotFoundOrHasGone) {
  begin();
  EXPECT_FALSE(search().close());
  windows_.all = {{1, exeFile_}};
  tick();
  ASSERT_EQ(search().consoleWindow(), 1U);
  windows_.all.clear();
  EXPECT_FALSE(search().close());
  EXPECT_TRUE(windows_.closed.empty());
}

TEST_F(ConsoleWindowSearchTest, AnEndedChildsWindowIsLeftAlone) {
  findConsole();
  childState_ = 0;
  EXPECT_FALSE(search().close());
  EXPECT_TRUE(windows_.closed.empty());
  EXPECT_EQ(windows_.restores, 0);
}

}  // namespace
}  // namespace tarnwick
