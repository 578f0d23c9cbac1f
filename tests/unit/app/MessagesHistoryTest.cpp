// What stands above the newest command's messages.
#include "app/MessagesHistory.h"
#include "platform/Characters.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using LineKind = MessagesText::LineKind;
using Lines = std::vector<std::string>;

MessagesText saidOf(const std::string& name) {
  return messagesText("\n\njavac " + name + "\n\n" + name + ":3: error: x\nNote: y\n", {{0, "folder"}});
}

Lines linesOf(const MessagesText& text) {
  Lines lines;
  for (const auto& line : text.lines) lines.push_back(line.text);
  return lines;
}

/// The sums of the earlier commands, and the newest one's own command line.
Lines outlineOf(const MessagesHistory& history) {
  Lines found;
  const MessagesText text = history.text();
  for (std::size_t i = 0; i < text.lines.size(); ++i) {
    const auto& line = text.lines[i];
    const bool isSum = line.kind == LineKind::Command && !line.text.starts_with("javac");
    if (isSum || i == text.newestLine) found.push_back(line.text);
  }
  return found;
}

TEST(MessagesHistoryTest, ASingleCommandIsShownAsItIs) {
  MessagesHistory history;
  EXPECT_TRUE(history.text().lines.empty());
  history.add(saidOf("A.java"), "1 error");
  const MessagesText text = history.text();
  EXPECT_EQ(linesOf(text), (Lines{"javac A.java", "", "A.java:3: error: x", "Note: y"}));
  EXPECT_EQ(text.newestLine, 0U);
  EXPECT_EQ(text.newestMessage, 0U);
}

TEST(MessagesHistoryTest, TheOnesBeforeStandAboveItEachBelowItsSum) {
  MessagesHistory history;
  history.add(saidOf("A.java"), "1 error \xC3\xA4, 0.1 s");
  history.add(saidOf("B.java"), "2 errors, 0.2 s");
  history.add(saidOf("C.java"), "3 errors, 0.3 s");
  const MessagesText text = history.text();
  EXPECT_EQ(linesOf(text),
            (Lines{"1 error \xC3\xA4, 0.1 s", "javac A.java", "", "A.java:3: error: x", "Note: y", "",  //
                   "2 errors, 0.2 s", "javac B.java", "", "B.java:3: error: x", "Note: y", "",          //
                   "javac C.java", "", "C.java:3: error: x", "Note: y"}));
  EXPECT_EQ(text.lines[0].kind, LineKind::Command) << "dimmed";
  EXPECT_EQ(text.lines[0].columns, 15 + static_cast<int>(platform::columnsOf("\xC3\xA4")));
  EXPECT_EQ(text.lines[9].kind, LineKind::Error);
  EXPECT_EQ(text.newestLine, 12U);
  EXPECT_EQ(text.newestMessage, 4U);
  ASSERT_EQ(text.messages.size(), 6U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(text.messages[2 * i].logLine, 3 + 6 * i - (i == 2 ? 1 : 0));
    EXPECT_EQ(text.messages[2 * i + 1].lastLine, 4 + 6 * i - (i == 2 ? 1 : 0));
  }
  EXPECT_TRUE(text.messages[2].place->file.ends_with("B.java"));
}

TEST(MessagesHistoryTest, ACommandThatSaidNothingLeavesNoTrace) {
  MessagesHistory history;
  history.add(saidOf("A.java"), "1 error");
  history.add({}, "No messages");
  const MessagesText text = history.text();
  EXPECT_EQ(text.newestLine, text.lines.size());
  EXPECT_EQ(text.newestMessage, text.messages.size());
  EXPECT_EQ(linesOf(text)[0], "1 error");
  history.add({}, "No messages");
  history.add(saidOf("B.java"), "1 warning");
  EXPECT_EQ(outlineOf(history), (Lines{"1 error", "javac B.java"}));
}

TEST(MessagesHistoryTest, OfTooManyTheOldestGo) {
  MessagesHistory history(3);
  for (const std::string name : {"A", "B", "C", "D"}) history.add(saidOf(name + ".java"), name);
  EXPECT_EQ(outlineOf(history), (Lines{"B", "C", "javac D.java"}));
  MessagesHistory usual;
  for (int i = 0; i < 15; ++i) usual.add(saidOf("A.java"), std::to_string(i));
  EXPECT_EQ(outlineOf(usual), (Lines{"5", "6", "7", "8", "9", "10", "11", "12", "13", "javac A.java"}));
}

TEST(MessagesHistoryTest, OfTooLongOnesTheOldestGoWhole) {
  const std::size_t bytes = std::string("javac A.java\n\nA.java:3: error: x\nNote: y\n").size();
  for (const std::size_t most : {2 * bytes, 3 * bytes - 1}) {
    MessagesHistory history(10, most);
    for (const std::string name : {"A", "B", "C"}) history.add(saidOf(name + ".java"), name);
    EXPECT_EQ(outlineOf(history), (Lines{"B", "javac C.java"})) << most;
  }
  MessagesHistory small(10, 5);
  small.add(saidOf("A.java"), "A");
  small.add(saidOf("B.java"), "B");
  EXPECT_EQ(outlineOf(small), Lines{"javac B.java"}) << "the newest stays in any case";
  MessagesText empty;
  empty.lines.resize(2 * bytes);
  MessagesHistory history(10, 2 * bytes);
  history.add(saidOf("A.java"), "A");
  history.add(empty, "B");
  EXPECT_EQ(history.text().newestLine, 0U) << "empty lines take room, too";
}

TEST(MessagesHistoryTest, TheNewestCanBeShownAnew) {
  MessagesHistory history;
  history.showAnew(saidOf("A.java"), "A");
  history.add(saidOf("B.java"), "B");
  history.showAnew(saidOf("C.java"), "C");
  EXPECT_EQ(outlineOf(history), (Lines{"A", "javac C.java"}));
  history.showAnew({}, "nothing");
  history.showAnew(saidOf("D.java"), "D");
  EXPECT_EQ(outlineOf(history), (Lines{"A", "javac D.java"}));
  history.clear();
  EXPECT_TRUE(history.text().lines.empty());
}

TEST(MessagesHistoryTest, WhetherThereWasMoreIsToldOfTheNewest) {
  MessagesHistory history;
  MessagesText cut = saidOf("A.java");
  cut.shortened = true;
  history.add(cut, "A");
  EXPECT_TRUE(history.text().shortened);
  history.add(saidOf("B.java"), "B");
  EXPECT_FALSE(history.text().shortened);
}

}  // namespace
}  // namespace tarnwick
