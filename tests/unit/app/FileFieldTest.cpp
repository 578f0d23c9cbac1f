#include "app/FileField.h"
#include "base/FileForSubprocess.h"
#include "base/TokenString.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr int field = 1001;

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
  /// A file, and the field that it is read from.
  struct Shown {
    explicit Shown(test::ScriptedWindow& window) {
      mirror.bind(&window, field);
      mirror.read();
    }
    FileForSubprocess file;
    TokenString last;
    FileField mirror{file, last};
  };

  test::ScriptedWindow window_{layout_, handler_};
};

TEST_F(FileFieldTest, ANameInQuotesMayHoldBlanksAndArgumentsFollow) {
  window_.setText(field, R"("C:\Program Files\x.class" a b)");
  Shown shown(window_);
  const FileForSubprocess& file = shown.file;
  EXPECT_EQ(file.name().fullName(), R"(C:\Program Files\x.class)");
  EXPECT_EQ(file.args(), std::vector<std::string>{"a b"}) << "the tail is one argument";
  EXPECT_FALSE(file.isEmpty());
}

TEST_F(FileFieldTest, ANameWithoutQuotesEndsAtTheFirstBlank) {
  window_.setText(field, "x.class  a");
  Shown shown(window_);
  const FileForSubprocess& file = shown.file;
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
    Shown shown(window_);
    const FileForSubprocess& file = shown.file;
    EXPECT_EQ(file.name().fullName(), row.name) << row.typed;
    EXPECT_EQ(file.args(), row.args) << row.typed;
    EXPECT_EQ(file.isEmpty(), *row.name == '\0') << row.typed;
  }
}

TEST_F(FileFieldTest, ReadingRemembersThePreviousNameAndDropsArguments) {
  window_.setText(field, "one.java a");
  Shown shown(window_);
  const FileForSubprocess& file = shown.file;
  EXPECT_EQ(file.previousName(), "");
  window_.setText(field, "two.java");
  shown.mirror.read();
  EXPECT_EQ(file.name().fullName(), "two.java");
  EXPECT_EQ(file.previousName(), "one.java");
  EXPECT_TRUE(file.args().empty());
  window_.setText(field, "");
  shown.mirror.read();
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.previousName(), "two.java");
  shown.mirror.read();
  EXPECT_EQ(file.previousName(), "two.java") << "an empty name is not remembered";
}

TEST_F(FileFieldTest, WritesTheNameQuotedOnlyForABlank) {
  FileForSubprocess file("x.java");
  TokenString last;
  FileField mirror(file, last);
  mirror.write("nobody sees this");
  mirror.bind(&window_, field);
  mirror.write();
  EXPECT_EQ(window_.text(field), "x.java");
  file.setName("my x.java");
  mirror.write();
  EXPECT_EQ(window_.text(field), "\"my x.java\"");
  mirror.write("as it stands");
  EXPECT_EQ(window_.text(field), "as it stands");
  EXPECT_EQ(file.name().fullName(), "my x.java");
}

TEST_F(FileFieldTest, WithoutADialogReadingDoesNothing) {
  FileForSubprocess file("x.java");
  TokenString last;
  FileField mirror(file, last);
  file.args().push_back("a");
  mirror.read();
  EXPECT_EQ(file.name().fullName(), "x.java");
  EXPECT_EQ(file.args().size(), 1U);
  mirror.bind(&window_, field);
  window_.setText(field, "y.java");
  EXPECT_EQ(file.name().fullName(), "x.java") << "binding alone reads nothing";
  mirror.bind(nullptr, 0);
  mirror.read();
  EXPECT_EQ(file.name().fullName(), "x.java");
}

TEST_F(FileFieldTest, WithoutADialogTheLastFilesAreRememberedAndOfferedLater) {
  FileForSubprocess file("x.java");
  TokenString last;
  FileField mirror(file, last);
  mirror.remember();
  mirror.takeChosen();
  EXPECT_EQ(last.elements(), std::vector<std::string>{"x.java"});
  mirror.bind(&window_, field);
  EXPECT_TRUE(window_.entries(field).empty());
  mirror.offer();
  EXPECT_EQ(window_.entries(field), std::vector<std::string>{"x.java"});
  window_.select(field, 0);
  mirror.takeChosen();
  EXPECT_EQ(window_.text(field), "x.java");
}

TEST_F(FileFieldTest, APastedLineEndIsABlank) {
  window_.setText(field, "A.java\nJAVA_PATH  /planted/");
  Shown shown(window_);
  const FileForSubprocess& file = shown.file;
  EXPECT_EQ(file.name().fullName(), "A.java");
  EXPECT_EQ(file.args(), std::vector<std::string>{"JAVA_PATH  /planted/"});
  window_.setText(field, "\"my\r\nA.java\"\n");
  shown.mirror.read();
  EXPECT_EQ(file.name().fullName(), "my A.java");
}

}  // namespace
}  // namespace tarnwick
