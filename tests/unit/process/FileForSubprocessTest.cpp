#include "platform/Path.h"
#include "process/FileForSubprocess.h"
#include "support/ScriptedDesktop.h"
#include "support/TestProgram.h"

#include <climits>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr int field = 1001;

/// A path in this platform's spelling, from one with slashes.
std::string local(std::string path) {
  for (char& c : path) {
    if (c == '/') c = platform::folderSeparator;
  }
  return path;
}

class FileFieldTest : public testing::Test {
 protected:
  struct Handler : DialogHandler {
    void initialise(DialogWindow& /*window*/) override {}
    void onCommand(int /*control*/) override {}
    void onCloseRequest() override {}
  };

  static DialogLayout layoutWithField() {
    DialogLayout layout;
    layout.content.kind = ItemKind::Edit;
    layout.content.control = field;
    return layout;
  }

  Handler handler_;
  DialogLayout layout_ = layoutWithField();
  test::ScriptedWindow window_{layout_, handler_};
};

TEST_F(FileFieldTest, ANameInQuotesMayHoldBlanksAndArgumentsFollow) {
  window_.setText(field, R"("C:\Program Files\x.class" a b)");
  FileForSubprocess file(window_, field);
  EXPECT_EQ(file.name().fullName(), R"(C:\Program Files\x.class)");
  EXPECT_EQ(file.args(), std::vector<std::string>{"a b"}) << "the tail is one argument";
  EXPECT_FALSE(file.isEmpty());
}

TEST_F(FileFieldTest, ANameWithoutQuotesEndsAtTheFirstBlank) {
  window_.setText(field, "x.class  a");
  FileForSubprocess file(window_, field);
  EXPECT_EQ(file.name().fullName(), "x.class");
  EXPECT_EQ(file.args(), std::vector<std::string>{"a"});
}

TEST_F(FileFieldTest, FieldsAreTakenApart) {
  const struct {
    const char* typed;
    const char* name;
    std::vector<std::string> args;
  } table[] = {
      {"", "", {}},
      {" \t ", "", {}},
      {"  x.java \t", "x.java", {}},
      {"x.java \t \"a b\"  c ", "x.java", {"\"a b\"  c"}},
      {"\"x y\"", "x y", {}},
      {"\"x y", "x y", {}},
      {"\"x y\"a", "x y", {"a"}},
      {"\"\" a", "", {"a"}},
      {"a\"b c\"", "a\"b", {"c\""}},
  };
  for (const auto& row : table) {
    window_.setText(field, row.typed);
    const FileForSubprocess file(window_, field);
    EXPECT_EQ(file.name().fullName(), row.name) << row.typed;
    EXPECT_EQ(file.args(), row.args) << row.typed;
    EXPECT_EQ(file.isEmpty(), *row.name == '\0') << row.typed;
    EXPECT_EQ(file.mode(), FileMode::Undefined) << row.typed;
  }
}

TEST_F(FileFieldTest, ReadingRemembersThePreviousNameAndDropsArguments) {
  window_.setText(field, "one.java a");
  FileForSubprocess file(window_, field);
  EXPECT_EQ(file.previousName(), "");
  window_.setText(field, "two.java");
  file.readFromControl();
  EXPECT_EQ(file.name().fullName(), "two.java");
  EXPECT_EQ(file.previousName(), "one.java");
  EXPECT_TRUE(file.args().empty());
  window_.setText(field, "");
  file.readFromControl();
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.previousName(), "two.java");
  file.readFromControl();
  EXPECT_EQ(file.previousName(), "two.java") << "an empty name is not remembered";
}

TEST_F(FileFieldTest, WritesTheNameQuotedOnlyForABlank) {
  FileForSubprocess file("x.java");
  file.writeToControl("nobody sees this");
  file.bind(&window_, field);
  file.writeToControl(nullptr);
  EXPECT_EQ(window_.text(field), "x.java");
  file.setName("my x.java");
  file.writeToControl(nullptr);
  EXPECT_EQ(window_.text(field), "\"my x.java\"");
  file.writeToControl("as it stands");
  EXPECT_EQ(window_.text(field), "as it stands");
  EXPECT_EQ(file.name().fullName(), "my x.java");
}

TEST_F(FileFieldTest, WithoutADialogReadingDoesNothing) {
  FileForSubprocess file("x.java");
  file.args().push_back("a");
  file.readFromControl();
  EXPECT_EQ(file.name().fullName(), "x.java");
  EXPECT_EQ(file.args().size(), 1U);
  file.bind(&window_, field);
  window_.setText(field, "y.java");
  EXPECT_EQ(file.name().fullName(), "x.java") << "binding alone reads nothing";
  file.bind(nullptr, 0);
  file.readFromControl();
  EXPECT_EQ(file.name().fullName(), "x.java");
}

