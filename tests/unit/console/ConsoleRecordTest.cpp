// Recording while a child runs.
#include "support/ConsoleFixture.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class ConsoleRecordTest : public test::ConsoleFixture {};

TEST_F(ConsoleRecordTest, ARecordingUnderFloodHoldsEveryLine) {
  const test::ScratchFolder scratch;
  const std::string file = scratch.file("record.txt");
  openRunning();
  desktop.saveAnswers = {file};
  ASSERT_TRUE(files.startRecording());
  std::string expected;
  for (int line = 0; line < 5000; ++line) {
    child->out("line " + std::to_string(line) + "\n");
    expected += "line " + std::to_string(line) + "\n";
  }
  ASSERT_TRUE(until([&] {
    const auto all = lines();
    return std::find(all.begin(), all.end(), "line 4999") != all.end();
  }));
  files.stopRecording();
  std::string content = test::contentOf(file);
  content.erase(std::remove(content.begin(), content.end(), '\r'), content.end());
  EXPECT_EQ(content, expected);
}

TEST_F(ConsoleRecordTest, WhatWasRecordedIsInTheFileAtTheEnd) {
  const test::ScratchFolder scratch;
  const std::string file = scratch.file("record.txt");
  openRunning();
  desktop.saveAnswers = {file};
  ASSERT_TRUE(files.startRecording());
  endChild();
  EXPECT_TRUE(document.recording());
  EXPECT_EQ(test::contentOf(file).substr(0, 1), "x") << "nobody stops a recording before looking at it";
  files.stopRecording();
}

}  // namespace
}  // namespace tarnwick
