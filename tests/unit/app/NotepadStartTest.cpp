#include "app/NotepadStart.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(NotepadStartTest, ALineAndAColumnMayStandBeforeTheFile) {
  const struct {
    std::vector<std::string> arguments;
    const char* path;
    int line;
    int column;
  } table[] = {
      {{}, "", 0, 0},
      {{"x.java"}, "x.java", 0, 0},
      {{""}, "", 0, 0},
      {{"+12", "x.java"}, "x.java", 12, 0},
      {{"+12:5", "x.java"}, "x.java", 12, 5},
      {{"+12", "+5"}, "+5", 12, 0},
      {{"+12"}, "+12", 0, 0},
      {{"+12x", "x.java"}, "+12x", 0, 0},
      {{"+12:", "x.java"}, "+12:", 0, 0},
      {{"+12:5:6", "x.java"}, "+12:5:6", 0, 0},
      {{"+0", "x.java"}, "+0", 0, 0},
      {{"+-3", "x.java"}, "+-3", 0, 0},
      {{"+99999999999", "x.java"}, "+99999999999", 0, 0},
      {{"12", "x.java"}, "12", 0, 0},
  };
  for (const auto& row : table) {
    const NotepadStart start = notepadStart(row.arguments);
    EXPECT_EQ(start.path, row.path);
    EXPECT_EQ(start.line, row.line) << row.path;
    EXPECT_EQ(start.column, row.column) << row.path;
  }
}

}  // namespace
}  // namespace tarnwick
