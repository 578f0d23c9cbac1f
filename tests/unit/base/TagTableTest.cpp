#include "base/LineEndE.h"
#include "base/TagRow.h"
#include "base/TagTable.h"
#include "base/Tarnwickfile.h"
#include "base/TokenString.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

constexpr int ownDialog = 148;
constexpr int otherDialog = 150;
/// A small owner of a table, as the settings are a large one.
struct Owner {
  std::string text = "old";
  std::string other = "old";
  int number = 77;
  bool verbose = true;
  bool debug = false;
  int byHand = 5;
  TokenString list;
  std::vector<std::string> messages;
  TagRow rows[8] = {
      {"JAVA_PATH", &text, "default text", 0, 1, ownDialog, 1041},
      {"EDITOR=NOTEPAD", &other, nullptr, 0, 0, ownDialog, 0},
      {"FILEVIEW_TAB", &number, nullptr, 8, 2, ownDialog, 0},
      {"JAVA_VERBOSE", &verbose, nullptr, 0, 0, ownDialog, 0},
      {"JAVAC_DEBUG", &debug, nullptr, 12, 0, otherDialog, 0},
      {"JDOC_TAG", &list, "a;b", 0, 0, otherDialog, 0},
      {"BY_HAND", &byHand, nullptr, 9, 0, 0, 0},
      endOfRows,
  };
  TagTable table{rows, "Tarnwick V4.7a", [this](const std::string& message) { messages.push_back(message); }};
};

class TagTableTest : public testing::Test {
 protected:
  int read(const std::string& content) {
    writeFile(path, content);
    Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
    return owner.table.read(file);
  }

  std::string written() {
    {
      Tarnwickfile file(path, FileMode::Write);
      owner.table.write(file);
    }
    std::string text = contentOf(path);
    std::erase(text, '\r');
    return text;
  }

  const ScratchFolder folder;
  const std::string path = folder.file("x.cfg");
  Owner owner;
};

TEST_F(TagTableTest, TheStatusBitsHaveTheirValues) {
  EXPECT_EQ(READ_UNKNOWN_TAG, 1);
  EXPECT_EQ(READ_BAD_VALUE, 2);
  EXPECT_EQ(READ_NO_VALUE, 4);
  EXPECT_EQ(READ_FILE_LOST, 8);
  EXPECT_EQ(READ_BAD_ROW, 16);
  EXPECT_EQ(READ_FAILURE_MASK, READ_BAD_VALUE | READ_FILE_LOST | READ_BAD_ROW);
}

TEST_F(TagTableTest, TheKindsHaveTheirValues) {
  EXPECT_EQ(TAG_STRING, 0);
  EXPECT_EQ(TAG_INT, 1);
  EXPECT_EQ(TAG_BOOL, 2);
  EXPECT_EQ(TAG_STRINGABLE, 3);
  EXPECT_EQ(TAG_END, 4);
}

TEST_F(TagTableTest, TheTableKeepsThePointerToItsRows) {
  EXPECT_EQ(owner.table.rows(), owner.rows);
}

TEST_F(TagTableTest, ResettingSetsTheRowsOfOneOwnerToTheirDefaults) {
  owner.list.fromString("x");
  owner.table.resetToDefaults(ownDialog);
  EXPECT_EQ(owner.text, "default text");
  EXPECT_EQ(owner.other, "") << "no default text is the empty one";
  EXPECT_EQ(owner.number, 8);
  EXPECT_FALSE(owner.verbose);
  EXPECT_EQ(owner.debug, 0) << "another owner's";
  EXPECT_EQ(owner.list.toString(), "x") << "another owner's";

  owner.table.resetToDefaults(otherDialog);
  EXPECT_EQ(owner.debug, 1) << "any number but 0 switches on";
  EXPECT_EQ(owner.list.toString(), "a;b");
}

TEST_F(TagTableTest, ResettingAStringableWithoutDefaultEmptiesIt) {
  owner.list.fromString("x");
  owner.rows[5].defaultText = nullptr;
  owner.table.resetToDefaults(otherDialog);
  EXPECT_EQ(owner.list.count(), 0);
}