TEST(FileForSubprocessTest, StartsEmpty) {
  const FileForSubprocess file;
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.mode(), FileMode::Undefined);
  EXPECT_EQ(file.name().fullName(), "");
}

TEST(FileForSubprocessTest, ConstructionCleansTheName) {
  EXPECT_EQ(FileForSubprocess("  \"my x.java\" ").name().fullName(), "my x.java");
  EXPECT_FALSE(FileForSubprocess("x").isEmpty());
  EXPECT_TRUE(FileForSubprocess(" ").isEmpty());
  EXPECT_EQ(FileForSubprocess(local("/a b"), "x.java").name().fullName(), local("/a b/x.java"));
  EXPECT_EQ(FileForSubprocess("", "x.java").name().fullName(), "x.java");
}

TEST(FileForSubprocessTest, SetNameKeepsArgumentsAndClosesTheFile) {
  const test::ScratchFolder folder;
  test::writeFile(folder.file("x.java"), "class x {}");
  FileForSubprocess file(folder.file("x.java"));
  file.args() = {"a", "b"};
  file.open(FileMode::Read);
  file.setName("y.java");
  EXPECT_FALSE(file.isOpen());
  EXPECT_EQ(file.mode(), FileMode::Undefined);
  EXPECT_EQ(file.args(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(file.previousName(), folder.file("x.java"));
  file.setName("");
  EXPECT_TRUE(file.isEmpty());
  file.setName(folder.path(), "z.java");
  EXPECT_EQ(file.name().fullName(), folder.file("z.java"));
  EXPECT_EQ(file.previousName(), "y.java") << "the empty name between is not remembered";
}

TEST(FileForSubprocessTest, ResetKeepsArgumentsOnlyWhenTold) {
  FileForSubprocess file("x.java");
  file.setLastFolder("folder");
  file.args() = {"a"};
  file.reset(true);
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.name().fullName(), "");
  EXPECT_EQ(file.mode(), FileMode::Undefined);
  EXPECT_EQ(file.args().size(), 1U);
  EXPECT_EQ(file.lastFolder(), "folder");
  file.reset(false);
  EXPECT_TRUE(file.args().empty());
}

TEST(FileForSubprocessTest, AnIndexOutsideTheArgumentsIsThrown) {
  FileForSubprocess file("x.java");
  file.args() = {"a", "b"};
  file.arg(1) = "changed";
  EXPECT_EQ(file.args()[1], "changed");
  for (const int index : {-1, 2, INT_MAX, INT_MIN}) {
    try {
      file.arg(index);
      ADD_FAILURE() << index;
    } catch (const FileForSubprocess::NoMoreArgsE& e) {
      EXPECT_EQ(e.index, index);
    }
  }
}

TEST(FileForSubprocessTest, TextHoldsNameAndLastFolder) {
  FileForSubprocess file("x;y.java");
  file.setLastFolder("fold]er");
  EXPECT_EQ(file.toString(), "x];y.java;fold]]er");
  FileForSubprocess other;
  other.fromString(file.toString());
  EXPECT_EQ(other.name().fullName(), "x;y.java");
  EXPECT_EQ(other.lastFolder(), "fold]er");
  EXPECT_FALSE(other.isEmpty());
}

TEST(FileForSubprocessTest, TextTakesTheNamesFolderWhereThereIsNoOther) {
  FileForSubprocess file(local("/a/x.java"));
  EXPECT_EQ(file.toString(), local("/a/x.java;/a/"));
  file.setName("");
  EXPECT_EQ(file.toString(), local(";/a/")) << "that of the previous name";
}

TEST(FileForSubprocessTest, AnEmptyEntryIsASeparator) {
  FileForSubprocess file;
  EXPECT_EQ(file.toString(), ";");
  file.setName("x.java");
  file.fromString(";");
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.lastFolder(), "");
}

TEST(FileForSubprocessTest, BadTextLeavesTheEntryAsFarAsItGot) {
  for (const char* text : {"", "only one", "a]", "a]x;b"}) {
    FileForSubprocess file("x.java");
    file.args() = {"a"};
    file.setLastFolder("kept");
    EXPECT_NO_THROW(file.fromString(text)) << text;
    EXPECT_TRUE(file.isEmpty()) << text;
    EXPECT_TRUE(file.args().empty()) << text;
    EXPECT_EQ(file.lastFolder(), "kept") << text;
  }
}

TEST_F(FileFieldTest, APastedLineEndIsABlank) {
  window_.setText(field, "A.java\nJAVA_PATH  /planted/");
  FileForSubprocess file(window_, field);
  EXPECT_EQ(file.name().fullName(), "A.java");
  EXPECT_EQ(file.args(), std::vector<std::string>{"JAVA_PATH  /planted/"});
  window_.setText(field, "\"my\r\nA.java\"\n");
  file.readFromControl();
  EXPECT_EQ(file.name().fullName(), "my A.java");
}

}  // namespace
}  // namespace tarnwick
