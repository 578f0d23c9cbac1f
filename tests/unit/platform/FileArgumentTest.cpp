#include "platform/FileArgument.h"
#include "platform/Path.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(FileArgumentTest, ANameThatCouldBeTakenForAnOptionBeginsInTheCurrentFolder) {
  const std::string here = std::string(".") + folderSeparator;
  const struct {
    std::string name;
    std::string argument;
  } table[] = {
      {"", ""},
      {"A.java", "A.java"},
      {"@A.java", here + "@A.java"},
      {"-A.java", here + "-A.java"},
      {"--", here + "--"},
      {"+12", here + "+12"},
      {" -A.java", here + " -A.java"},
      {"\t@A.java", here + "\t@A.java"},
      {"A-@+.java", "A-@+.java"},
      {" ", " "},
      {here + "-A.java", here + "-A.java"},
      {std::string(1, folderSeparator) + "-A.java", std::string(1, folderSeparator) + "-A.java"},
  };
  for (const auto& row : table) EXPECT_EQ(fileArgument(row.name), row.argument) << row.name;
}

TEST(FileArgumentTest, AsAWordOfAListItIsQuotedForAnyBlank) {
  const std::string here = std::string(".") + folderSeparator;
  EXPECT_EQ(fileWord("a.class"), "a.class");
  EXPECT_EQ(fileWord("a b"), "\"a b\"");
  EXPECT_EQ(fileWord(" a"), "\" a\"");
  EXPECT_EQ(fileWord("-C"), here + "-C");
  EXPECT_EQ(fileWord("@list"), here + "@list");
  EXPECT_EQ(fileWord("+x"), here + "+x");
  EXPECT_EQ(fileWord("@my list"), '"' + here + "@my list\"");
  EXPECT_EQ(fileWord(" -a"), '"' + here + " -a\"");
  EXPECT_EQ(fileWord("a-b@c"), "a-b@c");
}

}  // namespace
}  // namespace tarnwick::platform
