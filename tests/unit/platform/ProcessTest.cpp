#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "support/Children.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick::platform {
namespace {

using test::outputOf;
using test::processLives;
using test::readAll;
using test::StandInScript;
using test::waitUntil;
using Stream = ChildProcess::Stream;
using Words = std::vector<std::string>;

std::string java() {
  return StandInScript::tool("java");
}

std::unique_ptr<ChildProcess> startInteractive(const std::string& arguments = "") {
  return ChildProcess::start({java(), arguments, true});
}

std::string readLine(ChildProcess& child) {
  std::string line;
  for (char c = 0; child.read(Stream::Output, &c, 1) == 1 && c != '\n';) line += c;
  return line;
}

TEST(SplitCommandTextTest, SplitsByTheRunTimesRules) {
  const struct {
    const char* text;
    Words words;
  } table[] = {
      {"", {}},
      {"   ", {}},
      {" a  b ", {"a", "b"}},
      {"a\tb", {"a", "b"}},
      {R"("a b" c)", {"a b", "c"}},
      {R"(-cp "C:\my classes";x Main)", {"-cp", R"(C:\my classes;x)", "Main"}},
      {R"(a"b c"d)", {"ab cd"}},
      {R"("")", {""}},
      {R"(a "" b)", {"a", "", "b"}},
      {R"(say \"hi there\")", {"say", R"("hi)", R"(there")"}},
      {R"("a\\" b)", {R"(a\)", "b"}},
      {R"(a\\\"b)", {R"(a\"b)"}},
      {R"(C:\a\b \\server\x)", {R"(C:\a\b)", R"(\\server\x)"}},
      {R"(x\)", {R"(x\)"}},
      {R"("a""b" c)", {R"(a"b)", "c"}},
      {R"("open end)", {"open end"}},
  };
  for (const auto& row : table) EXPECT_EQ(splitCommandText(row.text), row.words) << row.text;
}

TEST(CommandWordTest, APathIsOneWordOfTheCommandText) {
  EXPECT_EQ(commandWord("plain"), "plain");
  EXPECT_EQ(commandWord("a b"), R"("a b")");
  EXPECT_EQ(commandWord(""), "");
  if (folderSeparator == '\\') GTEST_SKIP() << "no file name holds a double quote here";
  for (const char* path : {R"(/a"b)", R"(/a "b" c)", R"(/a\"b)", R"(/a b\)", R"(/a\b)", "/a\tb", R"(/")"}) {
    EXPECT_EQ(splitCommandText("x " + commandWord(path) + " y"), (std::vector<std::string>{"x", path, "y"}));
  }
}

TEST(SystemErrorTest, TextIsTheLabelTheNumberAndTheSystemsSentence) {
  EXPECT_EQ((SystemError{"CreatePipe()", 5, "Access is denied."}).text(), "CreatePipe() error 5\nAccess is denied.");
}

TEST(ChildProcessTest, TellsTheCodeThatItHasEndedWith) {
  for (const int code : {0, 3, 200}) {
    const StandInScript script("exit " + std::to_string(code));
    const auto child = startInteractive();
    child->wait();
    EXPECT_EQ(child->exitCode(), code);
    EXPECT_EQ(child->causeOfDeath(), "");
  }
}

TEST(ChildProcessTest, ComesToTheEndOfItsInputBehindWhatWasWritten) {
  const StandInScript script("readline\nreadline\nreadline");
  const auto child = startInteractive();
  ASSERT_EQ(child->write("one\ntwo\n", 8), 8);
  child->closeInput();
  const std::string said = readAll(*child, Stream::Output);
  EXPECT_NE(said.find("got: one"), std::string::npos) << said;
  EXPECT_NE(said.find("got: two"), std::string::npos) << said;
  EXPECT_NE(said.find("end of input"), std::string::npos) << said;
}

TEST(ChildProcessTest, GetsExactlyTheArgumentsOfTheText) {
  const StandInScript script("");
  for (const char* text : {" -cp \"a b;c\" \"\" Main \\\"x\\\" *.java $HOME 'q q'",
                           "-cp \"a b;c\" \"\" Main \\\"x\\\" *.java $HOME 'q q'"}) {
    deleteFile(script.folder().file("record"));
    outputOf(java(), text);
    EXPECT_EQ(script.record(), "-cp\na b;c\n\nMain\n\"x\"\n*.java\n$HOME\n'q\nq'\n") << text;
  }
}

TEST(ChildProcessTest, BearsItsExecutablesFileName) {
  const StandInScript script("name");
  EXPECT_EQ(outputOf(java(), " a b"), toolFileName("java") + '\n');
  EXPECT_EQ(outputOf(java(), ""), toolFileName("java") + '\n');
}

TEST(ChildProcessTest, KeepsItsTwoOutputsApart) {
  const StandInScript script("out first\nerr second\nout third");
  const auto child = ChildProcess::start({java(), "", false});
  EXPECT_EQ(readAll(*child, Stream::Output), "first\nthird\n");
  EXPECT_EQ(readAll(*child, Stream::Error), "second\n");
  child->wait();
}

TEST(ChildProcessTest, PassesEveryByteThrough) {
  const StandInScript script("outraw 000D0A1AFF80E4410A");
  EXPECT_EQ(outputOf(java(), ""), std::string("\0\r\n\x1A\xFF\x80\xE4"
                                              "A\n",
                                              9));
}

TEST(ChildProcessTest, ManyBytesArriveAll) {
  const StandInScript script("flood 5000000");
  EXPECT_EQ(outputOf(java(), "").size(), 5000000U);
}

TEST(ChildProcessTest, StartsInTheCurrentFolder) {
  const StandInScript script("folder");
  const std::string before = currentDirectory();
  ASSERT_TRUE(changeDirectory(script.folder().path()));
  const std::string folder = outputOf(java(), "");
  changeDirectory(before);
  const std::string& path = script.folder().path();
  EXPECT_EQ(folder, path.substr(0, path.size() - 1) + '\n');
}

TEST(ChildProcessTest, AMissingProgramIsToldByTheSystemsSentence) {
  const test::ScratchFolder folder;
  try {
    ChildProcess::start({folder.file("nothing.exe"), " a", false});
    FAIL() << "started a program that is not there";
  } catch (const SystemError& error) {
    EXPECT_EQ(error.label, "CreateProcess");
    EXPECT_EQ(error.code, 2);
    EXPECT_FALSE(error.reason.empty());
    EXPECT_EQ(error.text(), "CreateProcess error 2\n" + error.reason);
  }
}

TEST(ChildProcessTest, AFolderIsNoProgram) {
  const test::ScratchFolder folder;
  for (const bool interactive : {false, true}) {
    try {
      ChildProcess::start({folder.path(), "", interactive});
      FAIL() << "started a folder";
    } catch (const SystemError& error) {
      EXPECT_EQ(error.label, "CreateProcess");
      EXPECT_NE(error.code, 0);
      EXPECT_NE(error.code, 2) << "it is there";
      EXPECT_FALSE(error.reason.empty());
    }
  }
}

TEST(ChildProcessTest, AToolWithoutInputReadsTheEndOfIt) {
  const StandInScript script("readline");
  EXPECT_EQ(outputOf(java(), ""), "end of input\n");
}

TEST(ChildProcessTest, AnInteractiveChildHearsWhatIsWritten) {
  const StandInScript script("out ready\nreadline\nreadline");
  const auto child = startInteractive();
  EXPECT_EQ(readLine(*child), "ready");
  EXPECT_EQ(child->write("one\n", 4), 4);
  EXPECT_EQ(readLine(*child), "got: one");
  EXPECT_EQ(child->write("tw", 2), 2);
  EXPECT_EQ(child->write("o\n", 2), 2);
  EXPECT_EQ(readLine(*child), "got: two");
  EXPECT_EQ(readAll(*child, Stream::Output), "");
  child->wait();
}

TEST(ChildProcessTest, WritingToAChildThatHasGoneFails) {
  const StandInScript script("");
  const auto child = startInteractive();
  child->wait();
  // The system may take a moment to close what the child had open.
  EXPECT_TRUE(waitUntil([&] { return child->write("x\n", 2) == -1; }));
}

TEST(ChildProcessTest, WaitReturnsThoughAGrandchildKeepsThePipes) {
  const StandInScript script("out said\ngrandchild 5000\nerr done");
  const auto child = startInteractive();
  child->wait();
  const int grandchild = script.grandchildren(1).at(0);
  child->stopReading();
  EXPECT_EQ(readAll(*child, Stream::Output), "said\n") << "what lies in the pipe still comes";
  EXPECT_EQ(readAll(*child, Stream::Error), "done\n");
  EXPECT_TRUE(processLives(grandchild));
  child->endTree();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_TRUE(processLives(grandchild)) << "the child has ended by itself: nothing is ended any more";
}

TEST(ChildProcessTest, WhatHasArrivedIsKnownWhetherItWasReadOrNot) {
  const StandInScript script("out 12345\nerr 12");
  const auto child = startInteractive();
  child->wait();
  // A line end may be one byte or two.
  const auto output = child->arrived(Stream::Output);
  const auto error = child->arrived(Stream::Error);
  EXPECT_GE(output, 6U);
  EXPECT_GE(error, 3U);
  EXPECT_LT(error, output);
  char some[3];
  ASSERT_EQ(child->read(Stream::Output, some, sizeof some), 3U);
  EXPECT_EQ(child->arrived(Stream::Output), output);
  EXPECT_EQ(readAll(*child, Stream::Output).size(), output - 3);
  EXPECT_EQ(readAll(*child, Stream::Error).size(), error);
  EXPECT_EQ(child->arrived(Stream::Output), output);
  EXPECT_EQ(child->arrived(Stream::Error), error);
}

TEST(ChildProcessTest, WhatArrivesWhileAReaderWaitsIsKnownToo) {
  const StandInScript script("readline\nsleep 60000");
  const auto child = startInteractive();
  std::string output;
  std::thread reader([&] { output = readAll(*child, Stream::Output); });
  child->write("abc\n", 4);
  const bool arrived = waitUntil([&] { return child->arrived(Stream::Output) == 9; });  // "got: abc" and a line end
  child->stopReading();
  reader.join();
  EXPECT_TRUE(arrived) << child->arrived(Stream::Output);
  EXPECT_EQ(output, "got: abc\n");
  child->endTree();
  child->wait();
}

TEST(ChildProcessTest, WhatAChildHasStartedEndsWithItIfItIsToLeaveNothing) {
  const StandInScript script("grandchild 60000\nout done");
  ChildCommand command{StandInScript::tool("java"), "", true};
  command.leavesNothing = true;
  const auto child = ChildProcess::start(command);
  const int grandchild = script.grandchildren(1).at(0);
  child->wait();
  EXPECT_TRUE(waitUntil([grandchild] { return !processLives(grandchild); }));
  child->endTree();
}

TEST(ChildProcessTest, StopReadingWakesAReader) {
  const StandInScript script("out early\ngrandchild 20000\nsleep 20000");
  const auto child = startInteractive();
  std::atomic<bool> ended{false};
  std::string output;
  std::thread reader([&] {
    output = readAll(*child, Stream::Output);
    ended = true;
  });
  script.grandchildren(1);
  EXPECT_FALSE(ended);
  child->stopReading();
  EXPECT_TRUE(waitUntil([&] { return ended.load(); }));
  child->endTree();
  child->wait();
  reader.join();
  EXPECT_EQ(output, "early\n");
}

TEST(ChildProcessTest, StopReadingEndsAlsoAFloodWithWhatLiesInThePipe) {
  const StandInScript script("flood 100000000");
  const auto child = startInteractive();
  char block[512];
  ASSERT_GT(child->read(Stream::Output, block, sizeof block), 0U);
  child->stopReading();
  const std::size_t rest = readAll(*child, Stream::Output).size();
  EXPECT_LT(rest, 2000000U) << "the flood goes on, but nobody has to drink it";
  child->endTree();
  child->wait();
}

TEST(ChildProcessTest, EndTreeEndsTheChildAndWhatItStarted) {
  const StandInScript script("grandchild 60000\ngrandchild 60000\nsleep 60000");
  const auto child = startInteractive();
  const auto grandchildren = script.grandchildren(2);
  const auto begin = std::chrono::steady_clock::now();
  child->endTree();
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
  child->wait();
  for (const int process : grandchildren) {
    EXPECT_TRUE(waitUntil([process] { return !processLives(process); }));
  }
}

TEST(ChildProcessTest, EndTreeEndsAToolWithoutInputToo) {
  const StandInScript script("grandchild 60000\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", false});
  const int grandchild = script.grandchildren(1).at(0);
  child->endTree();
  child->wait();
  EXPECT_TRUE(waitUntil([grandchild] { return !processLives(grandchild); }));
}

TEST(ChildProcessTest, TheDestructorLeavesTheChildAlone) {
  const StandInScript script("grandchild 5000\nsleep 300\nexit 0");
  auto child = startInteractive();
  const int grandchild = script.grandchildren(1).at(0);
  child.reset();
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_TRUE(processLives(grandchild));
}

TEST(ChildProcessTest, WaitMayBeCalledTwice) {
  const StandInScript script("");
  const auto child = startInteractive();
  child->wait();
  child->wait();
}

TEST(ChildProcessTest, StopWaitingEndsAWaitAndEveryLaterOne) {
  const StandInScript script("sleep 60000");
  const auto child = startInteractive();
  std::atomic<bool> ended{false};
  std::thread waiter([&] {
    child->wait();
    ended = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_FALSE(ended);
  child->stopWaiting();
  waiter.join();
  child->wait();
  child->endTree();
}

TEST(ChildProcessTest, StopWaitingEndsAWriteThatNobodyReads) {
  const StandInScript script("sleep 60000");
  const auto child = startInteractive();
  const std::string much(4000000, 'x');
  std::atomic<bool> ended{false};
  std::ptrdiff_t written = 0;
  std::thread writer([&] {
    written = child->write(much.data(), much.size());
    ended = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_FALSE(ended);
  child->stopWaiting();
  writer.join();
  EXPECT_GE(written, 0);
  EXPECT_LT(written, 4000000);
  EXPECT_EQ(child->write("x", 1), 0);
  child->endTree();
}

TEST(ChildProcessTest, AnEndedChildIsWaitedForAlsoAfterStopWaiting) {
  const StandInScript script("grandchild 5000");
  const auto child = startInteractive();
  const int grandchild = script.grandchildren(1).at(0);
  child->wait();
  child->stopWaiting();
  child->wait();
  child->endTree();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_TRUE(processLives(grandchild));
}

TEST(ChildProcessTest, LongInputArrivesWhole) {
  const StandInScript script("sleep 200\nreadline");
  const auto child = startInteractive();
  const std::string line(300000, 'x');
  EXPECT_EQ(child->write((line + '\n').data(), line.size() + 1), static_cast<std::ptrdiff_t>(line.size() + 1));
  EXPECT_EQ(readAll(*child, Stream::Output), "got: " + line + '\n');
  child->wait();
}

class DetachedTest : public testing::Test {
 protected:
  /// Waits for the whole record of a tool that nobody waits for.
  bool recordIs(const std::string& expected) {
    return waitUntil([&] { return script_.hasRecord() && script_.record() == expected; });
  }
  void expectMissing(const std::string& executable) {
    try {
      startDetached(executable, {"nothing"});
      FAIL() << "started a program that is not there";
    } catch (const SystemError& error) {
      EXPECT_EQ(error.code, ENOENT);
      EXPECT_EQ(error.reason, "No such file or directory");
    }
  }

  StandInScript script_{""};
};

TEST_F(DetachedTest, StartsAndDoesNotWait) {
  script_.setScript("sleep 5000");
  const auto begin = std::chrono::steady_clock::now();
  startDetached(java(), {"java", "one", "", "two"});
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(3));
  EXPECT_TRUE(recordIs("one\ntwo\n"));
}

TEST_F(DetachedTest, AQuotedProgramIsFoundToo) {
  startDetached('"' + java() + '"', {"java", "a"});
  EXPECT_TRUE(recordIs("a\n"));
}

TEST_F(DetachedTest, AProgramWithoutAFolderIsSearchedFor) {
  const test::ScopedEnvironment path("PATH", test::standInFolder());
  startDetached(toolFileName("java"), {"java", "b"});
  EXPECT_TRUE(recordIs("b\n"));
}

TEST_F(DetachedTest, APathWithBlanksStaysOneArgument) {
  const std::string path = script_.folder().file("a log.tmp");
  startDetached(java(), {"java", detachedArgument("plain"), detachedArgument(path)});
  EXPECT_TRUE(recordIs("plain\n" + path + '\n'));
}

TEST_F(DetachedTest, AMissingProgramIsToldByTheRunTimesNumber) {
  expectMissing(script_.folder().file("nothing.exe"));
  expectMissing("tarnwick-no-such-program");
}

TEST_F(DetachedTest, StartsACommandLine) {
  startCommandLine(java(), "java -jar \"a b\" c");
  EXPECT_TRUE(recordIs("-jar\na b\nc\n"));
}

TEST_F(DetachedTest, ACommandLineForAMissingProgramIsToldAsCreateProcess) {
  try {
    startCommandLine(script_.folder().file("nothing.exe"), "nothing.exe a");
    FAIL() << "started a program that is not there";
  } catch (const SystemError& error) {
    EXPECT_EQ(error.label, "CreateProcess");
    EXPECT_EQ(error.code, 2);
  }
}

}  // namespace
}  // namespace tarnwick::platform