TEST_F(TagTableTest, RowsWithoutAnOwnerAreNeverReset) {
  owner.table.resetToDefaults(0);
  EXPECT_EQ(owner.byHand, 5);
}

TEST_F(TagTableTest, WritesTheHeaderAndARowALine) {
  owner.text = "C:\\jdk\\bin\\";
  owner.other = "";
  owner.number = -5;
  owner.list.fromString("a];b;c");
  EXPECT_EQ(written(),
            "REM  This configuration file was written by Tarnwick V4.7a\n"
            "REM\n"
            "JAVA_PATH  C:\\jdk\\bin\\\n"
            "EDITOR=NOTEPAD \n"
            "FILEVIEW_TAB  -5\n"
            "JAVA_VERBOSE  ON\n"
            "JAVAC_DEBUG  OFF\n"
            "JDOC_TAG  a];b;c\n"
            "BY_HAND  5\n");
}

TEST_F(TagTableTest, AnEmptyStringableIsWrittenAsTheTagAndTwoBlanks) {
  EXPECT_NE(written().find("\nJDOC_TAG  \n"), std::string::npos);
}

TEST_F(TagTableTest, ASwitchIsWrittenAsOn) {
  owner.verbose = true;
  EXPECT_NE(written().find("\nJAVA_VERBOSE  ON\n"), std::string::npos);
}

TEST_F(TagTableTest, ARowOfAnUnknownKindIsPassedOverInWriting) {
  owner.rows[2].variable = std::monostate();
  EXPECT_EQ(written().find("FILEVIEW_TAB"), std::string::npos);
  EXPECT_NE(written().find("\nJAVA_VERBOSE  ON\n"), std::string::npos);
}

TEST_F(TagTableTest, WritingTwiceIntoOneFileWritesTheHeaderTwice) {
  {
    Tarnwickfile file(path, FileMode::Write);
    owner.table.write(file);
    owner.table.write(file);
    EXPECT_TRUE(file.isOpen()) << "the caller closes it";
  }
  const std::string text = contentOf(path);
  const auto first = text.find("REM  This configuration file was written by Tarnwick V4.7a");
  EXPECT_EQ(first, 0u);
  EXPECT_NE(text.find("REM  This configuration file was written by Tarnwick V4.7a", first + 1), std::string::npos);
}

TEST_F(TagTableTest, AValueWithALineEndIsRefusedBeforeAnythingIsWritten) {
  struct Lines : StringableM {
    std::string toString() override { return "a\nJAVA_PATH  /planted/"; }
    void fromString(const std::string&) override {}
  } lines;
  const auto refusal = [this] {
    Tarnwickfile file(path, FileMode::Write);
    try {
      owner.table.write(file);
    } catch (const TagTable::LineEndE& failure) {
      EXPECT_EQ(failure.file, path);
      return failure.message;
    }
    return std::string("written");
  };
  owner.other = "x\nJAVA_PATH  /planted/";
  EXPECT_EQ(refusal(), "The value of EDITOR=NOTEPAD holds a line end");
  EXPECT_EQ(contentOf(path), "") << "not even the lines before it";
  owner.other = "x\n";
  EXPECT_EQ(refusal(), "The value of EDITOR=NOTEPAD holds a line end");
  owner.other = "x";
  owner.rows[5].variable = &lines;
  EXPECT_EQ(refusal(), "The value of JDOC_TAG holds a line end");
}

TEST_F(TagTableTest, AZeroByteEndsItsValueAndNotTheFile) {
  owner.text = std::string("one\0two", 7);
  const std::string text = written();
  EXPECT_NE(text.find("\nJAVA_PATH  one\nEDITOR=NOTEPAD  old\n"), std::string::npos) << text;
}

TEST_F(TagTableTest, WritingToAClosedFileThrows) {
  Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Write);
  try {
    owner.table.write(file);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "Attempt to access file that has not been opened.");
    EXPECT_EQ(failure.file, path);
  }
}

