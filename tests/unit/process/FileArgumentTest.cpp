#include "platform/Path.h"
#include "process/FileArgument.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(FileArgumentTest, ANameThatCouldBeTakenForAnOptionBeginsInTheCurrentFolder) {
  const std::string here = std::string(".") + platform::folderSeparator;
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
      {std::string(1, platform::folderSeparator) + "-A.java", std::string(1, platform::folderSeparator) + "-A.java"},
  };
  for (const auto& row : table) EXPECT_EQ(fileArgument(row.name), row.argument) << row.name;
}

}  // namespace
}  // namespace tarnwick
