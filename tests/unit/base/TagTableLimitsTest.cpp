// Files that are large, or in which everything goes wrong at once.
#include "base/TagRow.h"
#include "base/TagTable.h"
#include "base/Tarnwickfile.h"
#include "base/TokenString.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using test::ScratchFolder;
using test::writeFile;

/// Notes the order in which values are set.
struct Noter : StringableM {
  Noter(std::vector<std::string>& notes, std::string name) : notes_(notes), name_(std::move(name)) {}
  std::string toString() override { return ""; }
  void fromString(const std::string& text) override { notes_.push_back(name_ + '=' + text); }

 private:
  std::vector<std::string>& notes_;
  std::string name_;
};

/// Moves the process to another folder, so that a file with a relative name is lost.
struct Mover : StringableM {
  std::string toString() override { return ""; }
  void fromString(const std::string&) override { platform::changeDirectory(elsewhere.path()); }
  const ScratchFolder elsewhere;
};

/// A line that brings a bit of the status.
struct Fault {
  const char* line;
  int bit;
};

class TagTableLimits : public testing::Test {
 protected:
  /// Reads the content from a file with a relative name.
  int readHere(const std::string& content) {
    EXPECT_TRUE(platform::changeDirectory(folder_.path()));
    writeFile(path_, content);
    Tarnwickfile file = Tarnwickfile::unopened("x.cfg", FileMode::Read);
    return table_.read(file);
  }

  int read(const std::string& content) {
    writeFile(path_, content);
    Tarnwickfile file = Tarnwickfile::unopened(path_, FileMode::Read);
    return table_.read(file);
  }

  const ScratchFolder folder_;
  const std::string path_ = folder_.file("x.cfg");
  std::string text_ = "old";
  int number_ = 77;
  bool verbose_ = true;
  Mover mover_;
  std::vector<std::string> messages_;
  TagRow rows_[6] = {
      {"TEXT", &text_, nullptr, 0, 0, 0, 0},       {"NUMBER", &number_, nullptr, 0, 0, 0, 0},
      {"VERBOSE", &verbose_, nullptr, 0, 0, 0, 0}, {"BAD", std::monostate(), nullptr, 0, 0, 0, 0},
      {"MOVE", &mover_, nullptr, 0, 0, 0, 0},      endOfRows,
  };
  TagTable table_{rows_, "Tarnwick V4.7a", [this](const std::string& message) { messages_.push_back(message); }};
};

TEST_F(TagTableLimits, KindsAndTheMaskHaveTheirNumbers) {
  EXPECT_EQ(TAG_STRING, 0);
  EXPECT_EQ(TAG_INT, 1);
  EXPECT_EQ(TAG_BOOL, 2);
  EXPECT_EQ(TAG_STRINGABLE, 3);
  EXPECT_EQ(TAG_END, 4);
  EXPECT_EQ(READ_FAILURE_MASK, 26);
}

/// Those that leave the reading go on, in each order that sets of them have.
std::vector<std::vector<Fault>> allSets() {
  const std::vector<Fault> faults = {
      {"NO_SUCH_TAG  x\n", READ_UNKNOWN_TAG}, {"NUMBER  x\n", READ_BAD_VALUE}, {"VERBOSE\n", READ_NO_VALUE}};
  std::vector<std::vector<Fault>> sets = {{}};
  for (const auto& a : faults) {
    sets.push_back({a});
    for (const auto& b : faults) {
      if (&b == &a) continue;
      sets.push_back({a, b});
      for (const auto& c : faults)
        if (&c != &a && &c != &b) sets.push_back({a, b, c});
    }
  }
  return sets;
}