TEST_F(TagTableTest, ReadsEveryKind) {
  EXPECT_EQ(read("JAVA_PATH  C:\\jdk\\bin\\\n"
                 "EDITOR=NOTEPAD  x\n"
                 "FILEVIEW_TAB  42\n"
                 "JAVA_VERBOSE  OFF\n"
                 "JAVAC_DEBUG  ON\n"
                 "JDOC_TAG  a];b;c\n"),
            0);
  EXPECT_EQ(owner.text, "C:\\jdk\\bin\\");
  EXPECT_EQ(owner.other, "x");
  EXPECT_EQ(owner.number, 42);
  EXPECT_FALSE(owner.verbose);
  EXPECT_EQ(owner.debug, 1);
  EXPECT_EQ(owner.list.count(), 2);
  EXPECT_EQ(owner.list.element(0), "a;b");
  EXPECT_EQ(owner.byHand, 5) << "a row whose tag does not occur keeps what it held";
}

TEST_F(TagTableTest, AFileThatHoldsOnlyRemLinesYieldsStatusZeroAndChangesNothing) {
  EXPECT_EQ(read("REM  This configuration file was written by Tarnwick V4.7a\nREM\nrem JAVA_PATH x\n  REM y\n"), 0);
  EXPECT_EQ(owner.text, "old");
}

TEST_F(TagTableTest, ATagThatOnlyBeginsWithRemIsNoComment) {
  EXPECT_EQ(read("REMARK x\n"), READ_UNKNOWN_TAG);
}

TEST_F(TagTableTest, AnEmptyFileYieldsStatusZero) {
  EXPECT_EQ(read(""), 0);
}

TEST_F(TagTableTest, AnEmptyLineInTheMiddleOfAFileYieldsUnknownTagAndNothingElse) {
  const int status = read("FILEVIEW_TAB  3\n\nJAVA_PATH  x\n");
  EXPECT_EQ(status, READ_UNKNOWN_TAG);
  EXPECT_EQ(status & READ_FAILURE_MASK, 0);
  EXPECT_EQ(owner.number, 3);
  EXPECT_EQ(owner.text, "x");
}

TEST_F(TagTableTest, AnUnknownTagIsIgnoredButTold) {
  EXPECT_EQ(read("NO_SUCH_TAG  x\nJAVA_PATH  y\n"), READ_UNKNOWN_TAG);
  EXPECT_EQ(owner.text, "y");
}

TEST_F(TagTableTest, ATagOfMoreThan63CharactersIsUnknown) {
  EXPECT_EQ(read("JAVA_PATH" + std::string(55, 'X') + "  x\n"), READ_UNKNOWN_TAG);
  EXPECT_EQ(owner.text, "old");
}

TEST_F(TagTableTest, ASwitchAloneOnALineYieldsNoValueAndKeepsTheVariable) {
  const int status = read("JAVA_VERBOSE\n");
  EXPECT_EQ(status, READ_NO_VALUE);
  EXPECT_EQ(status & READ_FAILURE_MASK, 0);
  EXPECT_TRUE(owner.verbose);
}

TEST_F(TagTableTest, ANumberAloneOnALineYieldsNoValueAndKeepsTheVariable) {
  EXPECT_EQ(read("FILEVIEW_TAB  \n"), READ_NO_VALUE);
  EXPECT_EQ(owner.number, 77);
}

TEST_F(TagTableTest, AStringAloneOnALineIsEmptied) {
  EXPECT_EQ(read("JAVA_PATH\n"), 0);
  EXPECT_EQ(owner.text, "");
}

TEST_F(TagTableTest, DigitsBeforeOtherCharactersAreStoredAndTheValueIsBad) {
  const int status = read("FILEVIEW_TAB  12x\n");
  EXPECT_EQ(status, READ_BAD_VALUE);
  EXPECT_NE(status & READ_FAILURE_MASK, 0);
  EXPECT_EQ(owner.number, 12);
}

TEST_F(TagTableTest, ANumberMayBeNegative) {
  EXPECT_EQ(read("FILEVIEW_TAB  -5\n"), 0);
  EXPECT_EQ(owner.number, -5);
}

