#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "support/Children.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

using test::StandInScript;

/// A current folder with all kinds of names.
class PosixFoldersTest : public testing::Test {
 protected:
  PosixFoldersTest() : before_(currentDirectory()) {
    for (const char* name : {"b.txt", "a.txt", "Z.txt", ".hidden", "two words", "-C", "@list", "say \"x\"", "[ab]"})
      test::writeFile(scratch_.file(name), "");
    makeFolders(scratch_.file("sub"));
    test::writeFile(scratch_.file("sub/c.class"), "");
    changeDirectory(scratch_.path());
  }
  ~PosixFoldersTest() override { changeDirectory(before_); }

  test::ScratchFolder scratch_;
  std::string before_;
};

TEST_F(PosixFoldersTest, AnAsteriskStandsForAllNamesSortedWithoutTheHiddenOnes) {
  EXPECT_EQ(withNamesFilledIn(" cf x.jar *"),
            " cf x.jar ./-C ./@list Z.txt [ab] a.txt b.txt \"say \\\"x\\\"\" sub \"two words\"");
}

TEST_F(PosixFoldersTest, OnlyAWordWithAMarkOutsideQuotesIsFilledIn) {
  const struct {
    const char* text;
    const char* expected;
  } table[] = {
      {"*.txt", "Z.txt a.txt b.txt"},
      {"?.txt b*", "Z.txt a.txt b.txt b.txt"},
      {"sub/*", "sub/c.class"},
      {"-C sub *.txt", "-C sub Z.txt a.txt b.txt"},
      {"\"*\"", "\"*\""},
      {"\"a b\"*", "\"a b\"*"},
      {"*.none", "*.none"},
      {"[ab].txt", "[ab].txt"},
      {"[ab]*", "[ab]"},
      {"a\\*", "a\\*"},
      {"", ""},
      {"  a \t b ", "  a \t b "},
      {"\"open *", "\"open *"},
  };
  for (const auto& row : table) EXPECT_EQ(withNamesFilledIn(row.text), row.expected) << row.text;
}

TEST_F(PosixFoldersTest, InAnEmptyFolderTheAsteriskStays) {
  makeFolders(scratch_.file("empty"));
  changeDirectory(scratch_.file("empty"));
  EXPECT_EQ(withNamesFilledIn("cf x.jar *"), "cf x.jar *");
}

TEST_F(PosixFoldersTest, ALinkToAFolderIsAFolder) {
  std::filesystem::create_directory_symlink(scratch_.file("sub"), scratch_.file("link"));
  std::filesystem::create_directory_symlink(scratch_.file("nowhere"), scratch_.file("broken"));
  const auto found = foldersIn(scratch_.path());
  EXPECT_EQ(found.size(), 2U) << "sub and link";
}

/// The system keeps its answers for the life of a process, so a fresh one is asked each time.
class PosixTrashTest : public testing::Test {
 protected:
  PosixTrashTest() { test::writeFile(file(), "what it held"); }

  std::string file() const { return script_.folder().file("my app.jar"); }
  std::string trashed(const std::string& name) const { return script_.folder().file("data/Trash/files/" + name); }
  std::string copyToTrash() const {
    return test::outputOf(resolvedPath(test::standInFolder() + "launch_probe"), "trash \"" + file() + '"');
  }
  std::size_t filesBeside() const { return filesIn(script_.folder().path()).size(); }

  StandInScript script_{""};
  test::ScopedEnvironment home_{"HOME", script_.folder().path()};
  test::ScopedEnvironment data_{"XDG_DATA_HOME", script_.folder().file("data")};
};

TEST_F(PosixTrashTest, ACopyGoesThereAndTheFileStays) {
  const std::size_t before = filesBeside();
  EXPECT_EQ(copyToTrash(), "1\n");
  EXPECT_EQ(test::contentOf(trashed("my app (copy).jar")), "what it held");
  EXPECT_EQ(test::contentOf(file()), "what it held");
  EXPECT_EQ(filesBeside(), before) << "nothing is left beside it";
}

TEST_F(PosixTrashTest, AFileOfTheUsersThatBearsTheNameOfTheCopyIsLeftAlone) {
  test::writeFile(script_.folder().file("my app (copy).jar"), "another");
  EXPECT_EQ(copyToTrash(), "1\n");
  EXPECT_EQ(test::contentOf(trashed("my app (copy 2).jar")), "what it held");
  EXPECT_EQ(test::contentOf(script_.folder().file("my app (copy).jar")), "another");
}

TEST_F(PosixTrashTest, WithoutATrashNothingHappens) {
  // A file in the place of the folder.
  test::writeFile(script_.folder().file("data"), "");
  const std::size_t before = filesBeside();
  EXPECT_EQ(copyToTrash(), "0\n");
  EXPECT_EQ(filesBeside(), before);
  EXPECT_EQ(test::contentOf(file()), "what it held");
}

TEST_F(PosixTrashTest, AFileThatIsNotThereLeavesNoCopy) {
  deleteFile(file());
  const std::size_t before = filesBeside();
  EXPECT_EQ(copyToTrash(), "0\n");
  EXPECT_EQ(filesBeside(), before);
}

}  // namespace
}  // namespace tarnwick::platform
