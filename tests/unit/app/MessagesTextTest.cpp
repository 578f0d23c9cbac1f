#include "app/MessagesText.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using LineKind = MessagesText::LineKind;
using std::chrono::milliseconds;

std::string folder() {
  return platform::currentDirectory();
}

std::string inFolder(const std::string& name) {
  return folder() + platform::folderSeparator + name;
}

const std::string first =
    "\n\njavac A.java\n\nA.java:3: error: x\n\tint i;\n\t    ^\n  symbol: i\nA.java:4: warning: [y] z\n1 error\n";
const std::string second = "\r\n\r\njavac B.java\r\n\r\nB.java:7: error: x\r\nNote: z\r\n";

MessagesText both(std::size_t mostLines = 20000) {
  return messagesText(first + second, {{0, folder()}, {first.size(), inFolder("sub")}}, mostLines);
}

TEST(MessagesTextTest, EachRunBeginsWithItsCommand) {
  const struct {
    const char* text;
    LineKind kind;
  } lines[] = {
      {"javac A.java", LineKind::Command},
      {"", LineKind::Other},
      {"A.java:3: error: x", LineKind::Error},
      {"        int i;", LineKind::Other},
      {"            ^", LineKind::Other},
      {"  symbol: i", LineKind::Other},
      {"A.java:4: warning: [y] z", LineKind::Warning},
      {"1 error", LineKind::Other},
      {"", LineKind::Other},
      {"javac B.java", LineKind::Command},
      {"", LineKind::Other},
      {"B.java:7: error: x", LineKind::Error},
      {"Note: z", LineKind::Note},
  };
  const MessagesText text = both();
  ASSERT_EQ(text.lines.size(), std::size(lines));
  for (std::size_t i = 0; i < std::size(lines); ++i) {
    EXPECT_EQ(text.lines[i].text, lines[i].text);
    EXPECT_EQ(text.lines[i].kind, lines[i].kind) << lines[i].text;
    EXPECT_EQ(text.lines[i].columns, static_cast<int>(text.lines[i].text.size()));
  }
  EXPECT_EQ(text.widest(), 24);
  EXPECT_FALSE(text.shortened);
}

TEST(MessagesTextTest, MessagesKnowTheirLinesAndTheirFilesFromTheFolderOfTheirRun) {
  const MessagesText text = both();
  ASSERT_EQ(text.messages.size(), 4u);
  EXPECT_EQ(text.messages[0].place, (SourcePlace{inFolder("A.java"), 3, 6}));
  EXPECT_EQ(text.messages[0].logLine, 2u);
  EXPECT_EQ(text.messages[0].lastLine, 5u);
  EXPECT_EQ(text.messages[1].logLine, 6u);
  EXPECT_EQ(text.messages[1].lastLine, 6u) << "the count belongs to none";
  EXPECT_EQ(text.messages[2].place, (SourcePlace{inFolder("sub") + platform::folderSeparator + "B.java", 7, 0}));
  EXPECT_EQ(text.messages[3].place, std::nullopt);
}

TEST(MessagesTextTest, AWholePathStaysAsItIs) {
  const std::string whole = inFolder("A.java");
  const MessagesText text = messagesText("\n\njavac x\n\n" + whole + ":3: error: x\n", {{0, "elsewhere"}});
  ASSERT_EQ(text.messages.size(), 1u);
  EXPECT_EQ(text.messages[0].place->file, whole);
}

TEST(MessagesTextTest, TheCommandIsNoMessage) {
  EXPECT_TRUE(messagesText("\n\njavac: A.java:3: error: x\n\n", {{0, folder()}}).messages.empty());
}

TEST(MessagesTextTest, ASilentRunLeavesNothing) {
  const std::string said = "\n\njavac A.java\n\nx\n";
  const MessagesText text = messagesText(said, {{0, folder()}, {0, folder()}, {said.size(), folder()}});
  EXPECT_EQ(text.lines.size(), 3u);
  EXPECT_TRUE(messagesText("", {}).lines.empty());
}

TEST(MessagesTextTest, OfALongLogTheBeginningIsShownAndThatIsSaid) {
  const MessagesText text = both(5);
  EXPECT_EQ(text.lines.size(), 5u);
  EXPECT_TRUE(text.shortened);
  EXPECT_TRUE(text.messages.empty()) << "none of which a part is missing";
  EXPECT_EQ(messagesSummary(text, milliseconds(0)),
            "No errors or warnings, 0.0 s (the log is longer than what is shown)");
}

TEST(MessagesTextTest, ALineWithoutEndIsCut) {
  const MessagesText text = messagesText("\n\njavac\n\n" + std::string(1000000, 'x'), {{0, folder()}});
  EXPECT_EQ(text.lines.back().columns, 10000);
}

TEST(MessagesTextTest, TheSummaryTellsTheTimeToo) {
  EXPECT_EQ(messagesSummary(both(), milliseconds(1449)), "2 errors, 1 warning in 2 files, 1.4 s");
  EXPECT_EQ(messagesSummary(both(), milliseconds(61250)), "2 errors, 1 warning in 2 files, 61.3 s");
  EXPECT_EQ(messagesSummary(messagesText("\n\njavac\n\nhello\n", {{0, folder()}}), milliseconds(49)),
            "No errors or warnings, 0.0 s");
  EXPECT_EQ(messagesSummary({}, milliseconds(950)), "No messages, 1.0 s");
}

TEST(MessagesTextTest, NobodyTakesAToolThatWasEndedForOneThatHadNothingToSay) {
  const auto sum = [](const std::string& said, RunEnd end, std::size_t mostLines = 20000) {
    return messagesSummary(messagesText("\n\njavac\n\n" + said, {{0, folder()}}, mostLines), milliseconds(1000), end);
  };
  EXPECT_EQ(sum("\nStopped.\n", RunEnd::Stopped), "Stopped, 1.0 s");
  EXPECT_EQ(sum("A.java:1: error: x\n\nStopped.\n", RunEnd::Stopped), "1 error in 1 file, stopped, 1.0 s");
  EXPECT_EQ(sum("\nEnded by a signal: Killed\n", RunEnd::BySignal), "Ended by a signal, 1.0 s");
  EXPECT_EQ(sum("a\nb\n\nStopped.\n", RunEnd::Stopped, 3), "Stopped, 1.0 s (the log is longer than what is shown)");
  EXPECT_EQ(sum("Stopped.\nEnded by a signal: none\n", RunEnd::ByItself), "No errors or warnings, 1.0 s")
      << "a tool's own words";
}

TEST(MessagesTextTest, NotesOfOursHaveNoCommand) {
  const std::string said = "\n\njavac A.java\n\nx\n";
  const MessagesText text = messagesText(said + "\n\nStopped.\n", {{0, folder()}, {said.size(), folder(), {}, false}});
  ASSERT_EQ(text.lines.size(), 5u);
  EXPECT_EQ(text.lines[0].kind, MessagesText::LineKind::Command);
  EXPECT_EQ(text.lines[4].text, "Stopped.");
  EXPECT_EQ(text.lines[4].kind, MessagesText::LineKind::Other);
}

}  // namespace
}  // namespace tarnwick