TEST_F(TagTableTest, NumbersThatAreNone) {
  const struct {
    const char* value;
    int status;
    int number;
  } cases[] = {{"-", 0, 0},
               {"+5", READ_BAD_VALUE, 0},
               {"--5", READ_BAD_VALUE, 0},
               {"-12x3", READ_BAD_VALUE, -12},
               {"x", READ_BAD_VALUE, 0},
               {"7 ", READ_BAD_VALUE, 7},
               {"1 2", READ_BAD_VALUE, 1},
               {"007", 0, 7}};
  for (const auto& one : cases) {
    owner.number = 77;
    EXPECT_EQ(read("FILEVIEW_TAB  " + std::string(one.value) + "\n"), one.status) << one.value;
    EXPECT_EQ(owner.number, one.number) << one.value;
  }
}

TEST_F(TagTableTest, TooLargeANumberWrapsAroundUnnoticed) {
  EXPECT_EQ(read("FILEVIEW_TAB  2147483647\n"), 0);
  EXPECT_EQ(owner.number, std::numeric_limits<int>::max());
  EXPECT_EQ(read("FILEVIEW_TAB  2147483648\n"), 0);
  EXPECT_EQ(owner.number, std::numeric_limits<int>::min());
  EXPECT_EQ(read("FILEVIEW_TAB  -2147483648\n"), 0);
  EXPECT_EQ(owner.number, std::numeric_limits<int>::min());
  EXPECT_EQ(read("FILEVIEW_TAB  4294967299\n"), 0);
  EXPECT_EQ(owner.number, 3);
  EXPECT_EQ(read("FILEVIEW_TAB  -99999999999999999999\n"), 0);
  EXPECT_EQ(owner.number, -1661992959);
}

TEST_F(TagTableTest, ASwitchThatIsNeitherOnNorOffIsBadAndKept) {
  EXPECT_EQ(read("JAVA_VERBOSE  maybe\n"), READ_BAD_VALUE);
  EXPECT_TRUE(owner.verbose);
  EXPECT_EQ(read("JAVAC_DEBUG  maybe\n"), READ_BAD_VALUE);
  EXPECT_EQ(owner.debug, 0);
  EXPECT_EQ(read("JAVAC_DEBUG  ONE\n"), READ_BAD_VALUE);
  EXPECT_EQ(owner.debug, 0);
}

TEST_F(TagTableTest, TagsAndSwitchesIgnoreCase) {
  EXPECT_EQ(read("javac_debug  on\nJava_Path  Mixed Case\n"), 0);
  EXPECT_EQ(owner.debug, 1);
  EXPECT_EQ(owner.text, "Mixed Case");
}

TEST_F(TagTableTest, WordsBehindASwitchAreCutOff) {
  EXPECT_EQ(read("JAVAC_DEBUG  ON  trailing words\nJAVA_VERBOSE off\tx\n"), 0);
  EXPECT_EQ(owner.debug, 1);
  EXPECT_FALSE(owner.verbose);
}

TEST_F(TagTableTest, MalformedTextOfAStringableLeavesNoTraceInTheStatus) {
  EXPECT_EQ(read("JDOC_TAG  a]x\nFILEVIEW_TAB  4\n"), 0);
  EXPECT_EQ(owner.list.count(), 0);
  EXPECT_EQ(owner.number, 4) << "the reading goes on";
}

TEST_F(TagTableTest, WhiteSpaceAroundTheTagDoesNotCount) {
  EXPECT_EQ(read(" \t JAVA_PATH\t \v x y\n\fFILEVIEW_TAB 4\n"), 0);
  EXPECT_EQ(owner.text, "x y");
  EXPECT_EQ(owner.number, 4);
}

TEST_F(TagTableTest, TheLastOfSeveralLinesWithATagCounts) {
  EXPECT_EQ(read("JAVA_PATH  one\nJAVA_PATH  two\n"), 0);
  EXPECT_EQ(owner.text, "two");
}

TEST_F(TagTableTest, TheFirstOfSeveralRowsWithATagIsTaken) {
  owner.rows[1].tag = "JAVA_PATH";
  EXPECT_EQ(read("JAVA_PATH  one\n"), 0);
  EXPECT_EQ(owner.text, "one");
  EXPECT_EQ(owner.other, "old");
}

