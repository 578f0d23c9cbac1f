#include "base/FileForSubprocess.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <climits>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// A path in this platform's spelling, from one with slashes.
std::string local(std::string path) {
  for (char& c : path) {
    if (c == '/') c = platform::folderSeparator;
  }
  return path;
}

TEST(FileForSubprocessTest, StartsEmpty) {
  const FileForSubprocess file;
  EXPECT_TRUE(file.isEmpty());
  EXPECT_EQ(file.name().fullName(), "");
}

TEST(FileForSubprocessTest, ConstructionCleansTheName) {
  EXPECT_EQ(FileForSubprocess("  \"my x.java\" ").name().fullName(), "my x.java");
  EXPECT_FALSE(FileForSubprocess("x").isEmpty());
  EXPECT_TRUE(FileForSubprocess(" ").isEmpty());
  EXPECT_EQ(FileForSubprocess(local("/a b"), "x.java").name().fullName(), local("/a b/x.java"));
  EXPECT_EQ(FileForSubprocess("", "x.java").name().fullName(), "x.java");
}

TEST(FileForSubprocessTest, SetNameKeepsArgumentsAndTheNameBefore) {
  const test::ScratchFolder folder;
  FileForSubprocess file(folder.file("x.java"));
  file.args() = {"a", "b"};
  file.setName("y.java");
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

}  // namespace
}  // namespace tarnwick