TEST_F(TagTableLimits, EveryStatusBitAloneAndCombined) {
  const std::string lost = "MOVE  away\nREM " + std::string(400, 'x') + '\n';
  const std::string badRow = "BAD  x\n";
  ASSERT_EQ(allSets().size(), 16U) << "none, three alone, six in twos, six in threes";
  for (const auto& faults : allSets()) {
    std::string content;
    int bits = 0;
    for (const auto& fault : faults) {
      content += fault.line;
      bits += fault.bit;
    }
    text_ = "old";
    EXPECT_EQ(readHere(content + "TEXT  read on\n"), bits) << content;
    EXPECT_EQ(text_, "read on");
    EXPECT_EQ((bits & READ_FAILURE_MASK) != 0, (bits & READ_BAD_VALUE) != 0) << "the two others are no failures";
    // These two end the reading, and are the whole status whatever came before; of both, what comes first.
    EXPECT_EQ(readHere(content + badRow + "TEXT  never\n"), READ_BAD_ROW) << content;
    EXPECT_EQ(readHere(content + lost + "TEXT  never\n"), READ_FILE_LOST) << content;
    EXPECT_EQ(readHere(content + lost + badRow + "TEXT  never\n"), READ_FILE_LOST) << content;
    EXPECT_EQ(readHere(content + badRow + lost + "TEXT  never\n"), READ_BAD_ROW) << content;
    EXPECT_EQ(text_, "read on");
  }
}

TEST_F(TagTableLimits, ALineOfAMillionCharactersIsReadWhole) {
  const std::string value(1000000 - std::string("TEXT  ").size(), 'x');
  EXPECT_EQ(read("NUMBER  4\nTEXT  " + value + "\nVERBOSE  OFF\n"), 0);
  EXPECT_EQ(text_.size(), value.size());
  EXPECT_TRUE(text_ == value);
  EXPECT_EQ(number_, 4);
  EXPECT_EQ(verbose_, 0);
}

TEST_F(TagTableLimits, AFileOf100000LinesIsReadToItsLastOne) {
  std::string content;
  for (int i = 0; i < 50000; ++i)
    content += "NUMBER  " + std::to_string(i) + "\nTEXT  line " + std::to_string(i) + '\n';
  EXPECT_EQ(read(content), 0);
  EXPECT_EQ(number_, 49999);
  EXPECT_EQ(text_, "line 49999");
}

TEST_F(TagTableLimits, AFileWithoutALastLineEndIsReadWholeForEveryKind) {
  EXPECT_EQ(read("NUMBER  12"), 0);
  EXPECT_EQ(number_, 12);
  EXPECT_EQ(read("NUMBER  4\nVERBOSE  OFF"), 0);
  EXPECT_EQ(verbose_, 0);
  EXPECT_EQ(read("TEXT"), 0);
  EXPECT_EQ(text_, "");
  EXPECT_EQ(read("NUMBER"), READ_NO_VALUE);
}

TEST_F(TagTableLimits, TheMessageOfABadRowNamesTheTagOfTheLineAndThatOfTheRow) {
  EXPECT_EQ(read("bad x\n"), READ_BAD_ROW);
  EXPECT_EQ(messages_, std::vector<std::string>{"Settings: Error processing tag \"BAD\"/\"BAD\""});
}

TEST_F(TagTableLimits, ATagOf63CharactersIsReadAndALongerOneIsUnknown) {
  const std::string longest(63, 'T');
  rows_[0].tag = longest.c_str();
  EXPECT_EQ(read(longest + "  x\n"), 0);
  EXPECT_EQ(text_, "x");
  EXPECT_EQ(read(longest + "T  y\n"), READ_UNKNOWN_TAG);
  EXPECT_EQ(text_, "x");
}

TEST_F(TagTableLimits, ResettingGoesInTheOrderOfTheTable) {
  std::vector<std::string> notes;
  Noter first(notes, "first");
  Noter second(notes, "second");
  Noter third(notes, "third");
  const TagRow rows[] = {
      {"C", &first, "1", 0, 0, 148, 0},
      {"B", &third, "3", 0, 0, 150, 0},
      {"A", &second, nullptr, 0, 0, 148, 0},
      endOfRows,
  };
  TagTable(rows, "", nullptr).resetToDefaults(148);
  EXPECT_EQ(notes, (std::vector<std::string>{"first=1", "second="}));
}

TEST_F(TagTableLimits, NeitherReadingNorWritingNorResettingLooksAtPageOrControl) {
  rows_[0].page = rows_[1].page = 999;
  rows_[0].control = -1;
  EXPECT_EQ(read("TEXT  x\nNUMBER  3\n"), 0);
  EXPECT_EQ(text_, "x");
  rows_[1].owner = 148;
  table_.resetToDefaults(148);
  EXPECT_EQ(number_, 0);
  EXPECT_EQ(text_, "x");
}

}  // namespace
}  // namespace tarnwick