TEST_F(TagTableTest, TheLastLineNeedsNoLineEnd) {
  EXPECT_EQ(read("JAVA_PATH  x"), 0);
  EXPECT_EQ(owner.text, "x");
}

TEST_F(TagTableTest, LinesMayEndInCarriageReturnAndLineFeed) {
  EXPECT_EQ(read("REM\r\nFILEVIEW_TAB  4\r\nJAVA_VERBOSE  OFF\r\nJAVA_PATH  x\r\n"), 0);
  EXPECT_EQ(owner.number, 4);
  EXPECT_FALSE(owner.verbose);
  EXPECT_EQ(owner.text, "x");
}

TEST_F(TagTableTest, WritingAndReadingBackYieldsTheSameValuesForEveryRow) {
  owner.text = "some text = with ] ; signs";
  owner.other = "";
  owner.number = std::numeric_limits<int>::min();
  owner.list.fromString("a];b;;c]]");
  written();
  const Owner before = owner;
  owner.other = "changed";
  owner.text = owner.other;
  owner.number = owner.byHand = 0;
  owner.verbose = false;
  owner.debug = true;
  owner.list.fromString("");
  Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
  EXPECT_EQ(owner.table.read(file), 0);
  EXPECT_EQ(owner.text, before.text);
  EXPECT_EQ(owner.other, "") << "written as the tag and one blank";
  EXPECT_EQ(owner.number, before.number);
  EXPECT_TRUE(owner.verbose);
  EXPECT_EQ(owner.debug, 0);
  EXPECT_EQ(owner.byHand, before.byHand);
  EXPECT_EQ(owner.list.toString(), "a];b;;c]]");
}

TEST_F(TagTableTest, BlanksAtTheEndOfAValueAreKeptAndLeadingOnesLost) {
  owner.text = "  x  ";
  written();
  Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
  EXPECT_EQ(owner.table.read(file), 0);
  EXPECT_EQ(owner.text, "x  ");
}

TEST_F(TagTableTest, ALineOf300CharactersIsReadWholeAndTheSecondPassChangesNothing) {
  const std::string value(300 - std::string("JAVA_PATH  \n").size(), 'x');
  EXPECT_EQ(read("FILEVIEW_TAB  4\nJAVA_PATH  " + value + "\nJAVAC_DEBUG  ON\n"), 0);
  EXPECT_EQ(owner.text, value);
  EXPECT_EQ(owner.number, 4);
  EXPECT_EQ(owner.debug, 1);
}

TEST_F(TagTableTest, ALineOfAnyLengthIsReadWhole) {
  const std::string intro = "JAVA_PATH  ";
  for (const std::size_t length : {252, 253, 254, 255, 256, 257, 509, 510, 511, 512, 513, 20000}) {
    const std::string value(length - intro.size() - 1, 'x');
    for (const std::string end : {"\n", ""}) {
      EXPECT_EQ(read(intro + value + end), 0) << length;
      EXPECT_EQ(owner.text, value) << length;
    }
  }
}

/// A value that counts how often it is set.
struct Counter : StringableM {
  std::string toString() override { return ""; }
  void fromString(const std::string&) override { ++count; }
  int count = 0;
};

TEST_F(TagTableTest, TheLimitIsOfTheFileAndNotOfAllThatIsReadOfItForALongLine) {
  const std::string value(40'000'000, 'x');
  EXPECT_EQ(read("JAVA_PATH  " + value + '\n'), 0);
  EXPECT_EQ(owner.text.size(), value.size());
}

TEST_F(TagTableTest, ALineUpTo253CharactersNeedsOnePassAndEachDoublingCostsOne) {
  const std::string intro = "JAVA_PATH  ";
  const struct {
    std::size_t length;
    int passes;
  } cases[] = {{253, 1}, {254, 2}, {509, 2}, {510, 3}, {1021, 3}, {1022, 4}, {4000000, 15}};
  for (const auto& one : cases) {
    Counter counter;
    owner.rows[5].variable = &counter;
    EXPECT_EQ(read("JDOC_TAG  x\n" + intro + std::string(one.length - intro.size() - 1, 'x') + "\n"), 0);
    EXPECT_EQ(counter.count, one.passes) << one.length;
  }
}

TEST_F(TagTableTest, TheStatusCollectedBeforeALongLineIsKept) {
  EXPECT_EQ(read("NO_SUCH_TAG\nJAVA_VERBOSE\nREM " + std::string(400, 'x') + "\n"), READ_UNKNOWN_TAG | READ_NO_VALUE);
}

/// A value that moves the process to another folder, so that a file with a relative name is lost.
struct Mover : StringableM {
  explicit Mover(std::string folder) : folder_(std::move(folder)) {}
  std::string toString() override { return ""; }
  void fromString(const std::string&) override { platform::changeDirectory(folder_); }

 private:
  std::string folder_;
};

TEST_F(TagTableTest, AFileThatCannotBeReopenedForALongLineIsLost) {
  const ScratchFolder elsewhere;
  Mover mover(elsewhere.path());
  owner.rows[5].variable = &mover;
  writeFile(path, "NO_SUCH_TAG\nFILEVIEW_TAB  4\nJDOC_TAG  x\nREM " + std::string(400, 'x') + "\n");
  ASSERT_TRUE(platform::changeDirectory(folder.path()));
  Tarnwickfile file = Tarnwickfile::unopened("x.cfg", FileMode::Read);
  EXPECT_EQ(owner.table.read(file), READ_FILE_LOST) << "exactly, whatever was collected before";
  EXPECT_FALSE(file.isOpen());
  EXPECT_EQ(owner.number, 4) << "what was read stays";
}

TEST_F(TagTableTest, AFileThatCannotBeOpenedThrowsToTheCaller) {
  Tarnwickfile file = Tarnwickfile::unopened(folder.file("missing.cfg"), FileMode::Read);
  try {
    owner.table.read(file);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.file, folder.file("missing.cfg"));
  }
  EXPECT_EQ(owner.text, "old");
}

TEST_F(TagTableTest, ReadingStartsAtTheBeginningAndLeavesTheFileOpenAtItsEnd) {
  writeFile(path, "FILEVIEW_TAB  4\nJAVA_PATH  x\n");
  Tarnwickfile file(path, FileMode::Read);
  char line[40];
  ASSERT_TRUE(std::fgets(line, sizeof line, file.stream()));
  EXPECT_EQ(owner.table.read(file), 0);
  EXPECT_EQ(owner.number, 4);
  EXPECT_TRUE(file.isOpen());
  EXPECT_EQ(std::fgetc(file.stream()), EOF);
}

TEST_F(TagTableTest, ARowOfAnUnknownKindIsToldAndEndsTheReading) {
  owner.rows[2].variable = std::monostate();
  EXPECT_EQ(read("NO_SUCH_TAG\nJAVA_PATH  one\nfileview_tab  3\nJAVA_PATH  two\n"), READ_BAD_ROW)
      << "exactly, whatever was collected before";
  ASSERT_EQ(owner.messages.size(), 1u);
  EXPECT_EQ(owner.messages[0], "Settings: Error processing tag \"FILEVIEW_TAB\"/\"FILEVIEW_TAB\"");
  EXPECT_EQ(owner.text, "one");
  EXPECT_EQ(owner.number, 77);
}

TEST_F(TagTableTest, NothingIsToldOfAFileThatIsMerelyBad) {
  read("NO_SUCH_TAG\nFILEVIEW_TAB  x\nJAVA_VERBOSE\n");
  EXPECT_TRUE(owner.messages.empty());
}

TEST_F(TagTableTest, OneFileHoldsTheTagsOfTwoTables) {
  std::string name = "before";
  const TagRow second[] = {{"PROJECT_NAME", &name, nullptr, 0, 0, 0, 0}, endOfRows};
  TagTable project(second, "Tarnwick V4.7a", nullptr);
  owner.text = "x";
  name = "y";
  {
    Tarnwickfile file(path, FileMode::Write);
    owner.table.write(file);
    project.write(file);
  }
  owner.text = name = "";
  Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
  EXPECT_EQ(owner.table.read(file), READ_UNKNOWN_TAG);
  EXPECT_EQ(project.read(file), READ_UNKNOWN_TAG);
  EXPECT_EQ(owner.text, "x");
  EXPECT_EQ(name, "y");
}

TEST_F(TagTableTest, AZeroByteHidesTheRestOfItsLine) {
  EXPECT_EQ(read(std::string("JAVA_PATH  a\0b\nFILEVIEW_TAB  4\n", 31)), 0);
  EXPECT_EQ(owner.text, "a");
  EXPECT_EQ(owner.number, 4);
}

TEST_F(TagTableTest, AFileCutAnywhereIsReadWithoutHarm) {
  owner.list.fromString("a];b;c");
  const std::string whole = written();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const int status = read(whole.substr(0, length));
    EXPECT_EQ(status & (READ_FILE_LOST | READ_BAD_ROW), 0) << length;
  }
}

/// A table whose last rows came later.
class LaterRowsTest : public testing::Test {
 protected:
  std::string written() {
    {
      Tarnwickfile file(path_, FileMode::Write);
      table_.write(file);
    }
    std::string text = contentOf(path_);
    std::erase(text, '\r');
    return text;
  }
  void read(const std::string& content) {
    writeFile(path_, content);
    Tarnwickfile file = Tarnwickfile::unopened(path_, FileMode::Read);
    EXPECT_EQ(table_.read(file), 0);
  }

  const ScratchFolder folder_;
  const std::string path_ = folder_.file("x.cfg");
  std::string first_;
  std::string text_ = "by default";
  int number_ = 7;
  bool on_ = true;
  TokenString list_;
  TagRow rows_[6] = {
      {"FIRST", &first_, "not applied", 0, 0, ownDialog, 0},   {"TEXT", &text_, "by default", 0, 0, ownDialog, 0, true},
      {"NUMBER", &number_, nullptr, 7, 0, ownDialog, 0, true}, {"SWITCH", &on_, nullptr, 1, 0, ownDialog, 0, true},
      {"LIST", &list_, nullptr, 0, 0, ownDialog, 0, true},     endOfRows,
  };
  TagTable table_{rows_, "Tarnwick V4.7a", [](const std::string&) {}};
};

const char laterHeader[] = "REM  This configuration file was written by Tarnwick V4.7a\nREM\nFIRST \n";

TEST_F(LaterRowsTest, WithTheirDefaultsTheyAreNotWritten) {
  EXPECT_EQ(written(), laterHeader);
}

TEST_F(LaterRowsTest, EachIsWrittenWhereItsValueIsAnother) {
  text_.clear();
  EXPECT_EQ(written(), std::string(laterHeader) + "TEXT \n");
  number_ = 8;
  on_ = false;
  list_.fromString("a;b");
  EXPECT_EQ(written(), std::string(laterHeader) + "TEXT \nNUMBER  8\nSWITCH  OFF\nLIST  a;b\n");
}

TEST_F(LaterRowsTest, AFileWithoutThemMeansTheirDefaults) {
  first_ = "stays";
  text_ = "x";
  number_ = 1;
  on_ = false;
  list_.fromString("a;b");
  read("REM\n");
  EXPECT_EQ(first_, "stays") << "the others keep what they hold";
  EXPECT_EQ(text_, "by default");
  EXPECT_EQ(number_, 7);
  EXPECT_TRUE(on_);
  EXPECT_EQ(list_.toString(), "");
}

TEST_F(LaterRowsTest, WhatAFileSaysOfThemHolds) {
  read("SWITCH OFF\nNUMBER 3\nREM" + std::string(1000, ' ') + "\nTEXT t\n");
  EXPECT_FALSE(on_);
  EXPECT_EQ(number_, 3);
  EXPECT_EQ(text_, "t");
}

TEST_F(LaterRowsTest, AFileThatCantBeReadChangesNothing) {
  text_ = "x";
  Tarnwickfile file = Tarnwickfile::unopened(folder_.file("none.cfg"), FileMode::Read);
  EXPECT_THROW(table_.read(file), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(text_, "x");
}

}  // namespace
}  // namespace tarnwick
